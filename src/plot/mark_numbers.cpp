// Which numbers stand at the marks. Candidates are the marks of an axis from its first one on, by a
// stride of 1, 2, 5, 10 and so on that leaves room for the widest of their texts; the stride counts
// from zero where marks are multiples of their distance, so that numbers are round. Texts are
// rounded to a small part of the distance, which takes the noise of repeated addition away. Boxes
// are pushed onto the picture and laid one after the other; one that would cover another is left
// out, the numbers of the x axis being the first.

#include "plot/mark_numbers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "plot/rounded_text.h"

namespace zel {
namespace {

constexpr double kHalfMark = 40;      // twips from an axis to the end of its marks
constexpr double kGap = 25;           // twips between texts, and from a text to what it stands at
constexpr double kPointerGap = 180;   // twips from the pointer, which is not to lie on its text
constexpr double kNearest = 450;      // twips from number to number, where no marks say more
constexpr int kDigitsOfDistance = 4;  // behind the first one of what is counted by
constexpr double kMostIndex = 1e15;   // marks are counted exactly below
constexpr std::array<int, 3> kStrides = {1, 2, 5};

/// One range of the view, and the marks whose numbers are looked for.
struct Direction {
  double first;     // lower end, plane units
  double last;      // upper end
  double scale;     // twips per plane unit
  double mark;      // the first one
  double distance;  // from mark to mark
};

struct MarkNumber {
  double value;
  std::string text;
};

/// Round numbers in the place of marks.
std::optional<Direction> roundMarks(Direction range) {
  range.distance = unitOfPlace(placeOf(kNearest / range.scale));
  range.mark = std::ceil(range.first / range.distance) * range.distance;
  const bool steps =
      range.last + range.distance > range.last && range.first - range.distance < range.first;
  if (!steps || !std::isfinite(range.mark)) return std::nullopt;
  return range;
}

/// The marks of a range; nothing where it is drawn upside down, or as good as empty.
std::optional<Direction> marksOf(double first, double last, double scale, double distance,
                                 bool shown) {
  if (!(first < last)) return std::nullopt;
  const Direction range = {first, last, scale, first, distance};
  const auto mark = shown && distance > 0 ? firstMark(first, last, distance) : std::nullopt;
  if (!mark || !std::isfinite(*mark)) return roundMarks(range);
  return Direction{first, last, scale, *mark, distance};
}

/// How many distances the first mark lies from zero; 0 where it is no multiple.
double firstIndex(const Direction& range) {
  constexpr double kTolerance = 1e-6;
  const double index = std::round(range.mark / range.distance);
  const bool is_multiple =
      std::fabs(range.mark - index * range.distance) <= kTolerance * range.distance;
  return is_multiple && std::fabs(index) < kMostIndex ? index : 0;
}

/// The marks at a stride, of which there are as many as fit beside one another. They are reached by
/// repeated addition as the marks are drawn, unless those are closer together than pixels.
std::vector<MarkNumber> marksAtStride(const Direction& range, double stride) {
  std::vector<MarkNumber> marks;
  const bool is_dense = range.distance * range.scale < kTwipsPerPixel;
  const double by = is_dense ? stride : 1;
  double index = firstIndex(range);
  double value = range.mark;
  if (is_dense) {
    const double past = std::fmod(index, stride);
    const double skipped = past > 0 ? stride - past : -past;
    index += skipped;
    value += skipped * range.distance;
  }
  const int decade = placeOf(by * range.distance) - kDigitsOfDistance;
  for (; value <= range.last; index += by) {
    // Where each step is a stride, an index that is no longer exact must not tell.
    if (is_dense || std::fmod(index, stride) == 0)
      marks.push_back({value, roundedText(value, decade)});
    const double next = value + by * range.distance;
    if (next == value) break;
    value = next;
  }
  return marks;
}

/// Whether texts of this stride stand clear of one another; `across` is their size along the axis.
template <class Across>
bool haveRoom(const std::vector<MarkNumber>& marks, double room, const Across& across) {
  return std::ranges::all_of(
      marks, [&](const MarkNumber& mark) { return across(mark.text) + 2 * kGap <= room; });
}

template <class Across>
std::vector<MarkNumber> spacedMarks(const Direction& range, const Across& across) {
  const double least = across("0") + 2 * kGap;
  for (double decade = 1; std::isfinite(decade * range.distance); decade *= 10) {
    for (const int stride : kStrides) {
      const double room = decade * stride * range.distance * range.scale;
      if (!(room >= least)) continue;
      std::vector<MarkNumber> marks = marksAtStride(range, decade * stride);
      if (haveRoom(marks, room, across)) return marks;
    }
  }
  return {};
}

bool areApart(const PictureLabel& one, const PictureLabel& other) {
  return one.corner.x + one.width + kGap <= other.corner.x ||
         other.corner.x + other.width + kGap <= one.corner.x ||
         one.corner.y + one.height <= other.corner.y ||
         other.corner.y + other.height <= one.corner.y;
}

/// Pushes a label onto a picture, a little from its edges; false when it is too large for it.
bool pushOnto(const PictureSize& picture, PictureLabel& label) {
  const double right = picture.scale_width - kGap - label.width;
  const double bottom = picture.scale_height - kGap - label.height;
  if (right < kGap || bottom < kGap) return false;
  label.corner = {std::clamp(label.corner.x, kGap, right),
                  std::clamp(label.corner.y, kGap, bottom)};
  return true;
}

/// Lays numbers and grid lines on a picture.
class Layout {
 public:
  Layout(const Viewport& viewport, const TextMeasure& measure)
      : viewport_(viewport),
        measure_(measure),
        axis_(viewport.map(0, 0)),
        sees_x_axis_(0 <= axis_.y && axis_.y <= viewport.size.scale_height),
        sees_y_axis_(0 <= axis_.x && axis_.x <= viewport.size.scale_width) {
    layer_.font_size = measure.font_size;
  }

