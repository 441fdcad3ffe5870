// A whole redraw of the document of 26 graphs at quality 100 in a picture of 1920 x 1080 pixels, on
// a picture that counts and nothing else: sampling and mapping without painting.
#include <string>

#include <benchmark/benchmark.h>

#include "engine/engine.h"
#include "files/document.h"
#include "plot/drawing.h"

namespace {

class CountingPicture : public zel::Picture {
 public:
  void clear() override { points = 0; }
  void beginAxes() override {}
  void line(zel::Point, zel::Point) override {}
  void beginGraph(char, std::int32_t) override {}
  void startPiece(zel::Point) override { ++points; }
  void extendPiece(zel::Point) override { ++points; }
  void dot(zel::Point, double) override {}

  std::size_t points = 0;
};

class QuietScreen : public zel::Screen {
 public:
  void showStatus(const zel::StatusPanels&) override {}
  void runPendingEvents() override {}
};

void redrawAlphabet(benchmark::State& state) {
  zel::GraphTable graphs;
  zel::MainView fields;
  zel::DocumentHeader header;
  std::string message;
  const std::string path = std::string(ZEL_EXAMPLES_DIR) + "/alphabet.zel";
  if (!zel::loadDocument(path, fields, graphs, header, message)) {
    state.SkipWithError("the example cannot be loaded");
    return;
  }
  zel::Engine engine([&](char letter) { return graphs.codeOf(letter); });
  CountingPicture picture;
  QuietScreen screen;
  zel::Drawing drawing(engine, graphs, picture, screen);
  zel::Viewport viewport;
  viewport.view = {-13, -8, 13, 8, 100, false};
  viewport.size = zel::PictureSize::ofPixels(1920, 1080);
  for (auto _ : state) drawing.redraw(viewport, zel::ScaleMarks{});
  state.counters["points"] = static_cast<double>(picture.points);
}
BENCHMARK(redrawAlphabet)->Unit(benchmark::kMillisecond);

}  // namespace
