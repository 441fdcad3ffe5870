#include "app/editor/graph_trial.h"

#include <ostream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/output/preview_picture.h"
#include "base/language.h"
#include "graphs/builders_fixture.h"
#include "support/recorder_picture.h"

namespace zel {

// For GoogleTest's messages.
inline void PrintTo(Preview preview, std::ostream* out) {
  constexpr const char* kNames[] = {"drawn", "unseen", "given_up", "no_graph", "no_view"};
  *out << kNames[static_cast<int>(preview)];
}

}  // namespace zel

namespace zel::test {
namespace {

using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

/// A preview of -5 to 5 in both directions, 100 pixels = 1500 twips wide and high.
class Trial : public GraphBuilders {
 protected:
  Preview draw(const GraphFields& fields, char letter = 'a') {
    GraphTrial trial(graphs, {letter, 0x0000FF, fields, std::nullopt});
    const Preview preview = trial.draw(view, PictureSize::ofPixels(100, 100), picture, goes_on);
    hints.clear();
    for (const FieldHint& hint : trial.fieldHints()) hints.push_back(hint.text);
    return preview;
  }

  void addFunction(char letter, const char* formula) {
    graphs.rebuildGraph(letter, formula, "", 0, 'F', nullptr);
  }

  ViewSettings view{-5, -5, 5, 5, 100, false};
  RecorderPicture picture;
  std::function<bool()> goes_on = [] { return true; };
  std::vector<std::string> hints;
};

TEST_F(Trial, DrawsTheGraphInItsColourOnPaleAxes) {
  EXPECT_EQ(draw(function("x")), Preview::drawn);
  const auto texts = picture.texts();
  const std::vector<std::string> first(texts.begin(), texts.begin() + 8);
  const std::string pale = colourText(PreviewPicture::kAxesColour);
  EXPECT_THAT(first, ElementsAre("clear", std::string("graph ") + '\0' + " " + pale, "start 750,0",
                                 "extend 750,1500", "start 0,750", "extend 1500,750",
                                 "graph a #ff0000", "start 0,1500"));
  EXPECT_EQ(picture.pieces().size(), 3u) << "two axes without marks, and the line";
}

TEST_F(Trial, DrawsEveryKind) {
  for (const GraphFields& fields :
       {GraphFields(function("x")), GraphFields(family("p*x")),
        GraphFields(parametric("cos(t)", "sen(t)")), GraphFields(parabola("0", "0", "1")),
        GraphFields(circumference("0", "0", "2")), GraphFields(ellipse("0", "0", "3", "2")),
        GraphFields(hyperbola("0", "0", "1", "2"))}) {
    EXPECT_EQ(draw(fields), Preview::drawn) << fields.index();
    EXPECT_THAT(hints, Each(IsEmpty()));
  }
}

TEST_F(Trial, DrawsTheOneGraphAlone) {
  addFunction('b', "x+1");
  EXPECT_EQ(draw(function("x")), Preview::drawn);
  EXPECT_THAT(picture.texts(), Not(Contains("graph b #000000")));
}

TEST_F(Trial, DrawsCallsOfOtherGraphs) {
  addFunction('b', "x");
  draw(function("b(x)"));
  const auto called = picture.pieces();
  draw(function("x"));
  EXPECT_EQ(called, picture.pieces());
}

TEST_F(Trial, DrawsAxesAloneWhenTheFieldsMakeNoGraph) {
  EXPECT_EQ(draw(function("(x")), Preview::no_graph);
  EXPECT_EQ(picture.pieces().size(), 2u);
  EXPECT_EQ(draw(parabola("0", "0", "0")), Preview::no_graph);
}

TEST_F(Trial, DrawsOverTheProportionalView) {
  view = {-5, 0, 5, 1, 100, true};
  EXPECT_EQ(draw(function("x")), Preview::drawn);
  EXPECT_EQ(view.yf - view.yi, 10);
}

TEST_F(Trial, DrawsNothingOverARangeThatCannotBeDrawn) {
  view = {1, -5, 1 + 1E-15, 5, 100, false};
  EXPECT_EQ(draw(function("x")), Preview::no_view);
}

TEST_F(Trial, GivesASlowDrawingUp) {
  int asked = 0;
  goes_on = [&asked] { return ++asked < 100; };
  EXPECT_EQ(draw(parametric("cos(t)", "sen(t)", "0", "360", "0")), Preview::given_up)
      << "a step of 0 goes on for ever";
  EXPECT_LT(asked, 1000);
  asked = 0;
  EXPECT_EQ(draw(family("p*x", "0", "1", "0")), Preview::given_up);
  EXPECT_LT(asked, 1000);
  EXPECT_THAT(hints, Each(IsEmpty()));
}

TEST_F(Trial, GivesUpAtOnceWhenThereIsNoTime) {
  goes_on = [] { return false; };
  EXPECT_EQ(draw(function("x")), Preview::given_up);
}

TEST_F(Trial, TellsWhatLiesOutOfView) {
  EXPECT_EQ(draw(function("x+100")), Preview::unseen);
  EXPECT_EQ(draw(circumference("100", "0", "1")), Preview::unseen);
  EXPECT_EQ(draw(family("p+100")), Preview::unseen);
  EXPECT_EQ(draw(parametric("t+100", "t")), Preview::unseen);
  EXPECT_THAT(hints, Each(IsEmpty())) << "it has values";
}

TEST_F(Trial, TellsWhatHasNoValueAnywhereAndWhy) {
  EXPECT_EQ(draw(function("ln(-x^2)")), Preview::unseen);
  EXPECT_THAT(hints, ElementsAre("Sin valor en todo el rango: Error en Función 'ln'"));
  SetCurrentLanguage("EN");
  draw(function("2x"));
  EXPECT_THAT(hints, ElementsAre("No value anywhere in the range: Cannot find operator."));
  draw(family("raiz2(-1-p^2)*x"));
  EXPECT_THAT(hints,
              ElementsAre("No value anywhere in the range: Error in function 'raiz2'", "", "", ""));
}

TEST_F(Trial, TellsWhichFormulaOfACurveHasNoValue) {
  draw(parametric("ln(-1-t)", "t"));
  EXPECT_EQ(hints[0], "Sin valor en todo el rango: Error en Función 'ln'");
  EXPECT_EQ(hints[1], "");
  draw(parametric("t", "2t"));
  EXPECT_EQ(hints[0], "");
  EXPECT_EQ(hints[1], "Sin valor en todo el rango: No se encuentra el operador.");
}

TEST_F(Trial, FindsAValueAtASingleSample) {
  draw(function("raiz2(0-(x-5)^2)+100"));
  EXPECT_THAT(hints, ElementsAre(""));
  draw(family("raiz2(0-(p-2)^2)+100"));
  EXPECT_EQ(hints[0], "") << "of the last member alone";
}

TEST_F(Trial, SaysNothingOfValuesWhenItHadNoTimeToLook) {
  int asked = 0;
  goes_on = [&asked] { return ++asked < 4; };
  EXPECT_EQ(draw(function("ln(-x^2)")), Preview::unseen);
  EXPECT_THAT(hints, ElementsAre(""));
}

TEST_F(Trial, KeepsTheHintOfAnUnknownName) {
  draw(function("2*pi"));
  EXPECT_THAT(hints, ElementsAre("Nombre desconocido: «pi»"));
}

TEST_F(Trial, ShowsAGraphThatCallsItselfAsItWouldBe) {
  EXPECT_EQ(draw(function("a(x)+1")), Preview::unseen);
  EXPECT_THAT(hints, ElementsAre("No hay una función «a» que llamar"));
  addFunction('a', "x");
  EXPECT_EQ(draw(function("a(x)+1")), Preview::unseen) << "the older graph is gone then";
  EXPECT_THAT(hints, ElementsAre("Sin valor en todo el rango: No se encuentra el operador."));
}

TEST_F(Trial, LeavesTheGraphsAsTheyAre) {
  accept('a', parametric("cos(t)", "sen(t)"));
  const auto before = graphs.graph('a');
  draw(parametric("t", "t*2"));
  EXPECT_EQ(draw(function("x"), 'b'), Preview::drawn);
  EXPECT_EQ(graphs.count(), 1);
  EXPECT_EQ(graphs.graph('a')->parameters, before->parameters) << "the same dictionary";
  EXPECT_EQ(parameter(*before, "codigo_yt"), "10@(t)");
  EXPECT_EQ(graphs.codeOf('b'), "");
}

TEST_F(Trial, SaysWhatBecomesOfTheLetter) {
  addFunction('a', "x^2");
  EXPECT_EQ(GraphTrial(graphs, {'a', 0, function("x"), std::nullopt}).letterHint().text,
            "Ocupa el lugar de a(x)=x^2");
  EXPECT_EQ(GraphTrial(graphs, {'a', 0, function("x"), 'a'}).letterHint().text, "");
}

TEST_F(Trial, KnowsTheFaultyField) {
  EXPECT_EQ(GraphTrial(graphs, {'a', 0, circumference("1", "2", "-1"), std::nullopt}).faultyField(),
            2u);
  EXPECT_EQ(GraphTrial(graphs, {'a', 0, circumference("1", "2", "1"), std::nullopt}).faultyField(),
            std::nullopt);
}

TEST(PreviewView, IsTheRangeOfTheMainWindowInItsBestQuality) {
  MainView main;
  main.xi = "-2";
  main.xf = " =3,5";
  main.definicion = 1;
  main.proporcional = true;
  const auto view = previewView(main);
  ASSERT_TRUE(view);
  EXPECT_EQ(*view, (ViewSettings{-2, -10, 3.5, 10, 100, true}));
}

TEST(PreviewView, IsNoneWhereTheRangeIsNone) {
  for (const char* const text : {"", "abc", "-10", "-11", "1E999"}) {
    MainView main;
    main.xf = text;
    EXPECT_FALSE(previewView(main)) << text;
    main = {};
    main.yf = text;
    EXPECT_FALSE(previewView(main)) << text;
  }
}

class PreviewTexts : public GraphBuilders {};

TEST_F(PreviewTexts, AreTheRangeInFewDigitsOrWhyThereIsNoCurve) {
  const ViewSettings view{-1.0 / 3, -1E20, 12345, 10, 100, false};
  const char* const range = "x: -0,3333 … 1,234E+04\ny: -1E+20 … 10";
  EXPECT_EQ(previewText(Preview::drawn, view), range);
  EXPECT_EQ(previewText(Preview::no_graph, view), range);
  EXPECT_EQ(previewText(Preview::unseen, view), "Nada visible en el rango");
  EXPECT_EQ(previewText(Preview::given_up, view), "Lento: dibujo incompleto");
  EXPECT_EQ(previewText(Preview::no_view, view), "Rango no válido");
  SetCurrentLanguage("EN");
  EXPECT_EQ(previewText(Preview::drawn, view), range);
  EXPECT_EQ(previewText(Preview::unseen, view), "Nothing visible in the range");
  EXPECT_EQ(previewText(Preview::given_up, view), "Too slow: not all drawn");
  EXPECT_EQ(previewText(Preview::no_view, view), "No valid range");
}

}  // namespace
}  // namespace zel::test
