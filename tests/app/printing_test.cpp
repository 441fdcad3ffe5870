#include "app/printing.h"

#include <gmock/gmock.h>

#include "support/fake_services.h"
#include "support/language_guard.h"

namespace zel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr PaperSize kPicture{9000, 6000};

class Printing : public ::testing::Test {
 protected:
  PrintOutcome print(PrintOutcome outcome) {
    services.printer.outcome = outcome;
    return printAt(services.printer, services.boxes, PrintPreview({16840, 11900}, kPicture),
                   drawing, bitmap);
  }

  LanguageGuard language{"ES"};
  FakeServices services;
  DrawingList drawing;
  Bitmap bitmap{1, 1, {0xFF123456}};
};

TEST_F(Printing, ThePreviewHasThePaperThatLiesAsThePictureDoes) {
  const auto wide = buildPreview(services.printer, {9000, 6000});
  EXPECT_EQ(wide->paper(), (PaperSize{16840, 11900}));
  EXPECT_EQ(wide->picture(), (PaperSize{9000, 6000}));
  const auto high = buildPreview(services.printer, {6000, 9000});
  EXPECT_EQ(high->paper(), (PaperSize{11900, 16840}));
  EXPECT_THAT(services.printer.asked,
              ElementsAre(PageOrientation::landscape, PageOrientation::portrait));
}

TEST_F(Printing, ThereIsNoPreviewWithoutPrinterPaperOrPicture) {
  services.printer.upright = PaperSize{0, 0};
  EXPECT_FALSE(buildPreview(services.printer, kPicture));
  services.printer.upright.reset();
  EXPECT_FALSE(buildPreview(services.printer, kPicture));
  services.printer.upright = PaperSize{11900, 16840};
  EXPECT_FALSE(buildPreview(services.printer, {0, 6000}));
  EXPECT_FALSE(buildPreview(services.printer, {9000, 0}));
}

TEST_F(Printing, PrintsWhereThePreviewShowsIt) {
  drawing.startPiece({1, 2});
  EXPECT_EQ(print(PrintOutcome::printed), PrintOutcome::printed);
  const auto& page = services.printer.printed.at(0);
  EXPECT_EQ(page.orientation, PageOrientation::landscape);
  EXPECT_EQ(page.position, (Point{3920, 2950}));
  EXPECT_EQ(page.size, kPicture);
  EXPECT_EQ(page.bitmap, bitmap);
  EXPECT_FALSE(page.drawing.isFull());
}

TEST_F(Printing, APageThatComesOutNeedsNoMessage) {
  print(PrintOutcome::printed);
  EXPECT_THAT(services.boxes.shown, IsEmpty());
}

TEST_F(Printing, TellsWhatWentWrongInBothLanguages) {
  print(PrintOutcome::cancelled);
  print(PrintOutcome::not_started);
  print(PrintOutcome::failed);
  tellNoPreview(services.boxes);
  SetCurrentLanguage("EN");
  print(PrintOutcome::cancelled);
  print(PrintOutcome::not_started);
  print(PrintOutcome::failed);
  tellNoPreview(services.boxes);
  using Box = FakeMessageBoxes::Box;
  constexpr auto kInformation = BoxStyle::cancel_try_again_continue;
  constexpr auto kAttention = BoxStyle::stop;
  EXPECT_THAT(
      services.boxes.shown,
      ElementsAre(Box{"Trabajo de impresión cancelado.", "Información", kInformation},
                  Box{"No se puede imprimir.", "ZEL - ATENCIÓN", kAttention},
                  Box{"Error de impresora", "ZEL - ATENCIÓN", kAttention},
                  Box{"Error: No se puede mostrar vista previa.", "ZEL - ATENCIÓN", kAttention},
                  Box{"Impression job canceled.", "Information", kInformation},
                  Box{"Cannot print.", "ZEL - NOTIFY", kAttention},
                  Box{"print error", "ZEL - NOTIFY", kAttention},
                  Box{"Error: Cannot show preview.", "ZEL - NOTIFY", kAttention}));
}

}  // namespace
}  // namespace zel::test
