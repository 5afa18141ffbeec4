# Completion of velmar for bash. The command itself lists what fits.

_velmar() {
  local IFS=$'\n' current=${COMP_WORDS[COMP_CWORD]}
  COMPREPLY=($("${COMP_WORDS[0]}" __complete "${COMP_WORDS[@]:1:COMP_CWORD}" 2>/dev/null))
  if [[ ${COMPREPLY[0]} == :files ]]; then
    COMPREPLY=()
    compopt -o default
  elif [[ $current == = || ${COMP_WORDS[COMP_CWORD - 1]} == = ]]; then
    # bash takes the part before "=" for a word of its own.
    COMPREPLY=("${COMPREPLY[@]#*=}")
  fi
  [[ ${#COMPREPLY[@]} -eq 1 && ${COMPREPLY[0]} == *= ]] && compopt -o nospace
}

complete -F _velmar velmar
