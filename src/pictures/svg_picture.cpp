// The text is written as the drawing goes on. A piece of curve is collected until the pen is
// lifted, so that it becomes one polyline; the dots of a graph are collected until it ends and lie
// on its lines. Coordinates are whole twips and are written without a fraction.

#include "pictures/svg_picture.h"

#include "pictures/colour.h"
#include "pictures/coordinate_text.h"
#include "pictures/line_style.h"
#include "pictures/picture_size.h"

namespace zel {
namespace {

std::string attribute(const char* name, double value) {
  return std::string(" ") + name + "=\"" + coordinateText(value) + "\"";
}

std::string gridGroup(const NumberLayer& layer) {
  if (layer.grid.empty()) return {};
  std::string group = R"(<g id="grid" stroke=")" + colourText(kGridColour) + "\" stroke-width=\"" +
                      coordinateText(kAxisWidth) + "\">\n";
  for (const GridLine& line : layer.grid)
    group += "<line" + attribute("x1", line.from.x) + attribute("y1", line.from.y) +
             attribute("x2", line.to.x) + attribute("y2", line.to.y) + "/>\n";
  return group + "</g>\n";
}

/// Each text fills its box, whatever font a viewer has, and has white behind it.
std::string numberGroup(const NumberLayer& layer) {
  if (layer.labels.empty()) return {};
  constexpr double kBaseline = 0.78;  // of the height of a line, from its top
  std::string group = R"(<g id="numbers" font-family="sans-serif")" +
                      attribute("font-size", layer.font_size) + " fill=\"" +
                      colourText(kNumberColour) + "\">\n";
  for (const PictureLabel& label : layer.labels) {
    const std::string width = attribute("width", label.width);
    group += "<rect" + attribute("x", label.corner.x) + attribute("y", label.corner.y) + width +
             attribute("height", label.height) + " fill=\"#ffffff\"" +
             attribute("fill-opacity", kNumberBackground) + "/>\n<text" +
             attribute("x", label.corner.x) +
             attribute("y", label.corner.y + kBaseline * label.height) +
             attribute("textLength", label.width) + ">" + label.text + "</text>\n";
  }
  return group + "</g>\n";
}

}  // namespace

void SvgPicture::clear() { *this = SvgPicture(width_, height_, max_text_, scale_); }

void SvgPicture::beginAxes() {
  endGroup();
  body_ += "<g id=\"axes\">\n";
  in_group_ = true;
}

void SvgPicture::line(Point from, Point to) {
  if (isFull()) return;
  body_ += "<line" + attribute("x1", from.x) + attribute("y1", from.y) + attribute("x2", to.x) +
           attribute("y2", to.y) + "/>\n";
}

void SvgPicture::beginGraph(char letter, std::int32_t colour) {
  endGroup();
  const std::string id = std::string("graph-") + letter;
  group_style_ = "#" + id + " circle{fill:" + colourText(colour) + "}\n";
  body_ += "<g id=\"" + id + "\" stroke=\"" + colourText(colour) + "\">\n";
  in_group_ = true;
}

void SvgPicture::startPiece(Point point) {
  endPiece();
  appendPoint(point);
}

void SvgPicture::extendPiece(Point point) { appendPoint(point); }

void SvgPicture::dot(Point centre, double radius) {
  if (isFull()) return;
  dots_ += "<circle" + attribute("cx", centre.x) + attribute("cy", centre.y) +
           attribute("r", radius) + "/>\n";
}

std::string SvgPicture::text(const NumberLayer& layer) {
  endGroup();
  if (isFull()) return {};
  const std::string width = coordinateText(width_ * scale_);
  const std::string height = coordinateText(height_ * scale_);
  const std::string box =
      coordinateText(width_ * kTwipsPerPixel) + " " + coordinateText(height_ * kTwipsPerPixel);
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
         "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
         width + "\" height=\"" + height + "\" viewBox=\"0 0 " + box +
         "\">\n"
         "<style>\n"
         "#axes{stroke:#000000;stroke-width:" +
         coordinateText(kAxisWidth) +
         "}\n"
         "polyline{fill:none;stroke-width:" +
         coordinateText(kCurveWidth) +
         ";stroke-linecap:round;stroke-linejoin:round}\n"
         "circle{stroke:none}\n" +
         styles_ +
         "</style>\n"
         "<rect width=\"100%\" height=\"100%\" fill=\"#ffffff\"/>\n" +
         gridGroup(layer) + body_ + numberGroup(layer) + "</svg>\n";
}

void SvgPicture::endPiece() {
  if (point_count_ == 0) return;
  if (point_count_ == 1) points_ += " " + points_;
  body_ += "<polyline points=\"" + points_ + "\"/>\n";
  points_.clear();
  point_count_ = 0;
}

void SvgPicture::endGroup() {
  if (!in_group_) return;
  endPiece();
  if (!dots_.empty()) styles_ += group_style_;
  body_ += dots_ + "</g>\n";
  dots_.clear();
  in_group_ = false;
}

void SvgPicture::appendPoint(Point point) {
  if (isFull()) return;
  if (point_count_ > 0) points_ += ' ';
  points_ += coordinateText(point.x) + "," + coordinateText(point.y);
  ++point_count_;
}

}  // namespace zel
