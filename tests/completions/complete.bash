# Prints what bash completes a line to: complete.bash LINE
. "$BASH_COMPLETION"

# The words as readline has them: "=" is one of its own.
COMP_LINE=$1 COMP_POINT=${#1} COMP_TYPE=9 COMP_KEY=9
read -r -a COMP_WORDS <<<"${1//=/ = }"
[[ $1 != *' ' ]] || COMP_WORDS+=('')
COMP_CWORD=$((${#COMP_WORDS[@]} - 1))

command=${COMP_WORDS[0]}
_completion_loader "$command" # finds the file as the TAB key does
complete=$(complete -p "$command")
[[ $complete =~ ' -F '([^ ]+) ]]
COMPREPLY=()
"${BASH_REMATCH[1]}" "$command" "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"
printf '%s\n' "${COMPREPLY[@]}"
