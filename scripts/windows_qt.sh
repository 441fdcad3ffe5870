#!/usr/bin/env bash
# Builds, once, Qt for Windows from Debian's own source package, about 35 minutes on two processors.
# Interrupted, it goes on where it stopped. What comes out can be moved to another folder.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh
. scripts/windows_common.sh

has_windows_qt && exit 0
[[ -z ${ZEL_WINDOWS_QT:-} ]] || {
  say "There is no Qt for Windows in $ZEL_WINDOWS_QT (ZEL_WINDOWS_QT)"
  exit 1
}
version=6.4.2
package_version=$version+dfsg-10
work=$windows_cache/qt-$version-build
source=$work/source
folder=$work/build
off=(androiddeployqt concurrent dbus direct2d fontconfig glib icu network pkg_config qmake sql
  system_zlib vulkan xml zstd)
off+=(tabletevent) # Debian has taken its headers out of the source
bundled=(doubleconversion freetype harfbuzz libb2 libjpeg libmd4c libpng pcre)

get_source() {
  [[ ! -f $source/CMakeLists.txt ]] || return 0
  say "Getting the source of Qt $package_version"
  rm -rf "$source"
  mkdir -p "$work"
  debian_source "qt6-base=$package_version" "$source.new"
  mv "$source.new" "$source"
}

configure_qt() {
  [[ ! -f $folder/build.ninja ]] || return 0
  local options=() name
  for name in "${off[@]}"; do options+=("-DFEATURE_$name=OFF"); done
  for name in "${bundled[@]}"; do options+=("-DINPUT_$name=qt"); done
  say "Configuring Qt (a minute or two)"
  # Its own files are named without the folder that they are built in.
  local flags="-ffile-prefix-map=$work=qt"
  cmake -S "$source" -B "$folder" -G Ninja --log-level=WARNING \
    -DCMAKE_TOOLCHAIN_FILE="$PWD/cmake/toolchains/mingw64.cmake" -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_C_FLAGS="$flags" -DCMAKE_CXX_FLAGS="$flags" -DCMAKE_INSTALL_PREFIX=/qt \
    -DBUILD_SHARED_LIBS=ON -DQT_HOST_PATH=/usr \
    -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake -DQT_QMAKE_TARGET_MKSPEC=win32-g++ \
    -DQT_BUILD_TESTS=OFF -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TOOLS_WHEN_CROSSCOMPILING=OFF \
    -DFEATURE_testlib=ON -DINPUT_opengl=no "${options[@]}" >"$work/configure.log" 2>&1 || {
    cat "$work/configure.log"
    rm -f "$folder/build.ninja"
    say "Qt cannot be configured"
    exit 1
  }
}

# Ninja's own line on a terminal, a line for each hundred steps elsewhere.
compile_qt() {
  say "Building Qt (half an hour on two processors)"
  if [[ -t 1 ]]; then
    ninja -C "$folder"
  else
    ninja -C "$folder" | grep -vE '^\[[0-9]*([1-9][0-9]|0[1-9])/[0-9]+\]'
  fi
}

install_qt() {
  rm -rf "$work/prefix"
  DESTDIR=$work/prefix cmake --install "$folder" --strip >"$work/install.log"
  find "$work/prefix" -name '*.dll' -exec x86_64-w64-mingw32-strip --strip-unneeded {} +
  mkdir -p "$(dirname "$windows_qt")"
  rm -rf "$windows_qt"
  mv "$work/prefix/qt" "$windows_qt"
  rm -rf "$work"
}

say "Qt for Windows is not in $windows_qt: building it, about 35 minutes on two processors, once"
scripts/setup.sh build windows
get_source
configure_qt
compile_qt
install_qt
