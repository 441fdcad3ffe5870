#include "cli_fixture.h"

namespace zel::test {
namespace {

class FormulaCommands : public CliTest {};

TEST_F(FormulaCommands, CompileGivesALineForEachFormula) {
  const Run result = run({"compile", "raiz2(x^2+1)", "-x", "7\\2", "Sig X!", "lngamma(5)"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out, "7@(x^2+1)\n-x\n7\\2\n3@x#0\n0@(5)\n");
}

TEST_F(FormulaCommands, CompileKeepsEachCodeOnItsLine) {
  EXPECT_EQ(run({"compile", "x\n+\t1"}).out, "x +\t1\n");
}

TEST_F(FormulaCommands, CheckSaysOkOrTheMessage) {
  const Run result = run({"check-formula", "x^2", "ln(x-1)", "x)", "2*-x", "2sen(30)"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out,
            "ok\nok\nok\nerror\tError: No se entiende el elemento: '2*'\nerror\tError de "
            "sintaxis.\n");
}

TEST_F(FormulaCommands, CheckKnowsTheGraphsOfADocument) {
  const std::string unknown = "error\tError: No se entiende el elemento: '2*'\n";
  EXPECT_EQ(run({"check-formula", "2*f(x)"}).out, unknown);
  EXPECT_EQ(run({"check-formula", "2*f(x)", "--document", example("calls.zel")}).out, "ok\n");
}

TEST_F(FormulaCommands, SelfTestPasses) {
  const Run result = run({"self-test"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out, "ok\n");
}

TEST_F(FormulaCommands, NeedAFormula) {
  EXPECT_EQ(run({"compile"}).status, 2);
  EXPECT_EQ(run({"check-formula"}).status, 2);
}

TEST_F(FormulaCommands, HelpAndVersionAreNoFailures) {
  EXPECT_EQ(run({"--version"}).out, "zel-cli 2.8\n");
  EXPECT_EQ(run({"--version"}).status, 0);
  for (const char* command : {"evaluate", "compile", "check-formula", "check", "resave", "table",
                              "render", "self-test"}) {
    const Run result = run({command, "--help"});
    EXPECT_EQ(result.status, 0) << command;
    EXPECT_NE(result.out.find(command), std::string::npos) << command;
  }
  EXPECT_EQ(run({"--help"}).status, 0);
}

}  // namespace
}  // namespace zel::test
