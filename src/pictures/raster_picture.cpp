// Twips become pixels, points that lie on one line become one stroke, and strokes raise the
// coverage of the current graph, which is blended when the next one begins or the picture is
// finished. Axes are whole pixels, and one at the last place of the picture lies on its last pixel.

#include "pictures/raster_picture.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include "pictures/line_style.h"
#include "pictures/picture_size.h"

namespace zel {
namespace {

constexpr std::uint32_t kWhite = 0xFFFFFFFF;
constexpr std::uint32_t kBlack = 0;

double halfCurveWidth(double density) { return kCurveWidth * density / kTwipsPerPixel / 2; }

Bitmap whiteBitmap(int width, int height, const Pause& pause) {
  const auto size = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  return {width, height, filledVector(size, kWhite, pause)};
}

std::uint32_t fromRedLow(std::int32_t colour) {
  const auto bits = static_cast<std::uint32_t>(colour);
  return (bits & 0xFF) << 16 | (bits & 0xFF00) | (bits >> 16 & 0xFF);
}

/// How a line that comes by one way goes on by another. Up to a turn of some eleven degrees no gap
/// can be seen between two lines that are cut off straight.
LineEnd endBetween(PixelPoint from, PixelPoint corner, PixelPoint to) {
  constexpr double kSharpest = 0.04;  // the square of the sine
  const PixelPoint one = {corner.x - from.x, corner.y - from.y};
  const PixelPoint other = {to.x - corner.x, to.y - corner.y};
  const double cross = one.x * other.y - one.y * other.x;
  const double squares = (one.x * one.x + one.y * one.y) * (other.x * other.x + other.y * other.y);
  const bool goes_on = one.x * other.x + one.y * other.y > 0 && cross * cross < kSharpest * squares;
  if (!goes_on) return LineEnd::round;
  return isFlat(from, corner) == isFlat(corner, to) ? LineEnd::joined : LineEnd::crossed;
}

/// Pixels in a row or column, the last one not among them.
struct Pixels {
  int first;
  int last;
};

/// The pixels of a line across it. The last place of the picture is on its last pixel.
Pixels thickness(double place, int width, int size) {
  if (!(0 <= place && place <= size)) return {0, 0};
  const int first = static_cast<int>(std::floor(place - (width - 1) / 2.0));
  const int begin = std::max(0, std::min(first, size - width));
  return {begin, std::min(begin + width, size)};
}

/// The pixels of a line along it, both ends among them, as far as they are in the picture: as many
/// on either side of those that a line across its middle has, so that a mark is even on its axis.
Pixels extent(double one, double other, int width, int size) {
  const double middle = std::floor((one + other) / 2 - (width - 1) / 2.0);
  const double beside = std::ceil(std::fmax(0, (std::fabs(other - one) - width) / 2));
  const auto pixel = [size](double place) {
    return static_cast<int>(std::fmax(0, std::fmin(place, size)));
  };
  return {pixel(middle - beside), pixel(middle + width + beside)};
}

}  // namespace

RasterPicture::RasterPicture(int width, int height, double density, Pause pause)
    : bitmap_(whiteBitmap(std::max(width, 1), std::max(height, 1), pause)),
      density_(density),
      axis_width_(
          std::max(1, static_cast<int>(std::lround(kAxisWidth * density / kTwipsPerPixel)))),
      mask_(bitmap_.width, bitmap_.height, Stroke::marginFor(halfCurveWidth(density)), pause),
      pause_(std::move(pause)) {}

void RasterPicture::clear() {
  piece_.reset();
  mask_.clear();
  colour_ = kBlack;
  if (!is_blank_) std::ranges::fill(bitmap_.pixels, kWhite);
  is_blank_ = true;
}

void RasterPicture::beginAxes() { beginLayer(kBlack); }

void RasterPicture::line(Point from, Point to) {
  const PixelPoint start = toPixels(from);
  const PixelPoint end = toPixels(to);
  if (start.x == end.x || start.y == end.y)
    fill(start, end);
  else
    Stroke(mask_, axis_width_ / 2.0).line(start, end, {});
}

void RasterPicture::beginGraph(char, std::int32_t colour) { beginLayer(fromRedLow(colour)); }

void RasterPicture::startPiece(Point point) {
  endPiece();
  piece_ = Piece{LineJoiner(point), toPixels(point), std::nullopt};
}

void RasterPicture::extendPiece(Point point) {
  if (!piece_) return startPiece(point);
  if (const auto turn = piece_->joiner.extendTo(point)) drawTo(toPixels(*turn));
}

void RasterPicture::dot(Point centre, double radius) {
  Stroke(mask_, 0).dot(toPixels(centre), radius * density_ / kTwipsPerPixel);
}

const Bitmap& RasterPicture::finish() {
  endPiece();
  if (mask_.blendOnto(bitmap_, colour_, pause_)) is_blank_ = false;
  return bitmap_;
}

Bitmap RasterPicture::soFar() const {
  RasterPicture copy(*this);
  copy.finish();
  return std::move(copy.bitmap_);
}

Bitmap RasterPicture::exchange(Bitmap reused) {
  finish();
  if (reused.width != bitmap_.width || reused.height != bitmap_.height)
    reused = whiteBitmap(bitmap_.width, bitmap_.height, pause_);
  std::swap(bitmap_, reused);
  is_blank_ = false;
  clear();
  return reused;
}

/// Twips are divided last, so that a whole pixel is a whole number.
PixelPoint RasterPicture::toPixels(Point point) const {
  return {point.x * density_ / kTwipsPerPixel, point.y * density_ / kTwipsPerPixel};
}

void RasterPicture::beginLayer(std::uint32_t colour) {
  finish();
  colour_ = colour;
}

void RasterPicture::endPiece() {
  if (!piece_) return;
  const PixelPoint last = toPixels(piece_->joiner.last());
  if (last == piece_->corner) {
    Stroke(mask_, 0).dot(last, halfCurveWidth(density_));
  } else {
    drawTo(last);
    draw(*piece_->waiting, LineEnd::round);
  }
  piece_.reset();
}

void RasterPicture::drawTo(PixelPoint corner) {
  Waiting next = {piece_->corner, corner};
  if (piece_->waiting) {
    next.start = endBetween(piece_->waiting->from, piece_->corner, corner);
    draw(*piece_->waiting, next.start);
  }
  piece_->corner = corner;
  piece_->waiting = next;
}

void RasterPicture::draw(const Waiting& line, LineEnd end) {
  Stroke(mask_, halfCurveWidth(density_)).line(line.from, line.to, {line.start, end});
}

void RasterPicture::fill(PixelPoint from, PixelPoint to) {
  const bool is_upright = from.x == to.x;
  const Pixels across = is_upright ? thickness(from.x, axis_width_, bitmap_.width)
                                   : extent(from.x, to.x, axis_width_, bitmap_.width);
  const Pixels down = is_upright ? extent(from.y, to.y, axis_width_, bitmap_.height)
                                 : thickness(from.y, axis_width_, bitmap_.height);
  if (across.first >= across.last || down.first >= down.last) return;
  mask_.touch(across.first, down.first, across.last - 1, down.last - 1);
  for (int y = down.first; y < down.last; ++y)
    std::fill_n(mask_.at(across.first, y), across.last - across.first, 255);
}

}  // namespace zel
