#!/usr/bin/env bash
# scripts/wine.sh PROGRAM [ARGUMENT...]: runs a Windows program under Wine, with Qt and the compiler's
# libraries on its path (or WINEPATH), in a home of its own (build/wine, or WINEPREFIX) that is made
# at its first use. CMake runs the programs of the preset mingw by it.
set -euo pipefail
root=$(dirname "$(dirname "$(readlink -f "$0")")")
. "$root/scripts/windows_common.sh"

wine=$(wine_program) || {
  echo "wine.sh: wine64 is not installed (scripts/setup.sh windows)" >&2
  exit 1
}
export WINEPREFIX=${WINEPREFIX:-$root/build/wine} WINEARCH=win64 WINEDEBUG=${WINEDEBUG:--all}
export WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe=d"
# Under any other locale Wine reads and writes file names as plain ASCII.
if [[ ! ${LC_ALL:-} =~ [Uu][Tt][Ff] ]]; then
  unset LC_ALL
  export LC_CTYPE=C.UTF-8
fi

windows_path() {
  local folder text=
  for folder in "$@"; do text+="Z:${folder//\//\\};"; done
  echo "$text"
}

make_home() {
  mkdir -p "$WINEPREFIX"
  env -u DISPLAY -u WAYLAND_DISPLAY timeout 1200 "$wine" wineboot --init
  cp /usr/share/wine/fonts/*.ttf /usr/share/fonts/truetype/liberation/*.ttf \
    "$WINEPREFIX/drive_c/windows/Fonts/" || true
  env -u DISPLAY -u WAYLAND_DISPLAY timeout 600 "$wine" regedit /S "$root/scripts/wine.reg"
  touch "$WINEPREFIX/complete"
}

if [[ ! -f $WINEPREFIX/complete ]]; then
  mkdir -p "$(dirname "$WINEPREFIX")"
  # Tests that run side by side wait for the first one.
  exec 9>"$WINEPREFIX.lock"
  flock 9
  [[ -f $WINEPREFIX/complete ]] || make_home >"$WINEPREFIX.log" 2>&1 9>&- || {
    cat "$WINEPREFIX.log" >&2
    exit 1
  }
  exec 9>&-
fi

if [[ -z ${WINEPATH+set} ]]; then
  compiler=$(dirname "$(x86_64-w64-mingw32-gcc-posix -print-libgcc-file-name)")
  WINEPATH=$(windows_path "$windows_qt/bin" "$compiler" /usr/x86_64-w64-mingw32/lib)
  export WINEPATH
fi
# Wine keeps Qt's own variables from programs, but for those that it is told to hand on. Offscreen,
# Qt takes its fonts from one folder.
[[ -z ${QT_QPA_PLATFORM:-} ]] || export WINEQT_QPA_PLATFORM=$QT_QPA_PLATFORM
export WINEQT_QPA_FONTDIR=Z:/usr/share/fonts/truetype/liberation
exec "$wine" "$@"
