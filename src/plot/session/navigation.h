#pragma once

#include "plot/session/plot_command.h"
#include "plot/viewport.h"

/// How a view moves over the plane. None of this looks for overflow: see isFinite.
namespace zel {

/// Each adds a distance in plane units to both ends of one range, or takes it away.
void shiftUp(ViewSettings& view, double distance);
void shiftDown(ViewSettings& view, double distance);
void shiftLeft(ViewSettings& view, double distance);
void shiftRight(ViewSettings& view, double distance);

/// The view a sixth of its size further on; the command is one of the four that pan.
ViewSettings panned(ViewSettings view, PlotCommand direction);

enum class Zoom { in, out };

/// A sixth of each range less or more at each end. In and out are not inverse: in followed by out
/// leaves eight ninths of the range, which is meant.
ViewSettings zoomed(ViewSettings view, Zoom zoom);

/// The same factors about a point of the plane, which stays where it is on the picture.
ViewSettings zoomedAbout(const ViewSettings& view, Zoom zoom, double x, double y);

/// Whether all four ends are numbers.
bool isFinite(const ViewSettings& view);

}  // namespace zel
