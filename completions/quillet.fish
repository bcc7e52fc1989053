# Completion of quillet in fish.

complete -c quillet -f

# No word but the first can be an option.
set -l first 'test (count (commandline -opc)) -eq 1'
complete -c quillet -n $first -l mysql -d 'Write the statement for MySQL 4.1'
complete -c quillet -n $first -l postgresql -d 'Write the statement for PostgreSQL'
complete -c quillet -n $first -l tree -d 'Show the parse tree'
complete -c quillet -n $first -l type_view -d 'Show the inferred types'
