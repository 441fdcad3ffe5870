#!/usr/bin/env bash
# Manual pages and completions know every option and command that zel-cli --help tells, and none
# that it does not.
set -uo pipefail
cli=$1
cd "$2/packaging" || exit 1
for tool in zsh fish mandoc; do
  command -v "$tool" >/dev/null || { echo "no $tool"; exit 77; }
done
export LC_ALL=C.UTF-8
bad=0

# options: the options of a help text, one a line.
options() {
  sed -nE 's/^  ((-[a-z]|--[a-z-]+)(,--[a-z-]+)?)( .*)?$/\1/p' | tr ',' '\n' | sort -u
}
# commands: those of the help text.
commands() {
  sed -nE '/^(Subc|C)ommands:/,$s/^  ([a-z-]+) .*/\1/p' | sort -u
}
# compare WHAT WANTED FOUND
compare() {
  local difference
  difference=$(diff <(sort -u <<<"$2") <(sort -u <<<"$3")) && return
  printf '%s (< wanted, > found):\n%s\n' "$1" "$difference"
  bad=1
}

in_bash() { # WORD...: what is offered for the last one
  bash -c 'source completions/zel-cli.bash
    COMP_WORDS=(zel-cli "$@") COMP_CWORD=$#
    _zel_cli
    printf "%s\n" "${COMPREPLY[@]}"' bash "$@"
}
in_fish() {
  fish --no-config -c "source completions/zel-cli.fish; complete -C 'zel-cli $*'" | cut -f 1
}
# zsh needs a terminal to complete: its helpers are told to print what they are told.
# shellcheck disable=SC2016  # the text is for zsh
in_zsh() {
  zsh -f -c '_arguments() { print -rl -- "$@" }
    _describe() { print -rl -- $commands }
    command=$1 state=none
    source completions/zel-cli.zsh >/dev/null
    if [[ $command == commands ]]; then _zel_cli_commands
    elif [[ -z $command ]]; then _zel_cli
    else _zel_cli_options $command; fi' zsh "$1"
}
zsh_options() { in_zsh "$1" | sed -nE 's/^(\([^)]*\))?(-[a-z]|--[a-z-]+).*/\2/p'; }

help=$("$cli" --help)
known=$(commands <<<"$help")
[[ $(wc -l <<<"$known") -ge 9 ]] || { echo "commands: $known"; exit 1; }
compare "commands in bash" "$known" "$(in_bash '')"
compare "commands in fish" "$known" "$(in_fish '')"
compare "commands in zsh" "$known" "$(in_zsh commands | cut -d : -f 1)"

all=
for command in '' $known; do
  wanted=$("$cli" ${command:+"$command"} --help | options)
  all+=$wanted$'\n'
  grep -qx -- --help <<<"$wanted" || { echo "no options of $command found"; exit 1; }
  compare "options of '$command' in bash" "$wanted" \
    "$(in_bash ${command:+"$command"} -)"
  compare "options of '$command' in fish" "$wanted" \
    "$(in_fish "$command" -; in_fish "$command" --)"
  compare "options of '$command' in zsh" "$wanted" "$(zsh_options "$command")"
done

for page in man/zel-cli.1 man/es/zel-cli.1; do
  text=$(mandoc -Tutf8 -Owidth=200 "$page" | sed -E 's/.\x08//g; /^(EXAMPLES|EJEMPLOS)/,$d')
  compare "options in $page" "$(sed '/^$/d' <<<"$all")" \
    "$(grep -oE '(^|[ [|,])(--[a-z-]+|-[a-z])\b' <<<"$text" | grep -oE -- '-.*')"
  for command in $known; do
    grep -qE "^ +$command( |\$)" <<<"$text" || { echo "$page does not explain $command"; bad=1; }
  done
done
exit $bad
