// The print window's list of printers, its file, and the picture that is fitted to the page.
#include <gmock/gmock.h>

#include "forms/print/frm_imprimir_fixture.h"

namespace zel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class PrinterList : public PrintWindow {
 protected:
  std::vector<std::string> listed() {
    std::vector<std::string> names;
    for (int i = 0; i < printer().count(); ++i) names.push_back(fromQt(printer().itemText(i)));
    return names;
  }
  double proportionsOfThePage() { return static_cast<double>(page().width()) / page().height(); }
};

TEST_F(PrinterList, HasTheDesktopsPrintersAndPdf) {
  open();
  EXPECT_THAT(listed(), ElementsAre("Laser", "Office", "", "PDF"));
  EXPECT_EQ(printer().currentText(), "Laser");
}

TEST_F(PrinterList, HasPdfAloneWithoutAPrinterAndShowsThePreview) {
  services.printer.printers.clear();
  services.printer.upright.reset();
  open();
  EXPECT_THAT(listed(), ElementsAre("PDF"));
  EXPECT_THAT(services.boxes.shown, IsEmpty());
  EXPECT_TRUE(print().isEnabled());
  EXPECT_NEAR(proportionsOfThePage(), 15840.0 / 12240, 0.01);
}

TEST_F(PrinterList, ShowsThePaperOfWhatIsChosen) {
  open();
  EXPECT_NEAR(proportionsOfThePage(), 16840.0 / 11900, 0.01);
  choose("PDF");
  EXPECT_NEAR(proportionsOfThePage(), 15840.0 / 12240, 0.01);
  services.printer.upright = PaperSize{8000, 16000};
  choose("Office");
  EXPECT_EQ(services.printer.chosen_printer, "Office");
  EXPECT_NEAR(proportionsOfThePage(), 2, 0.01);
}

TEST_F(PrinterList, WritesAFileWithPdfAndAsksNoPrinter) {
  services.files.paths = {"page.pdf"};
  open();
  choose("PDF");
  print().click();
  EXPECT_EQ(bytesOf("page.pdf"), "%PDF");
  EXPECT_THAT(services.printer.printed, IsEmpty());
  EXPECT_TRUE(window.isVisible());
}

TEST_F(PrinterList, KeepsPdfChosenUntilAPrinterIs) {
  open();
  choose("PDF");
  window.close();
  open();
  EXPECT_EQ(printer().currentText(), "PDF");
  choose("Office");
  window.close();
  open();
  EXPECT_EQ(printer().currentText(), "Office");
}

TEST_F(PrinterList, TellsAPrinterOfThatNameFromTheFile) {
  services.printer.printers = {"PDF"};
  services.printer.chosen_printer = "PDF";
  open();
  EXPECT_THAT(listed(), ElementsAre("PDF", "", "PDF"));
  EXPECT_EQ(printer().currentIndex(), 0);
  print().click();
  EXPECT_EQ(services.printer.printed.size(), 1u);
}

TEST_F(PrinterList, FollowsThePrinterThatWasChosenInTheDialog) {
  open();
  services.printer.chosen_printer = "Office";  // as the dialog has it
  print().click();
  EXPECT_EQ(printer().currentText(), "Office");
}

TEST_F(PrinterList, ShowsNothingWhenTheDialogIsCancelled) {
  services.printer.outcome = PrintOutcome::cancelled;
  open();
  print().click();
  choose("PDF");
  print().click();
  EXPECT_THAT(services.boxes.shown, IsEmpty());
  EXPECT_TRUE(window.isVisible());
}

TEST_F(PrinterList, HasItsCaptionInBothLanguages) {
  const auto& label = control<QLabel>(window, "LblImpresora");
  open();
  EXPECT_EQ(fromQt(label.text()), "Impresora:");
  SetCurrentLanguage("EN");
  open();
  EXPECT_EQ(fromQt(label.text()), "Printer:");
}

using FitToPage = PrintWindow;

TEST_F(FitToPage, HasItsCaptionInBothLanguages) {
  open();
  EXPECT_EQ(fromQt(fit().text()), "Ajustar a la página");
  SetCurrentLanguage("EN");
  open();
  EXPECT_EQ(fromQt(fit().text()), "Fit to page");
}

TEST_F(FitToPage, IsForAPictureThatIsLargerThanThePage) {
  open();
  EXPECT_FALSE(fit().isEnabled());
  DrawnWindow wide({1400, 300});
  open(wide);
  EXPECT_TRUE(fit().isEnabled());
  EXPECT_FALSE(fit().isChecked());
}

TEST_F(FitToPage, MakesThePictureSmallerInThePreviewAndOnPaper) {
  DrawnWindow wide({1400, 300});
  open(wide);
  EXPECT_GT(image().width(), page().width());
  fit().click();
  EXPECT_LT(image().width(), page().width());
  EXPECT_TRUE(page().rect().contains(image().geometry()));
  const FakePrinter::Page fitted = printed();
  EXPECT_NEAR(fitted.size.width, 16840 - 720, 1e-6);
  EXPECT_NEAR(fitted.scale, 16120.0 / 21000, 1e-9);
  fit().click();
  EXPECT_EQ(printed().size, (PaperSize{21000, 4500}));
}

TEST_F(FitToPage, StaysChosenWithAnotherPrinter) {
  DrawnWindow wide({1400, 300});
  open(wide);
  fit().click();
  choose("PDF");
  EXPECT_TRUE(page().rect().contains(image().geometry()));
}

/// Of the picture's left edge, in its middle.
QColor edgeOf(QWidget& image) {
  const QImage shown = image.grab().toImage();
  int darkest = 255;
  for (int y = 0; y < shown.height(); ++y) darkest = std::min(darkest, qGray(shown.pixel(0, y)));
  return {darkest, darkest, darkest};
}

TEST_F(PrintWindow, ShowsTheEdgeOfThePictureUnlikeInk) {
  DrawnWindow blank({400, 300});
  blank.picture().clear();
  blank.picture().showDrawn();
  open(blank);
  EXPECT_GT(edgeOf(image()).lightness(), 160);
  const QImage shown = image().grab().toImage();
  int gaps = 0;
  for (int y = 1; y < shown.height() - 1; ++y) gaps += qGray(shown.pixel(0, y)) == 255;
  EXPECT_GT(gaps, shown.height() / 6);
}

}  // namespace
}  // namespace zel::test
