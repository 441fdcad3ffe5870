#include "forms/main/frm_datos_ini.h"

#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QScreen>
#include <QSignalSpy>

#include "frm_datos_ini_fixture.h"

namespace zel::test {
namespace {

TEST_F(MainWindow, BeginsWithTheDefaultsOfANewDocument) {
  window.showForm();
  EXPECT_EQ(text(window, "txtRanXi"), "-10");
  EXPECT_EQ(text(window, "txtRanXf"), "10");
  EXPECT_EQ(text(window, "txtRanYi"), "-10");
  EXPECT_EQ(text(window, "txtRanYf"), "10");
  EXPECT_EQ(title(), "ZEL - Datos iniciales");
}

TEST_F(MainWindow, HasItsCaptionsInBothLanguages) {
  struct Row {
    const char *name, *spanish, *english;
  };
  const Row buttons[] = {{"CmdAgregar", "&Agregar", "&Add"},
                         {"CmdBorrar", "&Borrar", "&Remove"},
                         {"CmdGraficarLista", "Graficar", "&Graph"},
                         {"CmdModificar", "&Modificar", "&Edit"}};
  const Row labels[] = {{"LblRanXf", "X MÁXIMO", "X MAXIMUN"},
                        {"LblRanXi", "x mínimo", "x minimun"},
                        {"LblRanYf", "Y MÁXIMO", "Y MAXIMUN"},
                        {"LblRanYi", "y mínimo", "y minimun"},
                        {"LblEscalaX", "Reales/unidad X =", "Reals per unit X="},
                        {"LblEscalaY", "Reales/unidad Y =", "Reals per unit Y="}};
  const Row frames[] = {{"fraCalidad", "CALIDAD", "Quality"},
                        {"fraGraficos", "GRAFICOS", "Graphics"},
                        {"fraRango", "RANGO", "Range"},
                        {"fraEscala", "ESCALA", "Ruler"}};
  const Row menus[] = {{"mArchivo", "A&rchivo", "File"},
                       {"mEdicion", "&Edición", "Edit"},
                       {"mOpciones", "&Opciones", "Options"},
                       {"mLenguaje", "&Lenguaje", "Language"},
                       {"mAyuda", "&Ayuda", "Help"}};
  const Row actions[] = {
      {"mNuevo", "&Nuevo", "New"},
      {"mAbrir", "A&brir", "&Open"},
      {"mGuardar", "G&uardar", "&Save"},
      {"mGuardarComo", "Guardar &como...", "Save &As..."},
      {"mSalir", "&Salir", "Exit"},
      {"mDeshacer", "&Deshacer", "&Undo"},
      {"mRehacer", "&Rehacer", "&Redo"},
      {"mAgregar", "&Agregar...", "&Add..."},
      {"mModificar", "&Modificar...", "&Edit..."},
      {"mDuplicar", "D&uplicar", "&Duplicate"},
      {"mBorrar", "&Borrar", "Re&move"},
      {"mConfirmarBorrado", "&Pedir confirmación para borrar funciones",
       "&Confirm before removing functions"},
      {"mTemasDeAyuda", "Temas de Ayuda", "Contents"},
      {"mComoConseguirEstePrograma", "Como conseguir este programa", "How to get this software"},
      {"mAcercaDeZel", "Acerca de ZEL", "&About ZEL"}};
  for (const bool english : {false, true}) {
    choose(english ? "mEnglish" : "mEspanol");
    const auto wanted = [&](const Row& row) {
      return std::string(english ? row.english : row.spanish);
    };
    for (const Row& row : buttons)
      EXPECT_EQ(fromQt(control<QPushButton>(window, row.name).text()), wanted(row));
    for (const Row& row : labels)
      EXPECT_EQ(fromQt(control<QLabel>(window, row.name).text()), wanted(row));
    for (const Row& row : frames)
      EXPECT_EQ(fromQt(control<QGroupBox>(window, row.name).title()), wanted(row));
    for (const Row& row : menus)
      EXPECT_EQ(fromQt(control<QMenu>(window, row.name).title()), wanted(row));
    for (const Row& row : actions) EXPECT_EQ(actionText(window, row.name), wanted(row));
    EXPECT_EQ(fromQt(control<QCheckBox>(window, "chkProporcional").text()),
              english ? "Keep proportionally" : "Mantener proporcionalidad");
    EXPECT_EQ(title(), english ? "ZEL - Graphic manager" : "ZEL - Datos iniciales");
    expectAccessibleNames(window);
  }
}

TEST_F(MainWindow, KeepsItsCaptionsUnderAnUnknownLanguage) {
  SetCurrentLanguage("fr");
  window.showForm();
  EXPECT_EQ(fromQt(control<QPushButton>(window, "CmdAgregar").text()), "&Agregar");
}

TEST_F(MainWindow, ChecksItsLanguageAndOffersHelpInSpanishOnly) {
  choose("mEnglish");
  EXPECT_EQ(CurrentLanguage(), "EN");
  EXPECT_TRUE(control<QAction>(window, "mEnglish").isChecked());
  EXPECT_FALSE(control<QAction>(window, "mEspanol").isChecked());
  EXPECT_FALSE(control<QAction>(window, "mTemasDeAyuda").isEnabled());
  choose("mEspanol");
  EXPECT_TRUE(control<QAction>(window, "mEspanol").isChecked());
  EXPECT_TRUE(control<QAction>(window, "mTemasDeAyuda").isEnabled());
}

TEST_F(MainWindow, ChangesTheHelpFileForSpanishAndNotForEnglish) {
  chooseHelpFile(program);
  choose("mEnglish");
  EXPECT_EQ(program.help_file, "ayuda_es.hlp");
  program.help_file = "ayuda_en.hlp";
  choose("mEspanol");
  EXPECT_EQ(program.help_file, "ayuda_es.hlp");
}

TEST_F(MainWindow, TakesTheRangeFromItsArguments) {
  program.params.removeAll();
  program.params.Add("xi", -2.5);
  program.params.Add("xf", 1.0 / 3);
  program.params.Add("yi", -1e20);
  program.params.Add("yf", 1e20);
  window.showForm();
  EXPECT_EQ(text(window, "txtRanXi"), "-2,5");
  EXPECT_EQ(text(window, "txtRanXf"), "0,333333333333333");
  EXPECT_EQ(text(window, "txtRanYi"), "-1E+20");
  EXPECT_EQ(text(window, "txtRanYf"), "1E+20");
}

TEST_F(MainWindow, FiltersTheKeysOfItsNumberBoxes) {
  window.showForm();
  EXPECT_EQ(typed("txtRanXi", "1,5", ".x 2"), "1,52");
  EXPECT_EQ(typed("txtRanXi", "", "E5E3"), "5E3");
  EXPECT_EQ(typed("txtRanYf", "3E", "--2"), "3E-2");
  EXPECT_EQ(typed("txtEscalaX", "", "-2"), "2");
  EXPECT_EQ(typed("txtEscalaY", "", "-0,5"), "0,5");
}

TEST_F(MainWindow, LetsTheYRangeBeEditedOnlyWithoutProportions) {
  window.showForm();
  window.actProporcional(true);
  EXPECT_TRUE(control<QCheckBox>(window, "chkProporcional").isChecked());
  EXPECT_FALSE(control<QLineEdit>(window, "txtRanYi").isEnabled());
  EXPECT_FALSE(control<QLineEdit>(window, "txtRanYf").isEnabled());
  EXPECT_TRUE(control<QLineEdit>(window, "txtRanXi").isEnabled());
  control<QCheckBox>(window, "chkProporcional").click();
  EXPECT_TRUE(control<QLineEdit>(window, "txtRanYi").isEnabled());
  EXPECT_TRUE(control<QLineEdit>(window, "txtRanYf").isEnabled());
}

TEST_F(MainWindow, ShowsTheQualityAsAPercentage) {
  auto& slider = control<QSlider>(window, "Slider1");
  EXPECT_EQ(slider.minimum(), 1);
  EXPECT_EQ(slider.maximum(), 100);
  slider.setValue(37);
  EXPECT_EQ(fromQt(control<QLabel>(window, "LblCalidad").text()), "37%");
  addFunction('a', "x");
  click("CmdGraficarLista");
  EXPECT_EQ(program.params.Item("definicion"), FormValue(std::int16_t{37}));
}

TEST_F(MainWindow, ListsTheGraphsInLetterOrder) {
  addFunction('f', "x^2");
  addFunction('a', "x");
  window.showForm();
  ASSERT_EQ(list().topLevelItemCount(), 2);
  const QTreeWidgetItem& first = *list().topLevelItem(0);
  EXPECT_EQ(fromQt(first.text(0)), "a");
  EXPECT_EQ(fromQt(first.text(1)), "Función");
  EXPECT_EQ(fromQt(first.text(2)), "a(x)=x");
  EXPECT_EQ(fromQt(list().topLevelItem(1)->text(0)), "f");
  choose("mEnglish");
  EXPECT_EQ(fromQt(list().topLevelItem(0)->text(1)), "Function");
}

TEST_F(MainWindow, OpensTheEditorForANewGraphAndForTheSelectedOne) {
  addFunction('q', "x");
  window.showForm();
  click("CmdAgregar");
  EXPECT_EQ(program.params.Item("modo"), FormValue(std::string("agregar")));
  EXPECT_EQ(callerOf(program.params), &window);
  EXPECT_EQ(editor.shown, 1);
  EXPECT_FALSE(control<QPushButton>(window, "CmdModificar").isEnabled());
  list().selectLetters("q");
  click("CmdModificar");
  EXPECT_EQ(program.params.Item("nombre"), FormValue(std::string("q")));
  QTest::keyClick(&list(), Qt::Key_Return);
  emit list().itemDoubleClicked(list().topLevelItem(0), 0);
  EXPECT_EQ(editor.shown, 4);
}

TEST_F(MainWindow, AnswersToTheMnemonicsOfItsButtons) {
  window.showForm();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window, kPatience));
  auto& box = control<QLineEdit>(window, "txtRanXf");
  QTest::keyClick(&box, Qt::Key_A, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return editor.shown == 1; }, kPatience));
  choose("mEnglish");
  addFunction('a', "x");
  QTest::keyClick(&box, Qt::Key_G, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return plot.shown == 1; }, kPatience));
}

