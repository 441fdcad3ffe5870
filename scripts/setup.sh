#!/usr/bin/env bash
# Installs the Debian packages of the named groups that are missing, and nothing else:
#   scripts/setup.sh build|test|package|chroot|pictures|wine|windows|bench|fuzz|tidy|format|coverage...
set -euo pipefail

declare -A groups=(
  [build]="cmake ninja-build g++ qt6-base-dev qt6-translations-l10n
    libgmock-dev libgtest-dev libisal-dev libmpfr-dev libcli11-dev nlohmann-json3-dev pkg-config
    zlib1g-dev"
  [test]="acl appstream at-spi2-core cups-daemon dbus-daemon desktop-file-utils dpkg-dev fish
    g++-mingw-w64-x86-64-posix git imagemagick libglib2.0-bin libxml2-utils libz-mingw-w64-dev
    lintian locales mandoc musl-tools openbox poppler-utils python3 python3-pyatspi python3-xlib
    qpdf shared-mime-info shellcheck strace x11-utils xclip xdg-utils xdotool xvfb zsh"
  [package]="dpkg-dev gzip"
  [chroot]="debootstrap"
  [pictures]="librsvg2-bin"
  [wine]="wine64"
  [windows]="g++-mingw-w64-x86-64-posix dpkg-dev imagemagick nasm make nsis zip
    wine wine64 fonts-wine fonts-liberation xvfb xauth"
  [bench]="gnuplot-nox libbenchmark-dev libmuparser-dev python3 x11-utils xvfb"
  [fuzz]="clang libclang-rt-14-dev"
  [tidy]="clang clang-tidy cppcheck git python3"
  [format]="clang-format"
  [coverage]="clang libclang-rt-14-dev llvm-14"
)

packages=()
for group in "$@"; do
  read -r -d '' -a names <<<"${groups[$group]}" || true
  packages+=("${names[@]}")
done

command -v dpkg-query >/dev/null || {
  echo "setup: not a Debian system; you need what these packages hold: ${packages[*]}" >&2
  exit 0
}

# A package that dpkg never heard of is only named on standard error: subtract what is installed.
installed=$(dpkg-query -W -f='${db:Status-Status} ${Package}\n' "${packages[@]}" 2>/dev/null |
  sed -n 's/^installed //p') || true
mapfile -t missing < <(comm -23 <(printf '%s\n' "${packages[@]}" | sort -u) <(sort -u <<<"$installed"))
[[ ${#missing[@]} -gt 0 ]] || exit 0

as_root=()
if [[ $EUID -ne 0 ]]; then
  command -v sudo >/dev/null || {
    echo "setup: as root, first run: apt-get install --no-install-recommends ${missing[*]}" >&2
    exit 1
  }
  as_root=(sudo)
fi

apt() {
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300 \
    -o Dpkg::Use-Pty=0 "$@"
}

echo "== Installing Debian packages: ${missing[*]}"
log=$(mktemp)
trap 'rm -f "$log"' EXIT
if ! { apt update && apt install -y --no-install-recommends "${missing[@]}"; } >"$log" 2>&1; then
  cat "$log" >&2
  echo "setup: the packages could not be installed" >&2
  exit 1
fi
