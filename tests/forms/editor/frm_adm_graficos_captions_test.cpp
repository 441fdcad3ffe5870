#include <QMenuBar>
#include <QTabBar>

#include "frm_adm_graficos_fixture.h"

namespace zel::test {
namespace {

struct CaptionRow {
  const char *name, *spanish, *english;
};

class EditorCaptions : public Editor {
 protected:
  /// Looks at each row in both languages through what the control says.
  template <class Rows, class Said>
  void expectCaptions(const Rows& rows, Said said) {
    for (const char* const language : {"EN", "ES"}) {
      SetCurrentLanguage(language);
      editor.ApplyLanguage();
      for (const CaptionRow& row : rows)
        EXPECT_EQ(fromQt(said(row.name)), CurrentLanguage() == "EN" ? row.english : row.spanish)
            << row.name;
    }
  }
};

constexpr CaptionRow kLabels[] = {
    {"LblColor", "Color", "Color"},
    {"LblNombre", "Nombre", "Name"},
    {"LblTipo", "Tipo", "Type"},
    {"LblFuncion", "Declaración de la función", "Function"},
    {"LblTVariacion", "Variación=", "Step="},
    {"LblZVariacion", "Variación=", "Step="},
    {"LblTRango", "Rango", "Range"},
    {"LblZRango", "Rango", "Range"},
    {"LblPFoco", "Foco", "Focus"},
    {"LblPDirectriz", "Distancia foco-directriz", "Guideline-focus distance"},
    {"LblCCentro", "Centro", "Center"},
    {"LblECentro", "Centro", "Center"},
    {"LblHCentro", "Centro", "Center"},
    {"LblCRadio", "Radio=", "Radio="},
    {"LblESemiEje", "Semi-Eje", "Semi-Axis"},
    {"LblEMayor", "Mayor=", "Major="},
    {"LblEMenor", "Menor=", "Minor="},
    {"LblHDistancia", "Dist. del Centro a el", "Dist. from center to"},
    {"LblHVertice", "Vértice=", "Vertex="},
    {"LblHFoco", "Foco=", "Focus="},
    {"LblCX", "X=", "X="},
    {"LblCY", "Y=", "Y="},
    {"LblEX", "X=", "X="},
    {"LblEY", "Y=", "Y="},
    {"LblPX", "X=", "X="},
    {"LblPY", "Y=", "Y="},
    {"LblHX", "X=", "X="},
    {"LblHY", "Y=", "Y="},
    {"LblTx", "X(t)=", "X(t)="},
    {"LblTy", "Y(t)=", "Y(t)="},
    {"LblTEntre", "<= t <=", "<= t <="},
    {"LblZEntre", "<= P <=", "<= P <="}};

TEST_F(EditorCaptions, NameTheLabels) {
  expectCaptions(kLabels, [&](const char* name) { return control<QLabel>(editor, name).text(); });
}

TEST_F(EditorCaptions, NameTheFrames) {
  const CaptionRow rows[] = {{"fraEncabezado", "Encabezado", "Header"},
                             {"fraParametrica", "Parametrica", "Parametric"},
                             {"fraParabola", "Parábola", "Parabola"},
                             {"fraCircunferencia", "Circunferencia", "Circumference"},
                             {"fraElipse", "Elipse", "Ellipse"},
                             {"fraHiperbola", "Hiperbola", "Hyperbola"},
                             {"fraHaz", "Declaración del Haz de funciones", "Sheaf definition"}};
  expectCaptions(rows, [&](const char* name) { return control<QGroupBox>(editor, name).title(); });
}

TEST_F(EditorCaptions, NameTheTabsInTheirOrder) {
  const CaptionRow rows[] = {{"0", "Función", "Function"},
                             {"1", "Circunferencia", "Circumference"},
                             {"2", "Elipse", "Ellipse"},
                             {"3", "Parábola", "Parabola"},
                             {"4", "Paramétrica", "Parametric"},
                             {"5", "Hiperbola", "Hyperbola"},
                             {"6", "Haz", "Sheaf"}};
  EXPECT_EQ(tabs().count(), 7);
  expectCaptions(rows, [&](const char* tab) { return tabs().tabText(std::atoi(tab)); });
}

TEST_F(EditorCaptions, NameTheButtonsAndMenus) {
  const CaptionRow buttons[] = {{"bAceptar", "&Aceptar", "&OK"},
                                {"bCancelar", "&Cancelar", "&Cancel"}};
  expectCaptions(buttons,
                 [&](const char* name) { return control<QPushButton>(editor, name).text(); });
  const CaptionRow menus[] = {{"mArchivo", "&Archivo", "&File"},
                              {"mInsertarFuncion", "&Insertar", "&Insert"}};
  expectCaptions(menus, [&](const char* name) { return control<QMenu>(editor, name).title(); });
  const CaptionRow entries[] = {{"mSalir", "&Salir", "&Exit"}};
  expectCaptions(entries, [&](const char* name) { return control<QAction>(editor, name).text(); });
}

TEST_F(EditorCaptions, NameTheFunctionsToInsert) {
  const CaptionRow rows[] = {{"0", "Logaritmo base 10", "logarithm base 10"},
                             {"1", "Logaritmo neperiano", "logarithm base e"},
                             {"2", "Arcotangente", "Arctangent"},
                             {"3", "Coseno", "Cosine"},
                             {"4", "Seno", "Sine"},
                             {"5", "Tangente", "Tangent"},
                             {"6", "Factorial", "Factorial"},
                             {"7", "Potencia de e", "e powered"},
                             {"8", "Raiz cuadrada", "Square"},
                             {"9", "Raiz triple", "Triple"},
                             {"10", "Signo", "Sign"},
                             {"11", "Valor absoluto", "Absolute value"}};
  const auto actions = control<QMenu>(editor, "mInsertarFuncion").actions();
  EXPECT_EQ(actions.size(), 12);
  expectCaptions(rows, [&](const char* row) { return actions[std::atoi(row)]->text(); });
}

TEST_F(EditorCaptions, TitleTheWindowByItsMode) {
  openNew();
  EXPECT_EQ(fromQt(editor.windowTitle()), "Agregar nuevo gráfico");
  addFunction('f', "x");
  openChange('f');
  EXPECT_EQ(fromQt(editor.windowTitle()), "Modificar gráfico");
  SetCurrentLanguage("EN");
  openChange('f');
  EXPECT_EQ(fromQt(editor.windowTitle()), "Edit graphic");
  openNew();
  EXPECT_EQ(fromQt(editor.windowTitle()), "New graphic");
}

TEST_F(EditorCaptions, AreSpanishBeforeTheyAreSet) {
  EXPECT_EQ(labelText("LblFuncion"), "Declaración de la función");
  EXPECT_EQ(fromQt(tabs().tabText(6)), "Haz");
}

TEST_F(EditorCaptions, StayInAnUnknownLanguage) {
  SetCurrentLanguage("EN");
  editor.ApplyLanguage();
  for (const char* const language : {"", "FR", "en"}) {
    SetCurrentLanguage(language);
    editor.ApplyLanguage();
    EXPECT_EQ(labelText("LblFuncion"), "Function") << language;
  }
}

TEST_F(EditorCaptions, FollowTheLanguageAtTheNextShowing) {
  openNew();
  SetCurrentLanguage("EN");
  EXPECT_EQ(labelText("LblNombre"), "Nombre");
  openNew();
  EXPECT_EQ(labelText("LblNombre"), "Name");
}

TEST_F(EditorCaptions, HeadTheFormulasWithTheLetter) {
  openNew();
  EXPECT_EQ(labelText("LblF"), "a(x)=");
  EXPECT_EQ(labelText("LblZ"), "a(x,P)=");
  chooseLetter('w');
  EXPECT_EQ(labelText("LblF"), "w(x)=");
  EXPECT_EQ(labelText("LblZ"), "w(x,P)=");
}

TEST_F(EditorCaptions, AreNamedByTheTagsOfTheFields) {
  for (const QLineEdit* field : editor.findChildren<QLineEdit*>()) {
    const QString tag = field->property("Tag").toString();
    EXPECT_NE(editor.findChild<QWidget*>(tag), nullptr) << field->objectName().toStdString();
  }
}

TEST_F(EditorCaptions, GiveANameToEveryControlThatCanHaveTheFocus) {
  for (const char* const language : {"ES", "EN"}) {
    SetCurrentLanguage(language);
    openNew();
    int named = 0;
    for (QWidget* child : editor.findChildren<QWidget*>()) {
      if (child->focusPolicy() == Qt::NoFocus || child->window() != &editor) continue;
      QAccessibleInterface* const interface = QAccessible::queryAccessibleInterface(child);
      ASSERT_NE(interface, nullptr);
      EXPECT_FALSE(interface->text(QAccessible::Name).isEmpty())
          << child->objectName().toStdString();
      ++named;
    }
    EXPECT_GE(named, 5 + 24);
  }
}

TEST_F(EditorCaptions, TellFieldsOfAPageApart) {
  for (const char* const language : {"ES", "EN"}) {
    SetCurrentLanguage(language);
    editor.ApplyLanguage();
    for (int page = 0; page < tabs().count(); ++page) {
      QSet<QString> names;
      const auto fields = tabs().widget(page)->findChildren<QLineEdit*>();
      for (const QLineEdit* field : fields) names << field->accessibleName();
      EXPECT_EQ(names.size(), fields.size()) << page;
    }
  }
}

TEST_F(EditorCaptions, FitTheWindowInBothLanguages) {
  for (const char* const language : {"ES", "EN"}) {
    SetCurrentLanguage(language);
    openNew();
    editor.resize(10, 10);
    for (const char each : kEditorKinds) {
      chooseKind(each);
      QTest::qWait(0);
      for (QLabel* label : editor.findChildren<QLabel*>())
        EXPECT_GE(label->width(), label->isVisible() ? label->sizeHint().width() : 0)
            << label->objectName().toStdString();
      for (QGroupBox* frame : tabs().currentWidget()->findChildren<QGroupBox*>())
        EXPECT_GE(frame->width(), frame->fontMetrics().horizontalAdvance(frame->title()));
      for (QLineEdit* field : tabs().currentWidget()->findChildren<QLineEdit*>())
        EXPECT_GE(field->width(), field->fontMetrics().horizontalAdvance("-1,234E+10")) << each;
    }
    const QTabBar& bar = *tabs().tabBar();
    EXPECT_LE(bar.tabRect(6).right(), bar.width());
    EXPECT_GE(bar.tabRect(6).width(), bar.fontMetrics().horizontalAdvance(bar.tabText(6)));
  }
}

TEST_F(EditorCaptions, FitASmallScreenInLargeLetters) {
  const QFont usual = QApplication::font();
  QFont large = usual;
  large.setPointSizeF(usual.pointSizeF() * 1.5);
  QApplication::setFont(large);
  for (const char* const language : {"ES", "EN"}) {
    SetCurrentLanguage(language);
    frmAdmGraficos window(program);
    prepareNewGraph(program, &caller);
    window.showForm();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window, kPatience));
    constexpr QSize kFrame(4, 32);
    const QSize needed = window.sizeHint() + kFrame;
    EXPECT_LE(needed.width(), 1024) << language;
    EXPECT_LE(needed.height(), 768) << language;
    window.close();
  }
  QApplication::setFont(usual);
}

}  // namespace
}  // namespace zel::test
