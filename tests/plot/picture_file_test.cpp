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
  /// A PNG file whose memory, pixels and bytes take several parts each.
  PictureFile drawLarge(const DrawingWatcher& goes_on) {
    return drawPictureFile({"png", 1100, 1000, {viewport.view, marks}}, engine, graphs, goes_on);
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

TEST_F(PictureFiles, OfTheLeastWidthHaveSamplesAndNarrowerOnesHaveNone) {
  viewport.view.definicion = 1;
  const auto messageOf = [&](int width) {
    const PictureJob job = {"svg", width, 100, {viewport.view, marks}};
    return drawPictureFile(job, engine, graphs, [](const StatusPanels&) { return true; }).message;
  };
  EXPECT_EQ(messageOf(kLeastWidth), "");
  EXPECT_EQ(messageOf(kLeastWidth - 1), redrawMessage(RedrawOutcome::failed));
}

TEST_F(PictureFiles, AreBoundedForWhoeverAsksForThem) {
  EXPECT_EQ(kLongestSide, 32767);
  EXPECT_EQ(kMostPixels, 134'217'728);
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

TEST_F(PictureFiles, ShowNothingBeforeAndBehindTheirDrawing) {
  addFunction('a', "x");
  std::string order;
  drawLarge([&](const StatusPanels& status) {
    const char phase = status == StatusPanels() ? '-' : 'd';
    if (!order.ends_with(phase)) order += phase;
    return true;
  });
  EXPECT_EQ(order, "-d-");
}

TEST_F(PictureFiles, AreGivenUpAtWhateverMomentAndNotAskedForAgain) {
  addFunction('a', "x");
  std::size_t moments = 0;
  const PictureFile whole = drawLarge([&](const StatusPanels&) { return ++moments > 0; });
  ASSERT_NE(whole.bytes, "");
  for (std::size_t last = 1; last <= moments; ++last) {
    std::size_t asked = 0;
    const PictureFile file = drawLarge([&](const StatusPanels&) { return ++asked != last; });
    EXPECT_EQ(file.bytes, "") << last;
    EXPECT_EQ(file.message, "") << last;
    EXPECT_EQ(asked, last);
  }
}

TEST_F(PictureFiles, StayAsTheyWereDrawnWhenGraphsGoWhileTheirBytesAreMade) {
  addFunction('a', "x");
  const PictureFile before = drawLarge([](const StatusPanels&) { return true; });
  bool is_drawn = false;
  const PictureFile file = drawLarge([&](const StatusPanels& status) {
    is_drawn = is_drawn || status != StatusPanels();
    if (is_drawn && status == StatusPanels()) graphs.clearGraphs();
    return true;
  });
  EXPECT_EQ(graphs.count(), 0);
  EXPECT_TRUE(file.bytes == before.bytes);
}

}  // namespace
}  // namespace zel::test