TEST_F(MainWindow, DeletesEverySelectedGraph) {
  for (const char letter : {'a', 'b', 'c'}) addFunction(letter, "x");
  window.showForm();
  EXPECT_FALSE(control<QPushButton>(window, "CmdBorrar").isEnabled());
  list().topLevelItem(0)->setSelected(true);
  list().topLevelItem(2)->setSelected(true);
  click("CmdBorrar");
  ASSERT_EQ(list().topLevelItemCount(), 1);
  EXPECT_EQ(fromQt(list().topLevelItem(0)->text(0)), "b");
  EXPECT_EQ(program.graphs.count(), 1);
}

TEST_F(MainWindow, AsksBeforeDeletingWhenThatIsChosen) {
  addFunction('a', "x");
  window.showForm();
  choose("mConfirmarBorrado");
  EXPECT_TRUE(program.configuration.confirm_deletion);
  EXPECT_TRUE(control<QAction>(window, "mConfirmarBorrado").isChecked());
  list().selectLetters("a");
  click("CmdBorrar");
  EXPECT_EQ(program.graphs.count(), 1);
  services.boxes.answers = {BoxAnswer::ok};
  click("CmdBorrar");
  EXPECT_EQ(program.graphs.count(), 0);
  choose("mConfirmarBorrado");
  EXPECT_FALSE(control<QAction>(window, "mConfirmarBorrado").isChecked());
}

