// Formulas of any bytes: what compiling makes of them, how the grammar takes them apart, and
// whether they may be declared, each beside a second and plainer reading.
#include "base/language.h"
#include "base/message_table.h"
#include "base/text.h"
#include "engine/compiler.h"
#include "engine/formula_check.h"
#include "engine/grammar.h"
#include "engine/reference/reference_engine.h"
#include "fuzz.h"
#include "graphs/field_validation.h"

namespace zel::fuzz {
namespace {

bool isAscii(std::string_view text) {
  for (const char character : text)
    if (static_cast<unsigned char>(character) >= 0x80) return false;
  return true;
}

void replaceEach(std::string& text, std::string_view from, const std::string& to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
    text.replace(at, from.size(), to);
}

/// The code of a text without accents.
std::string plainCode(std::string_view formula) {
  std::string code;
  for (const char character : formula)
    if (character != ' ')
      code +=
          character >= 'A' && character <= 'Z' ? static_cast<char>(character | 0x20) : character;
  int number = 0;
  for (const std::string_view name : PrefixFunctions)
    replaceEach(code, name, std::to_string(number++) + "@");
  replaceEach(code, "!", "#0");
  return code;
}

void checkCode(std::string_view formula, const std::string& code) {
  require(code.find(' ') == std::string::npos, "a code has no blanks", code);
  require(code == NormaliseFormula(toLower(formula)), "case makes no difference", code);
  if (isAscii(formula)) require(code == plainCode(formula), "the names are replaced", code);
}

/// A text is taken apart into operands that are parts of it, but for the 0 of a sign.
void checkSplit(std::string_view code) {
  const std::string_view bare = StripOuterParentheses(code);
  require(StripOuterParentheses(bare) == bare, "nothing is left to strip", code);
  const Split split = SplitAtMainOperator(bare);
  if (split.failure != SplitFailure::none) {
    require(!SplitMessage(split.failure, bare).empty(), "a failure has a message", code);
    return;
  }
  require(!split.left.empty() && !split.right.empty(), "both operands are there", code);
  require(split.op.size() == 1 && OperatorPrecedence.find(split.op) != std::string_view::npos,
          "an operator stands between them", code);
  require(split.right.data() > split.op.data(), "the right operand follows it", code);
}

/// The balance as the checks of the fields have it.
bool isClosed(std::string_view formula) {
  if (formula.find("()") != std::string_view::npos) return false;
  int depth = 0;
  for (const char character : formula) {
    if (character == '(') ++depth;
    if (character == ')' && --depth < 0) return false;
  }
  return depth == 0;
}

void checkDeclaration(std::string_view formula, const std::string& code) {
  Engine engine;
  std::string message = "old";
  const bool passes = CheckFormula(engine, formula, message);
  ReferenceEngine reference;
  reference.SetT(1);
  reference.SetP(1);
  double value = 0;
  std::string expected;
  const bool defined = reference.Evaluate(1, value, code, expected);
  require(message == expected, "the message is the reference's", message + " / " + expected);
  const auto names = [&](const char* refusal) {
    return message.find(refusal) != std::string::npos;
  };
  const bool is_refused =
      !defined && (names("Error: No se entiende el elemento: ") || names("Error de sintaxis."));
  require(passes == !is_refused, "what cannot be understood is refused", message);
  require(engine.GetP() == 1, "the check leaves p at 1");
}

}  // namespace
}  // namespace zel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zel::fuzz;
  const std::string_view formula = Input(data, size).rest();
  const std::string code = zel::NormaliseFormula(formula);
  checkCode(formula, code);
  checkSplit(code);
  checkDeclaration(formula, code);
  std::string message;
  require(zel::checkParentheses(formula, "f", message) == isClosed(formula) &&
              message.empty() == isClosed(formula),
          "parentheses are checked", formula);
  return 0;
}
