#pragma once

#include <QApplication>
#include <QComboBox>
#include <functional>
#include <iostream>
#include <map>
#include <optional>
#include <string>

#include "forms/application.h"
#include "forms/forms.h"
#include "forms/main/graph_list.h"
#include "forms/window_fixture.h"
#include "support/patience.h"

namespace zel::test {

/// The windows of the program as they are after its start, under the program's own application,
/// which catches and tells what an event throws. Memory is refused to the program alone: to calls
/// from its own code, what it takes of the toolkit's headers included, and from the library of C++.
/// The toolkit does not promise to survive a refusal to itself.
class WindowsInWantOfMemory : public WindowTest {
 protected:
  static void SetUpTestSuite();

  WindowsInWantOfMemory();
  ~WindowsInWantOfMemory() override;

  /// What a user does.
  struct Deed {
    std::function<void()> prepare;                           // puts things as they are before it
    std::function<void()> act;                               // as the real events do
    std::function<std::string()> held;                       // what is there, before or after it
    std::optional<std::string> refused = {};                 // what there may be besides
    std::function<std::string()> shown = [] { return ""; };  // the picture that follows from it
    std::function<void()> refresh = [] {};                   // makes the picture anew
  };

  /// Lets each allocation of a deed fail in turn, from the 40th on every `stride`-th. The deed is
  /// done or it is told, what is held is what was there before or what is there after it, the lists
  /// show that, and done again it does what it always does. A picture that is not what it is to be
  /// is told, too, and whole when it is made anew. Returns the number of failures.
  long expectDoneOrTold(const Deed& deed, int stride = 1);

  /// The window of a name when it is shown, null otherwise.
  static QWidget* shown(const char* name);
  QWidget& window(const char* name) { return *windows_.at(name); }
  QWidget& mainWindow() { return window("frmDatosIni"); }
  GraphList& list() { return control<GraphList>(mainWindow(), "listaG"); }

  /// Lets all that is pending run, what it leads to included.
  static void settle();
  /// A command of a menu, as an event of its own.
  void choose(QWidget& window, const char* name);
  void click(QWidget& window, const char* name);

  /// Graphs and a view whose texts need memory, in no document.
  void putDocument();
  /// The view, the graphs, the document's name, path and header, and the way back.
  std::string document();

  std::optional<Forms> forms;

 private:
  MainView view();
  /// Whether the main window shows what the program holds.
  void expectListsToAgree(long failure);
  void expectOneWindowInFront(long failure);

  std::map<std::string, QWidget*> windows_;
  int faulty_ = 0;
};

}  // namespace zel::test