TEST_F(MainWindow, PlotsOnlyWithGraphsAndIncreasingRanges) {
  window.showForm();
  click("CmdGraficarLista");
  EXPECT_EQ(plot.shown, 0);
  addFunction('a', "x");
  control<QLineEdit>(window, "txtRanXi").setText("10");
  click("CmdGraficarLista");
  EXPECT_EQ(plot.shown, 0);
  ASSERT_EQ(services.boxes.shown.size(), 1u);
  EXPECT_EQ(services.boxes.shown[0].text,
            "No se puede realizar la operación.\r\nCausa: \r\nLos siguientes campos deben contener "
            "valores numéricos crecientes:\r\nx mínimo\r\nX MÁXIMO");
  control<QLineEdit>(window, "txtRanXi").setText("-10");
  click("CmdGraficarLista");
  EXPECT_EQ(plot.shown, 1);
  EXPECT_EQ(callerOf(program.params), &window);
}

TEST_F(MainWindow, PlotsAtEnterInEveryBox) {
  addFunction('a', "x");
  int plots = 0;
  for (const char* name : {"txtRanXi", "txtRanXf", "txtRanYi", "txtRanYf", "txtEscalaX",
                           "txtEscalaY", "chkProporcional", "Slider1", "CmdGraficarLista"}) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
      window.showForm();
      QTest::keyClick(&control<QWidget>(window, name), key);
      EXPECT_EQ(plot.shown, ++plots) << name;
    }
  }
}

