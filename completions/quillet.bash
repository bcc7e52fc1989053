# Completion of quillet in bash, by bash-completion.

_quillet() {
    local cur prev words cword
    _init_completion || return
    if ((cword == 1)); then # no other word can be an option
        mapfile -t COMPREPLY < <(compgen -W '--mysql --postgresql --tree --type_view' -- "$cur")
    fi
}

complete -F _quillet quillet
