#include "plot/drawing.h"

#include <new>

#include "plot/plot_fixture.h"

namespace zel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// No marks; a sample at each edge.
class DrawingTest : public PlotTest {
 protected:
  DrawingTest() {
    viewport.view.definicion = 1;
    marks.x_shown = marks.y_shown = false;
  }

  RedrawOutcome redraw() { return drawing.redraw(viewport, marks); }

  /// The redraw fails with the picture as it is expected to stay, and without the range in the
  /// status bar.
  void expectRefused(RedrawOutcome outcome, const Texts& drawn) {
    screen = {};
    EXPECT_EQ(redraw(), outcome);
    EXPECT_EQ(picture.texts(), drawn);
    for (const StatusPanels& panels : screen.statuses)
      EXPECT_NE(panels, rangeStatus(viewport.view));
  }

  Drawing drawing{engine, graphs, picture, screen};
};

const std::string kRange = " Xmin=-5  | XMAX=5  | Ymin=-5  | YMAX=5  ";
const Texts kAxes = {"clear", "axes", "line 750,0 750,1500", "line 0,750 1500,750"};

Texts after(Texts first, const Texts& more) {
  first.insert(first.end(), more.begin(), more.end());
  return first;
}

TEST_F(DrawingTest, ClearsThePictureAndDrawsAxesThenGraphsByLetter) {
  addFunction('z', "2", 0x0000FF);
  addFunction('b', "x", 0xFF0000);
  picture.line({1, 2}, {3, 4});
  EXPECT_EQ(redraw(), RedrawOutcome::drawn);
  EXPECT_EQ(picture.texts(), after(kAxes, {"graph b #0000ff", "start 0,1500", "extend 1500,0",  //
                                           "graph z #ff0000", "start 0,450", "extend 1500,450"}));
}

/// The curve of the last graph, whatever was drawn before it.
Texts lastGraph(const RecorderPicture& picture) {
  const Texts all = picture.texts();
  std::size_t first = all.size();
  while (first > 0 && !all[first - 1].starts_with("graph ")) --first;
  return {all.begin() + static_cast<std::ptrdiff_t>(first), all.end()};
}

TEST_F(DrawingTest, DrawsAGraphAsEverAfterOneThatFaults) {
  viewport.view.definicion = 40;
  for (const char* const formula : {"x+1", "(4-x^2)^0,5", "1/(x-1)+2"}) {
    addFunction('b', formula);
    EXPECT_EQ(redraw(), RedrawOutcome::drawn);
    const Texts alone = lastGraph(picture);
    EXPECT_GT(alone.size(), 10u);
    for (const char* const faulting :
         {"(4-x^2)^0,5", "exp(x*1000)", "inv(x)", "x^0,5", "1+inv(x-5)*2", "x*1e308"}) {
      addFunction('a', faulting);
      EXPECT_EQ(redraw(), RedrawOutcome::drawn);
      EXPECT_EQ(lastGraph(picture), alone) << formula << " after " << faulting;
    }
    graphs.freeGraph('a');
  }
}

TEST_F(DrawingTest, ShowsTheRangeAtTheEnd) {
  EXPECT_EQ(redraw(), RedrawOutcome::drawn);
  EXPECT_THAT(screen.texts(), ElementsAre(kRange));
}

TEST_F(DrawingTest, ShowsTheRangeAsNumberText) {
  const ViewSettings view = {-2.5, 1e-5, 1.0 / 3, 1e15, 1, false};
  const StatusPanels panels = {" Xmin=-2,5  ", " XMAX=0,333333333333333  ", " Ymin=1E-05  ",
                               " YMAX=1E+15  "};
  EXPECT_EQ(rangeStatus(view), panels);
}

TEST_F(DrawingTest, ShowsTheLetterAndItsPlaceInTheAlphabet) {
  addFunction('a', "x");
  addFunction('f', "x^2");
  EXPECT_EQ(redraw(), RedrawOutcome::drawn);
  EXPECT_THAT(screen.texts(), ElementsAre(" [GRAFICANDO]... a(x)| (1 de 2)||",
                                          " [GRAFICANDO]... f(x)| (6 de 2)||", kRange));
}

TEST_F(DrawingTest, ShowsItsProgressInEnglish) {
  const LanguageGuard english("EN");
  addFunction('z', "x");
  EXPECT_EQ(redraw(), RedrawOutcome::drawn);
  EXPECT_THAT(screen.texts(), ElementsAre(" [GRAPHING]... z(x)| (26 de 1)||", kRange));
}

TEST_F(DrawingTest, SkipsGraphsThatAreNotInUse) {
  addFunction('a', "1");
  addFunction('b', "2");
  graphs.freeGraph('a');
  EXPECT_EQ(redraw(), RedrawOutcome::drawn);
  EXPECT_THAT(picture.pieces(), ElementsAre("0,450 1500,450"));
  EXPECT_EQ(screen.texts().front(), " [GRAFICANDO]... b(x)| (2 de 1)||");
}

