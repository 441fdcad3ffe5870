// A line that is rather flat is drawn column by column, a steep one row by row: the way that it
// takes through the columns (rows) is its course, in which "along" counts columns and "across" the
// pixels of each. Between its ends each column depends on the distance from the line alone, which
// grows evenly from pixel to pixel, so a column takes one multiplication, in whole numbers. Where
// an end is round, pixels ask for their distance from the end too. Everything is exact or rounded
// as IEEE 754 says, so that every machine draws the same pixels.
#include "pictures/stroke.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <utility>

#include "pictures/line_clip.h"

namespace zel {
namespace {

constexpr double kFall = 0.5;          // pixels on both sides of an edge in which coverage falls
constexpr std::int32_t kUnit = 65280;  // 255 with 8 more bits: the coverage of a whole pixel
constexpr std::int32_t kHalf = 128;    // of one step of coverage
constexpr double kFixed = 4294967296;  // of places with 32 bits behind the point

std::int64_t fixed(double value) { return static_cast<std::int64_t>(std::floor(value * kFixed)); }

/// What is negative covers nothing, however it is rounded.
std::int32_t inUnits(double value) {
  return static_cast<std::int32_t>(value * kUnit + 0.5);  // NOLINT(bugprone-incorrect-roundings)
}

/// The first column whose centre is not before a place.
int columnFrom(double place) { return static_cast<int>(std::ceil(place - 0.5)); }

void raise(std::uint8_t& covered, std::int32_t units) {
  const std::int32_t coverage = std::clamp(units + kHalf, 0, kUnit) >> 8;
  covered = std::max(covered, static_cast<std::uint8_t>(coverage));
}

/// What can be seen of a line that covers so much around it.
ClipBox boxAround(const CoverageMask& mask, double reach) {
  return {-reach, -reach, mask.width() + reach, mask.height() + reach};
}

double alongOf(PixelPoint point, bool is_flat) { return is_flat ? point.x : point.y; }
double acrossOf(PixelPoint point, bool is_flat) { return is_flat ? point.y : point.x; }

/// How coverage lies in the columns of a line, in units of coverage.
struct Profile {
  int pixels;          // in a column
  std::int32_t reach;  // from the middle
  std::int32_t fall;   // from pixel to pixel

  /// Raises a column of pixels that are `next` bytes apart. The line has passed `part` of its first
  /// pixel, a fraction of 2^32.
  void raiseColumn(std::uint8_t* covered, std::ptrdiff_t next, std::uint32_t part) const {
    const std::uint32_t passed = (part >> 16) * static_cast<std::uint32_t>(fall) >> 16;
    std::int32_t distance = reach - fall + static_cast<std::int32_t>(passed);
    for (int i = 0; i < pixels; ++i, covered += next, distance -= fall)
      raise(*covered, reach - std::abs(distance));
  }
};

}  // namespace

/// A line from left to right (from top to bottom); of length 0 it is a dot.
struct Stroke::Course {
  double along = 0;  // where it begins
  double across = 0;
  double end = 0;     // where it ends, along
  double slope = 0;   // across per along
  double length = 0;  // in its own direction
  double cosine = 1;  // of the angle between the two
  double sine = 0;

  Course(PixelPoint from, PixelPoint to, bool is_flat)
      : along(alongOf(from, is_flat)), across(acrossOf(from, is_flat)), end(alongOf(to, is_flat)) {
    const double run = end - along;
    const double rise = acrossOf(to, is_flat) - across;
    length = std::sqrt(run * run + rise * rise);
    if (length == 0) return;
    slope = rise / run;
    cosine = run / length;
    sine = rise / length;
  }

  /// The middle of the line in a column.
  double middle(int column) const { return across + slope * (column + 0.5 - along); }

