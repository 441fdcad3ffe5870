// Documents with any damage, opened in the main window: what it shows then is what a second reading
// of the rules says, and the file stays as it is.

#include "support/damaged_documents.h"

#include "base/code_page.h"
#include "base/utf8.h"
#include "files/second_reading.h"
#include "forms/main/frm_datos_ini.h"
#include "forms/main/graph_list.h"
#include "forms/window_fixture.h"

namespace zel::test {
namespace {

/// One in so many: a second or two.
constexpr std::size_t kStep = 3;

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
    if (second.clears) graphs = static_cast<int>(second.graphs.size());
    EXPECT_EQ(control<GraphList>(window, "listaG").topLevelItemCount(), graphs);
    view = second.view;
    for (std::string* const box :
         {&view.xi, &view.xf, &view.yi, &view.yf, &view.escala_x, &view.escala_y})
      *box = shownText(*box);
    EXPECT_EQ(text(window, "txtRanXi"), view.xi);
    EXPECT_EQ(text(window, "txtRanYf"), view.yf);
    EXPECT_EQ(text(window, "txtEscalaY"), view.escala_y);
    EXPECT_EQ(control<QSlider>(window, "Slider1").value(), view.definicion);
    EXPECT_EQ(window.windowTitle(), "ZEL - damaged.zel");
    ++(second.loaded() ? loads : failures);
  }

  NotedWindow other;
  frmDatosIni window{program};
  MainView view;   // what the window holds
  int graphs = 0;  // in its list
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
  EXPECT_GT(loads, 700);
  EXPECT_GT(failures, 1000);
}

}  // namespace
}  // namespace zel::test
