#!/usr/bin/env bash
# A save that is killed or fails at any of its system calls leaves the older or the newer document
# whole, and lets nobody use it who might not; a failure leaves nothing else behind. config.ini and the pictures of zel-cli are written by
# the same procedure (src/files/whole_file_posix.cpp), so that this speaks for them too.
set -uo pipefail
export LC_ALL=C ASAN_OPTIONS=detect_leaks=0
zel=$1

skip() {
  echo "skipped: $*"
  exit 77
}

[[ -x $zel ]] || skip "there is no $zel"
command -v strace >/dev/null || skip "there is no strace"
strace -o /dev/null true 2>/dev/null || skip "strace may not trace here"

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder" || exit 1
complaints=0
leftovers=0 # of killed saves
declare -A failed_at=() survived_at=()

complain() {
  echo "$*"
  complaints=$((complaints + 1))
}

document() {
  printf '%s\r\n' versiones_compatibles=2.0 '[PRINCIPAL]' ' ' '[VISTA PRINCIPAL]' "xi=$1" ' ' \
    '[GRAFICOS PRINCIPAL]' '[GRAFICO]' '[PROPIEDADES]' nombre=a "ecuacion=x+$1" color=255 tipo=F \
    ' ' '[PARAMETROS]' ' ' ' '
  printf ' '
}

# The folder of each save holds the target and nothing else; a "new" save finds it empty.
prepare() {
  rm -rf target
  mkdir target
  [[ $scenario == new ]] || install -m 640 old.zel target/out.zel
  [[ $scenario != listed ]] || setfacl -m "$list" target/out.zel
}

# Whether the document has its list still, or is its owner's alone.
is_guarded() {
  [[ $(getfacl --omit-header --numeric target/out.zel) == "$guarded" ]] ||
    [[ $(stat -c %a target/out.zel) == 600 ]]
}

save() {
  "$zel" resave source.zel target/out.zel
}

# The last save's calls on the target's side: "name occurrence" for each, counted from the start of
# the program as strace counts.
calls_of_the_save() {
  prepare
  strace -o trace "$zel" resave source.zel target/out.zel || return 1
  awk -F'(' '
    /^[a-z]/ { count[$1]++ }
    /"target\// && $1 != "execve" { inside = 1 }
    inside && $1 ~ /^(open|openat|stat|lstat|newfstatat|statx|fstat|[fl]?(get|set|list|remove)xattr|readlink|readlinkat|access|faccessat|faccessat2|write|fchown|fchmod|fsync|close|rename|renameat|renameat2|unlink|unlinkat|flock|fcntl|getdents64)$/ {
      print $1, count[$1]
    }' trace
}

# What is in the folder beside the document.
others() { find target -mindepth 1 ! -name out.zel; }

# after STATUS WHAT: what may be in the folder now.
after() {
  local status=$1 what=$2
  if [[ $status -eq 0 ]]; then
    cmp -s target/out.zel new.zel || complain "$what: the new document is not there"
    [[ $scenario != listed ]] || is_guarded || complain "$what: $(getfacl target/out.zel)"
  elif [[ $scenario == new ]]; then
    [[ ! -e target/out.zel ]] || complain "$what: there is a document"
  else
    cmp -s target/out.zel old.zel || complain "$what: the old document is not there"
  fi
  [[ -z $(others) ]] || complain "$what: there is also $(others)"
}

fail_at() {
  local call=$1 occurrence=$2 error=$3 status what="$scenario: $3 at $1 $2"
  prepare
  strace -o /dev/null -e trace="$call" -e inject="$call:error=$error:when=$occurrence" \
    "$zel" resave source.zel target/out.zel >/dev/null 2>&1
  status=$?
  [[ $status -le 1 ]] || complain "$what: status $status"
  after $status "$what"
  if [[ $status -eq 0 ]]; then
    survived_at["$error $call"]=1
  else
    failed_at["$error $call"]=1
  fi
}

kill_at() {
  local call=$1 occurrence=$2 what="$scenario: killed at $1 $2"
  prepare
  { strace -o /dev/null -e trace="$call" -e inject="$call:signal=SIGKILL:when=$occurrence" \
    "$zel" resave source.zel target/out.zel; } >/dev/null 2>&1
  if [[ -e target/out.zel || $scenario != new ]]; then
    cmp -s target/out.zel new.zel || { [[ $scenario != new ]] && cmp -s target/out.zel old.zel; } ||
      complain "$what: neither document is there whole"
  fi
  # What a kill leaves behind does not stand in the way of the next save, which takes it away.
  [[ -z $(others) ]] || leftovers=$((leftovers + 1))
  save || complain "$what: the next save failed"
  after 0 "$what, and saved again"
}

document 1 >old.zel
document 2 >source.zel
"$zel" resave source.zel new.zel || {
  echo "$zel cannot save a document"
  exit 1
}

scenarios=(over new)
list=u:1234:r,g::-,o::-
scenario=listed
if prepare 2>/dev/null; then
  scenarios+=(listed)
  guarded=$(getfacl --omit-header --numeric target/out.zel)
else
  echo "no access control lists here"
fi

for scenario in "${scenarios[@]}"; do
  calls=$(calls_of_the_save) || complain "$scenario: the save failed under strace"
  [[ $calls == *rename* ]] || complain "$scenario: no rename was seen: $calls"
  while read -r call occurrence <&3; do
    fail_at "$call" "$occurrence" ENOSPC
    fail_at "$call" "$occurrence" EIO
    kill_at "$call" "$occurrence"
    case $call in open* | write | fsync | close | fchmod | fchown) fail_at "$call" "$occurrence" EINTR ;; esac
  done 3<<<"$calls"
done

# The steps that matter were hit, and told as failures; an interruption is none.
for call in write fsync close; do
  for error in ENOSPC EIO; do
    [[ -n ${failed_at["$error $call"]:-} ]] || complain "$error at $call was no failure"
  done
done
[[ -n ${failed_at["EIO rename"]:-}${failed_at["EIO renameat2"]:-} ]] || complain "EIO at rename was no failure"
[[ -n ${failed_at["ENOSPC openat"]:-}${failed_at["ENOSPC open"]:-} ]] || complain "ENOSPC at open was no failure"
[[ -n ${failed_at["EIO fchmod"]:-} ]] || complain "EIO at fchmod was no failure"
[[ ${#scenarios[@]} -lt 3 || -n ${survived_at["ENOSPC fsetxattr"]:-} ]] ||
  complain "no list was set"
[[ $leftovers -gt 0 ]] || complain "no killed save left anything"
for call in "${!failed_at[@]}"; do
  [[ $call != EINTR* ]] || complain "$call was a failure"
done

# A disk that is full after the first bytes: the write ends short.
scenario=over
prepare
for ((i = 0; i < 3000; ++i)); do printf '%d=\r\n' "$i"; done >pairs
awk 'NR == FNR { pairs = pairs $0 "\n"; next } { print } /PARAMETROS/ { printf "%s", pairs }' \
  pairs source.zel >large.zel
(
  trap '' XFSZ
  ulimit -f 1
  "$zel" resave large.zel target/out.zel >/dev/null 2>&1
)
status=$?
[[ $status -eq 1 ]] || complain "a short write: status $status"
after 1 "a short write"
"$zel" resave large.zel target/out.zel || complain "the large document cannot be saved at all"

[[ $complaints -eq 0 ]] && echo "survived: ${#failed_at[@]} kinds of failure, ${#survived_at[@]} of none, $leftovers leftovers"
exit $((complaints > 0))
