#include "app/editor/field_hints.h"

#include <array>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "base/language.h"
#include "graphs/builders_fixture.h"

namespace zel::test {
namespace {

/// "! text" where an accept would refuse the field, "? text" for a missing one, "- text" for a
/// note, with the marked place in brackets; empty where nothing is said.
std::string said(const FieldHint& hint) {
  if (hint.tone == HintTone::none) return hint.text;
  std::string text = hint.text;
  if (hint.mark_size > 0) text.insert(hint.mark + hint.mark_size, "]").insert(hint.mark, "[");
  const char* const signs[] = {"", "? ", "! ", "- "};
  return signs[static_cast<int>(hint.tone)] + text;
}

using Said = std::vector<std::string>;

class FieldHints : public GraphBuilders {
 protected:
  Said hints(const GraphFields& fields) {
    Said texts;
    for (const FieldHint& hint : hintFields(fields, graphs, engine)) texts.push_back(said(hint));
    return texts;
  }

  /// The same fields in both languages.
  void expectHints(const GraphFields& fields, const Said& spanish, const Said& english) {
    EXPECT_EQ(hints(fields), spanish);
    SetCurrentLanguage("EN");
    EXPECT_EQ(hints(fields), english);
    SetCurrentLanguage("ES");
  }
};

TEST_F(FieldHints, SayNothingOfFieldsThatAreAccepted) {
  EXPECT_EQ(hints(function("raiz2(x^2+1)")), Said{""});
  EXPECT_EQ(hints(family("p*x")), (Said{"", "", "", ""}));
  EXPECT_EQ(hints(parametric("cos(t)", "sen(t)")), (Said{"", "", "", "", ""}));
  EXPECT_EQ(hints(parabola("1", "2,5", "1")), (Said{"", "", ""}));
  EXPECT_EQ(hints(circumference("1", "-2", "0")), (Said{"", "", ""}));
  EXPECT_EQ(hints(ellipse("1", "2", "5", "3")), (Said{"", "", "", ""}));
  EXPECT_EQ(hints(hyperbola("1", "2", "3", "5")), (Said{"", "", "", ""}));
}

TEST_F(FieldHints, AskForWhatIsMissing) {
  expectHints(function(""), {"? Falta la fórmula"}, {"? A formula is needed"});
  expectHints(family("", "", "", ""),
              {"? Falta la fórmula", "? Falta un número", "? Falta un número", "? Falta un número"},
              {"? A formula is needed", "? A number is needed", "? A number is needed",
               "? A number is needed"});
  EXPECT_EQ(hints(parametric("", "", "", "", "")),
            (Said{"? Falta la fórmula", "? Falta la fórmula", "? Falta un número",
                  "? Falta un número", "? Falta un número"}));
  for (const GraphFields& fields :
       {GraphFields(ParabolaFields()), GraphFields(CircumferenceFields()),
        GraphFields(EllipseFields()), GraphFields(HyperbolaFields())})
    for (const std::string& text : hints(fields)) EXPECT_EQ(text, "? Falta un número");
}

TEST_F(FieldHints, MarkTheParenthesisThatDoesNotFit) {
  expectHints(function("2*(x+1"), {"! Falta cerrar el paréntesis: 2*[(]x+1"},
              {"! This parenthesis is not closed: 2*[(]x+1"});
  expectHints(function("x+1)*2"), {"! Este paréntesis sobra: x+1[)]*2"},
              {"! This parenthesis closes nothing: x+1[)]*2"});
  expectHints(function("2*sen()+x"), {"! Paréntesis vacíos: 2*sen[()]+x"},
              {"! Nothing in the parentheses: 2*sen[()]+x"});
}

TEST_F(FieldHints, ShowOfALongFormulaWhatIsAroundTheParenthesis) {
  EXPECT_EQ(hints(function("1+2+3+4+5+6+7+8)+9+1+2+3+4+5+6+7")),
            Said{"! Este paréntesis sobra: …+3+4+5+6+7+8[)]+9+1+2+3+4+5…"});
  EXPECT_EQ(hints(function("ñññññññññññññññ)ñññññññññññññññ")),
            Said{"! Este paréntesis sobra: …ññññññññññññ[)]ññññññññññññ…"});
}

TEST_F(FieldHints, SayWhatTheFormulaCheckSays) {
  expectHints(function("2*-x"), {"! Error: No se entiende el elemento: '2*'"},
              {"! Cannot understand expression: '2*'"});
  expectHints(function("2sen(30)"), {"! Error de sintaxis."}, {"! Syntax error."});
  EXPECT_EQ(hints(parametric("2*-t", "t*"))[0], "! Error: No se entiende el elemento: '2*'");
  EXPECT_EQ(hints(parametric("2*-t", "t*"))[1], "! Error: No se entiende el elemento: 't*'");
}

TEST_F(FieldHints, NameWhatIsUnknown) {
  expectHints(function("sinh(x)"), {"! Nombre desconocido: «sinh»"}, {"! Unknown name: “sinh”"});
  expectHints(function("2*pi*x"), {"- Nombre desconocido: «pi»"}, {"- Unknown name: “pi”"});
  expectHints(function("g(x)"), {"- No hay una función «g» que llamar"},
              {"- There is no function “g” to call"});
  graphs.rebuildGraph('g', "x^2", "", 0, 'F', nullptr);
  EXPECT_EQ(hints(function("g(x)")), Said{""});
}

TEST_F(FieldHints, AskAFamilyForItsParameter) {
  expectHints(family("2*x"), {"! Falta el parámetro p", "", "", ""},
              {"! The parameter p is missing", "", "", ""});
}

TEST_F(FieldHints, SayWhatIsNoNumber) {
  expectHints(circumference("x", "1,2,3", "abc"),
              {"! No es un número", "! No es un número", "! No es un número"},
              {"! Not a number", "! Not a number", "! Not a number"});
  EXPECT_EQ(hints(family("p", "a", "b", "c")),
            (Said{"", "! No es un número", "! No es un número", "! No es un número"}));
}

TEST_F(FieldHints, SayWhichDistanceIsNegative) {
  expectHints(circumference("1", "1", "-1"), {"", "", "! No puede ser negativo"},
              {"", "", "! Must not be negative"});
  EXPECT_EQ(hints(ellipse("1", "1", "-1", "-2")),
            (Said{"", "", "! No puede ser negativo", "! No puede ser negativo"}));
  EXPECT_EQ(hints(family("p", "0", "1", "-1"))[3], "! No puede ser negativo");
}

TEST_F(FieldHints, SayWhatIsTooLargeWhereThatIsRefused) {
  expectHints(circumference("1E999", "0", "1E999"), {"", "", "! Demasiado grande"},
              {"", "", "! Too large"});
  EXPECT_EQ(hints(family("p", "0", "1E999"))[2], "! Demasiado grande");
}

TEST_F(FieldHints, SayWhatDoesNotIncreaseUnderTheSecondField) {
  expectHints(parametric("t", "t", "5", "5"), {"", "", "", "! Debe ser mayor que 5", ""},
              {"", "", "", "! Must be greater than 5", ""});
  EXPECT_EQ(hints(family("p", "2", "-2"))[2], "! Debe ser mayor que 2");
  EXPECT_EQ(hints(hyperbola("0", "0", "5", "3"))[3], "! Debe ser mayor que 5");
  expectHints(ellipse("0", "0", "3", "4"), {"", "", "", "! Debe ser menor que 3"},
              {"", "", "", "! Must be less than 3"});
}

TEST_F(FieldHints, SayWhyNumbersGiveNoParabola) {
  expectHints(parabola("0", "0", "0"), {"", "", "! Debe ser mayor que 0"},
              {"", "", "! Must be greater than 0"});
  expectHints(parabola("0", "-1,7E308", "1,7E308"), {"", "", "! No da una parábola"},
              {"", "", "! Gives no parabola"});
  EXPECT_EQ(hints(parabola("1E999", "0", "1"))[0], "! Demasiado grande");
}

TEST_F(FieldHints, AreFaultsExactlyWhereAnAcceptRefuses) {
  const std::array texts = {"",      "0",     "1", "2",   "-1", "abc",
                            "1E999", "1E308", "x", "p*x", "(x", "2*-x"};
  int refused = 0;
  int accepted = 0;
  const auto compare = [&](const GraphFields& fields) {
    const BuiltGraph built = build(fields);
    const bool is_refused = !built.message.empty() || built.arithmetic_failure;
    EXPECT_EQ(firstFault(hintFields(fields, graphs, engine)).has_value(), is_refused)
        << built.message;
    ++(is_refused ? refused : accepted);
  };
  for (const char* const a : texts) {
    compare(function(a));
    for (const char* const b : texts) {
      compare(parametric(a, b));
      for (const char* const c : texts) {
        compare(parabola(a, b, c));
        compare(circumference(a, b, c));
        compare(ellipse("1", a, b, c));
        compare(hyperbola(a, "1", b, c));
        compare(family(a, b, c));
        compare(family("p*x", a, b, c));
        compare(parametric("t", "t", a, b, c));
      }
    }
  }
  EXPECT_GT(refused, 10000);
  EXPECT_GT(accepted, 400);
}

TEST_F(FieldHints, TellTheFirstFault) {
  EXPECT_EQ(firstFault(hintFields(circumference("1", "", "-1"), graphs, engine)), 1u);
  EXPECT_EQ(firstFault(hintFields(circumference("1", "2", "-1"), graphs, engine)), 2u);
  EXPECT_EQ(firstFault(hintFields(function("pi"), graphs, engine)), std::nullopt) << "a note";
}

TEST_F(FieldHints, TellThatAFormulaHasNoValue) {
  EXPECT_EQ(said(noValueHint("")), "- Sin valor en todo el rango");
  EXPECT_EQ(said(noValueHint("Error en Función 'ln'\r\nDetalle: más")),
            "- Sin valor en todo el rango: Error en Función 'ln'");
  SetCurrentLanguage("EN");
  EXPECT_EQ(said(noValueHint("")), "- No value anywhere in the range");
  EXPECT_EQ(said(noValueHint("Cannot find operator.")),
            "- No value anywhere in the range: Cannot find operator.");
}

class LetterHints : public FieldHints {
 protected:
  LetterHints() {
    graphs.rebuildGraph('a', "x", "", 0, 'F', nullptr);
    graphs.rebuildGraph('b', "x^2", "", 0, 'F', nullptr);
  }
  std::string hint(char letter, std::optional<char> changed = std::nullopt) {
    return said(hintLetter(letter, changed, graphs));
  }
};

TEST_F(LetterHints, TellWhichGraphIsReplaced) {
  EXPECT_EQ(hint('a'), "- Ocupa el lugar de a(x)=x");
  EXPECT_EQ(hint('a', 'b'), "- Ocupa el lugar de a(x)=x");
  EXPECT_EQ(hint('c'), "");
  SetCurrentLanguage("EN");
  EXPECT_EQ(hint('a'), "- Takes the place of a(x)=x");
}

TEST_F(LetterHints, TellThatAChangeUnderAnotherLetterIsAnotherGraph) {
  EXPECT_EQ(hint('a', 'a'), "") << "changed under its own letter";
  EXPECT_EQ(hint('c', 'a'), "- a(x)=x queda como está");
  SetCurrentLanguage("EN");
  EXPECT_EQ(hint('c', 'a'), "- a(x)=x stays as it is");
  graphs.freeGraph('a');
  EXPECT_EQ(hint('c', 'a'), "");
}

TEST_F(LetterHints, CallAGraphOfAnUnknownKindByItsLetter) {
  graphs.rebuildGraph('a', "x", "", 0, 'K', nullptr);
  EXPECT_EQ(hint('a'), "- Ocupa el lugar de a");
}

TEST_F(LetterHints, TellThatTheTableIsFull) {
  for (char letter = 'a'; letter <= 'z'; ++letter)
    graphs.rebuildGraph(letter, "x", "", 0, 'F', nullptr);
  EXPECT_EQ(hint('a', 'a'), "! No se puede definir mas gráficos.");
  SetCurrentLanguage("EN");
  EXPECT_EQ(hint('a', 'a'), "! Cannot create more graphics.");
}

}  // namespace
}  // namespace zel::test
