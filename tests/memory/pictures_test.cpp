// Want of memory in an export, in its preview and in the last session: it is told, and the files
// that were there stay as they were.

#include <new>
#include <set>
#include <string>

#include <gmock/gmock.h>

#include "app/last_session.h"
#include "app/output/picture_export.h"
#include "app/program_fixture.h"
#include "failing_new.h"
#include "files/document.h"
#include "pictures/file_picture.h"
#include "pictures/raster_picture.h"

namespace zel::test {
namespace {

using ::testing::Contains;

bool always(const StatusPanels&) { return true; }

class PicturesInWantOfMemory : public ProgramTest {
 protected:
  PicturesInWantOfMemory() {
    addFunction('a', "x^2");
    choice.ending = "png";
    choice.width = 200;
    choice.height = 100;
  }

  TemporaryFolder folder;
  OpenedView opened;
  ExportChoice choice;
};

TEST_F(PicturesInWantOfMemory, AreNotMade) {
  for (const char* ending : {"svg", "png", "pdf"}) {
    auto file = makeFilePicture(ending, 200, 100);
    ASSERT_NE(file, nullptr);
    withFailingMemory(1, false, [&] { file = makeFilePicture(ending, 200, 100); });
    EXPECT_EQ(file, nullptr) << ending;
  }
}

TEST_F(PicturesInWantOfMemory, FailLikeADrawingInThePreview) {
  RasterPicture picture(200, 100);
  auto outcome = previewPicture(program, opened, choice, picture, always);
  ASSERT_EQ(outcome, RedrawOutcome::drawn);
  withFailingMemory(1, true,
                    [&] { outcome = previewPicture(program, opened, choice, picture, always); });
  EXPECT_EQ(outcome, RedrawOutcome::failed);
}

TEST_F(PicturesInWantOfMemory, AreToldAndLeaveTheOlderFile) {
  const std::string path = folder / "a.png";
  putBytes(path, "older");
  services.files.paths = {path};
  ExportResult result;
  std::set<std::string> told;
  const auto attempt = [&] {
    try {
      result = exportPicture(program, opened, choice, always);
    } catch (const std::bad_alloc&) {  // of the recorders
      result = {};
    }
  };
  failEachAllocation(false, attempt, [&] {
    EXPECT_EQ(bytesOf(path) == "older", !result.written);
    told.insert(result.message);
    services.files.paths = {path};
  });
  EXPECT_TRUE(result.written);
  EXPECT_THAT(told, Contains("Valores demasiado grandes para operar."));
}

TEST_F(PicturesInWantOfMemory, LeaveALastSessionForTheNextTime) {
  const std::string path = folder / "session.zel";
  const std::string bytes = documentText(MainView(), program.graphs);
  putBytes(path, bytes);
  LastSession last(folder.path().string());
  MainView view;
  GraphTable graphs;
  std::string message;
  bool recovered = true;
  const long failures = failEachAllocation(
      false,
      [&] {
        try {
          recovered = last.recover(view, graphs, message);
        } catch (const std::bad_alloc&) {  // of the message
          recovered = false;
        }
      },
      [&] {
        EXPECT_TRUE(last.isThere());
        EXPECT_EQ(graphs.count(), recovered ? 1 : 0);
        EXPECT_EQ(bytesOf(path), bytes);
        graphs.clearGraphs();
      });
  EXPECT_TRUE(recovered);
  EXPECT_GT(failures, 10);
}

}  // namespace
}  // namespace zel::test
