#!/usr/bin/env bash
# Makes the locales that the number tests run under in build/locales, for LOCPATH. Needs no root.
set -euo pipefail
cd "$(dirname "$0")/.."

mkdir -p build/locales
for locale in es_ES en_US; do
  made=build/locales/$locale.UTF-8
  [[ -d $made ]] && continue
  echo "== Making the locale $locale.UTF-8"
  rm -rf "$made.tmp"
  localedef --no-archive --quiet -i "$locale" -f UTF-8 "$made.tmp"
  mv "$made.tmp" "$made"
done
