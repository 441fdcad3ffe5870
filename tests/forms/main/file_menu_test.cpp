// The main window's file menu: the last session.
#include <QMenu>
#include <QTreeWidget>

#include "forms/main/frm_datos_ini.h"
#include "forms/window_fixture.h"

namespace zel::test {
namespace {

class FileMenu : public WindowTest {
 protected:
  FileMenu() {
    window.load();
    window.setTargets({&editor, &plot, &about});
  }

  /// As it is when it has been opened.
  QMenu& open() {
    auto& menu = control<QMenu>(window, "mArchivo");
    emit menu.aboutToShow();
    return menu;
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
  frmDatosIni window{program};
};

TEST_F(FileMenu, HasItsCaptionsInBothLanguages) {
  const auto captions = [this] {
    return actionText(window, "mRecuperar");
  };
  EXPECT_EQ(captions(), "Recuperar última sesión");
  choose("mEnglish");
  EXPECT_EQ(captions(), "Recover last session");
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

}  // namespace
}  // namespace zel::test
