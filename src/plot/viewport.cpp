// The view is laid on the picture by one scale a direction, and the mapping floors, so that the
// same sample lands on the same twip whatever is drawn. Refusals come in a fixed order: what
// overflows, then an x range too close for a step to leave its left end, then one so large that the
// scales vanish.

#include "plot/viewport.h"

#include <cmath>

#include "numbers/number_text.h"

namespace zel {

RangeVerdict Viewport::prepare() {
  const auto count = sampleCount();
  if (!count || (view.mantener_prop && !makeProportional())) return RangeVerdict::failed;
  const double x_range = std::fabs(view.xf - view.xi);
  const double y_range = std::fabs(view.yf - view.yi);
  if (!std::isfinite(x_range) || !std::isfinite(y_range)) return RangeVerdict::failed;
  x_scale_ = size.scale_width / x_range;
  y_scale_ = size.scale_height / y_range;
  x_step_ = x_range / *count;
  y_step_ = y_range / *count;
  // Equal ends make the scale a division by zero too, but it is their closeness that counts.
  if (view.xi + x_step_ == view.xi) return RangeVerdict::too_close;
  const double product = y_scale_ * x_scale_ * *count;
  for (const double value : {x_scale_, y_scale_, x_step_, y_step_, view.xi + x_step_, product}) {
    if (!std::isfinite(value)) return RangeVerdict::failed;
  }
  return product == 0 ? RangeVerdict::too_large : RangeVerdict::drawable;
}

double Viewport::mapX(double x) const { return std::floor((x - view.xi) * x_scale_); }

double Viewport::mapY(double y) const { return std::floor((view.yf - y) * y_scale_); }

bool Viewport::isInside(double x, double y) const {
  return view.xi <= x && x <= view.xf && view.yi <= y && y <= view.yf;
}

std::optional<std::int16_t> Viewport::sampleCount() const {
  const auto pixels = roundToInt32(size.pixel_width);
  if (!pixels) return std::nullopt;
  const std::int32_t hundreds = *pixels / 100;
  return roundToInt16(static_cast<double>(hundreds) * view.definicion);
}

bool Viewport::makeProportional() {
  const double w = std::fabs(view.xf - view.xi);
  const double h = size.height * w / size.width;
  const double c = (view.yf - view.yi) / 2 + view.yi;
  const double yf = c + h / 2;
  const double yi = c - h / 2;
  if (!std::isfinite(yf) || !std::isfinite(yi)) return false;
  view.yf = yf;
  view.yi = yi;
  return true;
}

}  // namespace zel