TEST_F(DrawingTest, LetsEventsRunOnceAfterTheAxesAndAfterEachGraph) {
  addFunction('a', "x");
  addGraph('b', CircumferenceFields{field("0"), field("0"), field("9")});
  addGraph('c', ParabolaFields{field("0"), field("9"), field("1")});
  std::vector<std::string> moments;
  screen.on_events = [&](std::size_t) {
    moments.push_back(picture.texts().back() + " " + std::to_string(screen.statuses.size()));
  };
  EXPECT_EQ(redraw(), RedrawOutcome::drawn);
  EXPECT_THAT(moments, ElementsAre("line 0,750 1500,750 0", "extend 1500,0 1", "graph b #000000 2",
                                   "graph c #000000 3"));
}

TEST_F(DrawingTest, LetsEventsRunAfterAFamilyBesideThoseInsideOfIt) {
  addGraph('a', FamilyFields{field("P"), field("0"), field("2"), field("1")});
  addGraph('b', ParametricFields{field("t"), field("t"), field("0"), field("4"), field("1")});
  EXPECT_EQ(redraw(), RedrawOutcome::drawn);
  EXPECT_EQ(screen.event_runs, 1u + (3 + 1) + (5 + 1));
}

TEST_F(DrawingTest, DrawsEachKindInItsWay) {
  viewport.view.definicion = 10;
  addFunction('a', "x");
  addGraph('b', CircumferenceFields{field("0"), field("0"), field("2,5")});
  addGraph('c', EllipseFields{field("0"), field("0"), field("3,5"), field("2")});
  addGraph('d', HyperbolaFields{field("0"), field("0"), field("1,5"), field("2,5")});
  addGraph('e', ParabolaFields{field("0"), field("0,5"), field("1")});
  addGraph('f', FamilyFields{field("P"), field("0"), field("2"), field("1")});
  addGraph('g', ParametricFields{field("t"), field("t"), field("0"), field("4"), field("1")});
  EXPECT_EQ(redraw(), RedrawOutcome::drawn);
  std::string kinds;
  for (const std::string& text : picture.texts()) {
    if (text.starts_with("graph"))
      kinds += std::string(kinds.empty() ? "" : " ") + text[6];
    else if (text.starts_with("start"))
      kinds += '/';
    else if (text.starts_with("dot"))
      kinds += '.';
  }
  EXPECT_EQ(kinds, "a/ b////// c////// d//////// e/ f/// g/.....");
}

TEST_F(DrawingTest, SweepsTheCodeOfAnUnknownKind) {
  GraphDef def = graphOf('X', {}, "x");
  graphs.storeGraph(def);
  EXPECT_EQ(redraw(), RedrawOutcome::drawn);
  EXPECT_THAT(picture.pieces(), ElementsAre("0,1500 1500,0"));
}

TEST_F(DrawingTest, ShowsNoMessageForAGraphThatIsUndefinedOrOutside) {
  addFunction('a', "x+100");
  addFunction('b', "ln(-1)");
  addFunction('c', "2*-x");
  EXPECT_EQ(redraw(), RedrawOutcome::drawn);
  EXPECT_THAT(picture.pieces(), IsEmpty());
  EXPECT_THAT(screen.statuses, SizeIs(4));
}

TEST_F(DrawingTest, MakesTheViewProportionalFirst) {
  viewport.size = PictureSize::ofPixels(200, 100);
  viewport.view.mantener_prop = true;
  show(-10, 10, 0, 4);
  EXPECT_EQ(redraw(), RedrawOutcome::drawn);
  EXPECT_EQ(viewport.view.yi, -3);
  EXPECT_EQ(viewport.view.yf, 7);
  EXPECT_THAT(screen.texts(), ElementsAre(" Xmin=-10  | XMAX=10  | Ymin=-3  | YMAX=7  "));
}

TEST_F(DrawingTest, DrawsNothingOfARefusedRange) {
  addFunction('a', "x");
  show(5, 5, -5, 5);
  expectRefused(RedrawOutcome::too_close, {"clear"});
  show(-1e300, 1e300, -1e300, 1e300);
  expectRefused(RedrawOutcome::too_large, {"clear"});
  show(-5, 5, 5, 5);
  expectRefused(RedrawOutcome::failed, {"clear"});
  EXPECT_EQ(screen.event_runs, 0u);
  EXPECT_THAT(screen.statuses, IsEmpty());
}

TEST_F(DrawingTest, FailsAfterTheAxisThatCannotBeMarked) {
  marks = {0, 1, true, false};
  expectRefused(RedrawOutcome::failed, kAxes);
  EXPECT_EQ(screen.event_runs, 0u);
}

