#pragma once

#include <string>

#include "forms/main/frm_datos_ini.h"
#include "forms/main/graph_list.h"
#include "forms/window_fixture.h"
#include "support/patience.h"

namespace zel::test {

/// The main window, and windows that note when it opens them.
class MainWindow : public WindowTest {
 protected:
  MainWindow() {
    window.load();
    window.setTargets({&editor, &plot, &about});
  }

  void click(const char* name) {
    QTest::mouseClick(&control<QPushButton>(window, name), Qt::LeftButton);
  }
  void choose(const char* name) { control<QAction>(window, name).trigger(); }
  void type(const char* box, const char* keys) {
    QTest::keyClicks(&control<QLineEdit>(window, box), keys);
  }
  std::string typed(const char* box, const char* before, const char* keys) {
    control<QLineEdit>(window, box).setText(before);
    type(box, keys);
    return text(window, box);
  }
  GraphList& list() { return control<GraphList>(window, "listaG"); }
  /// Shows the window and gives the list the focus: keys reach commands in an active window only.
  void activateList() {
    window.showForm();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window, kPatience));
    list().setFocus();
  }
  std::string title() { return fromQt(window.windowTitle()); }

  NotedWindow editor;
  NotedWindow plot;
  NotedWindow about;
  frmDatosIni window{program};
};

}  // namespace zel::test
