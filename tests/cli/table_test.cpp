#include <string>

#include <nlohmann/json.hpp>

#include "cli_fixture.h"
#include "engine/engine.h"

namespace zel::test {
namespace {

class TableCommand : public CliTest {
 protected:
  std::string document = writeDocument(
      "t.zel", "",
      block('a', 'F', "1/x") + block('b', 'Z', "p*x", "inicio=1\r\nfin=2\r\nvariacion=1\r\n") +
          block('t', 'T', "", "ecuacion_xt=t+1\r\necuacion_yt=1/t\r\ninicio=0\r\nfin=1\r\n"));

  Run table(const std::string& letter, const std::string& from, const std::string& to,
            const std::string& step, const std::vector<std::string>& more = {}) {
    std::vector<std::string> arguments = {"table", document, "--graph", letter,   "--from",
                                          from,    "--to",   to,        "--step", step};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return run(arguments);
  }
};

TEST_F(TableCommand, GivesALineForEachXAndNothingWhereTheGraphIsUndefined) {
  EXPECT_EQ(table("a", "-1", "1", "0,5").out, "-1;-1\n-0,5;-2\n0;\n0,5;2\n1;1\n");
}

TEST_F(TableCommand, GivesThreeColumnsForAParametricGraph) {
  EXPECT_EQ(table("t", "0", "2", "1").out, "0;1;\n1;2;1\n2;3;0,5\n");
}

TEST_F(TableCommand, TakesTheParameterOfAFamily) {
  EXPECT_EQ(table("b", "1", "2", "1").out, "1;0\n2;0\n");
  EXPECT_EQ(table("b", "1", "2", "1", {"--p", "-1,5", "--point"}).out, "1;-1.5\n2;-3\n");
}

TEST_F(TableCommand, EndsWhereTheStepNoLongerAdvances) {
  EXPECT_EQ(table("a", "9007199254740992", "9007199254740996", "1").out,
            "9,00719925474099E+15;1,11022302462516E-16\n");
  EXPECT_EQ(table("a", "2", "1", "1").out, "");
}

TEST_F(TableCommand, CountsDownWithAStepBelowZero) {
  EXPECT_EQ(table("a", "1", "-1", "-1").out, "1;1\n0;\n-1;-1\n");
  EXPECT_EQ(table("a", "0", "1", "-1").out, "");
}

TEST_F(TableCommand, RefusesAGraphThatIsNotThere) {
  const Run result = table("q", "1", "2", "1");
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, "No hay un gráfico q\n");
  EXPECT_EQ(table("Q", "1", "2", "1").status, 2);
  EXPECT_EQ(table("a", "x", "2", "1").status, 2);
  EXPECT_EQ(run({"table", document, "--graph", "a"}).status, 2);
}

TEST_F(TableCommand, GivesJsonWithAnObjectForEachX) {
  EXPECT_EQ(table("a", "-1", "1", "0,5", {"--json"}).out,
            "[\n{\"x\":-1,\"y\":-1},\n{\"x\":-0.5,\"y\":-2},\n{\"x\":0,\"y\":null},\n"
            "{\"x\":0.5,\"y\":2},\n{\"x\":1,\"y\":1}\n]\n");
}

TEST_F(TableCommand, GivesJsonWithTheParameterOfAParametricGraph) {
  EXPECT_EQ(table("t", "0", "1", "1", {"--json"}).out,
            "[\n{\"t\":0,\"x\":1,\"y\":null},\n{\"t\":1,\"x\":2,\"y\":1}\n]\n");
}

TEST_F(TableCommand, GivesAnEmptyJsonArrayForAnEmptyRange) {
  EXPECT_EQ(table("a", "2", "1", "1", {"--json"}).out, "[]\n");
}

TEST_F(TableCommand, GivesAZeroWithoutASignWhereItCountsDownThroughIt) {
  EXPECT_EQ(table("b", "1", "0", "-1", {"--json"}).out,
            "[\n{\"x\":1,\"y\":0},\n{\"x\":0,\"y\":0}\n]\n");
}

TEST_F(TableCommand, GivesJsonNumbersThatReadBackToTheSameDouble) {
  const std::string thirds = writeDocument("thirds.zel", "", block('a', 'F', "x/3"));
  struct Row {
    std::string to;
    std::string step;
    double by;
  };
  for (const Row& row : {Row{"0.9", "0.1", 0.1}, Row{"9e-9", "1e-9", 1e-9},
                         Row{"9e17", "1e17", 1e17}, Row{"9e300", "1e300", 1e300}}) {
    const Run result = run({"table", thirds, "--graph", "a", "--from", "0", "--to", row.to,
                            "--step", row.step, "--json"});
    const auto read = nlohmann::json::parse(result.out);
    EXPECT_GT(read.size(), 8U) << row.step;
    Engine engine;
    std::string message;
    double x = 0;
    for (const auto& point : read) {
      double y = 0;
      ASSERT_TRUE(EvaluateFormula(engine, x, y, "x/3", message));
      EXPECT_EQ(point["x"].get<double>(), x) << result.out;
      EXPECT_EQ(point["y"].get<double>(), y) << result.out;
      x += row.by;
    }
  }
}

}  // namespace
}  // namespace zel::test
