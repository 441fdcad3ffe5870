#include "engine/self_test.h"

#include "engine/engine_fixture.h"

namespace zel::test {
namespace {

class SelfTest : public EngineTest {};

TEST_F(SelfTest, PassesSilentlyOnThisMachine) {
  std::string report = "old";
  EXPECT_TRUE(RunSelfTest(engine, report));
  EXPECT_EQ(report, "");
}

TEST_F(SelfTest, ChecksASumThatIsExactlyThree) {
  EXPECT_EQ(evaluate("log(x*10-0,2)+sen(90)+sig x!", 1.02), "= 3");
}

/// A fault in the cache's record makes the next value of the same code a wrong one.
TEST_F(SelfTest, ReportsAnEngineThatComputesWrongly) {
  const std::string code = NormaliseFormula("log(x*10-0,2)+sen(90)+sig x!");
  evaluateCode(code, 1.02);
  evaluateCode(code, 1e308);
  std::string report;
  EXPECT_FALSE(RunSelfTest(engine, report));
  EXPECT_EQ(report,
            "Error: Se ha detectado un problema al probar alguna función en su sistema.\r\n"
            "Consecuencia: NO se puede iniciar el programa.\r\n\r\nDetalles de la prueba:\r\n");
}

TEST_F(SelfTest, ReportsInEnglishToo) {
  SetCurrentLanguage("EN");
  const std::string code = NormaliseFormula("log(x*10-0,2)+sen(90)+sig x!");
  evaluateCode(code, 1.02);
  evaluateCode(code, 1e308);
  std::string report;
  EXPECT_FALSE(RunSelfTest(engine, report));
  EXPECT_EQ(report,
            "Error detected while testing program functions.\r\nCannot start system.\r\n"
            "Test details:\r\n");
}

TEST_F(SelfTest, ReportsWhatTheEvaluationSaid) {
  const std::string detail = "Error en Función 'log'\r\nDetalle: 10";
  EXPECT_EQ(SelfTestReport(detail),
            "Error: Se ha detectado un problema al probar alguna función en su sistema.\r\n"
            "Consecuencia: NO se puede iniciar el programa.\r\n"
            "\r\n"
            "Detalles de la prueba:\r\n"
            "Error en Función 'log'\r\n"
            "Detalle: 10");
  SetCurrentLanguage("EN");
  EXPECT_EQ(SelfTestReport("Too big values"),
            "Error detected while testing program functions.\r\nCannot start system.\r\n"
            "Test details:\r\nToo big values");
}

}  // namespace
}  // namespace zel::test
