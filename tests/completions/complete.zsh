# Prints what zsh completes a line to: complete.zsh LINE
#
# An interactive zsh in a terminal of its own begins with the line, completes it and ends.
zmodload zsh/zpty

home=$(mktemp -d)
cat >$home/.zshrc <<'END'
fpath=($SITE_FUNCTIONS $fpath)
autoload -Uz compinit
compinit -u -D

# Keeps what is added to the list of matches. With -A, -D or -O words are only sorted out.
compadd() {
    local -a matches
    if (( ! ${@[(I)-[ADO]*]} )); then
        builtin compadd -O matches "$@"
        print -rl -- $matches >>$ZDOTDIR/matches
    fi
    builtin compadd "$@"
}
zle -C complete complete-word _main_complete
zle-line-init() {
    LBUFFER=$LINE_TO_COMPLETE
    zle complete
    exit
}
zle -N zle-line-init
END

export ZDOTDIR=$home LINE_TO_COMPLETE=$1
zpty shell zsh -i
while zpty -r shell output; do :; done
cat $home/matches
rm -r $home
