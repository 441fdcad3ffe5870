#include "plot/picture_file.h"

#include "plot/plot_fixture.h"

namespace zel::test {
namespace {

using ::testing::StartsWith;

class PictureFiles : public PlotTest {
 protected:
  PictureFile draw(const std::string& ending, bool goes_on = true) {
    const PictureJob job = {ending, 100, 100, {viewport.view, marks}};
    return drawPictureFile(job, engine, graphs, [=](const StatusPanels&) { return goes_on; });
  }
};

TEST_F(PictureFiles, HoldTheBytesOfTheirFormat) {
  addFunction('a', "x");
  EXPECT_THAT(draw("svg").bytes, StartsWith("<?xml"));
  EXPECT_THAT(draw("pdf").bytes, StartsWith("%PDF"));
  EXPECT_EQ(draw("svg").message, "");
}

TEST_F(PictureFiles, AreTooLargeWhereNoPictureCanBeMade) {
  const PictureFile file = draw("gif");
  EXPECT_EQ(file.bytes, "");
  EXPECT_EQ(file.message, "Valores demasiado grandes para operar.");
}

TEST_F(PictureFiles, SayWhyARangeIsRefused) {
  show(1, 1, -5, 5);
  EXPECT_EQ(draw("svg").bytes, "");
  EXPECT_EQ(draw("svg").message, redrawMessage(RedrawOutcome::too_close));
}

TEST_F(PictureFiles, SayNothingWhereTheDrawingIsGivenUp) {
  addFunction('a', "x");
  const PictureFile file = draw("svg", false);
  EXPECT_EQ(file.bytes, "");
  EXPECT_EQ(file.message, "");
}

}  // namespace
}  // namespace zel::test
