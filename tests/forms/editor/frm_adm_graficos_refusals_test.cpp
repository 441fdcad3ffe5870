#include <ostream>

#include "frm_adm_graficos_fixture.h"

namespace zel::test {
namespace {

struct Refusal {
  char kind;
  std::map<std::string, std::string> texts;
  const char* spanish;
  const char* english;

  friend std::ostream& operator<<(std::ostream& stream, const Refusal& refusal) {
    stream << refusal.kind;
    for (const auto& [name, text] : refusal.texts) stream << " " << name << "=" << text;
    return stream;
  }
};

class EditorRefuses : public Editor, public ::testing::WithParamInterface<Refusal> {};

TEST_P(EditorRefuses, WithTheWholeMessage) {
  for (const char* const language : {"ES", "EN"}) {
    SetCurrentLanguage(language);
    declare('g', GetParam().kind, GetParam().texts);
    EXPECT_EQ(cause(), CurrentLanguage() == "EN" ? GetParam().english : GetParam().spanish);
    EXPECT_TRUE(editor.isVisible());
    EXPECT_EQ(caller.shown, 0);
    EXPECT_EQ(program.graphs.count(), 0);
  }
}

const Refusal kRefusals[] = {
    {'F',
     {{"txtF", ""}},
     "El campo Declaración de la función no puede estar vacío.\r\n",
     "Text field Function can't be empty.\r\n"},
    {'F',
     {{"txtF", "2*-x"}},
     "Error: No se entiende el elemento: '2*'",
     "Cannot understand expression: '2*'"},
    {'F', {{"txtF", "2sen(30)"}}, "Error de sintaxis.", "Syntax error."},
    {'F',
     {{"txtF", "(x"}},
     "Error en paréntesis en el campo Declaración de la función.\r\n",
     "Parenthesis error in field Function.\r\n"},
    {'F',
     {{"txtF", "sen()"}},
     "Error en paréntesis en el campo Declaración de la función.\r\nError: No se entiende el "
     "elemento: '10@()'",
     "Parenthesis error in field Function.\r\nCannot understand expression: '10@()'"},
    {'Z',
     {{"txtZ", "m*x"}, {"txtZinicio", "2"}, {"txtZfin", "2"}, {"txtZvariacion", "-1"}},
     "\r\nDebe incluir el nombre del parámetro en la declaración de la función "
     "paramétrica.\r\n\r\nLos siguientes campos deben contener valores numéricos "
     "crecientes:\r\nRangoLos valores de distancia deben ser números positivos en los siguientes "
     "campos:\r\nVariación\r\n\r\n",
     "\r\nCannot find parameter name in parametric definition.\r\n\r\nNext fields must contains "
     "increasing numeric values:\r\nRangeSize must be numeric value greater than zero in "
     "fields:\r\nStep\r\n\r\n"},
    {'Z',
     {{"txtZ", ""}},
     "El campo Declaración del Haz de funciones no puede estar vacío.\r\n\r\nDebe incluir el "
     "nombre del parámetro en la declaración de la función paramétrica.\r\n",
     "Text field Sheaf definition can't be empty.\r\n\r\nCannot find parameter name in parametric "
     "definition.\r\n"},
    {'T',
     {{"txtTx", ""}, {"txtTy", "("}},
     "El campo X(t) no puede estar vacío.\r\nError en paréntesis en el campo Y(t).\r\n",
     "Text field X(t) can't be empty.\r\nParenthesis error in field Y(t).\r\n"},
    {'T',
     {{"txtTx", "t"}, {"txtTy", "t"}, {"txtTinicio", "a"}, {"txtTfin", ""}, {"txtTvariacion", "b"}},
     "Los siguientes campos deben contener valores "
     "numéricos:\r\nRango\r\nRango\r\nVariación\r\nLos valores de distancia deben ser números "
     "positivos en los siguientes campos:\r\nVariación\r\n\r\n",
     "Next fields must contains numeric values:\r\nRange\r\nRange\r\nStep\r\nSize must be numeric "
     "value greater than zero in fields:\r\nStep\r\n\r\n"},
    {'T',
     {{"txtTx", "t"},
      {"txtTy", "t"},
      {"txtTinicio", "5"},
      {"txtTfin", "5"},
      {"txtTvariacion", "-1"}},
     "\r\nLos siguientes campos deben contener valores numéricos crecientes:\r\nRangoLos valores "
     "de distancia deben ser números positivos en los siguientes campos:\r\nVariación\r\n\r\n",
     "\r\nNext fields must contains increasing numeric values:\r\nRangeSize must be numeric value "
     "greater than zero in fields:\r\nStep\r\n\r\n"},
    {'P',
     {{"txtPDirectriz", "-1"}},
     "Los siguientes campos deben contener valores numéricos:\r\nX\r\nY\r\n",
     "Next fields must contains numeric values:\r\nX\r\nY\r\n"},
    {'P',
     {{"txtPX", "0"}, {"txtPY", "0"}, {"txtPDirectriz", "-1"}},
     "Los valores de distancia deben ser números positivos en los siguientes campos:\r\nDistancia "
     "foco-directriz\r\n\r\n",
     "Size must be numeric value greater than zero in fields:\r\nGuideline-focus distance\r\n\r\n"},
    {'C',
     {{"txtCX", "1"}, {"txtCY", "1"}, {"txtCRadio", "-1"}},
     "Los valores de distancia deben ser números positivos en los siguientes "
     "campos:\r\nRadio\r\n\r\n",
     "Size must be numeric value greater than zero in fields:\r\nRadio\r\n\r\n"},
    {'C',
     {{"txtCX", "x"}, {"txtCY", "1"}, {"txtCRadio", "abc"}},
     "Los siguientes campos deben contener valores numéricos:\r\nX\r\nRadio\r\n",
     "Next fields must contains numeric values:\r\nX\r\nRadio\r\n"},
    {'E',
     {{"txtEX", "1"}, {"txtEY", "2"}, {"txtEMayor", "3"}, {"txtEMenor", "3"}},
     "\r\nLos siguientes campos deben contener valores numéricos crecientes:\r\nMenor\r\nMayor",
     "\r\nNext fields must contains increasing numeric values:\r\nMinor\r\nMajor"},
    {'E',
     {{"txtEX", "1"}, {"txtEY", "2"}, {"txtEMayor", "-3"}, {"txtEMenor", "-4"}},
     "Los valores de distancia deben ser números positivos en los siguientes "
     "campos:\r\nMayor\r\nMenor\r\n\r\n",
     "Size must be numeric value greater than zero in fields:\r\nMajor\r\nMinor\r\n\r\n"},
    {'H',
     {{"txtHX", "1"}, {"txtHY", "2"}, {"txtHVertice", "5"}, {"txtHFoco", "3"}},
     "\r\nLos siguientes campos deben contener valores numéricos crecientes:\r\nVértice\r\nFoco",
     "\r\nNext fields must contains increasing numeric values:\r\nVertex\r\nFocus"},
    {'H',
     {{"txtHX", ""}},
     "Los siguientes campos deben contener valores "
     "numéricos:\r\nX\r\nY\r\nVértice\r\nFoco\r\n\r\nLos siguientes campos deben contener valores "
     "numéricos crecientes:\r\nVértice\r\nFoco",
     "Next fields must contains numeric values:\r\nX\r\nY\r\nVertex\r\nFocus\r\n\r\nNext fields "
     "must contains increasing numeric values:\r\nVertex\r\nFocus"},
};

INSTANTIATE_TEST_SUITE_P(Fields, EditorRefuses, ::testing::ValuesIn(kRefusals));

}  // namespace
}  // namespace zel::test
