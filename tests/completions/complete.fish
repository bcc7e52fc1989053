# Prints what fish completes a line to: complete.fish LINE
complete -C $argv[1]
