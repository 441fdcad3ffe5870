#!/usr/bin/env bash
# The installer under Wine: silent, a document opened as the desktop would, zel-cli, an installation
# over another one, and a removal that leaves nothing.
set -uo pipefail
# shellcheck source-path=SCRIPTDIR
. "$(dirname "$0")/wine.sh"
# shellcheck source-path=SCRIPTDIR
. "$(dirname "$0")/screen.sh"
setup=$(echo "$root"/build/windows/zel-*-setup.exe)
[[ -f $setup ]] || skip "there is no installer (scripts/windows.sh makes it)"

export WINEPATH=''
open_screen "$work"
own_windows
drive=$WINEPREFIX/drive_c

# value KEY NAME: a text of the registry; /ve for the key's own.
value() { wine reg query "$1" ${2:+/v} "${2:-/ve}" | tr -d '\r' | sed -n 's/.*REG_[A-Z]* *//p'; }
# The shell's own list of recent documents belongs to the user.
files() {
  (cd "$drive" && find . -type f | grep -v -e '\.tmp$' -e '/Temp/' -e '/Recent/' | LC_ALL=C sort)
}
registry_keys() {
  wine reg export "$1" "Z:${work//\//\\}\\$2.reg" /y >/dev/null
  iconv -f utf-16 -t utf-8 "$work/$2.reg" | tr -d '\r' | grep '^\[' | grep -v -e '[\]Wine[\]' -e '[\]RecentDocs'
}
expect() { [[ $2 == "$3" ]] || complain "$1: expected '$3', found '$2'"; }

# What another test may have left in the Windows that this one is a copy of.
for key in zel .zel; do wine reg delete "HKLM\\Software\\Classes\\$key" /f >/dev/null; done
files >"$work/files.before"
registry_keys 'HKCU\Software' before >"$work/keys.before"
registry_keys 'HKLM\Software\Classes' before >>"$work/keys.before"

wine "$setup" /S
place=$(find "$drive/users" -type d -path '*/AppData/Local/Programs/ZEL')
[[ -f $place/zel.exe && -f $place/zel.installed && -f $place/uninstall.exe ]] ||
  complain "not installed"
native="C:${place#"$drive"}"
native=${native//\//\\}
expect "document type" "$(value 'HKCU\Software\Classes\.zel')" zel
expect "icon" "$(value 'HKCU\Software\Classes\zel\DefaultIcon')" "$native\\doc.ico"
command=$(value 'HKCU\Software\Classes\zel\shell\open\command')
expect "command" "$command" "\"$native\\zel.exe\" \"%1\""
expect "version" "$(value 'HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\ZEL' DisplayVersion)" \
  "$(basename "$setup" | sed 's/zel-\(.*\)-setup.exe/\1/')"
[[ -n $(find "$drive" -name ZEL.lnk) ]] || complain "no shortcut"
for file in ayuda_es.hlp ayuda_en.hlp doc.ico examples/conics.zel licences/LICENSE.txt \
  translations/qtbase_es.qm; do
  [[ -s $place/$file ]] || complain "$file is not installed"
done

cp "$root/examples/waves.zel" "$work/olas é Ω.zel"
(cd "$place" && wine ./zel-cli.exe resave "$work/olas é Ω.zel" "$work/copia.zel") ||
  complain "zel-cli does not run: $(<"$work/wine.log")"
same "resaved" "$work/olas é Ω.zel" "$work/copia.zel"

# The first start, with a document, by the command that is registered; the second one by the
# document's type, which the first one has told Windows as well. (Wine does not look at the user's
# own classes.)
opened="ZEL - olas é Ω.zel"
mkdir "$work/elsewhere"
(cd "$work/elsewhere" && exec "$root/scripts/wine.sh" "$place/zel.exe" "../olas é Ω.zel") \
  >"$work/zel.log" 2>&1 &
program=$!
children+=("$program")
focused 'ZEL - (Idioma|Language)'
keys Return
focused ZEL
keys Return
focused "$opened"
keys alt+F4
ended "$program"
[[ -s $drive/users/$(id -un)/AppData/Roaming/zel/config.ini ]] || complain "no configuration"
[[ -z $(find "$work/elsewhere" -mindepth 1) ]] || complain "it leaves files where it is started"
wine start /unix "$work/olas é Ω.zel"
focused ZEL
keys Return
focused "$opened"
keys alt+F4
gone "$opened"

# Over itself, page by page: the last one has the program's picture, and starts it.
shows_picture() {
  look last
  [[ $(convert "$work/last.png" -fill black +opaque '#f0b429' -fill white -opaque '#f0b429' \
    -format '%[fx:w*h*mean]' info: | cut -d . -f 1) -gt 300 ]]
}
touch "$place/of the user.txt"
"$root/scripts/wine.sh" "$setup" >"$work/setup.log" 2>&1 &
children+=($!)
focused '.*ZEL [0-9.]+.*'
keys Return
wait_until shows_picture || fail "the last page has another picture"
keys Return
focused ZEL
keys Return
focused 'ZEL - (Datos iniciales|Graphic manager)'
keys alt+F4
gone 'ZEL - (Datos iniciales|Graphic manager)'

# And away.
[[ -f $place/zel.exe ]] || complain "not installed again"
[[ -s $drive/users/$(id -un)/AppData/Roaming/zel/config.ini ]] || complain "the configuration is lost"
wine "$place/uninstall.exe" /S
# It goes on in a copy of itself.
is_alone() { [[ $(find "$place" -type f) == "$place/of the user.txt" ]]; }
wait_until is_alone || complain "left: $(find "$place" -type f)"
rm "$place/of the user.txt"
rmdir "$place" || complain "left: $(find "$place")"
files >"$work/files.after"
registry_keys 'HKCU\Software' after >"$work/keys.after"
registry_keys 'HKLM\Software\Classes' after >>"$work/keys.after"
diff "$work/files.before" "$work/files.after" || complain "files are left"
diff "$work/keys.before" "$work/keys.after" || complain "keys are left"

[[ $failures -eq 0 ]]
