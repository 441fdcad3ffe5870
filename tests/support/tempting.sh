# To be sourced by tests of what a document from a stranger can do: documents, and a look at what a
# program has done with one, by strace. They set work, their folder, and root, the project's.
# shellcheck shell=bash disable=SC2034,SC2154 # names that the tests use, and that they set

complaints=0

skip() {
  echo "skipped: $*"
  exit 77
}

complain() {
  echo "$*"
  complaints=$((complaints + 1))
}

# need_trace PROGRAM: ends the test where what it does cannot be seen, or is more than its own.
need_trace() {
  ! grep -qE ' __(gcov|llvm_profile)_' <<<"$(nm "$1" 2>&1)" || skip "$1 writes what it has counted"
  command -v strace >/dev/null || skip "there is no strace"
  strace -o /dev/null true 2>/dev/null || skip "strace may not trace here"
}

# make_tempting: what would be tempting in a file that is more than a drawing, in one place of a
# document each (tempting<number>.zel), and alone (alone<number>.zel), in the current folder.
make_tempting() {
  local number=0 text key
  local tempting=("$work/secret" "file://$work/secret" "\$(touch $work/made)" "\`touch $work/made\`"
    "|touch $work/made" "; touch $work/made" "http://127.0.0.1:9/" "\\\\127.0.0.1\\share\\a"
    "../out/other.svg" "@$work/secret" "/etc/passwd" "%n%s%n" "<svg:image href='$work/secret'/>")
  echo secret >"$work/secret"
  for text in "${tempting[@]}"; do
    for key in ecuacion codigo nombre carpeta tipo usuario xi escala_x inicio codigo1 ecuacion_xt; do
      number=$((number + 1))
      LINE="$key=$text" awk -v key="$key" '
        index($0, key "=") == 1 && !done { print ENVIRON["LINE"] "\r"; done = 1; next } { print }
        /^\[PARAMETROS\]/ && !done { print ENVIRON["LINE"] "\r" }' \
        "$root/examples/all_kinds.zel" >"tempting$number.zel"
    done
    printf '%s' "$text" >"alone$number.zel"
  done
}

# make_damaged: documents that end too early, and with bytes that are others.
make_damaged() {
  local size place
  size=$(stat -c %s "$root/examples/all_kinds.zel")
  for ((place = 0; place < size; place += size / 40)); do
    head -c "$place" "$root/examples/all_kinds.zel" >"ends$place.zel"
    { cat "ends$place.zel" && printf '\0=\033]%b' "\\x$((place % 80 + 10))" &&
      tail -c +"$((place + 5))" "$root/examples/all_kinds.zel"; } >"bytes$place.zel"
  done
}

# Put before a program and "-o $work/trace": what it does with files, processes and the network.
tracing=(strace -f -qq -s 4096 -e "trace=%file,%process,%network,%ipc,kill,ptrace")

# What every program does: its end, threads, looks at files and reads of them.
ends='(exit|exit_group|arch_prctl|set_tid_address|wait4|rt_sigreturn)\('
threads='clone3?\(.*CLONE_THREAD|<\.\.\. [a-z0-9_]+ resumed>|---|\+\+\+'
looks='(access|faccessat2?|stat|lstat|newfstatat|statx|readlink|readlinkat|getcwd)\('
reads='open(at)?\(([A-Z_]+, )?"[^"]*", O_RDONLY[A-Z_|]*(\)| <)'

# expect_only WHAT CALLS: the trace has no other calls beside these (a regular expression), one start
# of a program, and no name out of a document.
expect_only() {
  local other
  other=$(grep -vE "^[0-9]+ +(execve\\(|$ends|$threads|$looks|$reads|$2)" "$work/trace")
  [[ -z $other ]] || complain "$1: $(head -n 3 <<<"$other")"
  [[ $(grep -c 'execve(' "$work/trace") -eq 1 ]] || complain "$1: another program is started"
  ! grep -E 'secret|/made|127\.0\.0' "$work/trace" || complain "$1: a name out of the document is used"
}
