# To be sourced, from the root of the project, by the scripts that make the Windows programs.
# shellcheck shell=bash disable=SC2034

windows_cache=${XDG_CACHE_HOME:-$HOME/.cache}/zel
windows_qt=${ZEL_WINDOWS_QT:-$windows_cache/qt-6.4.2-mingw64}
windows_libraries=$windows_cache/libraries-mingw64

has_windows_qt() {
  [[ -f $windows_qt/lib/cmake/Qt6/Qt6Config.cmake && -f $windows_qt/bin/Qt6PrintSupport.dll ]]
}

# Where Wine for 64 bits is; nothing where it is not.
wine_program() {
  command -v wine64 || { [[ -x /usr/lib/wine/wine64 ]] && echo /usr/lib/wine/wine64; }
}

# debian_source PACKAGE[=VERSION] FOLDER: unpacks a source package of this Debian into FOLDER, which
# is made. The system's own package lists stay as they are.
debian_source() {
  local package=$1 folder=$2 work release lists
  work=$(mktemp -d)
  release=$(. /etc/os-release && echo "$VERSION_CODENAME")
  lists=$work/lists
  mkdir -p "$lists/partial" "$work/download"
  {
    echo "deb-src http://deb.debian.org/debian $release main"
    echo "deb-src http://deb.debian.org/debian $release-updates main"
    echo "deb-src http://deb.debian.org/debian-security $release-security main"
  } >"$work/sources.list"
  local options=(-qq -o "Dir::Etc::sourcelist=$work/sources.list" -o Dir::Etc::sourceparts=/dev/null
    -o "Dir::State::lists=$lists" -o "Dir::Cache=$work" -o "APT::Sandbox::User=$(id -un)")
  apt-get "${options[@]}" update &&
    (cd "$work/download" && apt-get "${options[@]}" source --download-only "$package") &&
    dpkg-source --no-check -x "$work"/download/*.dsc "$folder" >/dev/null
  local status=$?
  rm -rf "$work"
  return "$status"
}
