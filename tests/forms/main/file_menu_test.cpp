// The main window's file menu: recent documents, the last session, pictures.
#include <QDir>
#include <QMenu>
#include <QTreeWidget>

#include <gmock/gmock.h>

#include "forms/main/frm_datos_ini.h"
#include "forms/main/graph_list.h"
#include "forms/window_fixture.h"

namespace zel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FileMenu : public WindowTest {
 protected:
  FileMenu() {
    window.load();
    window.setTargets({&editor, &plot, &about, &exporter});
  }

  /// As it is when it has been opened.
  QMenu& open() {
    auto& menu = control<QMenu>(window, "mArchivo");
    emit menu.aboutToShow();
    return menu;
  }
  QMenu& recent() {
    open();
    return control<QMenu>(window, "mRecientes");
  }
  bool isEnabled(const char* name) {
    open();
    return control<QAction>(window, name).isEnabled();
  }
  void choose(const char* name) { control<QAction>(window, name).trigger(); }
  /// A document with a range of its own.
  static void putDocument(const std::string& name) {
    putBytes(name,
             "[PRINCIPAL]\r\nversiones_compatibles=2.0\r\n \r\n[VISTA PRINCIPAL]\r\n"
             "xi=-3\r\n \r\n[GRAFICOS PRINCIPAL]\r\n ");
  }
  /// Another run of the program, which has declared something.
  void leaveSession() {
    GraphTable graphs;
    graphs.rebuildGraph('q', "x^2", "", 255, 'F', nullptr);
    MainView view;
    view.xi = "-2,50";
    LastSession("state").keep(view, graphs);
  }

  NotedWindow editor;
  NotedWindow plot;
  NotedWindow about;
  NotedWindow exporter;
  frmDatosIni window{program};
};

TEST_F(FileMenu, HasItsCaptionsInBothLanguages) {
  const auto captions = [this] {
    return std::vector<std::string>{actionText(window, "mRecuperar"),
                                    actionText(window, "mExportar"), fromQt(recent().title())};
  };
  EXPECT_THAT(captions(),
              ElementsAre("Recuperar última sesión", "Exportar imagen...", "Recientes"));
  choose("mEnglish");
  EXPECT_THAT(captions(), ElementsAre("Recover last session", "Export picture...", "Recent"));
}

TEST_F(FileMenu, OffersNoSessionWhereThereIsNone) {
  program.last_session = LastSession("state");
  EXPECT_FALSE(isEnabled("mRecuperar"));
}

TEST_F(FileMenu, RecoversTheLastSession) {
  leaveSession();
  program.last_session = LastSession("state");
  program.document_name = "d.zel";
  ASSERT_TRUE(isEnabled("mRecuperar"));
  choose("mRecuperar");
  EXPECT_EQ(text(window, "txtRanXi"), "-2,50");
  EXPECT_EQ(program.graphs.graph('q')->ecuacion, "x^2");
  EXPECT_EQ(fromQt(window.windowTitle()), "ZEL - Datos iniciales");
}

TEST_F(FileMenu, StaysAsItIsWhenTheLastSessionIsDamaged) {
  std::filesystem::create_directories("state");
  putBytes("state/session.zel", "something else");
  program.last_session = LastSession("state");
  addFunction('a', "x");
  choose("mRecuperar");
  EXPECT_EQ(services.boxes.shown.size(), 1u);
  EXPECT_TRUE(program.graphs.graph('a')->defined);
  EXPECT_FALSE(isEnabled("mRecuperar"));
}

class KeptSession : public FileMenu {
 protected:
  KeptSession() { program.last_session = LastSession("state"); }

  std::string kept() { return bytesOf("state/session.zel"); }
  bool keeps(const std::string& text) { return kept().find(text) != std::string::npos; }
};

TEST_F(KeptSession, FollowsEachChangeOfTheGraphs) {
  window.showForm();
  EXPECT_EQ(kept(), "");
  addFunction('a', "x+1");
  addFunction('b', "x+2");
  window.showForm();  // as the editor does when a graph was accepted
  EXPECT_TRUE(keeps("ecuacion=x+1"));
  window.findChild<QTreeWidget*>("listaG")->topLevelItem(0)->setSelected(true);
  control<QPushButton>(window, "CmdBorrar").click();
  EXPECT_FALSE(keeps("ecuacion=x+1"));
  EXPECT_TRUE(keeps("ecuacion=x+2"));
}

TEST_F(KeptSession, HasTheRangeAsItIsAtTheEnd) {
  addFunction('a', "x");
  window.showForm();
  control<QLineEdit>(window, "txtRanXi").setText("-4,0");
  EXPECT_FALSE(keeps("xi=-4,0"));
  choose("mSalir");
  EXPECT_TRUE(keeps("xi=-4,0"));
  control<QLineEdit>(window, "txtRanXi").setText("-5,0");
  window.close();
  EXPECT_TRUE(keeps("xi=-5,0"));
}

TEST_F(KeptSession, IsNeverTheDocument) {
  putDocument("d.zel");
  const std::string before = bytesOf("d.zel");
  window.openCommandLine("d.zel");
  addFunction('a', "x");
  choose("mSalir");
  EXPECT_EQ(bytesOf("d.zel"), before);
}

TEST_F(FileMenu, OffersNoRecentDocumentsWhereThereAreNone) {
  open();
  EXPECT_FALSE(recent().menuAction()->isEnabled());
}