TEST_F(MainWindow, DoesNotPlotAtAnEnterThatIsStillHeldDown) {
  addFunction('a', "x");
  window.showForm();
  QKeyEvent again(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
  QApplication::sendEvent(&control<QLineEdit>(window, "txtRanXi"), &again);
  EXPECT_EQ(plot.shown, 0);
}

TEST_F(MainWindow, ClicksTheButtonThatHasTheFocusAtEnter) {
  addFunction('a', "x");
  window.showForm();
  QTest::keyClick(&control<QPushButton>(window, "CmdAgregar"), Qt::Key_Return);
  EXPECT_EQ(editor.shown, 1);
  EXPECT_EQ(plot.shown, 0);
}

TEST_F(MainWindow, SaysOnItsButtonThatThereIsNothingToPlot) {
  window.showForm();
  auto& button = control<QPushButton>(window, "CmdGraficarLista");
  EXPECT_EQ(fromQt(button.toolTip()), "Todavía no hay gráficos que dibujar");
  choose("mEnglish");
  EXPECT_EQ(fromQt(button.toolTip()), "There are no graphs to draw yet");
  addFunction('a', "x");
  window.showForm();
  EXPECT_EQ(fromQt(button.toolTip()), "");
}

TEST_F(MainWindow, BeginsWithinTheScreensWorkArea) {
  const QFont before = QApplication::font();
  QFont large = before;
  large.setPointSizeF(before.pointSizeF() * 1.3);
  QApplication::setFont(large);
  frmDatosIni other(program);
  other.load();
  QApplication::setFont(before);
  const QSize room = other.screen()->availableSize();
  EXPECT_GT(other.sizeHint().width() + 260, room.width() * 9 / 10) << "the font is too small";
  EXPECT_LE(other.width(), room.width() * 9 / 10);
  EXPECT_LE(other.height(), room.height() * 9 / 10);
}

TEST_F(MainWindow, ReadsTheRangeWithoutRelationSignsAndBlanksAndLeavesItAsTyped) {
  addFunction('a', "x");
  window.showForm();
  control<QLineEdit>(window, "txtRanXi").setText(" =-3 ");
  click("CmdGraficarLista");
  EXPECT_EQ(plot.shown, 1);
  EXPECT_EQ(program.params.Item("xi"), FormValue(-3.0));
  EXPECT_EQ(text(window, "txtRanXi"), " =-3 ");
}

TEST_F(MainWindow, ReportsAScaleOfBlanks) {
  addFunction('a', "x");
  window.showForm();
  control<QLineEdit>(window, "txtEscalaX").setText("  ");
  click("CmdGraficarLista");
  EXPECT_EQ(plot.shown, 0);
  ASSERT_EQ(services.boxes.shown.size(), 1u);
  EXPECT_EQ(services.boxes.shown[0].text,
            "No se puede realizar la operación.\r\nCausa: Datos no válidos en declaraciones y/o "
            "rango.");
}

TEST_F(MainWindow, OpensADocumentWhoseNameIsNoUtf8AndSavesItThere) {
#ifdef _WIN32
  GTEST_SKIP() << "names are made of letters there, not of bytes";
#endif
  const std::string name = "n\xFF.zel";
  putBytes(name, bytesOf(std::string(ZEL_EXAMPLES_DIR) + "/waves.zel"));
  window.openCommandLine(name);
  EXPECT_TRUE(services.boxes.shown.empty());
  EXPECT_GT(program.graphs.count(), 0);
  EXPECT_EQ(title(), "ZEL - n\uFFFD.zel");
  program.graphs.clearGraphs();
  addFunction('q', "x");
  choose("mGuardar");
  EXPECT_NE(bytesOf(name).find("nombre=q"), std::string::npos);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator("."), {}), 1);
}

