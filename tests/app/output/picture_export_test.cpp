#include "app/output/picture_export.h"

#include <functional>

#include <gmock/gmock.h>

#include "app/program_fixture.h"
#include "pictures/file_picture.h"
#include "pictures/raster_picture.h"

namespace zel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;
using ::testing::UnorderedElementsAre;

class Export : public ProgramTest {
 protected:
  Export() {
    addFunction('a', "x^2");
    choice.width = 200;
    choice.height = 100;
  }

  ExportResult exportWhile(const DrawingWatcher& goes_on) {
    return exportPicture(program, opened, choice, goes_on);
  }
  bool exportTo(const std::string& path) {
    services.files.paths = {path};
    const ExportResult result = exportWhile([](const StatusPanels&) { return true; });
    message = result.message;
    return result.written;
  }

  TemporaryFolder folder;
  OpenedView opened;
  ExportChoice choice;
  std::string message;  // of the last export to a file
};

TEST_F(Export, WritesTheFormatThatIsChosen) {
  const std::pair<const char*, const char*> formats[] = {
      {"png", "\x89PNG"}, {"svg", "<?xml"}, {"pdf", "%PDF"}};
  for (const auto& [ending, start] : formats) {
    choice.ending = ending;
    const std::string file = folder / (std::string("picture.") + ending);
    EXPECT_TRUE(exportTo(file));
    EXPECT_THAT(bytesOf(file), StartsWith(start));
  }
  EXPECT_THAT(services.files.asked, ElementsAre("save PNG (*.png)|*.png", "save SVG (*.svg)|*.svg",
                                                "save PDF (*.pdf)|*.pdf"));
  EXPECT_EQ(message, "");
}

TEST_F(Export, ProposesTheDocumentsNameInItsFolder) {
  exportTo(folder / "one.png");
  program.document_path = "/some.where/waves.zel";
  exportTo(folder / "two.png");
  program.document_path = "/some.where/waves";
  exportTo(folder / "three.png");
  EXPECT_THAT(services.files.proposals,
              ElementsAre("", "/some.where/waves.png", "/some.where/waves.png"));
}

TEST_F(Export, FollowsTheEndingOfTheFileWhereItIsAPictures) {
  choice.ending = "png";
  EXPECT_TRUE(exportTo(folder / "picture.SVG"));
  EXPECT_THAT(bytesOf(folder / "picture.SVG"), StartsWith("<?xml"));
  EXPECT_TRUE(exportTo(folder / "my.plot"));
  EXPECT_THAT(bytesOf(folder / "my.plot"), StartsWith("\x89PNG"));
  EXPECT_TRUE(exportTo(folder / "plot"));
  EXPECT_THAT(bytesOf(folder / "plot"), StartsWith("\x89PNG"));
  EXPECT_TRUE(exportTo("here"));
  EXPECT_THAT(bytesOf("here"), StartsWith("\x89PNG"));
}

TEST_F(Export, DrawsTheGraphsAsTheyAreInADocument) {
  program.engine.SetP(7);
  program.graphs.rebuildGraph('b', "p*x", "", 255, 'F', nullptr);
  choice.ending = "svg";
  exportTo(folder / "one.svg");
  program.engine.SetP(3);
  exportTo(folder / "other.svg");
  EXPECT_EQ(bytesOf(folder / "one.svg"), bytesOf(folder / "other.svg"));
  EXPECT_EQ(program.engine.GetP(), 3);
}

TEST_F(Export, WritesNothingWhenNoFileIsNamed) {
  const ExportResult result = exportWhile([](const StatusPanels&) { return true; });
  EXPECT_FALSE(result.written);
  EXPECT_EQ(result.message, "");
}

TEST_F(Export, WritesNothingWhenTheDrawingIsGivenUp) {
  putBytes(folder / "a.png", "older");
  services.files.paths = {folder / "a.png"};
  const ExportResult result = exportWhile([](const StatusPanels&) { return false; });
  EXPECT_FALSE(result.written);
  EXPECT_EQ(result.message, "");
  EXPECT_EQ(bytesOf(folder / "a.png"), "older");
  EXPECT_THAT(folder.names(), UnorderedElementsAre("a.png"));
}

/// Exports whose memory, pixels and bytes take several parts each.
class LargeExport : public Export {
 protected:
  LargeExport() {
    choice.width = 1100;
    choice.height = 1000;
  }

  /// Does something at each moment in which pending events run. Tells how many there were.
  std::size_t exportWith(const std::string& path, const std::function<void()>& happens) {
    std::size_t moments = 0;
    services.files.paths = {path};
    const ExportResult result = exportWhile([&](const StatusPanels&) {
      ++moments;
      happens();
      return true;
    });
    EXPECT_TRUE(result.written);
    return moments;
  }
};

