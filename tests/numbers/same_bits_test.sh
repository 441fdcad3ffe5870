#!/usr/bin/env bash
# A hundred thousand results of the elementary functions, one by one and in lanes, are the same to
# the bit with the vector and fused instructions of this machine, by those of plain x86-64 alone, and
# with another C library (musl, where its compiler is installed).
set -uo pipefail
root=$2
[[ $(uname -m) == x86_64 ]] || {
  echo "there is but one instruction set"
  exit 77
}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

sources=("$root"/src/numbers/elementary/*.cpp "$root/tests/numbers/elementary/lanes_under_test.cpp"
  "$root/tests/numbers/same_bits/main.cpp")
# As cmake/floating_point.cmake has it; without what needs more of the C++ library than its headers.
options=(-std=c++20 -O3 -ffp-contract=off -fno-math-errno -fno-trapping-math -fno-exceptions
  -fno-rtti -fno-threadsafe-statics -I "$root/src" -I "$root/tests")

# results NAME COMPILER OPTION...: builds the program, and keeps what it prints.
results() {
  local name=$1
  shift
  "$@" "${options[@]}" -o "$work/$name.program" "${sources[@]}" &&
    "$work/$name.program" >"$work/$name"
}

results here g++ &
builds=($!)
results plain g++ -march=x86-64 -D ZEL_BASELINE &
builds+=($!)
others=(plain)
if command -v musl-gcc >/dev/null; then
  # The headers of the C++ library are those for the usual C library.
  headers=$(echo '#include <cmath>' | g++ -E -x c++ - | sed -nE 's|^# 1 "(.*)/cmath".*|\1|p' | head -1)
  results musl musl-gcc -static -x c++ "-D__GLIBC_PREREQ(a,b)=0" -isystem "$headers" \
    -isystem "${headers/include/include/x86_64-linux-gnu}" &
  builds+=($!)
  others+=(musl)
else
  echo "musl-gcc is not installed: only one C library was tried"
fi
for build in "${builds[@]}"; do
  wait "$build" || exit 1
done

lines=$(wc -l <"$work/here")
[[ $lines -ge 100000 ]] || {
  echo "only $lines results"
  exit 1
}
awk '$3 != $4 {print "a lane is another than a call: " $0; bad = 1; exit} END {exit bad}' "$work/here" ||
  exit 1
for other in "${others[@]}"; do
  cmp "$work/here" "$work/$other" || exit 1
done
echo "$lines results are the same (${others[*]})"
