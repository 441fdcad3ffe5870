#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "engine/engine.h"
#include "graphs/graph_builders.h"
#include "graphs/graph_table.h"
#include "plot/axes.h"
#include "plot/curves/curve.h"
#include "plot/curves/function_sweep.h"
#include "plot/drawing.h"
#include "plot/viewport.h"
#include "support/language_guard.h"
#include "support/recorder_picture.h"
#include "support/recorder_screen.h"

namespace zel {

// For GoogleTest's messages.
inline void PrintTo(RangeVerdict verdict, std::ostream* out) {
  constexpr const char* kNames[] = {"drawable", "too_close", "too_large", "failed"};
  *out << kNames[static_cast<int>(verdict)];
}

inline void PrintTo(RedrawOutcome outcome, std::ostream* out) {
  constexpr const char* kNames[] = {"drawn", "abandoned", "too_close", "too_large", "failed"};
  *out << kNames[static_cast<int>(outcome)];
}

}  // namespace zel

namespace zel::test {

using Texts = std::vector<std::string>;

/// A field of the graph editor; its label stands only in messages.
inline Field field(std::string text) { return {std::move(text), "campo"}; }

/// A formula of nearly the longest code, with the value of its beginning.
inline std::string longFormula(std::string formula, std::size_t size = Engine::kMaxExpandedCode) {
  while (formula.size() + 4 <= size) formula += "+0*x";
  return formula;
}

/// What a drawing needs. The picture is 100 pixels = 1500 twips wide and high, and shows -5 to 5 in
/// both directions in 10 steps: 150 twips to a unit, a sample at every integer.
class PlotTest : public ::testing::Test {
 protected:
  PlotTest() {
    viewport.view = {-5, -5, 5, 5, 10, false};
    viewport.size = PictureSize::ofPixels(100, 100);
  }

  void show(double xi, double xf, double yi, double yf) {
    viewport.view.xi = xi;
    viewport.view.xf = xf;
    viewport.view.yi = yi;
    viewport.view.yf = yf;
  }

  void addGraph(char letter, const GraphFields& fields, std::int32_t colour = 0) {
    std::string message;
    EXPECT_EQ(acceptGraph(graphs, engine, letter, colour, fields, message), Accepted::stored)
        << message;
  }

  void addFunction(char letter, const std::string& formula, std::int32_t colour = 0) {
    graphs.rebuildGraph(letter, formula, "", colour, 'F', nullptr);
  }

  GraphDef graph(char letter) const { return *graphs.graph(letter); }

  LanguageGuard language{"ES"};
  GraphTable graphs;
  Engine engine{[this](char letter) { return graphs.codeOf(letter); }};
  RecorderPicture picture;
  RecorderScreen screen;
  Viewport viewport;
  ScaleMarks marks;
};

/// Draws single curves, without axes and statuses.
class CurveTest : public PlotTest, private DrawingFlag {
 protected:
  /// Draws from an empty picture and gives the pieces of curve.
  Texts sweep(std::string_view code) {
    prepare();
    sweepFunction(tools(), code);
    return picture.pieces();
  }

  /// Tells `visit` of each sample; the viewport must be prepared.
  template <class Visit>
  void sweepEach(std::string_view code, const Visit& visit) {
    sweepSamples(tools(), code, visit);
  }

  bool drawParametric(const GraphDef& def) {
    prepare();
    return sweepParametric(tools(), def);
  }

  bool drawFamily(const GraphDef& def) {
    prepare();
    return sweepFamily(tools(), def);
  }

  bool drawBranches(const GraphDef& def) {
    prepare();
    return sweepBranches(tools(), def);
  }

  void stop() { in_progress_ = false; }
  void abandon() { is_abandoned_ = true; }
  bool inProgress() const { return in_progress_; }

 private:
  void prepare() {
    picture.calls.clear();
    ASSERT_EQ(viewport.prepare(), RangeVerdict::drawable);
  }
  CurveTools tools() {
    grid_.emplace(viewport);
    return {viewport, *grid_, engine, picture, screen, *this};
  }

  void set(bool in_progress) override { in_progress_ = in_progress; }
  bool isSet() const override { return in_progress_; }
  bool isAbandoned() const override { return is_abandoned_; }
  void keepParameter(double p) override { engine.SetP(p); }

  std::optional<SampleGrid> grid_;
  bool in_progress_ = false;
  bool is_abandoned_ = false;
};

/// A graph of one of the kinds that have their values as texts only, as a document gives them.
inline GraphDef graphOf(char tipo,
                        const std::vector<std::pair<std::string, std::string>>& parameters,
                        std::string codigo = "") {
  GraphDef def;
  def.nombre = 'a';
  def.tipo = tipo;
  def.codigo = std::move(codigo);
  def.defined = true;
  def.parameters = std::make_shared<Parameters>();
  for (const auto& [key, value] : parameters) def.parameters->Add(key, value);
  return def;
}

}  // namespace zel::test
