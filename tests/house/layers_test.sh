#!/usr/bin/env bash
# The floors of the house: who includes whom below src/, without cycles; and up to app nothing but
# standard C++ (platform headers in *_posix.cpp and *_win32.cpp only, and what compresses pictures in
# *_isal.cpp and *_zlib.cpp).
set -euo pipefail
export LC_ALL=C
root=$2

declare -A may_include=([base]=base [numbers]=numbers [pictures]="base|pictures")
below="base|numbers"
for floor in engine graphs files plot app; do
  [[ $floor != plot ]] || below+="|pictures"
  below+="|$floor"
  may_include[$floor]=$below
done
may_include[platform]="$below|platform"
may_include[forms]="$below|platform|forms"
may_include[cli]="$below|cli"
may_include[main.cpp]="$below|platform|forms"

standard="algorithm|any|array|atomic|barrier|bit|bitset|charconv|chrono|codecvt|compare|complex"
standard+="|concepts|condition_variable|coroutine|deque|exception|execution|filesystem|format"
standard+="|forward_list|fstream|functional|future|initializer_list|iomanip|ios|iosfwd|iostream"
standard+="|istream|iterator|latch|limits|list|locale|map|memory|memory_resource|mutex|new|numbers"
standard+="|numeric|optional|ostream|queue|random|ranges|ratio|regex|scoped_allocator|semaphore|set"
standard+="|shared_mutex|source_location|span|sstream|stack|stdexcept|stop_token|streambuf|string"
standard+="|string_view|strstream|syncstream|system_error|thread|tuple|type_traits|typeindex"
standard+="|typeinfo|unordered_map|unordered_set|utility|valarray|variant|vector|version"
standard+="|cassert|cctype|cerrno|cfenv|cfloat|cinttypes|climits|clocale|cmath|csetjmp|csignal"
standard+="|cstdarg|cstddef|cstdint|cstdio|cstdlib|cstring|ctime|cuchar|cwchar|cwctype"

# includes SRC: a line "file bracket header" for each include, paths relative to SRC.
includes() {
  grep -rHE '^\s*#\s*include\s*["<]' --include='*.cpp' --include='*.h' "$1" |
    sed -E -e "s|^$1/||" \
      -e 's|^([^:]+):\s*#\s*include\s*(["<])([^">]+).*|\1 \2 \3|'
}

# Own headers are included by their path below src/ and come from no floor above.
upward_includes() {
  local file bracket header folder
  while read -r file bracket header; do
    folder=${file%%/*}
    [[ $bracket == '"' && ! $header =~ (^|/)moc_|\.moc$ ]] || continue
    if [[ ! -f $1/$header ]]; then
      echo "$file: no file \"$header\" below src/"
    elif [[ ! ${header%%/*} =~ ^(${may_include[$folder]:-nothing})$ ]]; then
      echo "$file: includes \"$header\" from a floor that it must not know"
    fi
  done < <(includes "$1")
}

foreign_includes() {
  local file bracket header
  while read -r file bracket header; do
    [[ $bracket == "<" && $file =~ ^($below)/ && ! $header =~ ^($standard)$ ]] || continue
    [[ ! $file =~ _(posix|win32)\.cpp$ || $header =~ ^Q ]] || continue
    [[ ! $file =~ ^pictures/.*_(isal|zlib)\.cpp$ || ! $header =~ ^(isa-l/.*|zlib\.h)$ ]] || continue
    echo "$file: includes <$header>, which is not standard C++"
  done < <(includes "$1")
}

include_cycles() {
  includes "$1" | awk '$1 ~ /\.h$/ && $2 == "\"" { print $1, $3 }' | { tsort 2>&1 >/dev/null || true; } |
    sed 's/^tsort: -/headers/'
}

complaints() {
  upward_includes "$1"
  foreign_includes "$1"
  include_cycles "$1"
}

# A house with each fault once: no fault may go unnoticed, nor anything else be called one.
sample=$(mktemp -d)
trap 'rm -rf "$sample"' EXIT
mkdir -p "$sample"/{base,pictures,engine,app,platform/qt}
echo '#include <vector>' >"$sample/base/good.h"
echo '#include <unistd.h>' >"$sample/base/file_posix.cpp"
echo '#include <QString>' >"$sample/platform/qt/good.h"
printf '%s\n' '#include "engine/a.h"' '#include <QString>' >"$sample/base/bad.h"
printf '%s\n' '#include "engine/b.h"' '#include "base/good.h"' >"$sample/engine/a.h"
printf '%s\n' '  #  include "engine/a.h"' '#include "a.h"' >"$sample/engine/b.h"
printf '%s\n' '#include <sys/stat.h>' '#include "platform/qt/good.h"' >"$sample/app/bad.cpp"
printf '%s\n' '#include <zlib.h>' '#include <png.h>' >"$sample/pictures/deflate_zlib.cpp"
echo '#include <zlib.h>' >"$sample/pictures/png.cpp"
echo '#include <zlib.h>' >"$sample/base/text_zlib.cpp"
found=$(complaints "$sample" | sort)
expected="app/bad.cpp: includes \"platform/qt/good.h\" from a floor that it must not know
app/bad.cpp: includes <sys/stat.h>, which is not standard C++
base/bad.h: includes \"engine/a.h\" from a floor that it must not know
base/bad.h: includes <QString>, which is not standard C++
base/text_zlib.cpp: includes <zlib.h>, which is not standard C++
engine/b.h: no file \"a.h\" below src/
headers: input contains a loop:
pictures/deflate_zlib.cpp: includes <png.h>, which is not standard C++
pictures/png.cpp: includes <zlib.h>, which is not standard C++
tsort: engine/a.h
tsort: engine/b.h"
if [[ $found != "$expected" ]]; then
  echo "The check itself is wrong. It found:"
  echo "$found"
  exit 1
fi

found=$(complaints "$root/src")
echo "$found"
[[ -z $found ]]
