#!/usr/bin/env bash
# The adapters of Windows under Wine: the command line, the four entries of the document type read
# back, a browser and a mail client that are not installed, and recorders in the place of both.
set -uo pipefail
root=$2
# shellcheck source-path=SCRIPTDIR
. "$(dirname "$0")/../support/patience.sh"

skip() {
  echo "skipped: $1"
  exit 77
}

wine=$(command -v wine64 || true)
[[ -n $wine || ! -x /usr/lib/wine/wine64 ]] || wine=/usr/lib/wine/wine64
[[ -n $wine ]] || skip "wine64 is not installed (apt-get install wine64)"
command -v x86_64-w64-mingw32-g++-posix >/dev/null || skip "there is no compiler for Windows"

cd "$root" || exit 1
log=$(mktemp)
folder=build/mingw-core
if ! { { [[ -f $folder/build.ninja ]] || cmake --preset mingw-core; } &&
  cmake --build "$folder" --target win32_probe; } >"$log" 2>&1; then
  cat "$log"
  rm -f "$log"
  exit 1
fi
rm -f "$log"

work=$(mktemp -d)
export WINEPREFIX=$work/prefix WINEARCH=win64 WINEDEBUG=-all WINEDLLOVERRIDES="mscoree=;mshtml="
export LC_ALL=C.UTF-8
unset DISPLAY WAYLAND_DISPLAY

# Ends what Wine has started in this home, and nothing else.
finish() {
  local server
  for server in "$(dirname "$(readlink -f "$wine")")"/wineserver{64,}; do
    [[ ! -x $server ]] || timeout "$PATIENCE" "$server" -k >/dev/null 2>&1
  done
  rm -rf "$work"
}
trap finish EXIT
timeout "$PATIENCE" "$wine" wineboot --init >/dev/null 2>&1 || skip "wine64 cannot make a home of its own"

failures=0

# says NAME EXPECTED COMMAND...: what the command writes, without the CR of its lines.
says() {
  local name=$1 expected=$2 found
  shift 2
  found=$(timeout "$PATIENCE" "$wine" "$@" 2>/dev/null | tr -d '\r')
  [[ $found == "$expected" ]] && return
  printf '%s: expected\n%s\nfound\n%s\n' "$name" "$expected" "$found"
  failures=$((failures + 1))
}

# entry KEY EXPECTED: the default value of a key of the class registry, a text. `reg` writes in the
# code page of consoles.
entry() {
  local found
  found=$(timeout "$PATIENCE" "$wine" reg query "HKEY_CLASSES_ROOT\\$1" /ve 2>/dev/null | tr -d '\r' |
    sed -n 's/.*REG_SZ *//p' | iconv -f cp850 -t utf-8)
  [[ $found == "$2" ]] && return
  printf 'entry %s: expected\n%s\nfound\n%s\n' "$1" "$2" "$found"
  failures=$((failures + 1))
}

probe=$folder/bin/win32_probe.exe

says "a name that no code page has" 'line ondas_é_Ω.zel two' "$probe" line ondas_é_Ω.zel two
says "a name in quotes" 'line "a b.zel"' "$probe" line 'a b.zel'
says "register in English" true "$probe" register 'C:/Program Files/zel/zel.exe' EN
entry zel "Function graphic"
entry .zel zel
entry 'zel\shell\open\command' 'C:\Program Files\zel\zel.exe %1'
entry 'zel\DefaultIcon' 'C:\Program Files\zel\doc.ico'

says "register again in Spanish" true "$probe" register 'D:\z\Zel.EXE' ES
entry zel "Gráfico de funciones"
entry .zel zel
entry 'zel\shell\open\command' 'D:\z\Zel.exe %1'
entry 'zel\DefaultIcon' 'D:\z\doc.ico'

says "programs that are not there" $'0000\n00000\nquiet' "$probe" missing

says "the calls of browser and mail" "put Visible=true
call Navigate('https://zel.example/es/')
get Busy
get Busy
get Busy
call CreateItem(0)
get Recipients
call Add('zel@zel.example')
put Subject='ZEL'
call Send()" "$probe" automation

[[ $failures -eq 0 ]]
