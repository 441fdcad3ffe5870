#pragma once

#include <string_view>

#include "engine/engine.h"
#include "graphs/graph_def.h"
#include "pictures/picture.h"
#include "plot/curves/sample_grid.h"
#include "plot/screen.h"
#include "plot/viewport.h"

/// How each kind of graph is sampled and drawn. A curve is broken only at samples that fail to
/// evaluate or fall outside the view; consecutive drawable samples are always joined.
namespace zel {

/// Says whether a long drawing goes on; asked once per sample of a parametric curve and per member
/// of a family, after pending events ran.
class DrawingFlag {
 public:
  virtual ~DrawingFlag() = default;
  virtual void set(bool in_progress) = 0;
  virtual bool isSet() const = 0;
  /// Whether another redraw owns the picture by now; asked wherever pending events ran.
  virtual bool isAbandoned() const = 0;
  /// A click has picked another member of a family while events ran: that "p" is to hold as soon
  /// as the graph is drawn.
  virtual void keepParameter(double p) = 0;
};

/// What a curve is drawn with.
struct CurveTools {
  const Viewport& viewport;
  const SampleGrid& grid;
  Engine& engine;
  Picture& picture;
  Screen& screen;
  DrawingFlag& in_progress;
};

/// Samples the code on the grid.
void sweepFunction(const CurveTools& tools, std::string_view code);

/// Draws the branches "codigo1" and "codigo2" of a conic, then joins their ends with its vertices.
/// False when a parameter that the joining needs is no number.
bool sweepBranches(const CurveTools& tools, const GraphDef& def);

/// Samples "codigo_xt" and "codigo_yt" from "inicio" to "fin" by "variacion". Each sample in the
/// view is marked by a dot, and the line goes on across those that are not: this is meant. A
/// "variacion" other than 0 that no longer advances ends the curve; one of 0 goes on until it is
/// stopped. False when one of the three is no number.
bool sweepParametric(const CurveTools& tools, const GraphDef& def);

/// Sweeps the graph's code once for each value of the parameter "p" from "inicio" to "fin" by
/// "variacion"; bounds and result as with a parametric curve.
bool sweepFamily(const CurveTools& tools, const GraphDef& def);

}  // namespace zel
