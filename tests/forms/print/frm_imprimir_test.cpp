#include "forms/print/frm_imprimir.h"

#include <gmock/gmock.h>

#include "forms/print/frm_imprimir_fixture.h"

namespace zel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST_F(PrintWindow, HasItsCaptionsInBothLanguages) {
  const auto captions = [this] {
    return std::vector<std::string>{fromQt(window.windowTitle()), fromQt(print().text()),
                                    fromQt(control<QPushButton>(window, "cmdSalir").text()),
                                    fromQt(control<QGroupBox>(window, "FraVistaPrevia").title()),
                                    fromQt(message().text())};
  };
  EXPECT_THAT(captions(), ElementsAre("Imprimir Gráfico", "&Imprimir", "&Cerrar", "Vista Previa",
                                      "Inicializando..."));
  SetCurrentLanguage("EN");
  open();
  EXPECT_THAT(captions(),
              ElementsAre("Print graphics", "&Print", "&Close", "Preview", "initializing..."));
}

TEST_F(PrintWindow, NamesItsControlsInBothLanguages) {
  for (const char* language : {"ES", "EN"}) {
    SetCurrentLanguage(language);
    open();
    expectAccessibleNames(window);
  }
}

TEST_F(PrintWindow, HidesWhenThereIsNothingToPrint) {
  window.showForm();
  EXPECT_FALSE(window.isVisible());
  open();
  program.params.removeAll();
  window.showForm();
  EXPECT_FALSE(window.isVisible());
  EXPECT_THAT(services.boxes.shown, IsEmpty());
}

TEST_F(PrintWindow, ShowsThePreviewAndTakesItsMessageAway) {
  open();
  EXPECT_TRUE(window.isVisible());
  EXPECT_TRUE(print().isEnabled());
  EXPECT_FALSE(message().isVisible());
  EXPECT_TRUE(page().isVisible());
  EXPECT_TRUE(image().isVisible());
  EXPECT_FALSE(outline().isVisible());
  EXPECT_EQ(outline().geometry(), image().geometry());
}

TEST_F(PrintWindow, ShowsTheMessageWhileThePreviewIsBuilt) {
  open();
  window.close();
  bool was_shown = false;
  QMetaObject::invokeMethod(
      &window,
      [&] { was_shown = message().isVisible() && !print().isEnabled() && !page().isVisible(); },
      Qt::QueuedConnection);
  open();
  EXPECT_TRUE(was_shown);
}

TEST_F(PrintWindow, MayBeClosedWhileThePreviewIsBuilt) {
  QMetaObject::invokeMethod(&window, &QWidget::close, Qt::QueuedConnection);
  open();
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(plot.shown, 1);
  EXPECT_THAT(services.printer.asked, IsEmpty());
}

TEST_F(PrintWindow, TellsThatThereIsNoPreviewWhereThePrinterNamesNoPaper) {
  services.printer.upright.reset();
  open();
  EXPECT_TRUE(window.isVisible());
  EXPECT_FALSE(print().isEnabled());
  EXPECT_TRUE(message().isVisible());
  EXPECT_FALSE(page().isVisible());
  ASSERT_EQ(services.boxes.shown.size(), 1u);
  EXPECT_EQ(services.boxes.shown[0].text, "Error: No se puede mostrar vista previa.");
  QTest::keyClick(&image(), Qt::Key_Left);
  drag({5, 5});
  EXPECT_EQ(plot.shown, 0);
}

TEST_F(PrintWindow, HasNoPreviewOfAWindowWithoutAPicture) {
  NotedWindow other;
  open(other);
  EXPECT_FALSE(print().isEnabled());
  EXPECT_TRUE(message().isVisible());
  EXPECT_EQ(services.boxes.shown.size(), 1u);
}

TEST_F(PrintWindow, GetsItsPreviewWhenThePrinterHasPaper) {
  services.printer.upright.reset();
  open();
  services.printer.upright = PaperSize{11900, 16840};
  open();
  EXPECT_TRUE(print().isEnabled());
  EXPECT_FALSE(message().isVisible());
  services.printer.upright.reset();
  open();
  EXPECT_FALSE(print().isEnabled());
  EXPECT_TRUE(message().isVisible());
  EXPECT_FALSE(page().isVisible());
}

