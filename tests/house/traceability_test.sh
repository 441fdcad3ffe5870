#!/usr/bin/env bash
# Each message that the program shows, in both languages, each control, each key of the toolbar and
# each bound of docs/limits.md is named by a test.
set -euo pipefail
root=$2
here=$(dirname "$0")

sample=$(mktemp -d)
trap 'rm -rf "$sample"' EXIT
mkdir -p "$sample"/{src/{base,forms,plot/session},tests,docs}
cat >"$sample/src/base/message_table.cpp" <<'EOF'
constexpr std::string_view kLong = "uno "
    "dos";
constexpr std::array<MessageRow, 4> kRows = {{
    {"Hecho.", "Done."},
    {"Campo %1.", "Field %1."},
    {"Nunca.", "Never."},
    {kLong, "one two"},
}};
EOF
printf '%s\n' 'show("Hecho."); show("Campo %1."); show(kLong);' >"$sample/src/forms/some.cpp"
printf '%s\n' 'box("txtA"); box("txtB"); setObjectName("Slider9");' >>"$sample/src/forms/some.cpp"
printf '%s\n' 'keys = {"Arriba", "Abajo"};' >"$sample/src/plot/session/plot_command.h"
# shellcheck disable=SC2016 # the backticks are the document's
printf '%s\n' '| what | bound | constant |' '| a | 1 | `Some::kMost` |' '| b | 2 | `kLeast` |' \
  >"$sample/docs/limits.md"
printf '%s\n' '"Hecho." "Campo F." "Field F." "uno dos" txtA Slider9 Arriba kMost' \
  >"$sample/tests/a_test.cpp"
found=$(python3 "$here/traceability.py" "$sample")
if [[ $found != $'message "Done."\nmessage "one two"\ncontrol txtB\nkey Abajo\nbound kLeast' ]]; then
  echo "The check itself is wrong. It found:"
  echo "$found"
  exit 1
fi

found=$(python3 "$here/traceability.py" "$root")
echo "$found"
[[ -z $found ]]
