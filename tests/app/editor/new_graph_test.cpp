#include "app/editor/new_graph.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <string>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include "pictures/colour.h"

namespace zel::test {
namespace {

void addFunction(GraphTable& graphs, char letter, std::int32_t colour = 0) {
  graphs.rebuildGraph(letter, "x", "", colour, 'F', nullptr);
}

TEST(NextFreeLetter, IsTheFirstThatNoGraphHas) {
  GraphTable graphs;
  EXPECT_EQ(nextFreeLetter(graphs), 'a');
  addFunction(graphs, 'a');
  addFunction(graphs, 'b');
  addFunction(graphs, 'd');
  EXPECT_EQ(nextFreeLetter(graphs), 'c');
  graphs.freeGraph('a');
  EXPECT_EQ(nextFreeLetter(graphs), 'a');
}

TEST(NextFreeLetter, IsTheLastOneAndThenTheFirstAgain) {
  GraphTable graphs;
  for (char letter = 'a'; letter < 'z'; ++letter) addFunction(graphs, letter);
  EXPECT_EQ(nextFreeLetter(graphs), 'z');
  addFunction(graphs, 'z');
  EXPECT_EQ(nextFreeLetter(graphs), 'a');
}

TEST(NextFreshColour, IsTheFirstThatNoGraphHas) {
  GraphTable graphs;
  const auto colours = graphColours();
  EXPECT_EQ(nextFreshColour(graphs), colours[0]);
  addFunction(graphs, 'k', colours[0]);
  addFunction(graphs, 'a', colours[2]);
  EXPECT_EQ(nextFreshColour(graphs), colours[1]);
  addFunction(graphs, 'b', colours[1] | 0x02000000);
  EXPECT_EQ(nextFreshColour(graphs), colours[3]) << "the highest byte does not count";
  graphs.freeGraph('k');
  EXPECT_EQ(nextFreshColour(graphs), colours[0]) << "a freed slot keeps its colour";
}

TEST(NextFreshColour, LooksLikeNoColourInUse) {
  GraphTable graphs;
  addFunction(graphs, 'a', 0xB27200);  // nearly the first one
  EXPECT_EQ(nextFreshColour(graphs), graphColours()[1]);
  addFunction(graphs, 'b', 0x0A5ADF);  // and the second
  EXPECT_EQ(nextFreshColour(graphs), graphColours()[2]);
}

TEST(NextFreshColour, IsFarFromEveryColourInUseWhileOneIs) {
  constexpr char kLastFar = 'w';
  GraphTable graphs;
  std::vector<std::int32_t> used;
  for (char letter = 'a'; letter < 'z'; ++letter) {
    const std::int32_t colour = nextFreshColour(graphs);
    for (const std::int32_t other : used)
      EXPECT_GE(perceivedDistance(colour, other), letter <= kLastFar ? kFreshDistance : 0.07)
          << letter;
    used.push_back(colour);
    addFunction(graphs, letter, colour);
  }
}

TEST(NextFreshColour, IsTheOneThatDiffersTheMostWhenAllLookLikeOneInUse) {
  GraphTable graphs;
  for (std::size_t i = 0; i < graphColours().size(); ++i)
    addFunction(graphs, static_cast<char>('a' + i), graphColours()[i]);
  addFunction(graphs, 'h', graphColours()[7] ^ 0x001800);  // slightly different
  EXPECT_EQ(nextFreshColour(graphs), graphColours()[7]);
}

TEST(NextFreshColour, IsTheFirstOfAllWhenNoneIsLeft) {
  GraphTable graphs;
  for (std::size_t i = 0; i < graphColours().size(); ++i)
    addFunction(graphs, static_cast<char>('a' + i), graphColours()[i]);
  EXPECT_EQ(nextFreshColour(graphs), graphColours()[0]);
}

using Triple = std::array<double, 3>;
using Matrix = std::array<Triple, 3>;

Triple times(const Matrix& matrix, const Triple& v) {
  Triple result{};
  for (std::size_t row = 0; row < 3; ++row)
    for (std::size_t i = 0; i < 3; ++i) result[row] += matrix[row][i] * v[i];
  return result;
}

Triple linearRgb(std::int32_t colour) {
  Triple result{};
  for (std::size_t i = 0; i < 3; ++i) {
    const double part = ((colour >> (8 * i)) & 0xFF) / 255.0;
    result[i] = part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  }
  return result;
}

constexpr Matrix kToXyz = {{{0.4124564, 0.3575761, 0.1804375},
                            {0.2126729, 0.7151522, 0.0721750},
                            {0.0193339, 0.1191920, 0.9503041}}};

// How linear red, green and blue look to normal eyes, without red, green and blue cones.
constexpr std::array<Matrix, 4> kEyes = {{
    {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}},
    {{{0.152286, 1.052583, -0.204868},
      {0.114503, 0.786281, 0.099216},
      {-0.003882, -0.048116, 1.051998}}},
    {{{0.367322, 0.860646, -0.227968},
      {0.280085, 0.672501, 0.047413},
      {-0.011820, 0.042940, 0.968881}}},
    {{{1.255528, -0.076749, -0.178779},
      {-0.078411, 0.930809, 0.147602},
      {0.004733, 0.691367, 0.303900}}},
}};

/// Lightness and the two hues, in which a distance of 2 is just seen.
Triple lab(std::int32_t colour, const Matrix& eyes) {
  Triple seen = times(eyes, linearRgb(colour));
  for (double& part : seen) part = std::clamp(part, 0.0, 1.0);
  const Triple xyz = times(kToXyz, seen);
  const Triple white = times(kToXyz, {1, 1, 1});
  Triple f{};
  for (std::size_t i = 0; i < 3; ++i) {
    const double part = xyz[i] / white[i];
    f[i] = part > 0.008856 ? std::cbrt(part) : 7.787 * part + 16.0 / 116;
  }
  return {116 * f[1] - 16, 500 * (f[0] - f[1]), 200 * (f[1] - f[2])};
}

/// To the eyes that see it as the smallest.
double distance(std::int32_t one, std::int32_t other) {
  double smallest = 1e9;
  for (const Matrix& eyes : kEyes) {
    const Triple a = lab(one, eyes);
    const Triple b = lab(other, eyes);
    smallest = std::min(smallest, std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]));
  }
  return smallest;
}