TEST_F(PrintWindow, PrintsAtEnterWhateverHasTheFocusButTheOtherButton) {
  open();
  EXPECT_TRUE(print().isDefault());
  std::size_t pages = 0;
  for (const char* const name :
       {"chkNumeros", "cboImpresora", "chkAjustar", "Image3", "cmdImprimir"})
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
      QTest::keyClick(&control<QWidget>(window, name), key);
      EXPECT_EQ(services.printer.printed.size(), ++pages) << name;
    }
  QTest::keyClick(&control<QWidget>(window, "cmdSalir"), Qt::Key_Return);
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(services.printer.printed.size(), pages);
}

TEST_F(PrintWindow, DoesNotPrintAtEnterWithoutAPreview) {
  services.printer.upright.reset();
  open();
  QTest::keyClick(&control<QWidget>(window, "chkNumeros"), Qt::Key_Return);
  EXPECT_THAT(services.printer.printed, IsEmpty());
  EXPECT_TRUE(window.isVisible());
}

TEST_F(PrintWindow, KeepsTheProportionsOfThePaper) {
  open();
  EXPECT_NEAR(static_cast<double>(page().width()) / page().height(), 16840.0 / 11900, 0.01);
  const int width = page().width();
  window.resize(window.size() * 1.5);
  EXPECT_GT(page().width(), width * 1.3);
  EXPECT_NEAR(static_cast<double>(page().width()) / page().height(), 16840.0 / 11900, 0.01);
  DrawnWindow high({300, 400});
  open(high);
  EXPECT_NEAR(static_cast<double>(page().height()) / page().width(), 16840.0 / 11900, 0.01);
}

TEST_F(PrintWindow, ShowsThePictureAtTheSizeThatItHasOnPaper) {
  open();
  EXPECT_NEAR(image().width(), 6000.0 * page().width() / 16840, 1);
  EXPECT_NEAR(image().height(), 4500.0 * page().height() / 11900, 1);
  window.resize(window.size() * 1.5);
  EXPECT_NEAR(image().width(), 6000.0 * page().width() / 16840, 1);
}

TEST_F(PrintWindow, ShowsTheImageOfThePlotWindow) {
  open();
  const QImage shown = image().grab().toImage();
  EXPECT_EQ(shown.pixelColor(shown.width() / 4, shown.height() / 4), QColor(Qt::red));
  EXPECT_LT(shown.pixelColor(shown.width() / 2, shown.height() / 2).red(), 200);
  EXPECT_EQ(page().grab().toImage().pixelColor(2, 2), QColor(Qt::white));
}

TEST_F(PrintWindow, PrintsThePictureThatItShows) {
  open();
  const Bitmap before = plot.picture().bitmap();
  plot.draw({200, 100});
  const FakePrinter::Page page = printed();
  EXPECT_EQ(page.orientation, PageOrientation::landscape);
  EXPECT_EQ(page.size, (PaperSize{6000, 4500}));
  EXPECT_EQ(page.position, (Point{5420, 3700}));
  EXPECT_EQ(page.bitmap, before);
  PictureBox again;
  again.resize(400, 300);
  again.clear();
  page.drawing.replay(again);
  EXPECT_EQ(again.bitmap(), before);
}

TEST_F(PrintWindow, StaysOpenAfterPrintingAndFollowsThePaperThatWasChosen) {
  open();
  const int before = image().width();
  services.printer.upright = PaperSize{8420, 11900};
  printed();
  EXPECT_TRUE(window.isVisible());
  EXPECT_NEAR(image().width(), before * 16840 / 11900, 3);
}

TEST_F(PrintWindow, TellsWhatWentWrongAndKeepsItsPreview) {
  open();
  services.printer.outcome = PrintOutcome::not_started;
  printed();
  ASSERT_EQ(services.boxes.shown.size(), 1u);
  EXPECT_EQ(services.boxes.shown[0].text, "No se puede imprimir.");
  EXPECT_TRUE(print().isEnabled());
}

TEST_F(PrintWindow, LeadsBackToThePlotWindow) {
  open();
  control<QPushButton>(window, "cmdSalir").click();
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(plot.shown, 1);
  open();
  window.close();
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(plot.shown, 2);
  open();
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(plot.shown, 3);
}

TEST_F(PrintWindow, IsPrintedWithEnter) {
  open();
  EXPECT_EQ(window.focusWidget(), &print());
  QTest::keyClick(&print(), Qt::Key_Return);
  EXPECT_EQ(services.printer.printed.size(), 1u);
}

}  // namespace
}  // namespace zel::test
