#!/usr/bin/env bash
# cppcheck has nothing to say of the sources, nor clang-tidy of those of the core that were changed last,
# and what looks at them finds faults. All sources take clang-tidy longer than a test may:
# scripts/analyse.sh. Those above the core take it too long for their toolkits' headers.
set -euo pipefail
root=$2
for program in cppcheck clang++ clang-tidy; do
  command -v "$program" >/dev/null || { echo "no $program"; exit 77; }
done

sample=$(mktemp -d)
trap 'rm -rf "$sample"' EXIT
mkdir -p "$sample"/{src,scripts,build/tidy}
cp "$root"/.clang-tidy "$root"/.cppcheck-suppressions "$sample"
cp "$root"/scripts/analyse.{sh,py} "$root"/scripts/common.sh "$sample/scripts"
printf '#!/bin/sh\n' >"$sample/scripts/setup.sh"
chmod +x "$sample/scripts/setup.sh"
touch "$sample/build/tidy"/{build.ninja,configured}

# entry NAME: a compile command for a source of the sample.
entry() {
  printf '{"directory": "%s", "file": "%s", "command": "clang++ -std=c++20 -o x.o -c %s"}' \
    "$sample/build/tidy" "$sample/src/$1" "$sample/src/$1"
}
printf '[%s,\n%s]' "$(entry good.cpp)" "$(entry other.cpp)" \
  >"$sample/build/tidy/compile_commands.json"

# expect STATUS TEXT WHAT [OPTION...]: of the sample as it is.
expect() {
  local status=0 said
  said=$("$sample/scripts/analyse.sh" "${@:4}" 2>&1) || status=$?
  [[ $status -eq $1 && $said == *"$2"* ]] && return
  printf '%s\n' "The check itself is wrong with $3. It said:" "$said"
  exit 1
}
printf 'int good(int a) { return a + 1; }\n' >"$sample/src/good.cpp"
printf 'int other(int a) { return a + 2; }\n' >"$sample/src/other.cpp"
expect 0 "1 passed, 0 did not, 1 left" "good sources of which one is wanted" --most 1
expect 0 "1 passed, 0 did not, 0 left" "good sources"
expect 0 "0 passed, 0 did not" "sources that have passed"
printf 'int good(int a) {\n  int b;\n  return a + 2;\n}\n' >"$sample/src/good.cpp"
expect 1 "0 passed, 1 did not" "a source that clang-tidy complains of"
printf 'int good(int a) { return a + 3; }\n' >"$sample/src/good.cpp"
printf 'int other(int a) {\n  const int* b = nullptr;\n  if (a > 3) b = &a;\n  return *b;\n}\n' \
  >"$sample/src/other.cpp"
expect 1 "src/other.cpp:4:10: error: Dereference" "a source that fails on one path, and is looked at with another"
printf 'int good(int a) {\n  const int b[2] = {a, a};\n  return b[2];\n}\n' >"$sample/src/good.cpp"
expect 1 "src/good.cpp:3" "a source that cppcheck complains of"

"$root/scripts/analyse.sh" --most 2 '^src/(base|numbers|pictures|engine|graphs|files|plot|app)/'
