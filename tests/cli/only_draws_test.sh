#!/usr/bin/env bash
# A document can do nothing but draw: whatever is damaged in it or named by it, zel-cli reads the
# document alone, writes its output alone, and starts nothing and talks to nobody (by strace).
set -uo pipefail
export LC_ALL=C ASAN_OPTIONS=detect_leaks=0
zel=$1
root=$2

# shellcheck source-path=SCRIPTDIR
. "$(dirname "$0")/../support/tempting.sh"
[[ -x $zel ]] || {
  echo "there is no $zel"
  exit 1
}
need_trace "$zel"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export HOME=$work/home
mkdir -p "$HOME" "$work/given" "$work/out"
cd "$work/given" || exit 1

traced() { timeout 600 "${tracing[@]}" -o "$work/trace" "$zel" "$@" >"$work/said" 2>&1; }

# The calls that a drawing needs: temporary files in the folder of the output, their new names, and
# looks for what killed saves left there.
temporary='(openat|rename|unlink)\((AT_FDCWD, )?"\.\./out/\.zel-[0-9a-f]{16}\.tmp"'
made="$temporary(, O_WRONLY\\|O_CREAT\\|O_EXCL|, \"\\.\\./out/[a-z0-9]+\\.(svg|png|pdf)\"|\\)| <)"
left='(openat|unlinkat)\([0-9]+, "\.zel-[0-9a-f]{16}\.tmp", (O_WRONLY\|O_NONBLOCK\|O_NOFOLLOW|0)'

# expect_harmless WHAT: the last trace has nothing else.
expect_harmless() {
  local other
  grep -q '"[^"]*\.zel", O_RDONLY' "$work/trace" || complain "$1: no document was read"
  expect_only "$1" "$made|$left"
  # Those beside the libraries and what a sanitizer asks of the system.
  other=$(grep -E ' open(at)?\(.*O_RDONLY' "$work/trace" |
    grep -vE '"(/lib/|/usr/lib/|/etc/ld\.so|/proc/s|/sys/)' |
    grep -vE '"([a-z0-9]+\.zel|\.\./out/?|\.)", O_RDONLY')
  [[ -z $other ]] || complain "$1 reads $(head -n 3 <<<"$other")"
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
there=$(find "$work" -mindepth 1 ! -path "$work/given/*" ! -path "$work/out/*.???" |
  sed "s|$work/||" | LC_ALL=C sort | tr '\n' ' ')
[[ $there == "given home out said secret trace " ]] || complain "there is also: $there"
[[ $complaints -eq 0 ]]
