#include <QPrintDialog>
#include <algorithm>

#include "platform/widgets/modal_driver.h"
#include "platform/widgets/print_to_file_fixture.h"

namespace zel::test {
namespace {

/// Prints to a PDF document, which is looked at.
class PrinterOfFiles : public PrintToFile {
 protected:
  QImage page() { return pageOf(file); }
  /// The texts of a PDF document; none where there is no document.
  static std::string textOf(const std::string& pdf) {
    QProcess process;
    process.start("pdftotext", {QString::fromStdString(pdf), "-"});
    EXPECT_TRUE(process.waitForFinished(kPatience))
        << "pdftotext (package poppler-utils) is needed";
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed().toStdString();
  }
  static int darkest(const QImage& image) {
    int lightness = 255;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        lightness = std::min(lightness, image.pixelColor(x, y).lightness());
    return lightness;
  }
};

TEST_F(PrinterOfFiles, PutsThePictureAtItsPlaceInItsSize) {
  EXPECT_EQ(print(frame(kPicture), {1000, 2000}), PrintOutcome::printed);
  EXPECT_EQ(page().size(), QSize(1684, 1190));
  expectInk(page(), 1000, 2000, 7000, 5000);
}

TEST_F(PrinterOfFiles, PutsWhatIsLaidOverThePictureOnThePage) {
  DrawingList list = frame(kPicture);
  EXPECT_EQ(textOf(file), "");
  list.layOver({150, {{{3000, 0}, {3000, 3000}}}, {{"-2,5", {1500, 1500}, 450, 180}}});
  EXPECT_EQ(print(list, {1000, 2000}), PrintOutcome::printed);
  EXPECT_EQ(textOf(file), "-2,5");
  const QImage page = this->page();
  EXPECT_LT(page.pixelColor(400, 250).lightness(), 245);  // on the grid, in the picture's middle
  EXPECT_GT(page.pixelColor(390, 250).lightness(), 250);
  const QRect number(250, 350, 45, 18);
  EXPECT_LT(darkest(page.copy(number)), 128);
  EXPECT_GT(darkest(page.copy(number.translated(0, 30))), 250);
}

TEST_F(PrinterOfFiles, MeasuresFromTheEdgesOfThePaper) {
  EXPECT_EQ(print(frame(kPicture), {0, 0}), PrintOutcome::printed);
  expectInk(page(), 0, 0, 6000, 3000);
}

TEST_F(PrinterOfFiles, LaysThePageAsTheJobWantsIt) {
  print(frame(kPicture), {1000, 2000}, PageOrientation::portrait);
  EXPECT_EQ(page().size(), QSize(1190, 1684));
  expectInk(page(), 1000, 2000, 7000, 5000);
}

TEST_F(PrinterOfFiles, CutsAtThePagesEdges) {
  print(frame(kPicture), {-1000, -500}, PageOrientation::portrait);
  expectInk(page(), 0, 0, 5000, 2500);
}

TEST_F(PrinterOfFiles, CutsWhatLeavesThePicture) {
  DrawingList list = frame(kPicture);
  list.startPiece({3000, 1500});
  list.extendPiece({9000, 9000});
  list.dot({0, 0}, 900);
  print(list, {1000, 2000});
  expectInk(page(), 1000, 2000, 7000, 5000);
}

TEST_F(PrinterOfFiles, DrawsLinesAsWideAsOnTheScreen) {
  DrawingList list;
  list.beginAxes();
  list.line({3000, 0}, {3000, 3000});
  print(list, {1000, 2000});
  expectInk(page(), 4000 - 7.5, 2000, 4000 + 7.5, 5000);
}

TEST_F(PrinterOfFiles, TakesTheBitmapForADrawingThatIsFull) {
  DrawingList list(1);
  list.line({0, 0}, {1, 1});
  EXPECT_EQ(print(list, {1000, 2000}), PrintOutcome::printed);
  const QImage printed = page();
  expectInk(printed, 1000, 2000, 7000, 5000);
  EXPECT_EQ(printed.pixelColor(200, 350), QColor(Qt::green));
  EXPECT_EQ(printed.pixelColor(600, 350), QColor(Qt::blue));
}

/// A PDF document made without any printer.
class PdfOfNobody : public PrinterTest {
 protected:
  std::string make(const DrawingList& drawing, PaperSize size, double scale = 1) {
    const Bitmap bitmap{2, 1, {0xFF00FF00, 0xFF0000FF}};
    const auto bytes =
        printer_.makePdf({PageOrientation::landscape, {1000, 2000}, size, drawing, bitmap, scale});
    putBytes(file, bytes.value_or(""));
    return bytes.value_or("");
  }

