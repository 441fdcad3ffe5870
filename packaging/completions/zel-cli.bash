# Completion of zel-cli in bash.

# _zel_cli_options COMMAND: the options of a command, of all commands without one.
_zel_cli_options() {
  local everywhere='-h --help' view='--width --height --range --quality --proportional --marks'
  case $1 in
    '') echo "$everywhere --version --lang --point" ;;
    evaluate) echo "$everywhere --document --t --p --code --batch" ;;
    check-formula) echo "$everywhere --document" ;;
    table) echo "$everywhere --graph --from --to --step --p --json" ;;
    render) echo "$everywhere -o --format $view" ;;
    drive) echo "$everywhere --active $view" ;;
    *) echo "$everywhere" ;;
  esac
}

_zel_cli() {
  local commands='evaluate compile check-formula check resave table render drive self-test'
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
  local command='' words='' files='' i
  for ((i = 1; i < COMP_CWORD; ++i)); do
    [[ " $commands " != *" ${COMP_WORDS[i]} "* ]] || { command=${COMP_WORDS[i]}; break; }
  done
  case $before in
    --lang) words='ES EN' ;;
    --proportional) words='yes no' ;;
    --format) words='png svg pdf' ;;
    --graph | --active) words=$(printf '%s ' {a..z}) ;;
    --document) files='*.zel' ;;
    -o) files='*' ;;
    *)
      if [[ $word == -* ]]; then
        words=$(_zel_cli_options "$command")
      elif [[ -z $command ]]; then
        words=$commands
      elif [[ $command == @(check|resave|table|render|drive) ]]; then
        files='*.zel'
      fi
      ;;
  esac
  if [[ -n $files ]]; then
    [[ -z ${COMP_TYPE:-} ]] || compopt -o filenames
    mapfile -t COMPREPLY < <(compgen -d -- "$word"; compgen -f -X "!$files" -- "$word")
  else
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
  fi
}
complete -F _zel_cli zel-cli
