#include "cli/examples.h"

#include <algorithm>
#include <array>

namespace zel {
namespace {

struct Examples {
  std::string_view command;
  std::string_view text;
};

constexpr std::array<Examples, 9> kExamples = {{
    {"evaluate", R"(Examples:
  $ zel-cli evaluate 'x^2+1' 2 -2,5
  ok	5
  ok	7,25
  $ zel-cli evaluate --document calls.zel 'f(x)+1' 4
  ok	3
  $ printf '30\tsin(x)\n90\tsin(x)\n' | zel-cli evaluate --batch
  ok	0,5
  ok	1)"},
    {"compile", R"(Examples:
  $ zel-cli compile 'sqrt(x^2+9)'
  15@(x^2+9))"},
    {"check-formula", R"(Examples:
  $ zel-cli --lang EN check-formula 'x+1' '(x+1'
  ok
  error	Parenthesis error in field Function.\n
  $ zel-cli check-formula --document calls.zel 'f(x)+1'
  ok)"},
    {"check", R"(Examples:
  $ zel-cli check waves.zel
  a	F	#0072b2	a(x)=sen(x)	10@(x)
  b	F	#d55e00	b(x)=cos(x)/2	11@(x)/2
  ...)"},
    {"resave", R"(Examples:
  $ zel-cli resave waves.zel copy.zel
  $ cat waves.zel | zel-cli resave - - >copy.zel)"},
    {"table", R"(Examples:
  $ zel-cli --point table calls.zel --graph f --from 0 --to 2 --step 1
  0;-2
  1;-1.75
  2;-1
  $ zel-cli table calls.zel --graph f --from 0 --to 2 --step 1 --json
  [
  {"x":0,"y":-2},
  {"x":1,"y":-1.75},
  {"x":2,"y":-1}
  ])"},
    {"render", R"(Examples:
  $ zel-cli render waves.zel -o waves.png --width 1200 --height 900
  $ zel-cli render waves.zel conics.zel -o pictures/ --format svg
  $ cat waves.zel | zel-cli render - -o - >waves.svg)"},
    {"drive", R"(Examples:
  $ printf 'Derecha\n' | zel-cli drive waves.zel
  {"mode":"NORMAL","xi":-360,"xf":720,"yi":-3,"yf":3,"active":"a",...
  {"mode":"NORMAL","xi":-180,"xf":900,"yi":-3,"yf":3,"active":"a",...)"},
    {"self-test", R"(Examples:
  $ zel-cli self-test
  ok)"},
}};

}  // namespace

std::string_view examplesOf(std::string_view command) {
  const auto found = std::ranges::find(kExamples, command, &Examples::command);
  return found == kExamples.end() ? std::string_view() : found->text;
}

}  // namespace zel
