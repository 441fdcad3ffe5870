#include <QCheckBox>

#include "frm_imprimir_fixture.h"
#include "platform/qt/bitmap_image.h"

/// The numbers of the picture in the print preview and on paper.
namespace zel::test {
namespace {

/// A plot window with a number on its picture.
class NumberedWindow : public DrawnWindow {
 public:
  NumberLayer numbers() const override {
    return {150, {{{600, 0}, {600, 4500}}}, {{"-2,5", {3000, 300}, 600, 180}}};
  }
};

class PrintWindowNumbers : public PrintWindow {
 protected:
  QCheckBox& withNumbers() { return control<QCheckBox>(window, "chkNumeros"); }
  QImage plain() { return toImage(plot.picture().bitmap()).convertToFormat(QImage::Format_RGB32); }
  QImage printedImage() { return toImage(printed().bitmap).convertToFormat(QImage::Format_RGB32); }

  NumberedWindow plot;
};

TEST_F(PrintWindowNumbers, AreLeftOutUnlessTheyAreChosen) {
  open(plot);
  EXPECT_FALSE(withNumbers().isChecked());
  EXPECT_EQ(printedImage(), plain());
  EXPECT_EQ(services.printer.printed.back().drawing.layer(), NumberLayer());
}

TEST_F(PrintWindowNumbers, AreInThePreviewAndOnPaperWhereTheyAreChosen) {
  open(plot);
  const QImage before = image().grab().toImage();
  withNumbers().click();
  EXPECT_NE(image().grab().toImage(), before);
  EXPECT_NE(printedImage(), plain());
  EXPECT_EQ(services.printer.printed.back().drawing.layer(), plot.numbers());
  EXPECT_EQ(plot.picture().drawing().layer(), NumberLayer());
  withNumbers().click();
  EXPECT_EQ(image().grab().toImage(), before);
  EXPECT_EQ(printedImage(), plain());
}

TEST_F(PrintWindowNumbers, LeaveThePictureWhereTheUserHasPutIt) {
  open(plot);
  drag({10, 20});
  const QRect place = image().geometry();
  withNumbers().click();
  EXPECT_EQ(image().geometry(), place);
}

TEST_F(PrintWindowNumbers, AreOfferedInBothLanguages) {
  open(plot);
  EXPECT_EQ(withNumbers().text(), "Con &números");
  SetCurrentLanguage("EN");
  open(plot);
  EXPECT_EQ(withNumbers().text(), "With &numbers");
}

TEST_F(PrintWindowNumbers, ThePictureOnThePageIsAGraphic) {
  open(plot);
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&image())->role(), QAccessible::Graphic);
}

}  // namespace
}  // namespace zel::test
