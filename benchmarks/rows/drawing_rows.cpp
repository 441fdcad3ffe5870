// Whole redraws of the plot window's picture, and the painting alone.
#include <QImage>
#include <QPainter>
#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

#include "benchmarks/rows/documents.h"
#include "benchmarks/rows/measure.h"
#include "benchmarks/rows/offscreen_plot.h"
#include "benchmarks/rows/rows.h"
#include "graphs/graph_builders.h"
#include "pictures/drawing_list.h"
#include "pictures/raster_picture.h"
#include "platform/qt/painter_picture.h"
#include "plot/drawing.h"

namespace zel::bench {
namespace {

constexpr int kRedrawRounds = 61;
constexpr int kFamilyRounds = 9;
constexpr int kWidth = 1920;
constexpr int kHeight = 1080;
constexpr ViewSettings kFamilyView{-10, -5, 10, 5, 100, false};

/// A screen that shows nothing.
class NoScreen : public Screen {
 public:
  void showStatus(const StatusPanels&) override {}
  void runPendingEvents() override {}
};

/// What a redraw draws, as a list. Throws a std::runtime_error when it is refused.
DrawingList linesOf(const GraphTable& graphs, const ViewSettings& view) {
  constexpr std::size_t kMostPoints = std::size_t{1} << 23;
  DrawingList lines(kMostPoints);
  Engine engine([&graphs](char letter) { return graphs.codeOf(letter); });
  NoScreen screen;
  Drawing drawing(engine, graphs, lines, screen);
  Viewport viewport;
  viewport.view = view;
  viewport.size = PictureSize::ofPixels(kWidth, kHeight);
  if (drawing.redraw(viewport, ScaleMarks{}) != RedrawOutcome::drawn || lines.isFull())
    throw std::runtime_error("there are no lines to paint");
  return lines;
}

/// Paints lines by a QPainter, the other way to do it.
class PainterPainting {
 public:
  PainterPainting() : image_(kWidth, kHeight, QImage::Format_RGB32) {
    image_.fill(Qt::white);
    painter_.begin(&image_);
    painter_.scale(1 / kTwipsPerPixel, 1 / kTwipsPerPixel);
  }

  void paint(const DrawingList& lines) {
    PainterPicture picture(painter_, QRectF(), Qt::white, Qt::black);
    lines.replay(picture);
  }

 private:
  QImage image_;
  QPainter painter_;
};

void printPainting(std::string_view what, int rounds, const DrawingList& lines) {
  RasterPicture picture(kWidth, kHeight);
  PainterPainting painting;
  const auto paint = [&] {
    lines.replay(picture);
    picture.finish();
  };
  const SideBySide seconds = measureSideBySide(rounds, paint, [&] { painting.paint(lines); });
  print("painting", what, seconds.measured, seconds.beside);
}

/// Members that all lie within the view and differ in their phase only.
GraphTable familyOf(int members) {
  GraphTable graphs;
  Engine engine;
  const auto field = [](const std::string& text) { return Field{text, "field"}; };
  const FamilyFields fields{field("4*sen(30*x+P)"), field("1"), field(std::to_string(members)),
                            field("1")};
  std::string message;
  if (acceptGraph(graphs, engine, 'a', 0xC04000, fields, message) != Accepted::stored)
    throw std::runtime_error("the family is refused: " + message);
  return graphs;
}

}  // namespace

void paintingRow() {
  const AlphabetDocument document;
  printPainting("26 graphs", kRedrawRounds, linesOf(document.graphs, document.view));
  printPainting("1,000 sines", kFamilyRounds, linesOf(familyOf(1000), kFamilyView));
}

void redrawRow() {
  const AlphabetDocument document;
  OffscreenPlot plot(document.graphs, document.view, document.marks);
  print("redraw", "26 graphs", measureAlone(kRedrawRounds, [&] { plot.redraw(); }));
}

void familyRow() {
  const GraphTable thousand = familyOf(1000);
  const GraphTable hundred = familyOf(100);
  OffscreenPlot long_plot(thousand, kFamilyView, ScaleMarks{});
  OffscreenPlot short_plot(hundred, kFamilyView, ScaleMarks{});
  const SideBySide seconds = measureSideBySide(
      kFamilyRounds, [&] { long_plot.redraw(); }, [&] { short_plot.redraw(); });
  print("family", "1,000 members", seconds.measured, seconds.beside);
}

}  // namespace zel::bench
