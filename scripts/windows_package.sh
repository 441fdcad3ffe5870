#!/usr/bin/env bash
# scripts/windows_package.sh [--folder FOLDER]: puts what build/mingw holds, with all that it needs,
# into a folder, and makes an archive and an installer of it, all in build/windows; or the folder
# alone, in another place.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh
. scripts/windows_common.sh

version=$(sed -n 's/^project(zel VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
programs=build/mingw/bin
made=build/windows
folder=$made/zel-$version
[[ ${1:-} != --folder ]] || folder=$2
strip=x86_64-w64-mingw32-strip
compiler=$(dirname "$(x86_64-w64-mingw32-gcc-posix -print-libgcc-file-name)")
library_folders=("$windows_qt/bin" "$compiler" /usr/x86_64-w64-mingw32/lib)

# imports FILE: the libraries that it wants, by name. What is read is English, whatever the user speaks.
imports() {
  LC_ALL=C x86_64-w64-mingw32-objdump -p "$1" | sed -n 's/^\s*DLL Name: //p'
}

# add_libraries FILE...: copies those of ours that they want, and those that these want.
add_libraries() {
  local file name from
  for file in "$@"; do
    for name in $(imports "$file"); do
      for from in "${library_folders[@]}"; do
        [[ -f $from/$name && ! -f $folder/$name ]] || continue
        cp "$from/$name" "$folder/"
        add_libraries "$folder/$name"
      done
    done
  done
}

# Qt names its own sources in some messages; the folder in which somebody has built it says nothing.
forget_build_folders() {
  perl -pi -e 's{(/[\w./+~-]*/qt6-base-[\w.+~-]*/)(?=src/)}{"." . "/" x (length($1) - 1)}ge' "$@"
}

add_programs() {
  cp "$programs"/{zel,zel-cli}.exe "$folder/"
  mkdir "$folder"/{platforms,styles}
  cp "$windows_qt/plugins/platforms/qwindows.dll" "$folder/platforms/"
  cp "$windows_qt/plugins/styles/qwindowsvistastyle.dll" "$folder/styles/"
  add_libraries "$folder"/*.exe "$folder"/*/*.dll
  forget_build_folders "$folder"/*.dll "$folder"/*/*.dll
  find "$folder" \( -name '*.exe' -o -name '*.dll' \) -exec "$strip" --strip-all {} +
}

add_documents() {
  local package
  mkdir "$folder"/{translations,examples,licences}
  cp -r packaging/windows/qt.conf packaging/doc.ico help/. "$folder/"
  cp /usr/share/qt6/translations/qtbase_es.qm "$folder/translations/"
  cp examples/*.zel "$folder/examples/"
  cp LICENSE "$folder/licences/LICENSE.txt"
  cp packaging/windows/THIRD_PARTY.txt "$folder/licences/"
  cp /usr/share/common-licenses/LGPL-3 "$folder/licences/LGPL-3.txt"
  cp /usr/share/common-licenses/GPL-3 "$folder/licences/GPL-3.txt"
  for package in qt6-base-dev mingw-w64-common libisal-dev libcli11-dev nlohmann-json3-dev; do
    cp "/usr/share/doc/$package/copyright" "$folder/licences/$package.txt"
  done
}

# lines FORMAT: what is read from standard input, as paths of Windows in lines of the installer.
# shellcheck disable=SC2016,SC2059
lines() {
  sed 's|^\./||; s|/|\\|g' | while read -r path; do printf "$1\n" "$path"; done
}

# The uninstaller takes away what was put there, by name, and then what folders are empty.
# shellcheck disable=SC2016
removal_list() {
  (cd "$folder" && find . -type f) | lines 'Delete "$INSTDIR\\%s"'
  (cd "$folder" && find . -depth -mindepth 1 -type d) | lines 'RMDir "$INSTDIR\\%s"'
}

[[ ${1:-} == --folder ]] || rm -rf "$made"
mkdir -p "$folder"
add_programs
add_documents
[[ ${1:-} != --folder ]] || exit 0
# The same bytes for the same files, whenever they were built.
find "$folder" -exec touch -h -d @"$(git log -1 --format=%ct 2>/dev/null || echo 1230768000)" {} +
(cd "$made" && find "zel-$version" | LC_ALL=C sort | TZ=UTC zip -9 -X -q "zel-$version-windows.zip" -@)
removal_list >"$made/removal.nsh"
convert -size 164x314 gradient:white-#c9d9ec packaging/zel-128.png -gravity center -composite \
  -alpha off -type TrueColor "BMP3:$made/finished.bmp"
makensis -V2 -NOCD -INPUTCHARSET UTF8 "-DVERSION=$version" "-DFOLDER=$folder" \
  "-DREMOVAL=$made/removal.nsh" "-DPICTURE=$made/finished.bmp" \
  "-DSIZE=$(du -sk "$folder" | cut -f 1)" "-DOUT=$made/zel-$version-setup.exe" \
  packaging/windows/setup.nsi
rm "$made/removal.nsh" "$made/finished.bmp"
ls -l "$made"/*.zip "$made"/*.exe
