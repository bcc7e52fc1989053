# Completion of quillet-script in fish.

function __quillet_script_ids -d 'Warnings and notes'
    set -l command (commandline -opc)[1]
    $command --list-ids 2>/dev/null |
        string replace -rf '^([^\t]+)\t(note|warning)\t(.*)' '$1\t$2: $3'
end

function __quillet_script_files -d 'Files with these suffixes, and directories'
    set -l word (commandline -ct | string replace -r '^-[^=]*=' '')
    complete -C "__fish_command_without_completions $word" |
        string match -r '^.*(?:/|'(string join '|' '\.'$argv)')$'
end

complete -c quillet-script -f -a '(__quillet_script_files sql json jsonl)'
complete -c quillet-script -l input -x -a 'sql json' -d 'The format of the input'
complete -c quillet-script -l placeholders -x -a 'dollar question named format pyformat auto' -d 'Placeholders in the input'
complete -c quillet-script -l backslash-escapes -d 'A backslash in a string escapes what follows'
complete -c quillet-script -l to -x -a 'mysql postgresql type_view tree' -d 'The builder'
complete -c quillet-script -s o -l output -x -a '(__quillet_script_files sql json jsonl)' -d 'Write there'
complete -c quillet-script -l format -x -a 'sql json' -d 'The format of the output'
complete -c quillet-script -l placeholders-out -x -a 'dollar question named format pyformat' -d 'Placeholders in the output'
complete -c quillet-script -l report -x -a '(__quillet_script_files html)' -d 'Write a page about all statements'
complete -c quillet-script -l docs -x -d 'Where the report finds the documentation'
complete -c quillet-script -l warn -x -a 'all warnings none (__quillet_script_ids)' -d 'Say this warning or note'
complete -c quillet-script -l no-warn -x -a 'all (__quillet_script_ids)' -d 'Do not say this warning or note'
complete -c quillet-script -l notes -d 'Say a note each time'
complete -c quillet-script -l strict -d 'A warning counts as a refusal'
complete -c quillet-script -l color -x -a 'auto always never' -d 'Colours in messages'
complete -c quillet-script -l list-ids -d 'Print each id with its severity and message'
complete -c quillet-script -l version -d 'Print the version'
complete -c quillet-script -s h -l help -d 'Print the options'