TEST_F(DrawingTest, KeepsWhatWasDrawnBeforeAGraphThatFails) {
  addFunction('a', "x");
  GraphDef bad = graphOf('Z', {{"inicio", "uno"}, {"fin", "2"}, {"variacion", "1"}}, "p");
  bad.nombre = 'b';
  graphs.storeGraph(bad);
  addFunction('c', "2");
  expectRefused(RedrawOutcome::failed,
                after(kAxes, {"graph a #000000", "start 0,1500", "extend 1500,0",  //
                              "graph b #000000"}));
  EXPECT_EQ(screen.event_runs, 2u);
}

TEST_F(DrawingTest, HasAMessageForEachRefusalInBothLanguages) {
  const auto close = redrawMessage(RedrawOutcome::too_close);
  const auto large = redrawMessage(RedrawOutcome::too_large);
  const auto failed = redrawMessage(RedrawOutcome::failed);
  EXPECT_EQ(close,
            "Error: No se puede graficar.\r\n"
            "Causa: Los valores del rango son demasiado cercanos entre si.  La diferencia tiende a "
            "cero en el rango de las x y/o el de las y.\r\n"
            "Solución: Modifique el rango separando mas dichos valores.\r\n"
            "Nota: Asegúrese de editar el valor completo.  El mismo puede ser demasiado grande "
            "para el campo en que aparece y podría requerir del uso de flechas o mouse para verlo "
            "completo.");
  EXPECT_EQ(large, "Error: Los valores del rango son demasiado elevados.");
  EXPECT_EQ(failed, "Error: No se puede graficar con la ecuación y rango elegidos.");
  EXPECT_EQ(redrawMessage(RedrawOutcome::drawn), "");
  EXPECT_EQ(redrawMessage(RedrawOutcome::abandoned), "");
  const LanguageGuard english("EN");
  EXPECT_EQ(Localize(close), "Cannot graph because interval range is too small.");
  EXPECT_EQ(Localize(large), "Error: Range value too big.");
  EXPECT_EQ(Localize(failed), "Error: Cannot graph using selected function and range.");
}

TEST_F(DrawingTest, SaysWhetherAFamilyOrAParametricCurveIsBeingDrawn) {
  addFunction('a', "x");
  addGraph('b', FamilyFields{field("P"), field("0"), field("1"), field("1")});
  addFunction('c', "x");
  addGraph('d', ParametricFields{field("t"), field("t"), field("0"), field("1"), field("1")});
  std::string seen;
  screen.on_events = [&](std::size_t) { seen += drawing.inProgress() ? '1' : '0'; };
  EXPECT_EQ(redraw(), RedrawOutcome::drawn);
  EXPECT_EQ(seen,
            "0"
            "0"
            "110"
            "0"
            "110");
  EXPECT_FALSE(drawing.inProgress());
}

TEST_F(DrawingTest, IsOverWhereAnExceptionGoesThroughIt) {
  addGraph('a', FamilyFields{field("P"), field("1"), field("2"), field("1")});
  engine.SetP(0.5);
  screen.on_events = [](std::size_t run) {
    if (run == 2) throw std::bad_alloc();  // after the first curve
  };
  EXPECT_THROW(redraw(), std::bad_alloc);
  EXPECT_FALSE(drawing.inProgress());
  EXPECT_EQ(engine.GetP(), 0.5);
}

TEST_F(DrawingTest, LeavesAParameterThatIsSetAfterItToTheNext) {
  addGraph('a', FamilyFields{field("P"), field("1"), field("2"), field("1")});
  EXPECT_EQ(redraw(), RedrawOutcome::drawn);
  engine.SetP(7);
  EXPECT_EQ(redraw(), RedrawOutcome::drawn);
  EXPECT_EQ(engine.GetP(), 7);
}

TEST_F(DrawingTest, GoesOnWithTheNextGraphAfterAStop) {
  addGraph('a', FamilyFields{field("P"), field("0"), field("4"), field("1")});
  addFunction('b', "x");
  screen.on_events = [&](std::size_t run) {
    if (run == 3) drawing.stop();
  };
  EXPECT_EQ(redraw(), RedrawOutcome::drawn);
  EXPECT_THAT(picture.pieces(), ElementsAre("0,750 1500,750", "0,600 1500,600", "0,1500 1500,0"));
  EXPECT_EQ(screen.texts().back(), kRange);
}

TEST_F(DrawingTest, IsNotStoppedByAStopBetweenItsCurves) {
  addGraph('a', FamilyFields{field("P"), field("0"), field("2"), field("1")});
  addFunction('b', "x");
  screen.on_events = [&](std::size_t run) {
    if (run == 1 || run == 5)  // after the axes, and after the family
      drawing.stop();
  };
  EXPECT_EQ(redraw(), RedrawOutcome::drawn);
  EXPECT_THAT(picture.pieces(), SizeIs(4));
}

TEST_F(DrawingTest, CallsGraphsByTheirLetters) {
  addFunction('a', "b(x)+2");
  addFunction('b', "x/5");
  EXPECT_EQ(redraw(), RedrawOutcome::drawn);
  EXPECT_THAT(picture.pieces(), ElementsAre("0,600 1500,300", "0,900 1500,600"));
}

}  // namespace
}  // namespace zel::test
