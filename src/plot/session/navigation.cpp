// Pans and zooms move the ends of the range by a sixth of its width. The wheel keeps the point
// below the pointer where it is, with the factors that the zoom buttons have.

#include "plot/session/navigation.h"

#include <cmath>

namespace zel {
namespace {

constexpr double kPartOfView = 6;

double xShare(const ViewSettings& view) { return (view.xf - view.xi) / kPartOfView; }
double yShare(const ViewSettings& view) { return (view.yf - view.yi) / kPartOfView; }

}  // namespace

void shiftUp(ViewSettings& view, double distance) {
  view.yi += distance;
  view.yf += distance;
}

void shiftDown(ViewSettings& view, double distance) {
  view.yi -= distance;
  view.yf -= distance;
}

void shiftLeft(ViewSettings& view, double distance) {
  view.xi -= distance;
  view.xf -= distance;
}

void shiftRight(ViewSettings& view, double distance) {
  view.xi += distance;
  view.xf += distance;
}

ViewSettings panned(ViewSettings view, PlotCommand direction) {
  switch (direction) {
    case PlotCommand::arriba: shiftUp(view, yShare(view)); break;
    case PlotCommand::abajo: shiftDown(view, yShare(view)); break;
    case PlotCommand::izquierda: shiftLeft(view, xShare(view)); break;
    case PlotCommand::derecha: shiftRight(view, xShare(view)); break;
    default: break;
  }
  return view;
}

ViewSettings zoomed(ViewSettings view, Zoom zoom) {
  const double sign = zoom == Zoom::in ? 1 : -1;
  const double dx = xShare(view);
  const double dy = yShare(view);
  view.xi += sign * dx;
  view.xf -= sign * dx;
  view.yi += sign * dy;
  view.yf -= sign * dy;
  return view;
}

ViewSettings zoomedAbout(const ViewSettings& view, Zoom zoom, double x, double y) {
  const double factor = zoom == Zoom::in ? 2.0 / 3 : 4.0 / 3;
  ViewSettings result = view;
  result.xi = x - (x - view.xi) * factor;
  result.xf = x + (view.xf - x) * factor;
  result.yi = y - (y - view.yi) * factor;
  result.yf = y + (view.yf - y) * factor;
  return result;
}

bool isFinite(const ViewSettings& view) {
  return std::isfinite(view.xi) && std::isfinite(view.xf) && std::isfinite(view.yi) &&
         std::isfinite(view.yf);
}

}  // namespace zel
