#include "cli_fixture.h"

namespace zel::test {
namespace {

class FormulaCommands : public CliTest {};

TEST_F(FormulaCommands, CompileGivesALineForEachFormula) {
  const Run result = run({"compile", "raiz2(x^2+1)", "-x", "7\\2", "Sig X!", "lngamma(5)"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out, "7@(x^2+1)\n-x\n7\\\\2\n3@x#0\n0@(5)\n");
}

TEST_F(FormulaCommands, CompileKeepsEachCodeOnItsLine) {
  EXPECT_EQ(run({"compile", "x\n+\t1", "a\r\nb\rc", "\x1b[2J\x7f", "\xC2\x9B", "x\xFF"}).out,
            "x\\n+\\t1\na\\nb\\rc\n\\x1b[2j\\x7f\n\\x9b\nx\xEF\xBF\xBD\n");
}

TEST_F(FormulaCommands, CheckSaysOkOrTheMessage) {
  const Run result = run({"check-formula", "x^2", "ln(x-1)", "2*-x", "2sen(30)"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out,
            "ok\nok\nerror\tError: No se entiende el elemento: '2*'\nerror\tError de "
            "sintaxis.\n");
}

TEST_F(FormulaCommands, CheckSaysWhatTheEditorSaysOfAFormulaField) {
  const std::string parentheses =
      "error\tError en paréntesis en el campo Declaración de la función.\\n";
  EXPECT_EQ(run({"check-formula", "x)", "(x", "2*(-x"}).out,
            parentheses + "\n" + parentheses + "\n" + parentheses + "\n");
  EXPECT_EQ(run({"check-formula", "abs()"}).out,
            parentheses + "Error: No se entiende el elemento: '2@()'\n");
  EXPECT_EQ(run({"check-formula", ""}).out,
            "error\tEl campo Declaración de la función no puede estar vacío.\\n\n");
  EXPECT_EQ(run({"check-formula", "x)", "", "--lang", "EN"}).out,
            "error\tParenthesis error in field Function.\\n\n"
            "error\tText field Function can't be empty.\\n\n");
}

TEST_F(FormulaCommands, CheckReadsAFormulaAsTheEditorReadsItsField) {
  EXPECT_EQ(run({"check-formula", "=x+1", "  x ", "<x>"}).out, "ok\nok\nok\n");
  EXPECT_EQ(run({"check-formula", " = "}).out,
            "error\tEl campo Declaración de la función no puede estar vacío.\\n\n");
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

TEST_F(FormulaCommands, HelpNamesTheValueOfEachOption) {
  struct Row {
    std::string command;
    std::vector<std::string> named;
  };
  const std::vector<std::string> view = {
      "--width PX ",  "--height PX ",           "--range XI XF YI YF ",  "--quality N ",
      "--marks X Y ", "--proportional yes|no ", "render [OPTIONS] FILE", "-o OUT "};
  for (const Row& row :
       {Row{"evaluate", {"--document FILE ", "--t NUMBER ", "--p NUMBER ", "[FORMULA] [X...]"}},
        Row{"compile", {"FORMULA..."}}, Row{"check-formula", {"--document FILE ", "FORMULA..."}},
        Row{"check", {"check [OPTIONS] FILE"}}, Row{"resave", {"resave [OPTIONS] FILE OUT"}},
        Row{"table", {"--graph LETTER ", "--from A ", "--to B ", "--step S ", "--p NUMBER "}},
        Row{"render", view}, Row{"drive", {"--active LETTER ", "--range XI XF YI YF "}}}) {
    const std::string help = run({row.command, "--help"}).out;
    for (const std::string& text : row.named)
      EXPECT_NE(help.find(text), std::string::npos) << row.command << " " << text << "\n" << help;
    EXPECT_EQ(help.find("TEXT"), std::string::npos) << help;
    EXPECT_EQ(help.find("INT"), std::string::npos) << help;
  }
  EXPECT_NE(run({"--help"}).out.find("--lang ES|EN "), std::string::npos);
}

}  // namespace
}  // namespace zel::test
