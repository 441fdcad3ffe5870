#include <fstream>
#include <iterator>
#include <string>

#include "pictures/svg_picture.h"
#include "plot/plot_fixture.h"

/// Whole pictures of each kind, 200 x 150 pixels with 40 samples, compared byte for byte.
namespace zel::test {
namespace {

std::string golden(const std::string& name) {
  std::ifstream file(ZEL_SOURCE_DIR "/tests/plot/golden/" + name + ".svg", std::ios::binary);
  EXPECT_TRUE(file) << name;
  return {std::istreambuf_iterator<char>(file), {}};
}

class Golden : public PlotTest {
 protected:
  Golden() {
    viewport.view.definicion = 20;
    viewport.size = PictureSize::ofPixels(200, 150);
  }

  std::string draw() {
    SvgPicture svg(200, 150);
    Drawing drawing(engine, graphs, svg, screen);
    EXPECT_EQ(drawing.redraw(viewport, marks), RedrawOutcome::drawn);
    return svg.text();
  }
};

TEST_F(Golden, AFunctionThatLeavesTheView) {
  show(-5.3, 4.9, -4, 4);
  addGraph('a', FunctionFields{field("x^3/4-2*x")}, 0x0000FF);
  EXPECT_EQ(draw(), golden("function"));
}

TEST_F(Golden, AParabola) {
  show(-4, 6, -1.5, 6);
  addGraph('a', ParabolaFields{field("1"), field("1"), field("1")}, 0x00FF00);
  EXPECT_EQ(draw(), golden("parabola"));
}

TEST_F(Golden, ACircumferenceAndUnevenMarks) {
  show(-5, 5, -3.75, 3.75);
  marks = {2.5, 0.75, true, true};
  addGraph('a', CircumferenceFields{field("0,5"), field("-0,5"), field("3")}, 0xFF0000);
  EXPECT_EQ(draw(), golden("circumference"));
}

TEST_F(Golden, AnEllipseCutOffAtItsLeft) {
  show(-2.7, 7.3, -3.75, 3.75);
  addGraph('a', EllipseFields{field("0"), field("1"), field("4,3"), field("2")}, 0x808000);
  EXPECT_EQ(draw(), golden("ellipse"));
}

TEST_F(Golden, AHyperbola) {
  show(-5, 5, -3.75, 3.75);
  addGraph('a', HyperbolaFields{field("0,3"), field("0"), field("1,5"), field("2,5")}, 0x800080);
  EXPECT_EQ(draw(), golden("hyperbola"));
}

TEST_F(Golden, AFamilyAndMarksOffTheGrid) {
  show(2.3, 6.3, -2, 12);
  addGraph('a', FamilyFields{field("P*x^2/4-P"), field("-1"), field("1"), field("0,5")}, 0x0080FF);
  EXPECT_EQ(draw(), golden("family"));
}

TEST_F(Golden, AParametricCurveOfMoreThanOneTurn) {
  show(-4, 4, -3, 3);
  addGraph('a',
           ParametricFields{field("3*cos(t)"), field("2*sen(2*t)"), field("0"), field("400"),
                            field("20")},
           0x008080);
  EXPECT_EQ(draw(), golden("parametric"));
}

}  // namespace
}  // namespace zel::test