  void addX(const Direction& range) {
    const auto marks =
        spacedMarks(range, [&](std::string_view text) { return measure_.width(text); });
    for (const MarkNumber& mark : marks) {
      const double px = viewport_.mapX(mark.value);
      const double width = measure_.width(mark.text);
      const bool is_at_axis = mark.text == "0" && sees_y_axis_;
      if (!is_at_axis) layer_.grid.push_back({{px, 0}, {px, viewport_.size.scale_height}});
      if (is_at_axis && !sees_x_axis_) continue;  // among the other axis's numbers it would mislead
      place(mark.text, {is_at_axis ? besideAxis(width, width) : px - width / 2, belowAxis()});
    }
  }

  void addY(const Direction& range) {
    const auto marks = spacedMarks(range, [&](std::string_view) { return measure_.height; });
    double widest = 0;
    for (const MarkNumber& mark : marks) widest = std::max(widest, measure_.width(mark.text));
    for (const MarkNumber& mark : marks) {
      const double py = viewport_.mapY(mark.value);
      const bool is_at_axis = mark.text == "0" && sees_x_axis_;
      if (!is_at_axis) layer_.grid.push_back({{0, py}, {viewport_.size.scale_width, py}});
      if (is_at_axis && !sees_y_axis_) continue;
      place(mark.text, {besideAxis(measure_.width(mark.text), widest),
                        is_at_axis ? belowAxis() : py - measure_.height / 2});
    }
  }

  NumberLayer layer() && { return std::move(layer_); }

 private:
  /// Where a text stands at the y axis: to its left, or where the widest has no room to its right.
  double besideAxis(double width, double widest) const {
    const double end = axis_.x - kHalfMark - kGap;
    return end < widest && axis_.x >= 0 ? axis_.x + kHalfMark + kGap : end - width;
  }

  /// Where texts stand at the x axis: below it, or where there is no room above it.
  double belowAxis() const {
    const double height = viewport_.size.scale_height;
    const double top = axis_.y + kHalfMark + kGap;
    const bool is_cut = top + measure_.height > height && axis_.y <= height;
    return is_cut ? axis_.y - kHalfMark - kGap - measure_.height : top;
  }

  void place(const std::string& text, Point corner) {
    PictureLabel label = {text, corner, measure_.width(text), measure_.height};
    if (!pushOnto(viewport_.size, label)) return;
    const bool is_free = std::ranges::all_of(
        layer_.labels, [&](const PictureLabel& other) { return areApart(label, other); });
    if (is_free) layer_.labels.push_back(std::move(label));
  }

  const Viewport& viewport_;
  const TextMeasure& measure_;
  Point axis_;  // where they cross
  bool sees_x_axis_;
  bool sees_y_axis_;
  NumberLayer layer_;
};

}  // namespace

NumberLayer markNumbers(const Viewport& viewport, const ScaleMarks& marks,
                        const TextMeasure& measure) {
  const ViewSettings& view = viewport.view;
  Layout layout(viewport, measure);
  if (const auto range =
          marksOf(view.xi, view.xf, viewport.xScale(), marks.escala_x, marks.x_shown))
    layout.addX(*range);
  if (const auto range =
          marksOf(view.yi, view.yf, viewport.yScale(), marks.escala_y, marks.y_shown))
    layout.addY(*range);
  return std::move(layout).layer();
}

std::optional<PictureLabel> pointerLabel(const Viewport& viewport, Point pointer,
                                         const TextMeasure& measure) {
  const double x = viewport.planeX(pointer.x);
  const double y = viewport.planeY(pointer.y);
  if (!std::isfinite(x) || !std::isfinite(y)) return std::nullopt;
  const auto text = [](double value, double scale) {
    return roundedText(value, placeOf(kTwipsPerPixel / scale));
  };
  PictureLabel label;
  label.text = "X=" + text(x, viewport.xScale()) + "  Y=" + text(y, viewport.yScale());
  label.width = measure.width(label.text);
  label.height = measure.height;
  label.corner = {pointer.x + kPointerGap, pointer.y + kPointerGap};
  if (label.corner.x + label.width + kGap > viewport.size.scale_width)
    label.corner.x = pointer.x - kPointerGap - label.width;
  if (label.corner.y + label.height + kGap > viewport.size.scale_height)
    label.corner.y = pointer.y - kPointerGap - label.height;
  return pushOnto(viewport.size, label) ? std::optional(label) : std::nullopt;
}

}  // namespace zel