TEST_F(MainWindow, SavesAndOpensWhatItsControlsHold) {
  addFunction('a', "x^2");
  window.showForm();
  control<QLineEdit>(window, "txtRanXi").setText("-1,50");
  control<QLineEdit>(window, "txtEscalaX").setText("0,25");
  control<QSlider>(window, "Slider1").setValue(42);
  window.actProporcional(true);
  services.files.paths = {"un documento bastante largo.zel"};
  choose("mGuardarComo");
  EXPECT_EQ(title(), "ZEL - un documento bas");
  choose("mNuevo");
  EXPECT_EQ(title(), "ZEL - Datos iniciales");
  EXPECT_EQ(text(window, "txtRanXi"), "-10");
  EXPECT_EQ(list().topLevelItemCount(), 0);
  control<QSlider>(window, "Slider1").setValue(1);
  services.files.paths = {"un documento bastante largo.zel"};
  choose("mAbrir");
  EXPECT_EQ(title(), "ZEL - un documento bas");
  EXPECT_EQ(text(window, "txtRanXi"), "-1,50");
  EXPECT_EQ(text(window, "txtEscalaX"), "0,25");
  EXPECT_EQ(control<QSlider>(window, "Slider1").value(), 42);
  EXPECT_FALSE(control<QLineEdit>(window, "txtRanYi").isEnabled());
  EXPECT_EQ(list().topLevelItemCount(), 1);
  EXPECT_TRUE(services.boxes.shown.empty());
}

TEST_F(MainWindow, OpensTheDocumentOfTheCommandLineAndKeepsItsRangeWhenShown) {
  putBytes("d.zel",
           "[PRINCIPAL]\r\nversiones_compatibles=2.0\r\n \r\n[VISTA PRINCIPAL]\r\n"
           "xi=-3\r\ndefinicion=500\r\n \r\n[GRAFICOS PRINCIPAL]\r\n ");
  window.openCommandLine("\"d.zel\"");
  window.showForm();
  EXPECT_EQ(text(window, "txtRanXi"), "-3");
  EXPECT_EQ(control<QSlider>(window, "Slider1").value(), 100);
  EXPECT_EQ(title(), "ZEL - d.zel");
}

