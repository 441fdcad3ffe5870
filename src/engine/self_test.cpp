// One formula that takes operators, functions, a factorial, a blank and a decimal comma together is
// compiled and evaluated; the test passes if its value is exactly the known one.

#include "engine/self_test.h"

#include "base/language.h"
#include "base/message_table.h"
#include "numbers/number_text.h"

namespace zel {

bool TestEvaluator(Engine& engine, std::string& detail) {
  detail.clear();
  const auto x = readNumber("10,2E-1");
  const auto expected = readNumber("3");
  double result = 0;
  return x && expected &&
         EvaluateFormula(engine, *x, result, "log(x*10-0,2)+sen(90)+sig x!", detail) &&
         result == *expected;
}

bool RunSelfTest(Engine& engine, std::string& report) {
  report.clear();
  std::string detail;
  if (!TestEvaluator(engine, detail)) report = SelfTestReport(detail);
  return report.empty();
}

std::string SelfTestReport(const std::string& detail) {
  return Localize(messages::kSelfTestFailed) + "\r\n" + detail;
}

}  // namespace zel
