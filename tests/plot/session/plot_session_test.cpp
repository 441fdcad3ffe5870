#include "plot/session/plot_session.h"

#include "base/message_table.h"
#include "plot/session/plot_session_fixture.h"

namespace zel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Session : public PlotSessionTest {};

TEST_F(Session, DrawsNothingBeforeItIsOpened) {
  session.redraw();
  session.drawFirst();
  session.resize(PictureSize::ofPixels(300, 200));
  session.keyPressed(27);
  EXPECT_FALSE(session.isOpen());
  EXPECT_THAT(picture.calls, IsEmpty());
  EXPECT_THAT(screen.statuses, IsEmpty());
}

TEST_F(Session, HasNeitherATracePointNorARectangleBeforeItIsOpened) {
  EXPECT_EQ(session.tracePosition(), 0);
  session.setMode(PlotMode::zoom);
  EXPECT_EQ(session.zoomRectangle(), std::nullopt);
}

TEST_F(Session, DrawsTheOpenedViewOnceAtFirst) {
  addFamilyAndFunction();
  session.open(viewport.view, marks);
  EXPECT_THAT(picture.calls, IsEmpty());
  session.drawFirst();
  session.drawFirst();
  EXPECT_EQ(listener.drawn, 1);
  EXPECT_EQ(picture.texts(), drawnFresh(viewport.view, viewport.size));
  EXPECT_EQ(screen.statuses.back(), rangeStatus(viewport.view));
}

TEST_F(Session, KeepsTheMarksThatItWasOpenedWith) {
  marks = {2.5, 2.5, true, true};
  openAndDraw();
  const Texts with_marks = picture.texts();
  marks = {0, 0, false, false};
  session.redraw();
  EXPECT_EQ(picture.texts(), with_marks);
}

TEST_F(Session, KeepsTheViewAsOpenedBesideTheProportionalOne) {
  viewport.view.mantener_prop = true;
  session.resize(PictureSize::ofPixels(200, 100));
  openAndDraw();
  EXPECT_EQ(session.view().yi, -2.5);
  EXPECT_EQ(session.view().yf, 2.5);
  EXPECT_EQ(session.openedView(), viewport.view);
}

TEST_F(Session, DrawsNothingMoreAfterItWasClosed) {
  openAndDraw();
  session.close();
  picture.calls.clear();
  session.redraw();
  session.drawFirst();
  session.resize(PictureSize::ofPixels(300, 200));
  EXPECT_THAT(picture.calls, IsEmpty());
  EXPECT_FALSE(session.isOpen());
}

TEST_F(Session, ARefusedRangeShowsItsMessageAndReturns) {
  struct Row {
    double xi, xf, yi, yf;
    std::string message;
  };
  const Row rows[] = {
      {3, 3, -5, 5, std::string(messages::kRangeTooClose)},
      {1, 1 + 3e-16, -5, 5, std::string(messages::kRangeTooClose)},
      {1e15, 1e15 + 0.5, -5, 5, std::string(messages::kRangeTooClose)},
      {-5e299, 5e299, -5e299, 5e299, kTooLarge},
      {-5, 5, 2, 2, kFailed},
      {-1.7e308, 1.7e308, -5, 5, kFailed},
  };
  for (const Row& row : rows) {
    for (const std::string language_code : {"ES", "EN"}) {
      const LanguageGuard other(language_code);
      show(row.xi, row.xf, row.yi, row.yf);
      listener.messages.clear();
      listener.returns = 0;
      openAndDraw();
      const bool is_spanish = language_code == "ES";
      EXPECT_THAT(listener.messages,
                  ElementsAre(is_spanish ? row.message : SpanishToEnglish(row.message)));
      EXPECT_EQ(listener.returns, 1) << row.message;
      EXPECT_EQ(session.view(), viewport.view);
      EXPECT_THAT(picture.texts(), ElementsAre("clear")) << row.message;
    }
  }
}

TEST_F(Session, ARefusalNamesTheActiveGraphWhereNoneIsDrawn) {
  show(3, 3, -5, 5);
  openAndDraw();
  addFunction('c', "x");
  addFunction('e', "x");
  openAndDraw();
  show(-5, 5, -5, 5);
  openAndDraw();
  session.activateNext();
  session.resize(PictureSize::ofPixels(0, 100));
  EXPECT_EQ(listener.named_graphs, "-ce");
}

TEST_F(Session, AFailureNamesTheGraphThatIsBeingDrawn) {
  addFunction('c', "x");
  addGraph('e', FamilyFields{field("P*x"), field("0"), field("2"), field("1")});
  graphs.graph('e')->parameters->set("fin", "dos");
  openAndDraw();
  EXPECT_EQ(listener.named_graphs, "e");
}

TEST_F(Session, AGraphThatCannotBeDrawnShowsTheGeneralMessageAndReturns) {
  addGraph('a', FamilyFields{field("P*x"), field("0"), field("2"), field("1")});
  graphs.graph('a')->parameters->set("fin", "dos");
  openAndDraw();
  EXPECT_THAT(listener.messages, ElementsAre(kFailed));
  EXPECT_EQ(listener.returns, 1);
}

TEST_F(Session, ASampleCountBeyond16BitsIsTheGeneralFailure) {
  viewport.view.definicion = 100;
  session.resize(PictureSize::ofPixels(32800, 100));
  openAndDraw();
  EXPECT_THAT(listener.messages, ElementsAre(kFailed));
}

