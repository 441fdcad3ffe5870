# To be sourced, from the root of the project, by the commands there and in scripts/.
# shellcheck shell=bash

say() {
  printf '== %s\n' "$*"
}

# build PRESET [TARGET...]: configures where needed and builds, quietly while all goes well.
build() {
  local preset=$1 started=$SECONDS seconds
  shift
  configure "$preset" || return 1
  say "Building $preset${*:+ ($*)}"
  if ! compile "build/$preset" "$@"; then
    say "$preset does not build"
    return 1
  fi
  seconds=$((SECONDS - started))
  [[ $seconds -lt 5 ]] || say "Built $preset in $seconds s"
}

# compile FOLDER [TARGET...]: on a terminal ninja keeps one line up to date; elsewhere only what
# went wrong is told.
compile() {
  local folder=$1 options=(--parallel "$(nproc)")
  shift
  [[ $# -eq 0 ]] || options+=(--target "$@")
  if [[ -t 1 ]]; then
    cmake --build "$folder" "${options[@]}"
  else
    cmake --build "$folder" "${options[@]}" -- --quiet 2>&1 |
      { grep -vE '^-- |^ninja: no work to do' || true; }
  fi
}

# configure PRESET: again only when the presets have changed; ninja sees to all else by itself.
configure() {
  local folder=build/$1
  [[ -f $folder/build.ninja && $folder/configured -nt CMakePresets.json ]] && return
  say "Configuring $1"
  mkdir -p "$folder"
  rm -f "$folder/configured"
  cmake --preset "$1" >"$folder/configure.log" 2>&1 || {
    cat "$folder/configure.log"
    say "$1 cannot be configured"
    return 1
  }
  touch "$folder/configured"
}
