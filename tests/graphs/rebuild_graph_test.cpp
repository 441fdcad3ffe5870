#include <gtest/gtest.h>

#include "graphs/graph_table.h"
#include "graphs/parameters_of.h"

namespace zel::test {
namespace {

std::shared_ptr<Parameters> shared(
    std::initializer_list<std::pair<const char*, const char*>> pairs) {
  return std::make_shared<Parameters>(parametersOf(pairs));
}

TEST(RebuildGraph, StoresAGraphInUse) {
  GraphTable table;
  EXPECT_TRUE(table.rebuildGraph('c', "x^2", "", 16711680, 'F', shared({{"key", "value"}})));
  const auto def = table.graph('c');
  EXPECT_TRUE(def->defined);
  EXPECT_EQ(def->nombre, 'c');
  EXPECT_EQ(def->ecuacion, "x^2");
  EXPECT_EQ(def->color, 16711680);
  EXPECT_EQ(def->tipo, 'F');
  EXPECT_EQ(def->carpeta, "");
  EXPECT_EQ(parameter(*def, "key"), "value");
  EXPECT_EQ(table.count(), 1);
}

TEST(RebuildGraph, CompilesTheFormulaOfFunctionsAndFamilies) {
  GraphTable table;
  for (const char tipo : {'F', 'Z'}) {
    table.rebuildGraph('a', "Raiz2(X ^ 2)", "ignored", 0, tipo, nullptr);
    EXPECT_EQ(table.codeOf('a'), "7@(x^2)") << tipo;
    EXPECT_EQ(table.graph('a')->ecuacion, "Raiz2(X ^ 2)");
  }
}

TEST(RebuildGraph, KeepsTheCodeOfAParabola) {
  GraphTable table;
  table.rebuildGraph('a', "a(0;0;1)", "(1)*x^2", 0, 'P', nullptr);
  EXPECT_EQ(table.codeOf('a'), "(1)*x^2");
}

TEST(RebuildGraph, TakesTheUpperBranchOfAConicAsItsCode) {
  GraphTable table;
  for (const char tipo : std::string("CEH")) {
    table.rebuildGraph('a', "a(0;0;1)", "ignored", 0, tipo,
                       shared({{"codigo1", "upper"}, {"codigo2", "lower"}}));
    EXPECT_EQ(table.codeOf('a'), "upper") << tipo;
  }
}

TEST(RebuildGraph, CompilesBothFormulasOfAParametricCurveIntoItsParameters) {
  GraphTable table;
  const auto parameters = shared({{"ecuacion_xt", "Cos(t)"}, {"ecuacion_yt", "Sen(t)"}});
  table.rebuildGraph('a', "[X(t)=Cos(t);Y(t)=Sen(t)]", "ignored", 0, 'T', parameters);
  EXPECT_EQ(table.codeOf('a'), "");
  EXPECT_EQ(parameters->keys(),
            (std::vector<std::string>{"ecuacion_xt", "ecuacion_yt", "codigo_xt", "codigo_yt"}));
  EXPECT_EQ(parameters->Item("codigo_xt"), "11@(t)");
  EXPECT_EQ(parameters->Item("codigo_yt"), "10@(t)");
}

TEST(RebuildGraph, RecomputesTheCodesOfAParametricCurveInTheirPlaces) {
  GraphTable table;
  const auto parameters =
      shared({{"codigo_yt", "stale"}, {"ecuacion_xt", "t"}, {"codigo_xt", "stale"}});
  table.rebuildGraph('a', "", "", 0, 'T', parameters);
  EXPECT_EQ(parameters->keys(),
            (std::vector<std::string>{"codigo_yt", "ecuacion_xt", "codigo_xt"}));
  EXPECT_EQ(parameters->Item("codigo_xt"), "t");
  EXPECT_EQ(parameters->Item("codigo_yt"), "");
}

TEST(RebuildGraph, LeavesTheCodeOfAnyOtherKindEmpty) {
  GraphTable table;
  for (const char tipo : {'A', 'f', '\0'}) {
    EXPECT_TRUE(table.rebuildGraph('a', "x", "code", 0, tipo, nullptr));
    EXPECT_EQ(table.codeOf('a'), "");
  }
}

TEST(RebuildGraph, TakesNoDictionaryForAnEmptyOne) {
  GraphTable table;
  for (const char tipo : std::string("FPCEHZT")) {
    EXPECT_TRUE(table.rebuildGraph('a', "x", "code", 0, tipo, nullptr)) << tipo;
    EXPECT_NE(table.graph('a')->parameters, nullptr);
  }
}

}  // namespace
}  // namespace zel::test
