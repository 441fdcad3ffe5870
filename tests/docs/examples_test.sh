#!/usr/bin/env bash
# Every example of the manual pages, the help, the docs and the help of each command of zel-cli does
# what it says there.
set -uo pipefail
command -v python3 >/dev/null || { echo "no python3"; exit 77; }
"$1" --version >/dev/null || { echo "no zel-cli in this build"; exit 77; }
here=$2/tests/docs

sample=$(mktemp -d)
trap 'rm -rf "$sample"' EXIT
cp -r "$2/examples" "$sample"
mkdir -p "$sample"/{packaging/man,docs,help}
cp "$here/faults.md" "$sample/docs"
# A program whose help has a wrong example, and none for another command.
cat >"$sample/zel-cli" <<PROGRAM
#!/usr/bin/env bash
case \$* in
  'compile --help') printf 'Usage:\n\nExamples:\n  $ zel-cli compile x\n  y\n' ;;
  'check --help') echo 'Usage:' ;;
  *) exec "$(realpath "$1")" "\$@" ;;
esac
PROGRAM
chmod +x "$sample/zel-cli"
if said=$(python3 -B "$here/examples.py" "$sample/zel-cli" "$sample") ||
  [[ $(grep -c "^$sample/docs/faults.md: " <<<"$said") -ne 4 ||
    $(grep -cxE 'zel-cli (compile --help: \$ zel-cli compile x|check --help: no examples)' <<<"$said") -ne 2 ]]; then
  echo "The check itself is wrong: $said"
  exit 1
fi
exec python3 -B "$here/examples.py" "$1" "$2"
