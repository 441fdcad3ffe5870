#!/usr/bin/env bash
# The engine gives the same digits on every machine: it calls none of the C library's elementary
# functions, which differ from one to the next, but those of numbers/elementary.
set -euo pipefail
root=$2

names='sin|cos|tan|asin|acos|atan|atan2|sinh|cosh|tanh|exp|exp2|expm1|log|log2|log10|log1p|pow|cbrt'
names+='|hypot|tgamma|lgamma|erf|erfc'

# complaints FOLDER: the lines that call one, comments and texts aside.
complaints() {
  local file
  find "$1" -name '*.cpp' -o -name '*.h' | sort | while read -r file; do
    sed -e 's/"[^"]*"//g' -e 's://.*::' "$file" |
      grep -nE "(\bstd::|[^A-Za-z0-9_:.>]|^)($names)[fl]?\(" | sed "s|^|$file:|" || true
  done
}

sample=$(mktemp -d)
trap 'rm -rf "$sample"' EXIT
printf '%s\n' 'y = std::sin(x);' 'y = pow(x, 2);' 'logf(x);' 'return std::lgamma(x);' \
  >"$sample/bad.cpp"
printf '%s\n' 'y = sine(x);' 'finite(power(x, 2));' 'y = x;  // sin(x)' 'program.log(text);' \
  'y = std::sqrt(x);' 'parse("cos(x)");' >"$sample/good.cpp"
found=$(complaints "$sample")
if [[ $(grep -c 'bad.cpp' <<<"$found") -ne 4 || $(wc -l <<<"$found") -ne 4 ]]; then
  echo "The check itself is wrong. It found:"
  echo "$found"
  exit 1
fi

found=$(complaints "$root/src/engine"; complaints "$root/src/numbers")
echo "$found"
[[ -z $found ]]
