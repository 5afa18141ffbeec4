# Completion of velmar for bash. The command itself lists what fits.

_velmar() {
  local IFS=$'\n'
  COMPREPLY=($("${COMP_WORDS[0]}" __complete "${COMP_WORDS[@]:1:COMP_CWORD}" 2>/dev/null))
  [[ ${#COMPREPLY[@]} -eq 1 && ${COMPREPLY[0]} == *= ]] && compopt -o nospace
}

complete -o default -F _velmar velmar
