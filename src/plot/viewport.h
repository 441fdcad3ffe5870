#pragma once

#include <cstdint>
#include <optional>

#include "pictures/picture.h"
#include "pictures/picture_size.h"

namespace zel {

/// The part of the plane that is shown, in plane units.
struct ViewSettings {
  double xi = -10;
  double yi = -10;
  double xf = 10;
  double yf = 10;
  std::int16_t definicion = 100;  // sample points per 100 pixels of picture width
  bool mantener_prop = false;     // one plane unit has the same length on both axes

  bool operator==(const ViewSettings&) const = default;
};

/// Why a view cannot be drawn.
enum class RangeVerdict { drawable, too_close, too_large, failed };

/// How the view lies on the picture. Mapping floors its result, and y grows upwards.
class Viewport {
 public:
  /// The view as it is asked for; prepare() makes the rest valid.
  ViewSettings view;
  PictureSize size;

  /// Makes the view proportional where that is wanted, computes scales and steps, and checks
  /// whether the range can be drawn. Only the x range decides whether it is too close: this is
  /// meant. Any other arithmetic overflow or division by zero is `failed`.
  RangeVerdict prepare();

  /// Picture coordinates in twips.
  double mapX(double x) const;
  double mapY(double y) const;
  Point map(double x, double y) const { return {mapX(x), mapY(y)}; }

  /// Whether a point of the plane is drawable; the edges of the view are.
  bool isInside(double x, double y) const;

  /// Plane coordinates of a place on the picture in twips: the inverse without the flooring.
  double planeX(double px) const { return px / x_scale_ + view.xi; }
  double planeY(double py) const { return view.yf - py / y_scale_; }

  double xScale() const { return x_scale_; }  // twips per plane unit
  double yScale() const { return y_scale_; }
  double xStep() const { return x_step_; }  // plane units from sample to sample
  double yStep() const { return y_step_; }

  /// Whole hundreds of pixels of width times `definicion`; nothing when that is no 16-bit integer.
  std::optional<std::int16_t> sampleCount() const;

 private:
  /// False, and the view as it was, when that leads beyond the range of a double.
  bool makeProportional();

  double x_scale_ = 0;
  double y_scale_ = 0;
  double x_step_ = 0;
  double y_step_ = 0;
};

}  // namespace zel