TEST_F(FileMenu, ListsRecentDocumentsByTheirPaths) {
  const auto native = [](const char* text) { return fromQt(QDir::toNativeSeparators(text)); };
  services.recent.listed = {"/srv/a & b.zel", fromQt(QDir::homePath()) + "/waves.zel"};
  EXPECT_TRUE(recent().menuAction()->isEnabled());
  ASSERT_EQ(recent().actions().size(), 2);
  EXPECT_EQ(fromQt(recent().actions()[0]->text()), "&1  " + native("/srv/a && b.zel"));
  EXPECT_EQ(fromQt(recent().actions()[1]->text()), "&2  " + native("~/waves.zel"));
}

TEST_F(FileMenu, ShowsHostileNamesOnOneShortLine) {
  services.recent.listed = {"/srv/a\nb\x01" + std::string(5000, 'x') + ".zel"};
  const QString shown = recent().actions()[0]->text();
  EXPECT_FALSE(shown.contains('\n'));
  EXPECT_LT(shown.size(), 200);
}

TEST_F(FileMenu, ShowsARecentNameInTheOrderOfItsLetters) {
  const std::u16string turning =
      u"\u061C\u200E\u200F\u202A\u202B\u202C\u202D\u202E\u2066\u2067\u2068\u2069";
  for (const char16_t code : turning) {
    const QString name = QStringLiteral("a%1gnp.zel").arg(QChar(code));
    putDocument(fromQt(name));
    services.recent.listed = {utf8Of(std::filesystem::absolute(pathOf(fromQt(name))))};
    QAction& entry = *recent().actions()[0];
    EXPECT_TRUE(entry.text().endsWith(u"a\uFFFDgnp.zel")) << fromQt(entry.text());
    entry.trigger();
    QTest::qWait(0);
    EXPECT_EQ(fromQt(window.windowTitle()), "ZEL - " + fromQt(name));
  }
}

TEST_F(FileMenu, OpensARecentDocument) {
  putDocument("d.zel");
  services.recent.listed = {utf8Of(std::filesystem::absolute("d.zel"))};
  recent().actions()[0]->trigger();
  QTest::qWait(0);
  EXPECT_EQ(text(window, "txtRanXi"), "-3");
  EXPECT_EQ(fromQt(window.windowTitle()), "ZEL - d.zel");
}

TEST_F(FileMenu, SelectsTheFirstGraphOfARecentDocument) {
  addFunction('a', "x");
  addFunction('b', "x");
  services.files.paths = {"d.zel"};
  choose("mGuardarComo");
  choose("mNuevo");
  services.recent.listed = {"d.zel"};
  recent().actions()[0]->trigger();
  QTest::qWait(0);
  EXPECT_EQ(control<GraphList>(window, "listaG").selectedLetters(), "a");
}

TEST_F(FileMenu, KeepsTheSelectionWhenADocumentIsRefused) {
  addFunction('a', "x");
  addFunction('b', "x");
  window.showForm();
  auto& list = control<GraphList>(window, "listaG");
  list.selectLetters("b");
  putBytes("other.zel", "something else");
  window.openCommandLine("other.zel");
  EXPECT_EQ(services.boxes.shown.size(), 1u);
  EXPECT_EQ(list.selectedLetters(), "b");
}

TEST_F(FileMenu, TellsThatARecentDocumentIsGoneAndMakesNone) {
  services.recent.listed = {"gone.zel"};
  recent().actions()[0]->trigger();
  QTest::qWait(0);
  ASSERT_EQ(services.boxes.shown.size(), 1u);
  EXPECT_EQ(services.boxes.shown[0].text, "Error: No se pudo abrir el archivo.");
  EXPECT_FALSE(std::filesystem::exists("gone.zel"));
  EXPECT_TRUE(program.document_name.empty());
}

TEST_F(FileMenu, PutsOpenedAndSavedDocumentsOnTheDesktopsList) {
  putDocument("d.zel");
  const std::string folder = utf8Of(std::filesystem::current_path()) + "/";
  services.files.paths = {folder + "d.zel", folder + "new.zel", folder + "missing/x.zel"};
  choose("mAbrir");
  choose("mGuardarComo");
  choose("mGuardar");
  choose("mGuardarComo");
  EXPECT_THAT(services.recent.added,
              ElementsAre(folder + "d.zel", folder + "new.zel", folder + "new.zel"));
}

TEST_F(FileMenu, ExportsWhatWouldBePlotted) {
  addFunction('a', "x");
  window.showForm();
  control<QLineEdit>(window, "txtRanXi").setText("-4");
  choose("mExportar");
  EXPECT_EQ(exporter.shown, 1);
  EXPECT_EQ(program.params.Item("xi"), FormValue(-4.0));
  EXPECT_EQ(callerOf(program.params), &window);
  EXPECT_TRUE(window.isVisible());
}

TEST_F(FileMenu, ExportsNothingWhereNothingWouldBePlotted) {
  window.showForm();
  choose("mExportar");
  EXPECT_THAT(services.boxes.shown, IsEmpty());
  addFunction('a', "x");
  control<QLineEdit>(window, "txtRanXi").setText("40");
  choose("mExportar");
  EXPECT_EQ(services.boxes.shown.size(), 1u);
  EXPECT_EQ(exporter.shown, 0);
}

}  // namespace
}  // namespace zel::test
