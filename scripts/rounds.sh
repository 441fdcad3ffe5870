# To be sourced, from the root of the project, by the scripts that run a test over and over with
# other random values each time, on all processors.
# shellcheck shell=bash

# rounds PROGRAM FILTER TESTS NAME COUNT SIZE SEED: runs the tests of a program in rounds of SIZE
# values until COUNT are done. FILTER selects as many TESTS; NAME_COUNT and NAME_SEED in the
# environment tell them what to do. A seed gives the same values on every machine. What has passed
# is kept in build/rounds as long as the program is the same, so a run that was ended is taken up.
rounds() {
  local program=$1 filter=$2 tests=$3 name=$4 size=$6 seed=$7 wanted
  wanted=$((($5 + size - 1) / size))
  if [[ $wanted -gt 10000 || $seed -gt 1600 ]]; then # seeds of rounds would meet
    echo "At most $((size * 10000)) values, and seeds up to 1600"
    return 2
  fi
  folder=build/rounds/$(basename "$program")-$(sha256sum "$program" | cut -c1-12)-$seed
  mkdir -p "$folder"
  export folder program filter tests name size seed
  export -f one_round
  seq 0 $((wanted - 1)) | xargs -P "$(nproc)" -I '{}' bash -c 'one_round {}'
  local status=$? passed
  passed=$(find "$folder" -name '*.passed' | wc -l)
  echo "$((passed * size)) values passed (seed $seed, $passed rounds of $size)"
  return "$status"
}

# one_round NUMBER
one_round() {
  local log=$folder/$1
  [[ ! -f $log.passed ]] || return 0
  env "${name}_COUNT=$size" "${name}_SEED=$((seed * 10000 + $1))" \
    "$program" --gtest_brief=1 --gtest_filter="$filter" >"$log" 2>&1
  if grep -q "\[  PASSED  \] $tests test" "$log"; then
    mv "$log" "$log.passed"
  else
    cat "$log"
    return 1
  fi
}