// Whatever ends the program in one of these moments leaves the older file.
TEST_F(LargeExport, TouchNoFileBeforeTheWholePictureIsMade) {
  putBytes(folder / "a.png", "older");
  const std::size_t moments = exportWith(folder / "a.png", [&] {
    EXPECT_EQ(bytesOf(folder / "a.png"), "older");
    EXPECT_THAT(folder.names(), UnorderedElementsAre("a.png"));
  });
  EXPECT_GT(moments, 10u);
  EXPECT_THAT(bytesOf(folder / "a.png"), StartsWith("\x89PNG"));
}

TEST_F(LargeExport, LeaveTheOlderFileWhereTheyAreGivenUpAtTheirLastMoment) {
  const std::size_t moments = exportWith(folder / "a.png", [] {});
  putBytes(folder / "a.png", "older");
  services.files.paths = {folder / "a.png"};
  std::size_t asked = 0;
  EXPECT_FALSE(exportWhile([&](const StatusPanels&) { return ++asked < moments; }).written);
  EXPECT_EQ(bytesOf(folder / "a.png"), "older");
  EXPECT_THAT(folder.names(), UnorderedElementsAre("a.png"));
}

TEST_F(LargeExport, AreNotDisturbedByOthersThatBeginInThem) {
  exportWith(folder / "alone.png", [] {});
  std::size_t moments = 0;
  exportWith(folder / "outer.png", [&] {
    if (++moments % 8 == 0) exportWith(folder / "inner.png", [] {});
  });
  EXPECT_TRUE(bytesOf(folder / "outer.png") == bytesOf(folder / "alone.png"));
  EXPECT_TRUE(bytesOf(folder / "inner.png") == bytesOf(folder / "alone.png"));
}

TEST_F(Export, TellsWhyThereIsNoPicture) {
  opened.view.xi = opened.view.xf = 1;
  EXPECT_FALSE(exportTo(folder / "a.png"));
  const std::string spanish = message;
  EXPECT_NE(spanish, "");
  SetCurrentLanguage("EN");
  EXPECT_FALSE(exportTo(folder / "a.png"));
  EXPECT_NE(message, "");
  EXPECT_NE(message, spanish);
  EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(LargeExport, DrawNothingForAFileThatCannotBeWritten) {
  SetCurrentLanguage("EN");
  services.files.paths = {folder / "missing/a.png"};
  bool was_asked = false;
  const ExportResult result = exportWhile([&](const StatusPanels&) { return was_asked = true; });
  EXPECT_FALSE(was_asked);
  EXPECT_FALSE(result.written);
  EXPECT_THAT(result.message, StartsWith("Error: Cannot save"));
}

TEST_F(LargeExport, TellThatTheFileCannotBeWrittenAnyMore) {
  std::filesystem::create_directory(folder / "sub");
  services.files.paths = {folder / "sub/a.png"};
  const ExportResult result = exportWhile([&](const StatusPanels&) {
    std::filesystem::remove(folder / "sub");
    return true;
  });
  EXPECT_FALSE(result.written);
  EXPECT_THAT(result.message, StartsWith("Error: No se pudo salvar"));
}

TEST_F(Export, TellsTheSizeInPixelsOrOnPaper) {
  choice = {"png", 800, 600, 1.5};
  EXPECT_EQ(exportedSize(choice), (ExportedSize{1200, 900, true}));
  choice.ending = "pdf";
  EXPECT_EQ(exportedSize(choice), (ExportedSize{318, 238, false}));
}

TEST_F(Export, IsBounded) {
  EXPECT_TRUE(isExported({"png", 32767, 1, 1}));
  EXPECT_FALSE(isExported({"png", 32767, 1, 1.25}));
  EXPECT_FALSE(isExported({"png", 100, 32768, 1}));
  EXPECT_TRUE(isExported({"png", 16384, 8192, 1}));
  EXPECT_FALSE(isExported({"png", 16384, 8193, 1}));
  EXPECT_FALSE(isExported({"png", 8192, 4097, 2}));
  EXPECT_FALSE(isExported({"png", 99, 100, 1}));
  EXPECT_FALSE(isExported({"png", 100, 0, 1}));
  EXPECT_FALSE(isExported({"png", 100, 1, 0.25}));
}

TEST_F(Export, IsLookedAtBefore) {
  RasterPicture picture(200, 100);
  EXPECT_EQ(
      previewPicture(program, opened, choice, picture, [](const StatusPanels&) { return true; }),
      RedrawOutcome::drawn);
  exportTo(folder / "a.png");
  const auto file = makeFilePicture("png", 200, 100);
  Engine engine([this](char letter) { return program.graphs.codeOf(letter); });
  drawOpenedView(opened, PictureSize::ofPixels(200, 100), engine, program.graphs, file->picture(),
                 [](const StatusPanels&) { return true; });
  EXPECT_EQ(file->bytes(), bytesOf(folder / "a.png"));
  RasterPicture again(200, 100);
  drawOpenedView(opened, PictureSize::ofPixels(200, 100), engine, program.graphs, again,
                 [](const StatusPanels&) { return true; });
  EXPECT_EQ(picture.finish(), again.finish());
}

}  // namespace
}  // namespace zel::test