TEST_F(MainWindow, SaysWhyTheDocumentOfTheCommandLineIsRefused) {
  SetCurrentLanguage("EN");
  window.openCommandLine("missing.zel");
  ASSERT_EQ(services.boxes.shown.size(), 1u);
  EXPECT_EQ(services.boxes.shown[0].text, "Error: Cannot open file.");
  window.openCommandLine("");
  EXPECT_EQ(services.boxes.shown.size(), 1u);
}

TEST_F(MainWindow, MakesNoFileOfTwoNames) {
  putBytes("a.zel", "");
  putBytes("b.zel", "");
  window.openCommandLine("a.zel b.zel");
  ASSERT_EQ(services.boxes.shown.size(), 1u);
  EXPECT_EQ(services.boxes.shown[0].text, "Error: No se pudo abrir el archivo.");
  EXPECT_FALSE(std::filesystem::exists("a.zel b.zel"));
}

TEST_F(MainWindow, TakesNoDroppedNameThatIsNoFiles) {
  QMimeData data;
  data.setUrls({QUrl::fromEncoded("file:///nowhere/n%FF.zel")});
  QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  static_cast<QObject&>(window).event(&drop);
  EXPECT_TRUE(services.boxes.shown.empty());
  EXPECT_TRUE(program.document_name.empty());
}

TEST_F(MainWindow, OpensADocumentThatIsDroppedOnIt) {
  putBytes("d.zel",
           "[PRINCIPAL]\r\nversiones_compatibles=2.0\r\n \r\n[VISTA PRINCIPAL]\r\nxi=-4"
           "\r\n \r\n[GRAFICOS PRINCIPAL]\r\n ");
  QMimeData data;
  const auto url = [](const char* name) {
    return QUrl::fromLocalFile(toQt((std::filesystem::current_path() / name).string()));
  };
  data.setUrls({url("other.txt"), url("d.zel")});
  QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  static_cast<QObject&>(window).event(&drop);  // past the drag manager of the application
  EXPECT_EQ(text(window, "txtRanXi"), "-4");
}

TEST_F(MainWindow, TakesADocumentThatIsDraggedOverABox) {
  putBytes("d.zel", "");
  const auto path = std::filesystem::current_path() / "d.zel";
  QMimeData document;
  document.setUrls({QUrl::fromLocalFile(toQt(path.string()))});
  document.setText("d.zel");
  QMimeData text;
  text.setText("5");
  const auto isTaken = [](QLineEdit& box, const QMimeData& data) {
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(&box, &enter);
    return enter.isAccepted();
  };
  window.showForm();
  for (const char* name :
       {"txtRanXi", "txtRanXf", "txtRanYi", "txtRanYf", "txtEscalaX", "txtEscalaY"}) {
    auto& box = control<QLineEdit>(window, name);
    EXPECT_FALSE(box.acceptDrops()) << name;
    EXPECT_TRUE(isTaken(box, document)) << name;
    EXPECT_FALSE(isTaken(box, text)) << name;
  }
}

TEST_F(MainWindow, LeadsToHelpWebAndAboutBox) {
  choose("mTemasDeAyuda");
  EXPECT_EQ(services.help.shown.size(), 1u);
  choose("mComoConseguirEstePrograma");
  EXPECT_EQ(services.browser.calls.back(), "navigate https://zel.example/es/");
  choose("mAcercaDeZel");
  EXPECT_EQ(about.shown, 1);
  EXPECT_EQ(callerOf(program.params), &window);
}

TEST_F(MainWindow, EndsTheProcessWhenItIsClosedOrLeft) {
  int ends = 0;
  program.end_process = [&] { ++ends; };
  window.showForm();
  choose("mSalir");
  EXPECT_EQ(ends, 1);
  window.close();
  EXPECT_EQ(ends, 2);
  EXPECT_EQ(services.help.shown.back().second, 2);
  EXPECT_TRUE(std::filesystem::exists("config.ini"));
}

}  // namespace
}  // namespace zel::test
