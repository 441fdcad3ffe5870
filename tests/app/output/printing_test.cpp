#include "app/output/printing.h"

#include <gmock/gmock.h>

#include "support/fake_services.h"
#include "support/language_guard.h"
#include "support/temporary_folder.h"

namespace zel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr PaperSize kPlotSize{9000, 6000};

class Printing : public ::testing::Test {
 protected:
  PrintOutcome print(PrintOutcome outcome) {
    services.printer.outcome = outcome;
    return printAt(services.services(), PrintTarget::printer,
                   PrintPreview({16840, 11900}, kPlotSize), drawing, bitmap);
  }
  PrintOutcome printToFile(const std::string& path) {
    services.files.paths = {path};
    return printAt(services.services(), PrintTarget::pdf, PrintPreview({16840, 11900}, kPlotSize),
                   drawing, bitmap);
  }
  auto preview(PaperSize picture) {
    return buildPreview(services.printer, PrintTarget::printer, picture);
  }

  LanguageGuard language{"ES"};
  TemporaryFolder folder;
  FakeServices services;
  DrawingList drawing;
  Bitmap bitmap{1, 1, {0xFF123456}};
};

TEST_F(Printing, ThePreviewHasThePaperThatLiesAsThePictureDoes) {
  const auto wide = preview({9000, 6000});
  EXPECT_EQ(wide->paper(), (PaperSize{16840, 11900}));
  EXPECT_EQ(wide->picture(), (PaperSize{9000, 6000}));
  const auto high = preview({6000, 9000});
  EXPECT_EQ(high->paper(), (PaperSize{11900, 16840}));
  EXPECT_THAT(services.printer.asked,
              ElementsAre(PageOrientation::landscape, PageOrientation::portrait));
}

TEST_F(Printing, ThePreviewOfAFileHasTheUsualPaperWithoutAPrinter) {
  services.printer.upright.reset();
  const auto wide = buildPreview(services.printer, PrintTarget::pdf, {9000, 6000});
  ASSERT_TRUE(wide);
  EXPECT_EQ(wide->paper(), (PaperSize{15840, 12240}));
  EXPECT_FALSE(buildPreview(services.printer, PrintTarget::pdf, {0, 6000}));
}

TEST_F(Printing, ThereIsNoPreviewWithoutPrinterPaperOrPicture) {
  services.printer.upright = PaperSize{0, 0};
  EXPECT_FALSE(preview(kPlotSize));
  services.printer.upright.reset();
  EXPECT_FALSE(preview(kPlotSize));
  services.printer.upright = PaperSize{11900, 16840};
  EXPECT_FALSE(preview({0, 6000}));
  EXPECT_FALSE(preview({9000, 0}));
}

TEST_F(Printing, PrintsWhereThePreviewShowsIt) {
  drawing.startPiece({1, 2});
  EXPECT_EQ(print(PrintOutcome::printed), PrintOutcome::printed);
  const auto& page = services.printer.printed.at(0);
  EXPECT_EQ(page.orientation, PageOrientation::landscape);
  EXPECT_EQ(page.position, (Point{3920, 2950}));
  EXPECT_EQ(page.size, kPlotSize);
  EXPECT_EQ(page.scale, 1);
  EXPECT_EQ(page.bitmap, bitmap);
  EXPECT_FALSE(page.drawing.isFull());
}

TEST_F(Printing, PrintsAFittedPictureSmaller) {
  PrintPreview page({16840, 11900}, {18000, 6000});
  page.setFitted(true);
  printAt(services.services(), PrintTarget::printer, page, drawing, bitmap);
  EXPECT_EQ(services.printer.printed.at(0).size, page.picture());
  EXPECT_EQ(services.printer.printed.at(0).scale, 16120.0 / 18000);
}

TEST_F(Printing, WritesTheFileThatIsAskedForAndAsksNoPrinter) {
  const std::string file = folder / "page.pdf";
  EXPECT_EQ(printToFile(file), PrintOutcome::printed);
  EXPECT_THAT(services.files.asked, ElementsAre("save PDF (*.pdf)|*.pdf"));
  EXPECT_EQ(bytesOf(file), "%PDF");
  EXPECT_EQ(services.printer.made_pdfs.at(0).position, (Point{3920, 2950}));
  EXPECT_THAT(services.printer.printed, IsEmpty());
  EXPECT_THAT(services.boxes.shown, IsEmpty());
}

TEST_F(Printing, WritesNoFileWhenNoneIsNamed) {
  EXPECT_EQ(printAt(services.services(), PrintTarget::pdf, PrintPreview({16840, 11900}, kPlotSize),
                    drawing, bitmap),
            PrintOutcome::cancelled);
  EXPECT_THAT(services.printer.made_pdfs, IsEmpty());
  EXPECT_THAT(services.boxes.shown, IsEmpty());
}

TEST_F(Printing, TellsWhyTheFileIsNotWrittenAndKeepsTheOlderOne) {
  const std::string file = folder / "page.pdf";
  putBytes(file, "older");
  services.printer.pdf.reset();
  EXPECT_EQ(printToFile(file), PrintOutcome::not_started);
  EXPECT_EQ(bytesOf(file), "older");
  services.printer.pdf = "%PDF";
  EXPECT_EQ(printToFile(folder / "missing/page.pdf"), PrintOutcome::failed);
  ASSERT_EQ(services.boxes.shown.size(), 2u);
  EXPECT_EQ(services.boxes.shown[0].text, "No se puede imprimir.");
  EXPECT_THAT(services.boxes.shown[1].text,
              ::testing::StartsWith("Error: No se pudo salvar.\r\nCausa: código "));
}

TEST_F(Printing, NeitherAPageThatComesOutNorAUserWhoCancelsNeedsAMessage) {
  print(PrintOutcome::printed);
  print(PrintOutcome::cancelled);
  EXPECT_THAT(services.boxes.shown, IsEmpty());
}

TEST_F(Printing, TellsWhatWentWrongInBothLanguages) {
  print(PrintOutcome::not_started);
  print(PrintOutcome::failed);
  tellNoPreview(services.boxes);
  SetCurrentLanguage("EN");
  print(PrintOutcome::not_started);
  print(PrintOutcome::failed);
  tellNoPreview(services.boxes);
  using Box = FakeMessageBoxes::Box;
  constexpr auto kAttention = BoxStyle::stop;
  EXPECT_THAT(
      services.boxes.shown,
      ElementsAre(Box{"No se puede imprimir.", "ZEL - ATENCIÓN", kAttention},
                  Box{"Error de impresora", "ZEL - ATENCIÓN", kAttention},
                  Box{"Error: No se puede mostrar vista previa.", "ZEL - ATENCIÓN", kAttention},
                  Box{"Cannot print.", "ZEL - NOTIFY", kAttention},
                  Box{"print error", "ZEL - NOTIFY", kAttention},
                  Box{"Error: Cannot show preview.", "ZEL - NOTIFY", kAttention}));
}

}  // namespace
}  // namespace zel::test
