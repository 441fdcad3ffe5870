#include <string>

#include "cli/console/line_reader.h"
#include "cli_fixture.h"

namespace zel::test {
namespace {

class EvaluateCommand : public CliTest {};

TEST_F(EvaluateCommand, GivesALineForEachX) {
  const Run result = run({"evaluate", "x^2", "3", "-1,5", "2.5", "1e2"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out, "ok\t9\nok\t2,25\nok\t6,25\nok\t10000\n");
  EXPECT_EQ(result.err, "");
}

TEST_F(EvaluateCommand, TakesAFormulaThatBeginsWithASign) {
  EXPECT_EQ(run({"evaluate", "-x", "-3"}).out, "ok\t3\n");
  EXPECT_EQ(run({"evaluate", "-(x+1)", "-,5"}).out, "ok\t-0,5\n");
  EXPECT_EQ(run({"evaluate", "--", "-x^2", "-3"}).out, "ok\t-9\n");
}

TEST_F(EvaluateCommand, TakesAFormulaThatBeginsAsTheOptionOfAnotherCommand) {
  const std::vector<std::string> calls = {"evaluate", "-o(3)", "3", "--document",
                                          writeDocument("o.zel", "", block('o', 'F', "x+4"))};
  EXPECT_EQ(run(calls).out, "ok\t1\n");  // 0-3+4: the call is not put in parentheses
  EXPECT_EQ(run({"compile", "-o", "-o2", "-output"}).out, "-o\n-o2\n-output\n");
}

TEST_F(EvaluateCommand, TakesTheNamesOfCommandsAsFormulas) {
  EXPECT_EQ(run({"compile", "x", "check", "render"}).out, "x\ncheck\nrender\n");
}

TEST_F(EvaluateCommand, TakesBracketsAndMarksAsTheyStand) {
  EXPECT_EQ(run({"compile", "{}"}).out, "{}\n");
  EXPECT_EQ(run({"compile", "", "[x]", "%%", "\x01", "\x02x"}).out, "\n[x]\n%%\n\\x01\n\\x02x\n");
}

TEST_F(EvaluateCommand, PutsAnUndefinedValueOnOneLineAndIsStillDone) {
  const Run result = run({"evaluate", "ln(x)", "0", "1"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out,
            "error\tError en Función 'ln'\\nDetalle: El logaritmando debe ser numérico y mayor que "
            "cero.\nok\t0\n");
}

TEST_F(EvaluateCommand, DoublesABackslashInAMessage) {
  EXPECT_EQ(run({"evaluate", "7\\0", "1"}).out,
            "error\tError: Operador \\\\: El denominador debe ser distinto de cero.\n");
}

TEST_F(EvaluateCommand, SpeaksTheLanguageThatIsAskedFor) {
  const std::string english = "error\tCannot understand expression: '2*'\n";
  EXPECT_EQ(run({"--lang", "EN", "evaluate", "2*-x", "1"}).out, english);
  EXPECT_EQ(run({"evaluate", "2*-x", "1", "--lang", "EN"}).out, english);
  EXPECT_EQ(run({"evaluate", "2*-x", "1", "--lang", "ES"}).out,
            "error\tError: No se entiende el elemento: '2*'\n");
}

TEST_F(EvaluateCommand, TakesTheLanguageFromTheFirstVariableThatIsSet) {
  const auto complaint = [this] { return run({"evaluate", "x)", "1"}).out; };
  const std::string spanish = "error\tNo se encuentra el operador.\n";
  const std::string english = "error\tCannot find operator.\n";
  const EnvironmentGuard all("LC_ALL", "en_GB.UTF-8");
  EXPECT_EQ(complaint(), english);
  const EnvironmentGuard not_all("LC_ALL", nullptr);
  const EnvironmentGuard messages("LC_MESSAGES", "es_AR");
  const EnvironmentGuard lang("LANG", "en_US");
  EXPECT_EQ(complaint(), spanish);
  const EnvironmentGuard no_messages("LC_MESSAGES", nullptr);
  EXPECT_EQ(complaint(), english);
  const EnvironmentGuard french("LANG", "fr_FR");
  EXPECT_EQ(complaint(), spanish);
}

TEST_F(EvaluateCommand, PrintsAPointWhenAsked) {
  EXPECT_EQ(run({"--point", "evaluate", "x/8", "1"}).out, "ok\t0.125\n");
  EXPECT_EQ(run({"evaluate", "x/8", "1", "--point"}).out, "ok\t0.125\n");
}

TEST_F(EvaluateCommand, StartsWithTAsOneAndPAsZero) {
  EXPECT_EQ(run({"evaluate", "t*10+p", "0"}).out, "ok\t10\n");
  EXPECT_EQ(run({"evaluate", "t*10+p", "0", "--t", "-2,5", "--p", "-1"}).out, "ok\t-26\n");
  EXPECT_EQ(run({"evaluate", "t*10+p", "0", "--t=3", "--p=4"}).out, "ok\t34\n");
}

TEST_F(EvaluateCommand, EvaluatesCodeAsItIs) {
  EXPECT_EQ(run({"evaluate", "--code", "7@x", "9"}).out, "ok\t3\n");
  EXPECT_EQ(run({"evaluate", "--code", "sen(x)", "9"}).out,
            "error\tNo se encuentra el operador.\n");
}

TEST_F(EvaluateCommand, CallsTheGraphsOfADocument) {
  EXPECT_EQ(run({"evaluate", "2*f(x)", "4", "--document", example("calls.zel")}).out, "ok\t6\n");
}

TEST_F(EvaluateCommand, KeepsOneEngineFromXToX) {
  EXPECT_EQ(run({"evaluate", "inv(x)", "2", "0", "2", "2"}).out,
            "ok\t0,5\nerror\tValores demasiado grandes para operar.\nerror\tError: No se entiende "
            "el elemento: \\nFunción ingresada por usuario\nok\t0,5\n");
}

TEST_F(EvaluateCommand, RefusesAWrongCommandLine) {
  const std::vector<std::vector<std::string>> lines = {
      {"evaluate"},
      {"evaluate", "x"},
      {"evaluate", "x", "abc"},
      {"evaluate", "x", ""},
      {"evaluate", "x", "1e999"},
      {"evaluate", "x", "1", "--t", "q"},
      {"evaluate", "x", "1", "--bogus"},
      {"evaluate", "--batch", "x", "1"},
      {},
      {"bogus"},
      {"--lang", "FR", "self-test"},
  };
  for (const auto& line : lines) {
    const Run result = run(line);
    EXPECT_EQ(result.status, 2) << ::testing::PrintToString(line);
    EXPECT_EQ(result.out, "") << ::testing::PrintToString(line);
    EXPECT_NE(result.err, "") << ::testing::PrintToString(line);
  }
}

TEST_F(EvaluateCommand, TellsAnEmptyArgumentFromNone) {
  EXPECT_EQ(run({"evaluate", "", "1"}).out, "error\tNo se encuentra el operador.\n");
  EXPECT_EQ(run({"evaluate", "x", "1", "--document", ""}).err,
            "Error: No se pudo abrir el archivo.\n");
  EXPECT_EQ(run({"check-formula", "x", "--document", ""}).status, 1);
  EXPECT_EQ(run({"evaluate", "x", "1", "--t", ""}).status, 2);
  EXPECT_EQ(run({"drive", example("waves.zel"), "--active", ""}).status, 2);
  EXPECT_EQ(run({"drive", example("waves.zel"), "--quality", ""}).status, 2);
}

TEST_F(EvaluateCommand, NamesWhatItDoesNotKnow) {
  struct Row {
    std::vector<std::string> line;
    std::string complaint;
  };
  for (const Row& row :
       {Row{{"nonsense"}, "there is no command nonsense"},
        Row{{"--lang", "EN", "nonsense", "--help"}, "there is no command nonsense"},
        Row{{"non\x1b\nsense"}, "there is no command non\\x1b\\nsense"},
        Row{{""}, "there is no command "}, Row{{}, "a command is missing"},
        Row{{"--bogus"}, "there is no option --bogus"},
        Row{{"evaluate", "x", "1", "--bogus=3"}, "there is no option --bogus"},
        Row{{"check", "--bogus"}, "there is no option --bogus"},
        Row{{"check", "-v", "a.zel"}, "there is no option -v"},
        Row{{"check", "-v"}, "there is no option -v"},
        Row{{"self-test", "-x"}, "there is no option -x"},
        Row{{"check", "a", "b"}, "one argument too many: b"},
        Row{{"evaluate", "x", "\xFF"}, "X: '\xEF\xBF\xBD' is not a number"}}) {
    const Run result = run(row.line);
    EXPECT_EQ(result.status, 2) << row.complaint;
    EXPECT_EQ(result.err, row.complaint + "\n");
  }
}

TEST_F(EvaluateCommand, FailsOnADocumentThatIsRefused) {
  const Run result = run({"evaluate", "x", "1", "--document", write("bad.zel", "nothing")});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, "El archivo no es compatible con esta versión del programa.\n");
}

class EvaluateBatch : public CliTest {
 protected:
  std::string answers(const std::string& input, const std::vector<std::string>& more = {}) {
    std::vector<std::string> arguments = {"evaluate", "--batch"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return run(arguments, input).out;
  }
};

TEST_F(EvaluateBatch, AnswersEachLine) {
  EXPECT_EQ(answers("1\tx+1\n2,5\tx*2\n-3\t-x\n"), "ok\t2\nok\t5\nok\t3\n");
}

TEST_F(EvaluateBatch, KeepsTheValuesThatStand) {
  EXPECT_EQ(
      answers("2\tx*100+t*10+p\t3\t4\n\tx*100+t*10+p\t5\t\n\tx*100+t*10+p\t\t6\n7\tx*100+t*10+p"),
      "ok\t234\nok\t254\nok\t256\nok\t756\n");
}

TEST_F(EvaluateBatch, ResetsNothingBetweenLines) {
  // The third line reads on where the fault of the second one stopped; another formula does not.
  EXPECT_EQ(answers("2\tinv(x)\n0\tinv(x)\n2\tinv(x)\n0\tinv(x)\n2\tx+1\n2\tx+1\n"),
            "ok\t0,5\n"
            "error\tValores demasiado grandes para operar.\n"
            "error\tError: No se entiende el elemento: \\nFunción ingresada por usuario\n"
            "error\tValores demasiado grandes para operar.\n"
            "ok\t3\nok\t3\n");
}

TEST_F(EvaluateBatch, AnswersALineThatMakesNoSenseInItsPlace) {
  EXPECT_EQ(answers("abc\tx\n\n1e999\tx\n5\tx\r\n1\tx\tq\n"),
            "error\tLos siguientes campos deben contener valores numéricos:\\nX\\n\n"
            "error\tNo se encuentra el operador.\n"
            "error\tValores demasiado grandes para operar.\n"
            "ok\t5\n"
            "error\tLos siguientes campos deben contener valores numéricos:\\nT\\n\n");
}

TEST_F(EvaluateBatch, TakesCodeAndDocuments) {
  EXPECT_EQ(answers("9\t7@x\n", {"--code"}), "ok\t3\n");
  EXPECT_EQ(answers("4\tf(x)\n", {"--document", example("calls.zel")}), "ok\t2\n");
}

TEST_F(EvaluateBatch, CutsALineThatIsTooLongAndGoesOn) {
  const std::string fits(LineReader::kMaxLine, '0');
  EXPECT_EQ(answers(fits + "\n" + fits + "0\n1\tx\n"),
            "error\tNo se encuentra el operador.\nerror\tValores demasiado grandes para operar.\n"
            "ok\t1\n");
}

}  // namespace
}  // namespace zel::test
