// Documents with any damage, opened in the main window: what it shows then is what a second reading
// of the rules says, and the file stays as it is.

#include "support/damaged_documents.h"

#include <filesystem>
#include <iterator>
#include <map>

#include "base/code_page.h"
#include "base/utf8.h"
#include "files/loaded_twice.h"
#include "forms/main/frm_datos_ini.h"
#include "forms/main/graph_list.h"
#include "forms/window_fixture.h"

namespace zel::test {
namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr std::size_t kStep = 7;
#else
constexpr std::size_t kStep = 1;
#endif

/// Boxes hold no control characters.
std::string shownText(const std::string& text) {
  std::string shown;
  for (std::string_view rest = text; !rest.empty();) {
    const DecodedCharacter decoded = decodeCharacter(rest);
    if (!isControl(decoded.character)) shown.append(rest.substr(0, decoded.size));
    rest.remove_prefix(decoded.size);
  }
  return shown;
}

class DamagedDocumentInTheWindow : public WindowTest {
 protected:
  DamagedDocumentInTheWindow() {
    window.load();
    window.setTargets({&other, &other, &other});
    window.showForm();
  }

  void open(const std::string& bytes) {
    putBytes("damaged.zel", bytes);
    services.boxes.shown.clear();
    services.files.paths = {"damaged.zel"};
    control<QAction>(window, "mAbrir").trigger();
  }

  void expectAsReadTwice(const std::string& bytes) {
    open(bytes);
    const SecondReading second(fromCodePage(bytes), view);
    std::vector<std::string> expected;
    if (!second.loaded()) expected.emplace_back(openFailureMessage(*second.message));
    std::vector<std::string> shown;
    for (const auto& box : services.boxes.shown) shown.push_back(box.text);
    EXPECT_EQ(shown, expected);
    EXPECT_EQ(bytesOf("damaged.zel"), bytes);
    const std::filesystem::directory_iterator files(".");
    EXPECT_EQ(std::distance(begin(files), end(files)), 1);
    if (second.clears) graphs = second.graphs;
    expectGraphs();
    view = second.view;
    for (std::string* const box :
         {&view.xi, &view.xf, &view.yi, &view.yf, &view.escala_x, &view.escala_y})
      *box = shownText(*box);
    expectView();
    EXPECT_EQ(window.windowTitle(), "ZEL - damaged.zel");
    ++(second.loaded() ? loads : failures);
  }

  void expectGraphs() {
    EXPECT_EQ(control<GraphList>(window, "listaG").topLevelItemCount(),
              static_cast<int>(graphs.size()));
    for (char letter = 'a'; letter <= 'z'; ++letter) {
      const GraphDef def = *program.graphs.graph(letter);
      const auto graph = graphs.find(letter);
      ASSERT_EQ(def.defined, graph != graphs.end()) << letter;
      EXPECT_TRUE(!def.defined || isSameGraph(def, graph->second)) << letter;
    }
  }

  void expectView() {
    EXPECT_EQ(text(window, "txtRanXi"), view.xi);
    EXPECT_EQ(text(window, "txtRanXf"), view.xf);
    EXPECT_EQ(text(window, "txtRanYi"), view.yi);
    EXPECT_EQ(text(window, "txtRanYf"), view.yf);
    EXPECT_EQ(text(window, "txtEscalaX"), view.escala_x);
    EXPECT_EQ(text(window, "txtEscalaY"), view.escala_y);
    EXPECT_EQ(control<QSlider>(window, "Slider1").value(), view.definicion);
    EXPECT_EQ(control<QCheckBox>(window, "chkProporcional").isChecked(), view.proporcional);
  }

  NotedWindow other;
  frmDatosIni window{program};
  MainView view;  // what the window holds
  std::map<char, SecondReading::Graph> graphs;
  int loads = 0;
  int failures = 0;
};

TEST_F(DamagedDocumentInTheWindow, IsShownOrRefusedAsTheRulesSay) {
  DamagedDocuments documents;
  for (std::size_t number = 0; number < DamagedDocuments::kCount && !HasFailure();
       number += kStep) {
    SCOPED_TRACE(number);
    expectAsReadTwice(documents.document(number));
  }
  EXPECT_GT(loads, 2000 / static_cast<int>(kStep));
  EXPECT_GT(failures, 3000 / static_cast<int>(kStep));
}

}  // namespace
}  // namespace zel::test