double contrastOnWhite(std::int32_t colour) {
  return 1.05 / (times(kToXyz, linearRgb(colour))[1] + 0.05);
}

TEST(GraphColours, AreOneForEachLetterAndAllDifferent) {
  const std::set<std::int32_t> different(graphColours().begin(), graphColours().end());
  EXPECT_EQ(different.size(), 26u);
  for (const std::int32_t colour : different) EXPECT_EQ(colour & 0xFFFFFF, colour);
}

TEST(GraphColours, StandOutFromWhite) {
  constexpr std::int32_t kPaper = 0xFFFFFF;
  for (const std::int32_t colour : graphColours()) {
    EXPECT_GE(contrastOnWhite(colour), 3.0);
    EXPECT_GE(perceivedDistance(colour, kPaper), 3 * kFreshDistance);
  }
}

TEST(GraphColours, AreToldApartWithEveryKindOfColourVision) {
  constexpr std::size_t kEarly = 8;
  const auto colours = graphColours();
  for (std::size_t i = 0; i < colours.size(); ++i)
    for (std::size_t j = 0; j < i; ++j)
      EXPECT_GE(distance(colours[i], colours[j]), i < kEarly ? 20.0 : 9.0) << i << " " << j;
}

TEST(NewGraphFields, AreEmptyButForRangesAndSteps) {
  const auto family = std::get<FamilyFields>(newGraphFields('Z'));
  EXPECT_EQ(family.formula.text, "");
  EXPECT_EQ(family.inicio.text, "-3");
  EXPECT_EQ(family.fin.text, "3");
  EXPECT_EQ(family.variacion.text, "1");
  const auto curve = std::get<ParametricFields>(newGraphFields('T'));
  EXPECT_EQ(curve.x.text + curve.y.text, "");
  EXPECT_EQ(curve.inicio.text, "0");
  EXPECT_EQ(curve.fin.text, "360");
  EXPECT_EQ(curve.variacion.text, "1");
  EXPECT_EQ(std::get<FunctionFields>(newGraphFields('F')).formula.text, "");
  EXPECT_EQ(std::get<CircumferenceFields>(newGraphFields('C')).radius.text, "");
  EXPECT_EQ(std::get<EllipseFields>(newGraphFields('E')).major.text, "");
  EXPECT_EQ(std::get<ParabolaFields>(newGraphFields('P')).distance.text, "");
  EXPECT_EQ(std::get<HyperbolaFields>(newGraphFields('H')).focus.text, "");
  EXPECT_TRUE(std::holds_alternative<FunctionFields>(newGraphFields('?')));
}

}  // namespace
}  // namespace zel::test
