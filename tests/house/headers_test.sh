#!/usr/bin/env bash
# Each header below src/ compiles alone, but those that this machine cannot compile. A source that
# includes its own header first shows it in every build; only the other headers are compiled here.
set -euo pipefail
root=$2
export compiler=${ZEL_CXX:-g++}

flags="-std=c++20 -fsyntax-only -fPIC -w -x c++"
qt_folders=${ZEL_QT_INCLUDES:-}
[[ -z $qt_folders ]] || flags+=" -isystem ${qt_folders//:/ -isystem }"
export flags

# complaints SRC: the headers that do not compile, each with what the compiler says.
complaints() {
  # shellcheck disable=SC2016 # the inner shell expands
  find "$1" -name '*.h' | sort | possible | not_first "$1" | SRC=$1 xargs -r -P "$(nproc)" -I{} bash -c '
    said=$($compiler $flags -I"$SRC" "$1" 2>&1) || printf "%s\n%s\n" "${1#"$SRC/"} does not compile alone" "$said"
  ' _ {}
}

# What this machine cannot compile: the headers for Windows, and without Qt those of its folders.
possible() {
  local folders=(-e /platform/win32/)
  [[ -n $qt_folders ]] || folders+=(-e /forms/ -e /platform/)
  grep -v "${folders[@]}" || true
}

# not_first SRC: leaves out the headers that their sources include first. Where a source has a
# precompiled header (the floors with windows, and cli) it comes before, so those are kept.
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

sample=$(mktemp -d)
trap 'rm -rf "$sample"' EXIT
mkdir "$sample/base"
printf '#include <string>\nstd::string good();\n' >"$sample/base/good.h"
printf '#include "base/good.h"\nstd::vector<int> bad();\n' >"$sample/base/bad.h"
printf '#include <vector>\n#include "base/bad.h"\n' >"$sample/base/bad.cpp"
printf 'std::vector<int> built();\n' >"$sample/base/built.h"
printf '#include "base/built.h"\n' >"$sample/base/built.cpp"
found=$(complaints "$sample" | grep 'alone$' || true)
if [[ $found != "base/bad.h does not compile alone" ]]; then
  echo "The check itself is wrong. It found: $found"
  exit 1
fi

found=$(complaints "$root/src")
echo "$found"
[[ -z $found ]]
