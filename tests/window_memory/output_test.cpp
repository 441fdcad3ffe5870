// Every allocation of what leaves the program as a picture or on paper fails once: it is there, or
// it is told that it is not, and the window can do it the next time.
#include <QSpinBox>

#include "forms/export/picture_preview.h"
#include "memory/failing_new.h"
#include "windows_fixture.h"

namespace zel::test {
namespace {

class OutputInWantOfMemory : public WindowsInWantOfMemory {
 protected:
  QWidget& plot() { return window("frmGrafico"); }
  QWidget& printing() { return window("frmImprimir"); }
  QWidget& exporting() { return window("frmExportar"); }

  void openPlot() {
    if (plot().isVisible()) return;
    plot().resize(400, 300);
    putDocument();
    click(mainWindow(), "CmdGraficarLista");
    settle();
  }
  void openExport() {
    if (exporting().isVisible()) return;
    putDocument();
    choose(mainWindow(), "mExportar");
    settle();
    control<QSpinBox>(exporting(), "spnAncho").setValue(120);
    control<QSpinBox>(exporting(), "spnAlto").setValue(90);
  }
};

TEST_F(OutputInWantOfMemory, PutsThePictureOnTheClipboard) {
  // From there on it is this clipboard of the tests that needs memory.
  services.clipboard.on_picture = [] { may_fail = [](const void*) { return false; }; };
  const auto prepare = [this, usual = may_fail] {
    may_fail = usual;
    openPlot();
    services.clipboard.clear();
    services.clipboard.svg = "what the user had there";
  };
  const auto held = [this] {
    return services.clipboard.svg + (services.clipboard.bitmap ? "picture" : "nothing");
  };
  EXPECT_GT(expectDoneOrTold({prepare, [this] { click(plot(), "Copiar_Grafico"); }, held}), 5);
  const auto with_numbers = [this] {
    QTest::keyClick(&plot(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  };
  EXPECT_GT(expectDoneOrTold({prepare, with_numbers, held}, 5), 50);
  prepare();
}

TEST_F(OutputInWantOfMemory, SavesAPictureWholeOrNotAtAll) {
  const std::string path = absolutePath("a picture whose name needs memory.");
  for (const std::string ending : {"png", "svg", "pdf"}) {
    const Deed save = {[this, path, ending] {
                         openExport();
                         putBytes(path + ending, "older");
                         services.files.paths = {path + ending};
                       },
                       [this, path, ending] {
                         if (services.files.paths.empty()) services.files.paths = {path + ending};
                         click(exporting(), "cmdGuardar");
                       },
                       [path, ending] { return bytesOf(path + ending); }};
    EXPECT_GT(expectDoneOrTold(save, 5), 50) << ending;
  }
}

TEST_F(OutputInWantOfMemory, PreviewsThePage) {
  const Deed print = {[this] {
                        printing().hide();
                        openPlot();
                      },
                      [this] { click(plot(), "Imprimir"); },
                      [this] {
                        const auto& button = control<QPushButton>(printing(), "cmdImprimir");
                        return std::string(button.isVisible() && button.isEnabled() ? "page" : "");
                      }};
  EXPECT_GT(expectDoneOrTold(print), 5);
}

TEST_F(OutputInWantOfMemory, PrintsThePage) {
  const Deed print = {[this] {
                        printing().hide();
                        openPlot();
                        click(plot(), "Imprimir");
                        settle();
                        services.printer.printed.clear();
                      },
                      [this] { click(printing(), "cmdImprimir"); },
                      [this] { return std::to_string(services.printer.printed.size()); }};
  EXPECT_GT(expectDoneOrTold(print), 3);
}

}  // namespace
}  // namespace zel::test