  /// From the centre of a pixel, given by its column and its place across.
  double distance(int column, int pixel) const {
    const double run = column + 0.5 - along;
    const double rise = pixel + 0.5 - across;
    const double ahead = run * cosine + rise * sine;
    if (ahead > 0 && ahead < length) return std::fabs(rise * cosine - run * sine);
    const double more_run = ahead > 0 ? run - length * cosine : run;
    const double more_rise = ahead > 0 ? rise - length * sine : rise;
    return std::sqrt(more_run * more_run + more_rise * more_rise);
  }
};

int Stroke::marginFor(double half_width) {
  // A line may lie its reach outside, go on so far beyond its end, and is wider where it slopes.
  return static_cast<int>(std::ceil(3.5 * (std::max(half_width, kFall) + kFall))) + 2;
}

Stroke::Stroke(CoverageMask& mask, double half_width)
    : mask_(mask), half_width_(std::max(half_width, kFall)), reach_(half_width_ + kFall) {}

void Stroke::line(PixelPoint from, PixelPoint to, LineEnds ends) {
  if (!clipLine(from, to, boxAround(mask_, reach_))) return;
  const bool is_flat = isFlat(from, to);
  if (alongOf(to, is_flat) < alongOf(from, is_flat)) {
    std::swap(from, to);
    std::swap(ends.start, ends.end);
  }
  const Course course(from, to, is_flat);
  is_flat ? draw<true>(course, ends) : draw<false>(course, ends);
}

void Stroke::dot(PixelPoint centre, double radius) {
  const double reach = std::max(radius, kFall) + kFall;
  if (!boxAround(mask_, reach).holds(centre)) return;
  const Course course(centre, centre, true);
  drawCapsule<true>(course, reach, columnFrom(centre.x - reach), columnFrom(centre.x + reach));
}

/// The body reaches as far as no end can be seen in its columns. Beyond it there is a round end,
/// or the neighbour's columns begin, or it goes on below the neighbour's rows.
template <bool is_flat>
void Stroke::draw(const Course& course, LineEnds ends) {
  const double slant = reach_ * std::fabs(course.sine);
  const auto inset = [slant](LineEnd end) {
    return end == LineEnd::round ? slant : end == LineEnd::crossed ? -slant : 0;
  };
  const int body_begin = columnFrom(course.along + inset(ends.start));
  const int body_end = columnFrom(course.end - inset(ends.end));
  const int begin = columnFrom(course.along - reach_);
  const int end = columnFrom(course.end + reach_);
  if (body_begin >= body_end) {
    if (ends.start == LineEnd::round || ends.end == LineEnd::round)
      drawCapsule<is_flat>(course, reach_, begin, end);
    return;
  }
  if (ends.start == LineEnd::round) drawCapsule<is_flat>(course, reach_, begin, body_begin);
  drawBody<is_flat>(course, body_begin, body_end);
  if (ends.end == LineEnd::round) drawCapsule<is_flat>(course, reach_, body_end, end);
}

template <bool is_flat>
void Stroke::drawBody(const Course& course, int first, int last) {
  constexpr int kRun = is_flat ? CoverageMask::kTileWidth : CoverageMask::kTileHeight;
  first = std::max(first, 0);
  last = std::min(last, is_flat ? mask_.width() : mask_.height());
  const double width = 2 * reach_ / course.cosine;
  const Profile profile = {static_cast<int>(width) + 1, inUnits(reach_), inUnits(course.cosine)};
  const std::int64_t step = fixed(course.slope);
  std::int64_t place = fixed(course.middle(first) - width / 2 + 0.5);
  while (first < last) {
    const int stop = std::min(last, (first / kRun + 1) * kRun);
    const int top = static_cast<int>(place >> 32);
    const int bottom = static_cast<int>((place + step * (stop - first - 1)) >> 32);
    touch<is_flat>(first, std::min(top, bottom), stop - 1,
                   std::max(top, bottom) + profile.pixels - 1);
    for (; first < stop; ++first, place += step) {
      const int pixel = static_cast<int>(place >> 32);
      std::uint8_t* const covered = is_flat ? mask_.at(first, pixel) : mask_.at(pixel, first);
      profile.raiseColumn(covered, is_flat ? mask_.stride() : 1, static_cast<std::uint32_t>(place));
    }
  }
}

template <bool is_flat>
void Stroke::drawCapsule(const Course& course, double reach, int first, int last) {
  const double width = 2 * reach / course.cosine;
  const int across = is_flat ? mask_.height() : mask_.width();
  first = std::max(first, 0);
  last = std::min(last, is_flat ? mask_.width() : mask_.height());
  for (int column = first; column < last; ++column) {
    const double top = std::floor(course.middle(column) - width / 2 + 0.5);
    const int begin = static_cast<int>(std::max(top, 0.0));
    const int end = static_cast<int>(std::min(top + std::floor(width) + 1, 1.0 * across));
    if (begin >= end) continue;
    touch<is_flat>(column, begin, column, end - 1);
    for (int pixel = begin; pixel < end; ++pixel)
      raise(is_flat ? *mask_.at(column, pixel) : *mask_.at(pixel, column),
            inUnits(reach - course.distance(column, pixel)));
  }
}

template <bool is_flat>
void Stroke::touch(int first_column, int first_pixel, int last_column, int last_pixel) {
  if constexpr (is_flat)
    mask_.touch(first_column, first_pixel, last_column, last_pixel);
  else
    mask_.touch(first_pixel, first_column, last_pixel, last_column);
}

}  // namespace zel
