#!/usr/bin/env bash
# Each header below src/ compiles alone, but those that this machine cannot compile. A source that
# includes its own header first shows it in every build; only the other headers are compiled here.
set -euo pipefail
root=$2
export compiler=${ZEL_CXX:-g++}

flags="-std=c++20 -fPIC -w"
qt_folders=${ZEL_QT_INCLUDES:-}
[[ -z $qt_folders ]] || flags+=" -isystem ${qt_folders//:/ -isystem }"
export flags

sample=$(mktemp -d)
trap 'rm -rf "$sample"' EXIT
export widget=$sample/widget.h

# complaints SRC: the headers that do not compile, each with what the compiler says.
complaints() {
  with_widgets "$1" >"$sample/with_widgets"
  # shellcheck disable=SC2016 # the inner shell expands
  find "$1" -name '*.h' | sort | possible | not_first "$1" | SRC=$1 xargs -r -P "$(nproc)" -I{} bash -c '
    before=()
    ! grep -qxF "$1" "${widget%/*}/with_widgets" || before=(-include "$widget")
    said=$($compiler $flags -fsyntax-only "${before[@]}" -I"$SRC" -x c++ "$1" 2>&1) ||
      printf "%s\n%s\n" "${1#"$SRC/"} does not compile alone" "$said"
  ' _ {}
}

# with_widgets SRC: the headers that include QWidget's in any case, as they name a class that derives
# from it, or a header that does. It takes most of their time, so it is compiled once, before them.
with_widgets() {
  local classes='Widget|Label|PushButton|MainWindow|Menu|StatusBar|ToolBar|ListWidget|TreeWidget'
  local found before=none
  [[ -f $widget.gch ]] || return 0
  found=$(grep -rlE --include='*.h' "^#include <Q($classes|TextBrowser|DoubleSpinBox)>" "$1" | sort)
  while [[ $found != "$before" ]]; do
    before=$found
    found=$(printf '%s\n' "${before//"$1/"/}" | sed 's|.*|#include "&"|' |
      grep -rlFf - --include='*.h' "$1" | sort -u - <(echo "$before"))
  done
  echo "$found"
}

# What this machine cannot compile: the headers for Windows, and without Qt those of its folders.
possible() {
  local folders=(-e /platform/win32/)
  [[ -n $qt_folders ]] || folders+=(-e /forms/ -e /platform/)
  grep -v "${folders[@]}" || true
}

# not_first SRC: leaves out the headers that their sources include first. Where many sources are
# compiled at once (the floors with windows, and cli) others come before, so those are kept.
not_first() {
  local header source
  while read -r header; do
    if [[ ! $header =~ /(cli|forms|platform)/ ]]; then
      for source in "${header%.h}.cpp" "${header%.h}_posix.cpp"; do
        [[ ! -f $source || $(grep -m 1 '^#include' "$source") != "#include \"${header#"$1/"}\"" ]] || continue 2
      done
    fi
    echo "$header"
  done
}

src=$sample/src
mkdir -p "$src"/{base,forms}
printf '#include <string>\nstd::string good();\n' >"$src/base/good.h"
printf '#include "base/good.h"\nstd::vector<int> bad();\n' >"$src/base/bad.h"
printf '#include <vector>\n#include "base/bad.h"\n' >"$src/base/bad.cpp"
printf 'std::vector<int> built();\n' >"$src/base/built.h"
printf '#include "base/built.h"\n' >"$src/base/built.cpp"
expected="base/bad.h does not compile alone"
if [[ -n $qt_folders ]]; then
  echo '#include <QWidget>' >"$widget"
  # shellcheck disable=SC2086 # many words
  "$compiler" $flags -x c++-header -o "$widget.gch" "$widget"
  printf '#include <QLabel>\nstruct Good : QLabel {};\n' >"$src/forms/good.h"
  printf '#include "forms/good.h"\nGood better(const QWidget& of);\n' >"$src/forms/better.h"
  printf '#include "forms/good.h"\nGood bad(const QLineEdit& of);\n' >"$src/forms/bad.h"
  printf '#include <QString>\nvoid worse(const QWidget& of);\n' >"$src/forms/worse.h"
  expected+=$'\n'"forms/bad.h does not compile alone"$'\n'"forms/worse.h does not compile alone"
fi
found=$(complaints "$src" | grep 'alone$' | sort || true)
if [[ $found != "$expected" ]]; then
  echo "The check itself is wrong. It found: $found"
  exit 1
fi

found=$(complaints "$root/src")
echo "$found"
[[ -z $found ]]
