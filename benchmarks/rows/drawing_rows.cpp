// Whole redraws of the plot window's picture.
#include <QImage>
#include <QPainter>
#include <stdexcept>
#include <string>

#include "benchmarks/rows/documents.h"
#include "benchmarks/rows/measure.h"
#include "benchmarks/rows/offscreen_plot.h"
#include "benchmarks/rows/rows.h"
#include "graphs/graph_builders.h"
#include "pictures/drawing_list.h"
#include "platform/qt/painter_picture.h"

namespace zel::bench {
namespace {

constexpr int kRedrawRounds = 61;
constexpr int kFamilyRounds = 9;

/// The painting that a redraw comes to, and nothing else: what was drawn, once more and in the same
/// way, on an image like the first one.
class PaintingAlone {
 public:
  explicit PaintingAlone(PictureBox& picture) : drawn_(picture.drawing()), image_(picture.image()) {
    if (drawn_.isFull()) throw std::runtime_error("the drawing is too long to be kept");
    painter_.begin(&image_);
    painter_.scale(1 / kTwipsPerPixel, 1 / kTwipsPerPixel);
  }

  void paint() {
    PainterPicture picture(painter_, QRectF(), Qt::white, Qt::black);
    drawn_.replay(picture);
  }

 private:
  DrawingList drawn_;
  QImage image_;
  QPainter painter_;
};

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

void redrawRow() {
  const AlphabetDocument document;
  OffscreenPlot plot(document.graphs, document.view, document.marks);
  PaintingAlone painting(plot.picture());
  const SideBySide seconds = measureSideBySide(
      kRedrawRounds, [&] { plot.redraw(); }, [&] { painting.paint(); });
  print("redraw", "26 graphs", seconds.measured, seconds.beside);
}

void familyRow() {
  const GraphTable thousand = familyOf(1000);
  const GraphTable hundred = familyOf(100);
  const ViewSettings view{-10, -5, 10, 5, 100, false};
  OffscreenPlot long_plot(thousand, view, ScaleMarks{});
  OffscreenPlot short_plot(hundred, view, ScaleMarks{});
  const SideBySide seconds = measureSideBySide(
      kFamilyRounds, [&] { long_plot.redraw(); }, [&] { short_plot.redraw(); });
  print("family", "1,000 members", seconds.measured, seconds.beside);
}

}  // namespace zel::bench
