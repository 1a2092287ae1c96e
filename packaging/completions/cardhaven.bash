# Completion of cardhaven and cardhaven-console for bash.
_cardhaven() {
  local cur prev options
  cur=${COMP_WORDS[COMP_CWORD]}
  prev=${COMP_WORDS[COMP_CWORD - 1]}
  case $prev in
    --folder)
      compopt -o filenames
      COMPREPLY=($(compgen -d -- "$cur"))
      return
      ;;
    --game | --today | --statistics)
      COMPREPLY=($(compgen -W 'Sumfall Fivestack Blackrush Duopick Spirehold Handgrid Treyshift' -- "$cur"))
      return
      ;;
    --record | --watch)
      compopt -o filenames
      COMPREPLY=($(compgen -f -- "$cur"))
      return
      ;;
    --deal | --seed | --speed | --start | --screen) return ;;
  esac
  case $cur in
    -*)
      options='--folder --record --game --today --deal --seed --start --help --version'
      case $1 in
        *cardhaven-console) options="$options --screen --verify --verify-tables --history --statistics" ;;
        *) options="$options --console --speed --no-records --watch" ;;
      esac
      COMPREPLY=($(compgen -W "$options" -- "$cur"))
      ;;
    *)
      case " ${COMP_WORDS[*]} " in
        *" --verify "*)
          compopt -o filenames
          COMPREPLY=($(compgen -f -- "$cur"))
          return
          ;;
      esac
      compopt -o filenames
      COMPREPLY=($(compgen -d -- "$cur") $(compgen -f -X '!*.sfl' -- "$cur"))
      ;;
  esac
}
complete -F _cardhaven cardhaven cardhaven-console
