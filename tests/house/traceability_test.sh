#!/usr/bin/env bash
# Each message that the program shows, in both languages, each control and each key of the toolbar is
# named by a test. docs/limits.md has each bound with its number, and a test that is there. The tests,
# filters and files that docs/reliability.md names are there.
set -euo pipefail
root=$2
here=$(dirname "$0")

sample=$(mktemp -d)
trap 'rm -rf "$sample"' EXIT
mkdir -p "$sample"/{src/{base,forms,plot/session},tests,docs}
cat >"$sample/src/base/message_table.cpp" <<'EOF'
constexpr std::string_view kLong = "uno "
    "dos";
constexpr std::array<MessageRow, 6> kRows = {{
    {"Hecho.", "Done."},
    {"Campo %1.", "Field %1."},
    {"Nunca.", "Never."},
    {kLong, "one two"},
    {"Detalle", "Detail"},
    {"Detalle: el grafico ", "Detail: the graph "},
}};
EOF
cat >"$sample/src/forms/some.cpp" <<'EOF'
show("Hecho."); show("Campo %1."); show(kLong); show("Detalle"); show("Detalle: el grafico ");
box("txtA"); box("txtB"); setObjectName("Slider9");
constexpr int kMostShown = 100 / kPart;
EOF
cat >"$sample/src/forms/some.h" <<'EOF'
class Some : public Other {
  static constexpr std::size_t kMost = std::size_t{2} << 20;
  static constexpr int kMostForgotten = 7;
};
struct More {
  static constexpr Size kLeast{30, 40};  // kMost
};
inline constexpr long long kMostWrong = 1'000;
inline constexpr int kPart = 5;
EOF
printf '%s\n' 'keys = {"Arriba", "Abajo"};' >"$sample/src/plot/session/plot_command.h"
cat >"$sample/docs/limits.md" <<'EOF'
| what | bound | constant, test | past it |
|---|---|---|---|
| a | 2 MiB | `Some::kMost` | x |
| b | 30 x 40 | `More::kLeast` | x |
| c | 1,001 | `kMostWrong` | x |
| d | 20 | `kMostShown`: `Suite.Shows` | x |
| e | 20 | `kMostShown`: `Suite.IsGone` | x |
| f | 3 | - | x |

Loops:

- One (`Suite.Shows`).
- Two.
EOF
cat >"$sample/docs/reliability.md" <<'EOF'
| a | `Suite.*`, `Suite.IsGoneToo`, `Other.*` |
| b | `bin/some_tests --gtest_filter='Suite.Sh*'` | `some_tests --gtest_filter=Suite.Shows:Suite.Is*` |
| c | `other_tests --gtest_filter='Suite.*'` |
| d | `tests/some/here_test.sh` | `tests/some/gone_test.sh`, `scripts/gone.sh 10` |
| e | `here_test.sh` and `lost_test.sh` in `tests/some/` and `tests/other/` |

Besides `here_test.sh` in the folder `tests/some` there is `nowhere_test.sh`.
EOF
mkdir "$sample"/tests/{some,other}
touch "$sample"/tests/{some/here_test.sh,other/lost_test.sh}
cat >"$sample/tests/some/a_test.cpp" <<'EOF'
TEST_F(Suite,
       Shows) {
  "Hecho. Campo F." "\r\nField F." "uno dos\r\n" "none two" "txtA" Slider9 Arriba kMostWrong
  "before\r\nDetalle: 3" "Detalle: el grafico a" "Detail: the graph a";  // "Done." kLeast txtB
  Some::kMost  // TEST(Suite, IsGone)
}
EOF
cat >"$sample/expected" <<'EOF'
message "Detail"
message "Done."
message "one two"
control txtB
key Abajo
bound More::kLeast
bound Some::kMostForgotten has no row
bound kMostWrong is {1000}, not 1,001
bound of f: nothing shows it
nothing shows: - Two.
test Suite.IsGone, of e
filter Suite.* of docs/reliability.md
filter Suite.Is* of docs/reliability.md
test Other.* of docs/reliability.md
test Suite.IsGoneToo of docs/reliability.md
file scripts/gone.sh of docs/reliability.md
file tests/some/gone_test.sh of docs/reliability.md
script here_test.sh of docs/reliability.md, in tests/other/
script lost_test.sh of docs/reliability.md, in tests/some/
script nowhere_test.sh of docs/reliability.md, in tests/**/
EOF
if ! python3 "$here/traceability.py" "$sample" | diff "$sample/expected" -; then
  echo "The check itself is wrong."
  exit 1
fi

found=$(python3 "$here/traceability.py" "$root")
echo "$found"
[[ -z $found ]]
