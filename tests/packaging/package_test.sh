#!/usr/bin/env bash
# What an installation and the package hold, and that lintian has no error and no warning for it.
set -uo pipefail
build=$(dirname "$(dirname "$1")")
for tool in lintian dpkg-deb dpkg-shlibdeps; do
  command -v "$tool" >/dev/null || { echo "no $tool"; exit 77; }
done
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
bad=0
umask 022

# has LIST PATH...: the list holds these paths.
has() {
  local list=$1 path
  shift
  for path in "$@"; do
    grep -qxF "$path" "$list" && continue
    echo "$(basename "$list") has no $path"
    bad=1
  done
}

everywhere=(bin/zel bin/zel-cli share/applications/zel.desktop share/mime/packages/zel.xml
  share/metainfo/example.zel.zel.metainfo.xml share/zel/help/ayuda_es.hlp
  share/zel/help/ayuda_en.hlp share/doc/zel/examples/conics.zel
  share/icons/hicolor/{16x16,24x24,32x32,48x48,64x64,128x128,256x256}/apps/zel.png
  share/icons/hicolor/{16x16,256x256}/mimetypes/application-x-zel.png
  share/icons/hicolor/scalable/{apps/zel,mimetypes/application-x-zel}.svg
  share/man/{man1,es/man1}/{zel,zel-cli}.1.gz
  share/bash-completion/completions/{zel,zel-cli} share/fish/vendor_completions.d/{zel,zel-cli}.fish)

cmake --install "$build" --prefix "$work/tree" >"$work/log" 2>&1 || { cat "$work/log"; exit 1; }
(cd "$work/tree" && find . -type f -printf '%P\n') >"$work/tree.list"
has "$work/tree.list" "${everywhere[@]}" share/doc/zel/LICENSE share/zsh/site-functions/_zel{,-cli}
if grep -q 'zel\.installed' "$work/tree.list"; then
  echo "only a package may put the marker"
  bad=1
fi

cpack -G DEB --config "$build/CPackConfig.cmake" -B "$work" >"$work/log" 2>&1 || {
  cat "$work/log"
  exit 1
}
package=$(ls "$work"/zel_*.deb)
dpkg-deb --fsys-tarfile "$package" | tar -t | sed -n 's|^\./usr/||p' >"$work/package.list"
has "$work/package.list" "${everywhere[@]}" share/zel/zel.installed \
  share/doc/zel/{copyright,changelog.gz} share/zsh/vendor-completions/_zel{,-cli}
version=$(dpkg-deb -f "$package" Version)
[[ $version == "$("$1" --version | sed 's/.* //')" ]] || { echo "a package of version $version"; bad=1; }
zcat "$work"/tree/share/man/man1/zel.1.gz | grep -q "ZEL $version" || { echo "an old zel(1)"; bad=1; }
said=$(lintian --fail-on error,warning "$package" 2>&1) || { echo "$said"; bad=1; }
exit $bad
