#!/usr/bin/env bash
# Builds, once, what the Windows programs and tests need beside Qt: ISA-L from Debian's source and
# GoogleTest from /usr/src.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh
. scripts/windows_common.sh

[[ ! -f $windows_libraries/complete ]] || exit 0
scripts/setup.sh build windows
say "Building the libraries of the Windows programs in $windows_libraries (under a minute)"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
rm -rf "$windows_libraries"
mkdir -p "$windows_libraries"/{include,lib/pkgconfig}

build_isal() {
  debian_source libisal "$work/isal"
  # The file is written for mingw's own names; the headers are those that Debian installs.
  make -C "$work/isal" -f Makefile.unx -j"$(nproc)" arch=mingw host_cpu=x86_64 units="igzip crc" \
    CC=x86_64-w64-mingw32-gcc-posix AR=x86_64-w64-mingw32-ar AS=nasm lib
  mkdir -p "$windows_libraries/include/isa-l"
  cp "$work"/isal/include/{crc,igzip_lib,types}.h "$windows_libraries/include/isa-l/"
  cp "$(find "$work/isal/bin" -name '*.a')" "$windows_libraries/lib/libisal.a"
  cat >"$windows_libraries/lib/pkgconfig/libisal.pc" <<END
prefix=\${pcfiledir}/../..
Name: libisal
Description: Deflate and checksums
Version: $(sed -n '1s/.*(\([^-]*\)-.*/\1/p' "$work/isal/debian/changelog")
Cflags: -I\${prefix}/include
Libs: -L\${prefix}/lib -lisal
END
}

build_googletest() {
  cmake -S /usr/src/googletest -B "$work/googletest" -G Ninja -D CMAKE_BUILD_TYPE=Release \
    -D CMAKE_TOOLCHAIN_FILE="$PWD/cmake/toolchains/mingw64.cmake" \
    -D CMAKE_INSTALL_PREFIX="$windows_libraries" -D CMAKE_INSTALL_LIBDIR=lib
  cmake --build "$work/googletest" --target install
}

log=$windows_libraries/build.log
{ build_isal && build_googletest; } >"$log" 2>&1 || {
  cat "$log"
  say "They cannot be built"
  exit 1
}
touch "$windows_libraries/complete"
