#include "graphs/graph_def.h"

#include <gtest/gtest.h>

namespace zel::test {
namespace {

GraphDef graphOf(char tipo, std::string ecuacion) {
  GraphDef def;
  def.nombre = 'b';
  def.tipo = tipo;
  def.ecuacion = std::move(ecuacion);
  def.parameters = std::make_shared<Parameters>();
  return def;
}

TEST(KindText, IsTheCharacterOfTheCodePage) {
  EXPECT_EQ(kindText(graphOf('F', "")), "F");
  EXPECT_EQ(kindText(graphOf('\xF1', "")), "ñ");
  EXPECT_EQ(kindText(graphOf('\x80', "")), "€");
  EXPECT_EQ(kindText(GraphDef()), "");
}

TEST(DisplayText, IsTheEquationForConicsAndParametricCurves) {
  for (const char tipo : std::string("CPHET"))
    EXPECT_EQ(displayText(graphOf(tipo, "b(0;0;3)")), "b(0;0;3)") << tipo;
}

TEST(DisplayText, PutsTheNameBeforeAFunction) {
  GraphDef def = graphOf('F', "x^2");
  def.nombre = 'a';
  EXPECT_EQ(displayText(def), "a(x)=x^2");
}

TEST(DisplayText, NamesTheParameterOfAFamilyTwiceAndItsRange) {
  GraphDef def = graphOf('Z', "P*x");
  def.parameters->Add("parametro", "P");
  def.parameters->Add("inicio", "-2");
  def.parameters->Add("fin", "2");
  EXPECT_EQ(displayText(def), "b(x,P)=P*x [-2<=P<=2]");
}

TEST(DisplayText, ShowsWhatThereIsOfADamagedFamily) {
  GraphDef def = graphOf('Z', "P*x");
  EXPECT_EQ(displayText(def), "b(x,)=P*x [<=<=]");
  def.parameters = nullptr;
  EXPECT_EQ(displayText(def), "b(x,)=P*x [<=<=]");
}

TEST(DisplayText, IsEmptyForAnyOtherKind) {
  for (const char tipo : {'A', 'f', '\0', '?'}) EXPECT_EQ(displayText(graphOf(tipo, "x")), "");
}

TEST(MainParameter, IsTheRadiusOrTheFirstDistance) {
  for (const char tipo : std::string("CEH")) {
    GraphDef def = graphOf(tipo, "");
    def.parameters->Add("r", "3");
    def.parameters->Add("a", "2,5");
    EXPECT_EQ(mainParameter(def), tipo == 'C' ? 3 : 2.5) << tipo;
  }
}

TEST(MainParameter, CannotBeConvertedForOtherKindsAndBadTexts) {
  for (const char tipo : std::string("FPTZX")) {
    GraphDef def = graphOf(tipo, "");
    def.parameters->Add("r", "3");
    def.parameters->Add("a", "2");
    EXPECT_EQ(mainParameter(def), std::nullopt) << tipo;
  }
  GraphDef circle = graphOf('C', "");
  EXPECT_EQ(mainParameter(circle), std::nullopt);
  circle.parameters->Add("r", "abc");
  EXPECT_EQ(mainParameter(circle), std::nullopt);
  circle.parameters = nullptr;
  EXPECT_EQ(mainParameter(circle), std::nullopt);
}

TEST(TwoBranch, GoesByTheKindTable) {
  for (const char tipo : std::string("CEH")) EXPECT_TRUE(isTwoBranch(graphOf(tipo, ""))) << tipo;
  for (const char tipo : std::string("FPZTAc?"))
    EXPECT_FALSE(isTwoBranch(graphOf(tipo, ""))) << tipo;
  EXPECT_FALSE(isTwoBranch(GraphDef()));
}

TEST(GraphDef, HasAnEmptyTextForNoKind) {
  EXPECT_EQ(kindText(graphOf('F', "")), "F");
  EXPECT_EQ(kindText(graphOf('?', "")), "?");
  EXPECT_EQ(kindText(GraphDef()), "");
}

TEST(Parameter, IsEmptyWhereThereIsNone) {
  GraphDef def = graphOf('C', "");
  def.parameters->Add("r", "3");
  EXPECT_EQ(parameter(def, "r"), "3");
  EXPECT_EQ(parameter(def, "h"), "");
  EXPECT_EQ(parameter(GraphDef(), "r"), "");
}

TEST(GraphDef, SharesItsParametersWithItsCopies) {
  const GraphDef def = graphOf('C', "");
  const GraphDef copy = def;
  copy.parameters->Add("r", "3");
  EXPECT_EQ(parameter(def, "r"), "3");
}

}  // namespace
}  // namespace zel::test
