#include "app/main_commands.h"

#include "program_fixture.h"

namespace zel::test {
namespace {

class SomeWindow : public FormWindow {
 public:
  void showForm() override {}
};

class MainCommands : public ProgramTest {
 protected:
  static PlotFields fields() {
    PlotFields plot;
    plot.xi = {"-1", "x mínimo"};
    plot.xf = {"2,5", "X MÁXIMO"};
    plot.yi = {"-3", "y mínimo"};
    plot.yf = {"4", "Y MÁXIMO"};
    plot.escala_x = "0,5";
    plot.escala_y = "2";
    plot.mantener_prop = true;
    plot.definicion = 70;
    return plot;
  }

  SomeWindow main_window;
};

TEST_F(MainCommands, TitleShowsTheFirstSixteenCharactersOfTheDocument) {
  EXPECT_EQ(mainWindowTitle(program), "ZEL - Datos iniciales");
  program.document_name = "parábola-y-ñandú-larga.zel";
  EXPECT_EQ(mainWindowTitle(program), "ZEL - parábola-y-ñandú");
  program.document_name = "a.zel";
  EXPECT_EQ(mainWindowTitle(program), "ZEL - a.zel");
  program.document_name.clear();
  SetCurrentLanguage("EN");
  EXPECT_EQ(mainWindowTitle(program), "ZEL - Graphic manager");
}

TEST_F(MainCommands, AScaleIsGivenUnlessItIsZeroOrNothing) {
  EXPECT_TRUE(scaleIsGiven("1"));
  EXPECT_TRUE(scaleIsGiven("0,0"));
  EXPECT_FALSE(scaleIsGiven("0"));
  EXPECT_FALSE(scaleIsGiven(" 0 "));
  EXPECT_FALSE(scaleIsGiven(""));
  EXPECT_TRUE(scaleIsGiven(" "));
}

TEST_F(MainCommands, PlotReportsAScaleOfBlanksInBothLanguages) {
  addFunction('a', "x");
  PlotFields blanks = fields();
  blanks.escala_y = "  ";
  EXPECT_FALSE(preparePlot(program, blanks, &main_window));
  EXPECT_EQ(services.boxes.shown.back(),
            errorReport("Datos no válidos en declaraciones y/o rango."));
  SetCurrentLanguage("EN");
  EXPECT_FALSE(preparePlot(program, blanks, &main_window));
  EXPECT_EQ(services.boxes.shown.back(), errorReport("No valid definitions or range."));
  blanks.escala_y = " 2 ";
  EXPECT_TRUE(preparePlot(program, blanks, &main_window));
  EXPECT_EQ(program.marks.escala_y, 2);
}

TEST_F(MainCommands, PlotHandsTheViewOver) {
  addFunction('a', "x");
  EXPECT_TRUE(preparePlot(program, fields(), &main_window));
  const FormParams& params = program.params;
  EXPECT_EQ(params.keys(), (std::vector<std::string>{"xi", "xf", "yi", "yf", "mantener_prop",
                                                     "definicion", "llamador"}));
  EXPECT_EQ(params.Item("xi"), FormValue(-1.0));
  EXPECT_EQ(params.Item("xf"), FormValue(2.5));
  EXPECT_EQ(params.Item("yi"), FormValue(-3.0));
  EXPECT_EQ(params.Item("yf"), FormValue(4.0));
  EXPECT_EQ(params.Item("mantener_prop"), FormValue(true));
  EXPECT_EQ(params.Item("definicion"), FormValue(std::int16_t{70}));
  EXPECT_EQ(callerOf(params), &main_window);
  EXPECT_EQ(program.marks, (ScaleMarks{0.5, 2, true, true}));
  EXPECT_TRUE(services.boxes.shown.empty());
}

TEST_F(MainCommands, PlotShowsNothingWithoutGraphs) {
  EXPECT_FALSE(preparePlot(program, fields(), &main_window));
  EXPECT_TRUE(services.boxes.shown.empty());
}

TEST_F(MainCommands, PlotReportsRangesThatDoNotIncrease) {
  addFunction('a', "x");
  PlotFields plot = fields();
  plot.xi.text = "3";
  plot.yf.text = "abc";
  EXPECT_FALSE(preparePlot(program, plot, &main_window));
  EXPECT_EQ(services.boxes.shown,
            std::vector<Box>{errorReport(
                "\r\nLos siguientes campos deben contener valores numéricos crecientes:\r\n"
                "x mínimo\r\nX MÁXIMO"
                "\r\nLos siguientes campos deben contener valores numéricos crecientes:\r\n"
                "y mínimo\r\nY MÁXIMO")});
}

TEST_F(MainCommands, PlotReportsAScaleThatIsNoNumber) {
  addFunction('a', "x");
  PlotFields plot = fields();
  plot.escala_y = "1..2";
  EXPECT_FALSE(preparePlot(program, plot, &main_window));
  SetCurrentLanguage("EN");
  EXPECT_FALSE(preparePlot(program, plot, &main_window));
  ASSERT_EQ(services.boxes.shown.size(), 2u);
  EXPECT_EQ(services.boxes.shown[1], errorReport("No valid definitions or range."));
}

TEST_F(MainCommands, TheBoxAtFaultIsABoundThatIsNoNumberOrElseTheLowerOne) {
  const auto fault = [this](const char* xi, const char* xf, const char* yi, const char* yf) {
    PlotFields plot = fields();
    plot.xi.text = xi;
    plot.xf.text = xf;
    plot.yi.text = yi;
    plot.yf.text = yf;
    plot.escala_y = "1..2";  // which nobody looks at without graphs
    return boxAtFault(program, plot);
  };
  EXPECT_EQ(fault("-1", "1", "-1", "1"), "");
  EXPECT_EQ(fault("1", "1", "-1", "1"), "txtRanXi");
  EXPECT_EQ(fault("2", "1", "2", "1"), "txtRanXi");
  EXPECT_EQ(fault("-1", "1", "2", "1"), "txtRanYi");
  EXPECT_EQ(fault("", "", "-1", "1"), "txtRanXi");
  EXPECT_EQ(fault("-1", "abc", "2", "1"), "txtRanXf");
  EXPECT_EQ(fault("-1", "1", "-1", ""), "txtRanYf");
  EXPECT_EQ(fault("-1", "1", "", "1"), "txtRanYi");
}

TEST_F(MainCommands, TheBoxAtFaultIsAScaleWhereTheRangesIncrease) {
  addFunction('a', "x");
  PlotFields plot = fields();
  EXPECT_EQ(boxAtFault(program, plot), "");
  plot.escala_y = "1..2";
  EXPECT_EQ(boxAtFault(program, plot), "txtEscalaY");
  plot.escala_x = " ";
  EXPECT_EQ(boxAtFault(program, plot), "txtEscalaX");
  plot.yi.text = "4";
  EXPECT_EQ(boxAtFault(program, plot), "txtRanYi");
}

TEST_F(MainCommands, PlotShowsNoMarksWhereTheScaleIsNotGiven) {
  addFunction('a', "x");
  PlotFields plot = fields();
  plot.escala_x = "0";
  plot.escala_y = "";
  EXPECT_TRUE(preparePlot(program, plot, &main_window));
  EXPECT_FALSE(program.marks.x_shown);
  EXPECT_FALSE(program.marks.y_shown);
}

TEST_F(MainCommands, ReadsTheScalesOfADocumentAsItsBoxes) {
  EXPECT_EQ(readScaleMarks("2", " 0,5 "), (ScaleMarks{2, 0.5, true, true}));
  EXPECT_EQ(readScaleMarks("", " 0 "), (ScaleMarks{0, 0, false, false}));
  EXPECT_EQ(readScaleMarks("0,0", "1"), (ScaleMarks{0, 1, true, true}));
  EXPECT_EQ(readScaleMarks("  ", "1"), std::nullopt);
  EXPECT_EQ(readScaleMarks("1", "abc"), std::nullopt);
}

TEST_F(MainCommands, TheEditorIsToldWhatToDo) {
  prepareNewGraph(program, &main_window);
  EXPECT_EQ(program.params.keys(), (std::vector<std::string>{"modo", "llamador"}));
  EXPECT_EQ(program.params.Item("modo"), FormValue(std::string("agregar")));
  prepareGraphChange(program, 'q', &main_window);
  EXPECT_EQ(program.params.keys(), (std::vector<std::string>{"nombre", "llamador"}));
  EXPECT_EQ(program.params.Item("nombre"), FormValue(std::string("q")));
}

TEST_F(MainCommands, DeletesEverySelectedGraphWithoutAskingUnlessItIsWanted) {
  for (const char letter : {'a', 'b', 'c'}) addFunction(letter, "x");
  EXPECT_FALSE(deleteGraphs(program, ""));
  EXPECT_TRUE(deleteGraphs(program, "ac"));
  EXPECT_EQ(program.graphs.count(), 1);
  EXPECT_TRUE(services.boxes.shown.empty());
}

TEST_F(MainCommands, DeletesOnOkAlone) {
  addFunction('a', "x");
  program.configuration.confirm_deletion = true;
  EXPECT_FALSE(deleteGraphs(program, "a"));
  EXPECT_EQ(program.graphs.count(), 1);
  services.boxes.answers = {BoxAnswer::ok};
  EXPECT_TRUE(deleteGraphs(program, "a"));
  EXPECT_EQ(program.graphs.count(), 0);
  const Box question = {"¿Está seguro que desea borrar el elemento seleccionado?", "ZEL",
                        BoxStyle::ok_cancel};
  EXPECT_EQ(services.boxes.shown, (std::vector<Box>{question, question}));
}

TEST_F(MainCommands, AsksBeforeADeletionInEnglish) {
  SetCurrentLanguage("EN");
  addFunction('a', "x");
  program.configuration.confirm_deletion = true;
  EXPECT_FALSE(deleteGraphs(program, "a"));
  EXPECT_EQ(services.boxes.shown,
            (std::vector<Box>{{"Confirm remove selected item?", "ZEL", BoxStyle::ok_cancel}}));
}

TEST_F(MainCommands, SaveAsKeepsTheChosenNameAndOpensAgain) {
  addFunction('a', "x^2");
  services.files.paths = {"uno.zel"};
  MainView view;
  view.xi = "-7";
  saveDocumentAs(program, view);
  EXPECT_EQ(program.document_name, "uno.zel");
  EXPECT_EQ(services.files.asked.front(), "save Declaraciones ZEL (*.zel)|*.zel");
  newDocument(program, view);
  EXPECT_EQ(program.graphs.count(), 0);
  EXPECT_EQ(program.document_name + program.document_path, "");
  EXPECT_EQ(program.params.Count(), 0u);
  services.files.paths = {"uno.zel"};
  MainView opened;
  EXPECT_TRUE(openDocument(program, opened));
  EXPECT_EQ(services.files.asked.back(), "open Declaraciones ZEL (*.zel)|*.zel");
  EXPECT_EQ(opened, view);
  EXPECT_EQ(program.graphs.graph('a')->codigo, "x^2");
  EXPECT_TRUE(services.boxes.shown.empty());
}

TEST_F(MainCommands, ARecentDocumentIsOpenedWithoutAFileDialog) {
  addFunction('a', "x^2");
  MainView view;
  view.xf = "7";
  services.files.paths = {"uno.zel"};
  saveDocumentAs(program, view);
  newDocument(program, view);
  MainView opened;
  EXPECT_TRUE(openRecent(program, absolutePath("uno.zel"), opened));
  EXPECT_EQ(opened.xf, "7");
  EXPECT_EQ(program.document_name, "uno.zel");
  EXPECT_EQ(program.graphs.count(), 1);
  EXPECT_EQ(services.files.asked.size(), 1u);
}

TEST_F(MainCommands, ARecentDocumentThatIsMissingIsToldAndNotMade) {
  addFunction('a', "x^2");
  program.document_name = "uno.zel";
  MainView view;
  view.xf = "7";
  EXPECT_FALSE(openRecent(program, absolutePath("dos.zel"), view));
  EXPECT_EQ(services.boxes.shown,
            std::vector<Box>{attention("Error: No se pudo abrir el archivo.")});
  EXPECT_FALSE(std::filesystem::exists("dos.zel"));
  EXPECT_EQ(program.document_name, "uno.zel");
  EXPECT_EQ(program.graphs.count(), 1);
  EXPECT_EQ(view.xf, "7");
}

TEST_F(MainCommands, FileDialogsAreProposedThePathOfTheDocument) {
  MainView view;
  openDocument(program, view);
  saveDocumentAs(program, view);
  EXPECT_EQ(services.files.proposals, (std::vector<std::string>{"", ""}));
  services.files.paths = {"uno.zel"};
  saveDocumentAs(program, view);
  openDocument(program, view);
  saveDocumentAs(program, view);
  const std::string path = absolutePath("uno.zel");
  EXPECT_EQ(services.files.proposals, (std::vector<std::string>{"", "", "", path, path}));
}

TEST_F(MainCommands, SaveAsSaysWhenNothingCouldBeWritten) {
#ifdef _WIN32
  const std::string no_such_folder = "3";  // the system's numbers
#else
  const std::string no_such_folder = "2";
#endif
  services.files.paths = {"no/such/folder.zel"};
  saveDocumentAs(program, MainView());
  EXPECT_EQ(
      services.boxes.shown,
      std::vector<Box>{attention("Error: No se pudo salvar.\r\nCausa: código " + no_such_folder)});
}

TEST_F(MainCommands, SaveAsSaysInEnglishWhenNothingCouldBeWritten) {
  SetCurrentLanguage("EN");
  services.files.paths = {"no/such/folder.zel"};
  saveDocumentAs(program, MainView());
  ASSERT_EQ(services.boxes.shown.size(), 1U);
  EXPECT_TRUE(services.boxes.shown[0].text.starts_with("Error: Cannot save file.\r\nReason: code "))
      << services.boxes.shown[0].text;
}

TEST_F(MainCommands, SaveAsGivesNoSystemsErrorForADocumentThatCannotBeWritten) {
  putBytes("uno.zel", "older");
  MainView view;
  view.xf = "5\r\n \r\nfoo";
  for (const char* const language : {"ES", "EN"}) {
    SetCurrentLanguage(language);
    services.files.paths = {"uno.zel"};
    saveDocumentAs(program, view);
  }
  EXPECT_EQ(services.boxes.shown,
            (std::vector<Box>{{"No se pudo salvar el archivo.", "ZEL - ATENCIÓN", BoxStyle::stop},
                              {"Could not save file.", "ZEL - NOTIFY", BoxStyle::stop}}));
  EXPECT_EQ(bytesOf("uno.zel"), "older");
}

TEST_F(MainCommands, SaveWritesToTheSameFileWhereverAFileDialogHasGone) {
  putBytes("uno.zel", "nada");
  MainView view;
  openDocumentAt(program, "uno.zel", view);
  {
    const TemporaryFolder elsewhere;
    const CurrentFolderGuard moved(elsewhere.path());
    saveDocument(program, view);
    EXPECT_EQ(elsewhere.names(), std::set<std::string>{});
  }
  EXPECT_NE(bytesOf("uno.zel"), "nada");
}

TEST_F(MainCommands, SaveAsksForANameWhenThereIsNone) {
  saveDocument(program, MainView());
  EXPECT_EQ(services.files.asked.size(), 1u);
  EXPECT_EQ(program.document_name, "");
}

TEST_F(MainCommands, SaveWritesToThePathOfTheDocument) {
  services.files.paths = {"dos.zel"};
  saveDocumentAs(program, MainView());
  MainView changed;
  changed.xf = "99";
  saveDocument(program, changed);
  EXPECT_TRUE(services.boxes.shown.empty());
  EXPECT_NE(bytesOf("dos.zel").find("\r\nxf=99\r\n"), std::string::npos);
}

TEST_F(MainCommands, SaveComplainsWhenTheFileWasDeletedThoughItIsWritten) {
  services.files.paths = {"tres.zel"};
  saveDocumentAs(program, MainView());
  std::filesystem::remove("tres.zel");
  saveDocument(program, MainView());
  EXPECT_EQ(services.boxes.shown, std::vector<Box>{attention("No se pudo salvar el archivo.")});
  EXPECT_TRUE(std::filesystem::exists("tres.zel"));
}

TEST_F(MainCommands, ARefusedDocumentStaysTheCurrentOne) {
  putBytes("malo.zel", "nada");
  MainView view;
  SetCurrentLanguage("EN");
  EXPECT_FALSE(openDocumentAt(program, "malo.zel", view));
  EXPECT_EQ(services.boxes.shown,
            std::vector<Box>{
                attention("File you try to open is uncompatible with that program version.")});
  EXPECT_EQ(program.document_name, "malo.zel");
  EXPECT_EQ(program.document_path, (std::filesystem::current_path() / "malo.zel").string());
  EXPECT_TRUE(services.recent.added.empty());
}

TEST_F(MainCommands, ACancelledDialogChangesNothing) {
  addFunction('a', "x");
  MainView view;
  EXPECT_FALSE(openDocument(program, view));
  EXPECT_EQ(program.graphs.count(), 1);
  EXPECT_EQ(program.document_name, "");
}

}  // namespace
}  // namespace zel::test
