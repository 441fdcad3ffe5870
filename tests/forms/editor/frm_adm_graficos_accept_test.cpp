#include "app/editor/new_graph.h"
#include "frm_adm_graficos_fixture.h"

namespace zel::test {
namespace {

using EditorAccepts = Editor;

TEST_F(EditorAccepts, AFunction) {
  declare('f', 'F', {{"txtF", "raiz2(x^2+1)"}});
  EXPECT_TRUE(graph('f').defined);
  EXPECT_EQ(graph('f').ecuacion, "raiz2(x^2+1)");
  EXPECT_EQ(graph('f').codigo, "7@(x^2+1)");
  EXPECT_EQ(graph('f').tipo, 'F');
  EXPECT_EQ(graph('f').color, graphColours()[0]);
  EXPECT_EQ(program.graphs.count(), 1);
  EXPECT_FALSE(editor.isVisible());
  EXPECT_EQ(caller.shown, 1);
  EXPECT_TRUE(services.boxes.shown.empty());
}

TEST_F(EditorAccepts, ACircumference) {
  declare('c', 'C', {{"txtCX", "1"}, {"txtCY", "2"}, {"txtCRadio", "0"}});
  EXPECT_EQ(graph('c').ecuacion, "c(1;2;0)");
  EXPECT_EQ(graph('c').codigo, "7@((0)^2-((1)-x)^2)+(2)");
  EXPECT_EQ(parameter(graph('c'), "codigo2"), "-7@((0)^2-((1)-x)^2)+(2)");
}

TEST_F(EditorAccepts, AnEllipse) {
  declare('e', 'E', {{"txtEX", "1"}, {"txtEY", "2"}, {"txtEMayor", "5"}, {"txtEMenor", "3"}});
  EXPECT_EQ(graph('e').ecuacion, "e(1;2;5;3)");
  EXPECT_EQ(parameter(graph('e'), "a"), "5");
  EXPECT_EQ(parameter(graph('e'), "b"), "3");
}

TEST_F(EditorAccepts, AParabola) {
  declare('p', 'P', {{"txtPX", "1"}, {"txtPY", "2,5"}, {"txtPDirectriz", "1"}});
  EXPECT_EQ(graph('p').ecuacion, "p(1;2,5;1)");
  EXPECT_EQ(graph('p').codigo, "(0,5)*x^2-2*(1)*(0,5)*x+(0,5)*(1)^2+(2)");
}

TEST_F(EditorAccepts, AParametricCurve) {
  declare('t', 'T', {{"txtTx", "cos(t)"}, {"txtTy", "sen(t)"}});
  EXPECT_EQ(graph('t').ecuacion, "[X(t)=cos(t);Y(t)=sen(t)]");
  EXPECT_EQ(parameter(graph('t'), "codigo_yt"), "10@(t)");
  EXPECT_EQ(parameter(graph('t'), "fin"), "360");
}

TEST_F(EditorAccepts, AHyperbola) {
  declare('h', 'H', {{"txtHX", "1"}, {"txtHY", "2"}, {"txtHVertice", "3"}, {"txtHFoco", "5"}});
  EXPECT_EQ(graph('h').ecuacion, "h(1;2;3;5)");
  EXPECT_EQ(parameter(graph('h'), "a"), "3");
  EXPECT_EQ(parameter(graph('h'), "c"), "5");
}

TEST_F(EditorAccepts, AFamily) {
  declare('z', 'Z', {{"txtZ", "p*x"}});
  EXPECT_EQ(displayText(graph('z')), "z(x,P)=p*x [-3<=P<=3]");
  EXPECT_EQ(parameter(graph('z'), "variacion"), "1");
}

TEST_F(EditorAccepts, FieldsWithoutRelationSignsAndBlanksAtTheirEnds) {
  declare('f', 'F', {{"txtF", " =x+1 "}});
  EXPECT_EQ(graph('f').ecuacion, "x+1");
  EXPECT_EQ(graph('f').codigo, "x+1");
  declare('c', 'C', {{"txtCX", " 3 "}, {"txtCY", "=-1"}, {"txtCRadio", "<2"}});
  EXPECT_EQ(graph('c').ecuacion, "c(3;-1;2)");
  EXPECT_EQ(parameter(graph('c'), "h"), "3");
  declare('t', 'T',
          {{"txtTx", "= t "},
           {"txtTy", ">t"},
           {"txtTinicio", " 0"},
           {"txtTfin", "9 "},
           {"txtTvariacion", "=1"}});
  EXPECT_EQ(graph('t').ecuacion, "[X(t)=t;Y(t)=t]");
  EXPECT_EQ(parameter(graph('t'), "fin"), "9");
  EXPECT_TRUE(services.boxes.shown.empty());
}

TEST_F(EditorAccepts, NoFormulaOfRelationSignsAndBlanks) {
  for (const char* const language : {"ES", "EN"}) {
    SetCurrentLanguage(language);
    declare('f', 'F', {{"txtF", " = "}});
    const bool english = CurrentLanguage() == "EN";
    EXPECT_TRUE(cause().starts_with(
        english ? "Text field Function can't be empty.\r\n"
                : "El campo Declaración de la función no puede estar vacío.\r\n"));
    EXPECT_FALSE(graph('f').defined);
  }
}

TEST_F(EditorAccepts, TheColourThatWasChosen) {
  services.colours.colours = {0x00FF7F};
  openNew();
  QTest::mouseClick(&swatch(), Qt::LeftButton);
  fill({{"txtF", "x"}});
  accept();
  EXPECT_EQ(graph('a').color, 0x00FF7F);
}

TEST_F(EditorAccepts, AnExistingLetterAndReplacesItsGraph) {
  addFunction('f', "x^2");
  declare('f', 'F', {{"txtF", "x^3"}});
  EXPECT_EQ(graph('f').ecuacion, "x^3");
  EXPECT_EQ(program.graphs.count(), 1);
}

TEST_F(EditorAccepts, AChangeUnderItsOwnLetter) {
  addFunction('f', "x^2", 7);
  openChange('f');
  fill({{"txtF", "x^3"}});
  accept();
  EXPECT_EQ(graph('f').ecuacion, "x^3");
  EXPECT_EQ(graph('f').color, 7);
  EXPECT_EQ(program.graphs.count(), 1);
}

TEST_F(EditorAccepts, AChangeUnderAnotherLetterAsAnotherGraph) {
  addFunction('f', "x^2");
  openChange('f');
  chooseLetter('g');
  accept();
  EXPECT_EQ(graph('f').ecuacion, "x^2");
  EXPECT_EQ(graph('g').ecuacion, "x^2");
  EXPECT_EQ(program.graphs.count(), 2);
}

TEST_F(EditorAccepts, NothingWhenTheTableIsFull) {
  for (char name = 'a'; name <= 'z'; ++name) addFunction(name, "x");
  for (const auto& [language, text, title] :
       {std::array{"ES", "No se puede definir mas gráficos.", "ZEL - ATENCIÓN"},
        std::array{"EN", "Cannot create more graphics.", "ZEL - NOTIFY"}}) {
    SetCurrentLanguage(language);
    openChange('f');
    fill({{"txtF", "("}});
    accept();
    ASSERT_EQ(services.boxes.shown.size(), 1u);
    EXPECT_EQ(services.boxes.shown[0], (FakeMessageBoxes::Box{text, title, BoxStyle::stop}));
    services.boxes.shown.clear();
    EXPECT_TRUE(editor.isVisible());
  }
  EXPECT_EQ(graph('f').ecuacion, "x");
  EXPECT_EQ(program.graphs.count(), 26);
}

TEST_F(EditorAccepts, NoParabolaWithoutADistanceAndSaysNothing) {
  declare('p', 'P', {{"txtPX", "0"}, {"txtPY", "0"}, {"txtPDirectriz", "0"}});
  EXPECT_TRUE(services.boxes.shown.empty());
  EXPECT_TRUE(editor.isVisible());
  EXPECT_EQ(caller.shown, 0);
  EXPECT_EQ(program.graphs.count(), 0);
}

TEST_F(EditorAccepts, AGraphAfterARefusal) {
  declare('c', 'C', {{"txtCX", "1"}, {"txtCY", "2"}, {"txtCRadio", "-1"}});
  EXPECT_TRUE(editor.isVisible());
  EXPECT_EQ(program.graphs.count(), 0);
  EXPECT_EQ(shown("txtCRadio"), "-1");
  fill({{"txtCRadio", "1"}});
  accept();
  EXPECT_FALSE(editor.isVisible());
  EXPECT_EQ(program.graphs.count(), 1);
}

}  // namespace
}  // namespace zel::test
