#pragma once

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include "plot/mark_numbers.h"
#include "plot/plot_fixture.h"

namespace zel::test {

inline constexpr double kCharacter = 90;  // twips
inline constexpr double kLine = 180;

/// The picture is 12000 x 9000 twips; every character has the same width.
class MarkNumbers : public PlotTest {
 protected:
  MarkNumbers() { viewport.size = PictureSize::ofPixels(800, 600); }

  NumberLayer numbers() {
    EXPECT_EQ(viewport.prepare(), RangeVerdict::drawable);
    return markNumbers(viewport, marks, measure);
  }

  /// The numbers below the x axis, from left to right.
  Texts xNumbers(double xi, double xf, double distance) {
    show(xi, xf, -1, 1);
    marks = {distance, 1, true, true};
    std::vector<PictureLabel> labels = numbers().labels;
    std::erase_if(labels, [&](const PictureLabel& label) { return label.corner.y != belowAxis(); });
    std::ranges::sort(labels, {}, [](const PictureLabel& label) { return label.corner.x; });
    Texts texts;
    for (const PictureLabel& label : labels) texts.push_back(label.text);
    return texts;
  }
  double belowAxis() const { return viewport.mapY(0) + 40 + 25; }

  /// Where the upright or the level lines of the grid are, each from edge to edge.
  std::vector<double> gridLines(bool are_upright) {
    std::vector<double> places;
    for (const auto& [from, to] : numbers().grid) {
      if ((from.x == to.x) != are_upright) continue;
      places.push_back(are_upright ? from.x : from.y);
      EXPECT_EQ(are_upright ? from.y : from.x, 0);
      EXPECT_EQ(are_upright ? to.y : to.x, are_upright ? 9000 : 12000);
    }
    return places;
  }

  static PictureLabel labelled(const NumberLayer& layer, const std::string& text) {
    const auto found = std::ranges::find(layer.labels, text, &PictureLabel::text);
    if (found == layer.labels.end()) throw std::runtime_error("no number " + text);
    return *found;
  }
  static Texts textsOf(const NumberLayer& layer) {
    Texts texts;
    for (const PictureLabel& label : layer.labels) texts.push_back(label.text);
    return texts;
  }

  void expectOnThePictureAndApart(const NumberLayer& layer) {
    for (const PictureLabel& one : layer.labels) {
      EXPECT_GE(one.corner.x, 0);
      EXPECT_GE(one.corner.y, 0);
      EXPECT_LE(one.corner.x + one.width, viewport.size.scale_width) << one.text;
      EXPECT_LE(one.corner.y + one.height, viewport.size.scale_height) << one.text;
      for (const PictureLabel& other : layer.labels) {
        if (&one == &other) continue;
        const bool apart = one.corner.x + one.width <= other.corner.x ||
                           other.corner.x + other.width <= one.corner.x ||
                           one.corner.y + one.height <= other.corner.y ||
                           other.corner.y + other.height <= one.corner.y;
        EXPECT_TRUE(apart) << one.text << " and " << other.text;
      }
    }
  }

  TextMeasure measure{150, kLine, [](std::string_view text) {
                        return static_cast<double>(text.size()) * kCharacter;
                      }};
};

}  // namespace zel::test
