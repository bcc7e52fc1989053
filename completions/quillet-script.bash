# Completion of quillet-script in bash, by bash-completion.

# The ids of warnings and notes.
_quillet_script_ids() {
    local id severity message
    while IFS=$'\t' read -r id severity message; do
        case $severity in note | warning) printf '%s\n' "$id" ;; esac
    done < <("$1" --list-ids 2>/dev/null)
}

_quillet_script() {
    local cur prev words cword split
    _init_completion -s || return

    local files='@(sql|json|jsonl)' choices=
    case $prev in
    --input | --format) choices='sql json' ;;
    --placeholders) choices='dollar question named format pyformat auto' ;;
    --placeholders-out) choices='dollar question named format pyformat' ;;
    --to) choices='mysql postgresql type_view tree' ;;
    --warn) choices="all warnings none $(_quillet_script_ids "$1")" ;;
    --no-warn) choices="all $(_quillet_script_ids "$1")" ;;
    --color) choices='auto always never' ;;
    --docs) files= ;;
    --report) files=html ;;
    -o | --output) ;;
    *)
        ! $split || return
        if [[ $cur == -* ]]; then
            choices='-h --help --input --placeholders --backslash-escapes --to -o --output --format
                --placeholders-out --report --docs --warn --no-warn --notes --strict --color
                --list-ids --version'
        fi
        ;;
    esac
    if [ -n "$choices" ]; then
        mapfile -t COMPREPLY < <(compgen -W "$choices" -- "$cur")
    elif [ -n "$files" ]; then
        _filedir "$files"
    fi
}

complete -F _quillet_script quillet-script
