# Completion of loomstreet's arguments for bash.
_loomstreet() {
  local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} index
  COMPREPLY=()
  for ((index = 1; index < COMP_CWORD; ++index)); do
    [ "${COMP_WORDS[index]}" != -- ] || return 0
  done
  case $previous in
    --action) mapfile -t COMPREPLY < <(compgen -W "new-window search bag" -- "$word") ;;
    --ca-file) compopt -o filenames 2>/dev/null; mapfile -t COMPREPLY < <(compgen -f -- "$word") ;;
    *)
      mapfile -t COMPREPLY < <(compgen -W "--new-window --action --quit --safe-mode --pseudo-language --ca-file --help --version" -- "$word")
      ;;
  esac
}
complete -F _loomstreet loomstreet