  TemporaryFolder folder;
  std::string file = folder / "page.pdf";
  PaperSize paper = printer_.usualPaper(PageOrientation::landscape);

 private:
  WidgetPrinter printer_;
};

TEST_F(PdfOfNobody, HasThePictureAtItsPlaceOnTheUsualPaper) {
  make(frame(kPicture), kPicture);
  const QImage page = pageOf(file);
  EXPECT_EQ(page.size(), QSizeF(paper.width / 10, paper.height / 10).toSize());
  expectInk(page, 1000, 2000, 7000, 5000);
}

TEST_F(PdfOfNobody, HasAFittedPictureSmaller) {
  make(frame(kPicture), {3000, 1500}, 0.5);
  expectInk(pageOf(file), 1000, 2000, 4000, 3500);
}

TEST_F(PdfOfNobody, HasLinesAndNoImage) {
  DrawingList list = frame(kPicture);
  list.startPiece({0, 0});
  for (int i = 1; i < 200000; ++i) list.extendPiece({i % 6000 * 1.0, i % 2 * 1000.0});
  const std::string bytes = make(list, kPicture);
  EXPECT_TRUE(bytes.starts_with("%PDF"));
  EXPECT_EQ(bytes.find("/Subtype /Image"), std::string::npos);
}

TEST_F(PdfOfNobody, TakesTheBitmapForADrawingThatIsFull) {
  DrawingList list(1);
  list.line({0, 0}, {1, 1});
  EXPECT_NE(make(list, kPicture).find("/Subtype /Image"), std::string::npos);
  expectInk(pageOf(file), 1000, 2000, 7000, 5000);
}

using PrinterOfNobody = PrinterTest;

TEST_F(PrinterOfNobody, HasNoPaperWithoutAPrinter) {
  WidgetPrinter printer;
  EXPECT_TRUE(printer.names().empty());
  EXPECT_EQ(printer.chosen(), "");
  printer.choose("Laser");
  EXPECT_EQ(printer.paper(PageOrientation::portrait), std::nullopt);
  EXPECT_EQ(printer.paper(PageOrientation::landscape), std::nullopt);
}

TEST_F(PrinterOfNobody, StartsNoJobWithoutAPrinter) {
  WidgetPrinter printer([](QPrinter&) { return true; });
  expectWarning("QPainter::begin");
  EXPECT_EQ(printer.print({PageOrientation::portrait, {}, kPicture, frame(kPicture), Bitmap()}),
            PrintOutcome::not_started);
}

TEST_F(PrinterOfNobody, AsksInAPrintDialogThatCanBeCancelled) {
  WidgetPrinter printer;
  const ModalDriver<QPrintDialog> driver({[](QPrintDialog& dialog) {
    EXPECT_EQ(dialog.printer()->pageLayout().orientation(), QPageLayout::Landscape);
    dialog.reject();
  }});
  EXPECT_EQ(printer.print({PageOrientation::landscape, {}, kPicture, frame(kPicture), Bitmap()}),
            PrintOutcome::cancelled);
}

}  // namespace
}  // namespace zel::test
