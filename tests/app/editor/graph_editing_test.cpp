#include "app/editor/graph_editing.h"

#include "app/editor/new_graph.h"
#include "app/program_fixture.h"
#include "engine/compiler.h"

namespace zel::test {
namespace {

class GraphEditing : public ProgramTest {
 protected:
  void ask(std::string_view key, const char* value) {
    program.params.removeAll();
    program.params.Add(key, std::string(value));
  }

  bool accept(char letter, const GraphFields& fields, std::int32_t colour = 255) {
    return acceptEdited(program, letter, colour, fields);
  }

  GraphDef graph(char letter) { return *program.graphs.graph(letter); }

  static Field field(const char* text) { return {text, "X="}; }
};

TEST_F(GraphEditing, OffersTheNextLetterAndColourForANewGraph) {
  program.graphs.rebuildGraph('a', "x", "", graphColours()[0], 'F', nullptr);
  ask("modo", "agregar");
  const EditorStart start = startEditor(program);
  EXPECT_FALSE(start.changes);
  EXPECT_EQ(start.letter, 'b');
  EXPECT_EQ(start.colour, graphColours()[1]);
  EXPECT_EQ(start.kind, 'F');
  EXPECT_EQ(std::get<FunctionFields>(start.fields).formula.text, "");
}

TEST_F(GraphEditing, BeginsAChangeWithWhatTheGraphIs) {
  accept('q', FamilyFields{field("p*x"), field("0"), field("1"), field("0,5")}, 0x123456);
  ask("nombre", "q");
  const EditorStart start = startEditor(program);
  EXPECT_TRUE(start.changes);
  EXPECT_EQ(start.letter, 'q');
  EXPECT_EQ(start.colour, 0x123456);
  EXPECT_EQ(start.kind, 'Z');
  EXPECT_EQ(std::get<FamilyFields>(start.fields).formula.text, "p*x");
}

TEST_F(GraphEditing, TakesAnUnknownNameForANewGraph) {
  for (const char* const name : {"q", "", "qq", "A"}) {
    ask("nombre", name);
    EXPECT_FALSE(startEditor(program).changes) << name;
    EXPECT_EQ(startEditor(program).letter, 'a') << name;
  }
  program.params.removeAll();
  EXPECT_FALSE(startEditor(program).changes);
  program.graphs.rebuildGraph('q', "x", "", 0, 'F', nullptr);
  program.graphs.freeGraph('q');
  ask("nombre", "q");
  EXPECT_FALSE(startEditor(program).changes) << "not in use";
}

TEST_F(GraphEditing, ShowsAGraphOfAnUnknownKindAsAFunction) {
  program.graphs.rebuildGraph('q', "x", "", 0, 'K', nullptr);
  ask("nombre", "q");
  EXPECT_TRUE(startEditor(program).changes);
  EXPECT_EQ(startEditor(program).kind, 'F');
}

TEST_F(GraphEditing, ShowsTheFocusOfAParabolaAgain) {
  struct Row {
    const char *x, *y, *p, *shown_x, *shown_y, *shown_p;
  };
  for (const Row& row :
       {Row{"1", "1", "3", "1", "1", "3"}, Row{"-2.50", "0.1", "0.3", "-2,5", "0,1", "0,3"},
        // Each number keeps 15 digits on its way.
        Row{"1E20", "-1E10", "1E-5", "1E+20", "-9999999999,99999", "1E-05"}}) {
    ASSERT_TRUE(accept('p', ParabolaFields{field(row.x), field(row.y), field(row.p)}));
    const auto fields = std::get<ParabolaFields>(fieldsOf(graph('p')));
    EXPECT_EQ(fields.focus_x.text, row.shown_x);
    EXPECT_EQ(fields.focus_y.text, row.shown_y);
    EXPECT_EQ(fields.distance.text, row.shown_p);
  }
}

TEST_F(GraphEditing, LeavesTheFocusOfADamagedParabolaEmpty) {
  for (const char* const k : {"", "abc", "1E308"}) {
    auto parameters = std::make_shared<Parameters>();
    parameters->Add("h", "1");
    parameters->Add("k", k);
    parameters->Add("p", std::string(k) == "1E308" ? "1,79E308" : "2");
    program.graphs.rebuildGraph('p', "p(1;2;3)", "x", 0, 'P', parameters);
    const auto fields = std::get<ParabolaFields>(fieldsOf(graph('p')));
    EXPECT_EQ(fields.focus_x.text, "1");
    EXPECT_EQ(fields.focus_y.text, "") << k;
  }
}

TEST_F(GraphEditing, ShowsTheOtherKindsAsTheyWereTyped) {
  accept('c', CircumferenceFields{field("1.0"), field("2"), field("3,50")});
  const auto circle = std::get<CircumferenceFields>(fieldsOf(graph('c')));
  EXPECT_EQ(circle.centre_x.text + "|" + circle.centre_y.text + "|" + circle.radius.text,
            "1.0|2|3,50");
  accept('e', EllipseFields{field("1"), field("2"), field("4"), field("3")});
  const auto ellipse = std::get<EllipseFields>(fieldsOf(graph('e')));
  EXPECT_EQ(ellipse.centre_x.text + ellipse.centre_y.text, "12");
  EXPECT_EQ(ellipse.major.text + ellipse.minor.text, "43");
  accept('h', HyperbolaFields{field("1"), field("2"), field("3"), field("4")});
  const auto hyperbola = std::get<HyperbolaFields>(fieldsOf(graph('h')));
  EXPECT_EQ(hyperbola.centre_x.text + hyperbola.centre_y.text, "12");
  EXPECT_EQ(hyperbola.vertex.text + hyperbola.focus.text, "34");
  accept('t',
         ParametricFields{field("cos(T)"), field("2*t"), field("0"), field("9"), field("0,1")});
  const auto curve = std::get<ParametricFields>(fieldsOf(graph('t')));
  EXPECT_EQ(curve.x.text + "|" + curve.y.text, "cos(T)|2*t");
  EXPECT_EQ(curve.inicio.text + "|" + curve.fin.text + "|" + curve.variacion.text, "0|9|0,1");
  accept('f', FunctionFields{field("SEN x")});
  EXPECT_EQ(std::get<FunctionFields>(fieldsOf(graph('f'))).formula.text, "SEN x");
  accept('z', FamilyFields{field("P*x"), field("-1"), field("1"), field("0,5")});
  const auto family = std::get<FamilyFields>(fieldsOf(graph('z')));
  EXPECT_EQ(family.formula.text, "P*x");
  EXPECT_EQ(family.inicio.text + "|" + family.fin.text + "|" + family.variacion.text, "-1|1|0,5");
}

TEST_F(GraphEditing, HasATitleForEachModeInBothLanguages) {
  EXPECT_EQ(editorTitle(false), "Agregar nuevo gráfico");
  EXPECT_EQ(editorTitle(true), "Modificar gráfico");
  SetCurrentLanguage("EN");
  EXPECT_EQ(editorTitle(false), "New graphic");
  EXPECT_EQ(editorTitle(true), "Edit graphic");
}

TEST_F(GraphEditing, HeadsTheFormulasOfFunctionsAndFamilies) {
  EXPECT_EQ(formulaHeader('g', 'F'), "g(x)=");
  EXPECT_EQ(formulaHeader('g', 'Z'), "g(x,P)=");
  EXPECT_EQ(formulaHeader('g', 'T'), "");
  EXPECT_EQ(formulaHeader('g', 'C'), "");
}

TEST_F(GraphEditing, InsertsNamesWithTheCaretBetweenTheParentheses) {
  for (const char* const code : {"ES", "EN"}) {
    for (const std::string_view name : offeredFunctions(code)) {
      const bool is_factorial = name == "!";
      const Insertion insertion = functionInsertion(name);
      EXPECT_EQ(insertion.text, is_factorial ? "!" : std::string(name) + "()");
      EXPECT_EQ(insertion.caret_back, is_factorial ? 0u : 1u);
    }
  }
}

TEST_F(GraphEditing, InsertsNamesAroundWhatIsSelected) {
  EXPECT_EQ(functionInsertion("sen", "x+1").text, "sen(x+1)");
  EXPECT_EQ(functionInsertion("sen", "x+1").caret_back, 0u);
  EXPECT_EQ(functionInsertion("!", "x+1").text, "(x+1)!");
  EXPECT_EQ(functionInsertion("!", "x+1").caret_back, 0u);
}

TEST_F(GraphEditing, StoresWhatIsAccepted) {
  EXPECT_TRUE(accept('g', FunctionFields{field("raiz2(x^2+1)")}, 0x0000FF));
  EXPECT_EQ(graph('g').ecuacion, "raiz2(x^2+1)");
  EXPECT_EQ(graph('g').codigo, "7@(x^2+1)");
  EXPECT_EQ(graph('g').color, 0x0000FF);
  EXPECT_EQ(program.graphs.count(), 1);
  EXPECT_TRUE(services.boxes.shown.empty());
}

TEST_F(GraphEditing, ReportsARefusalAndStoresNothing) {
  EXPECT_FALSE(accept('g', CircumferenceFields{field("1"), field("1"), {"-1", "Radio="}}));
  EXPECT_EQ(services.boxes.shown,
            std::vector{errorReport("Los valores de distancia deben ser números positivos en los "
                                    "siguientes campos:\r\nRadio\r\n\r\n")});
  EXPECT_EQ(program.graphs.count(), 0);
}

TEST_F(GraphEditing, ShowsAFullTableByItself) {
  for (char letter = 'a'; letter <= 'z'; ++letter) addFunction(letter, "x");
  EXPECT_FALSE(accept('g', FunctionFields{field("")}));
  EXPECT_EQ(services.boxes.shown, std::vector{attention("No se puede definir mas gráficos.")});
}

TEST_F(GraphEditing, SaysNothingAboutAnArithmeticFailure) {
  EXPECT_FALSE(accept('g', ParabolaFields{field("0"), field("0"), field("0")}));
  EXPECT_TRUE(services.boxes.shown.empty());
  EXPECT_EQ(program.graphs.count(), 0);
}

}  // namespace
}  // namespace zel::test