TEST_F(Session, NothingIsDrawnWhileAMessageIsShown) {
  show(3, 3, -5, 5);
  listener.on_message = [&] {
    session.redraw();
    session.resize(PictureSize::ofPixels(300, 200));
    session.drawFirst();
    session.keyPressed(32);
  };
  openAndDraw();
  EXPECT_EQ(listener.messages.size(), 1u);
  EXPECT_EQ(listener.returns, 1);
  EXPECT_EQ(session.pictureSize(), PictureSize::ofPixels(300, 200));
}

TEST_F(Session, ACloseWhileAMessageIsShownIsTheOnlyReturn) {
  show(3, 3, -5, 5);
  listener.on_message = [&] { session.close(); };
  openAndDraw();
  EXPECT_EQ(listener.returns, 0);
}

TEST_F(Session, AViewThatIsOpenedWhileAMessageIsShownIsDrawn) {
  const ViewSettings good = viewport.view;
  show(3, 3, -5, 5);
  listener.on_message = [&] {
    session.open(good, marks);
    session.drawFirst();
  };
  openAndDraw();
  EXPECT_EQ(listener.returns, 0);
  EXPECT_EQ(picture.texts(), drawnFresh(good, viewport.size));
  session.redraw();
  EXPECT_EQ(listener.messages.size(), 1u);
}

TEST_F(Session, ARefusedViewInTheMiddleOfAnotherRefusalReturnsOnce) {
  show(3, 3, -5, 5);
  listener.on_message = [&] {
    listener.on_message = nullptr;
    openAndDraw();
  };
  openAndDraw();
  EXPECT_EQ(listener.messages.size(), 2u);
  EXPECT_EQ(listener.returns, 1);
}

TEST_F(Session, CanBeOpenedAgainAfterARefusal) {
  const ViewSettings good = viewport.view;
  show(3, 3, -5, 5);
  listener.on_return = [&] { session.close(); };
  openAndDraw();
  viewport.view = good;
  openAndDraw();
  EXPECT_EQ(picture.texts(), drawnFresh(good, viewport.size));
  EXPECT_EQ(listener.messages.size(), 1u);
}

TEST_F(Session, TakesASizeFrom1000TwipsOnBothSides) {
  struct Row {
    double width, height;
    bool is_taken;
  };
  const Row rows[] = {{1000, 1000, true}, {999, 1000, false},  {1000, 999, false},
                      {999, 999, false},  {0, 0, false},       {1005, 990, false},
                      {990, 1005, false}, {12000, 9000, true}, {1e6, 999.9, false}};
  for (const Row& row : rows) {
    const PictureSize size = {row.width, row.height, row.width, row.height, row.width / 15};
    EXPECT_EQ(PlotSession::takesSize(size), row.is_taken) << row.width << " " << row.height;
  }
}

TEST_F(Session, AResizeRedrawsInTheNormalMode) {
  addFamilyAndFunction();
  openAndDraw();
  session.setMode(PlotMode::zoom);
  const PictureSize larger = PictureSize::ofPixels(200, 150);
  session.resize(larger);
  EXPECT_EQ(session.mode(), PlotMode::normal);
  EXPECT_EQ(session.pictureSize(), larger);
  EXPECT_EQ(picture.texts(), drawnFresh(viewport.view, larger));
  EXPECT_EQ(listener.drawn, 2);
}

TEST_F(Session, AResizeBeforeTheFirstDrawingDrawsNothingYet) {
  session.open(viewport.view, marks);
  session.resize(PictureSize::ofPixels(200, 150));
  EXPECT_THAT(picture.calls, IsEmpty());
  session.drawFirst();
  EXPECT_EQ(picture.texts(), drawnFresh(viewport.view, PictureSize::ofPixels(200, 150)));
}

TEST_F(Session, OpensInTheNormalMode) {
  openAndDraw();
  session.setMode(PlotMode::recorrido);
  openAndDraw();
  EXPECT_EQ(session.mode(), PlotMode::normal);
}

TEST_F(Session, TheModesButThePathShowTheRange) {
  openAndDraw();
  const std::size_t before = screen.statuses.size();
  session.setMode(PlotMode::recorrido);
  EXPECT_EQ(screen.statuses.size(), before);
  session.setMode(PlotMode::zoom);
  session.setMode(PlotMode::normal);
  EXPECT_EQ(screen.statuses.size(), before + 2);
  EXPECT_EQ(screen.statuses.back(), rangeStatus(viewport.view));
}

TEST_F(Session, EscAndSpaceStopALongDrawing) {
  struct Row {
    char32_t key;
    std::size_t members;
  };
  const Row rows[] = {{27, 2}, {32, 2}, {'C', 3}, {'c', 3}, {13, 3}, {0, 3}};
  for (const Row& row : rows) {
    graphs.clearGraphs();
    addGraph('a', FamilyFields{field("P*x"), field("0"), field("2"), field("1")});
    screen = {};
    screen.on_events = [&](std::size_t run) {
      if (run == 3) session.keyPressed(row.key);  // after the second member
    };
    openAndDraw();
    EXPECT_EQ(picture.pieces().size(), row.members) << static_cast<int>(row.key);
    EXPECT_EQ(screen.statuses.back(), rangeStatus(viewport.view));
  }
  EXPECT_THAT(listener.messages, IsEmpty());
}

TEST_F(Session, AStopKeyEndsAFamilyThatHasNoEnd) {
  addGraph('a', FamilyFields{field("P*x"), field("0"), field("2"), field("0")});
  screen.on_events = [&](std::size_t run) {
    if (run == 100) session.keyPressed(27);
  };
  openAndDraw();
  EXPECT_EQ(picture.pieces().size(), 99u);
}

}  // namespace
}  // namespace zel::test
