#!/usr/bin/env bash
# A document can do nothing but draw: whatever is damaged in it or named by it, zel-cli reads the
# document alone, writes its output alone, and starts nothing and talks to nobody (by strace).
set -uo pipefail
export LC_ALL=C ASAN_OPTIONS=detect_leaks=0
zel=$1
root=$2

skip() {
  echo "skipped: $*"
  exit 77
}

[[ -x $zel ]] || {
  echo "there is no $zel"
  exit 1
}
! grep -qE ' __(gcov|llvm_profile)_' <<<"$(nm "$zel" 2>&1)" || skip "$zel writes what it has counted"
command -v strace >/dev/null || skip "there is no strace"
strace -o /dev/null true 2>/dev/null || skip "strace may not trace here"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export HOME=$work/home
mkdir -p "$HOME" "$work/given" "$work/out"
cd "$work/given" || exit 1
complaints=0

complain() {
  echo "$*"
  complaints=$((complaints + 1))
}

# What would be tempting in a file that is more than a drawing, in every place of a document.
echo secret >"$work/secret"
tempting=("$work/secret" "file://$work/secret" "\$(touch $work/made)" "\`touch $work/made\`"
  "|touch $work/made" "; touch $work/made" "http://127.0.0.1:9/" "\\\\127.0.0.1\\share\\a"
  "../out/other.svg" "@$work/secret" "/etc/passwd" "%n%s%n" "<svg:image href='$work/secret'/>")
make_tempting() {
  local number=0 text key
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

# Ends too early, and bytes that are others.
make_damaged() {
  local size place
  size=$(stat -c %s "$root/examples/all_kinds.zel")
  for ((place = 0; place < size; place += size / 40)); do
    head -c "$place" "$root/examples/all_kinds.zel" >"ends$place.zel"
    { cat "ends$place.zel" && printf '\0=\033]%b' "\\x$((place % 80 + 10))" &&
      tail -c +"$((place + 5))" "$root/examples/all_kinds.zel"; } >"bytes$place.zel"
  done
}

# traced COMMAND...: what it does with files, processes and the network.
traced() {
  timeout 600 strace -f -qq -s 4096 -o "$work/trace" -e trace=%file,%process,%network,%ipc,kill,ptrace \
    "$zel" "$@" >"$work/said" 2>&1
}

# Leaves out the calls that a drawing needs: the program's own start and end, threads, looks at files
# and reads of them, temporary files in the folder of the output, their new names, and looks for what
# killed saves left there.
harmful() {
  local own="execve\\(\"$zel\"" ends='(exit|exit_group|arch_prctl|set_tid_address|wait4|rt_sigreturn)\('
  local threads='clone3?\(.*CLONE_THREAD|<\.\.\. [a-z0-9_]+ resumed>|---|\+\+\+'
  local looks='(access|faccessat2?|stat|lstat|newfstatat|statx|readlink|readlinkat|getcwd)\('
  local reads='open(at)?\(([A-Z_]+, )?"[^"]*", O_RDONLY[A-Z_|]*(\)| <)'
  local temporary='(openat|rename|unlink)\((AT_FDCWD, )?"\.\./out/\.zel-[0-9a-f]{16}\.tmp"'
  local made="$temporary(, O_WRONLY\\|O_CREAT\\|O_EXCL|, \"\\.\\./out/[a-z0-9]+\\.(svg|png|pdf)\"|\\)| <)"
  local left='(openat|unlinkat)\([0-9]+, "\.zel-[0-9a-f]{16}\.tmp", (O_WRONLY\|O_NONBLOCK\|O_NOFOLLOW|0)'
  grep -vE "^[0-9]+ +($own|$ends|$threads|$looks|$reads|$made|$left)"
}

# expect_harmless WHAT: the last trace has nothing else, and one start of a program.
expect_harmless() {
  local other
  grep -q '"[^"]*\.zel", O_RDONLY' "$work/trace" || complain "$1: no document was read"
  other=$(harmful <"$work/trace")
  [[ -z $other ]] || complain "$1: $(head -n 3 <<<"$other")"
  [[ $(grep -c 'execve(' "$work/trace") -eq 1 ]] || complain "$1: another program is started"
  # Those beside the libraries and what a sanitizer asks of the system.
  other=$(grep -E ' open(at)?\(.*O_RDONLY' "$work/trace" |
    grep -vE '"(/lib/|/usr/lib/|/etc/ld\.so|/proc/s|/sys/)' |
    grep -vE '"([a-z0-9]+\.zel|\.\./out/?|\.)", O_RDONLY')
  [[ -z $other ]] || complain "$1 reads $(head -n 3 <<<"$other")"
  ! grep -E 'secret|/made|127\.0\.0' "$work/trace" || complain "$1: a name out of the document is used"
}

make_tempting
make_damaged
before=$(sha256sum ./*)

documents=(*.zel)
for document in "${documents[@]}"; do
  [[ $document == @(*[05].zel|alone*) ]] || continue
  traced check "$document"
  status=$?
  [[ $status -le 1 ]] || complain "check $document: status $status"
  expect_harmless "check $document"
done
for kind in svg png pdf; do
  traced render "${documents[@]}" -o ../out --format "$kind" --width 100 --height 100
  status=$?
  [[ $status -le 1 ]] || complain "render to $kind: status $status"
  expect_harmless "render to $kind"
  [[ -n $(find ../out -name "*.$kind" -size +0) ]] || complain "no $kind was made"
done

[[ $(sha256sum ./*) == "$before" ]] || complain "a document is another one"
left=$(find "$work" -mindepth 1 ! -path "$work/given/*" ! -path "$work/out/*.???" |
  sed "s|$work/||" | LC_ALL=C sort | tr '\n' ' ')
[[ $left == "given home out said secret trace " ]] || complain "there is also: $left"
[[ $complaints -eq 0 ]]
