#pragma once

#include <cstdint>
#include <exception>
#include <optional>
#include <string_view>

#include "engine/engine.h"
#include "graphs/graph_table.h"
#include "pictures/picture.h"
#include "plot/axes.h"
#include "plot/curves/curve.h"
#include "plot/screen.h"
#include "plot/viewport.h"

namespace zel {

/// What became of a redraw.
enum class RedrawOutcome {
  drawn,
  abandoned,  // another redraw began inside of it, or it was given up: the picture is not its own
  too_close,
  too_large,
  failed,
};

/// The message of a refused or failed redraw in Spanish, for Localize; empty for the others.
std::string_view redrawMessage(RedrawOutcome outcome);

/// The status panels that show the range of a view.
StatusPanels rangeStatus(const ViewSettings& view);

/// Draws axes and graphs on a picture. Pending events run inside a redraw, and may stop a long
/// drawing or begin another redraw: the older one then ends at its next look, without a trace.
/// Events that come faster than a picture is drawn would let redraws begin inside one another
/// without end: the last of kMostNested begins anew in the place of one more, which is abandoned
/// at once.
class Drawing {
 public:
  static constexpr int kMostNested = 8;

  /// All must outlive the drawing.
  Drawing(Engine& engine, const GraphTable& graphs, Picture& picture, Screen& screen);

  /// Clears the picture and draws the view, which the proportional rule may change first. A refused
  /// range draws nothing; a failure leaves what was drawn before it. The range stands in the status
  /// bar after a whole redraw. The engine's "p" is what it was before, so that a trace goes on
  /// along the member of a family that was picked.
  RedrawOutcome redraw(Viewport& viewport, const ScaleMarks& marks);

  /// Whether a redraw has begun and not returned.
  bool isUnderWay() const { return nested_ > 0; }
  /// Whether a family or a parametric curve is being drawn.
  bool inProgress() const { return in_progress_; }
  /// The graph that is being drawn, or was when the last redraw failed; nothing where there is
  /// none.
  std::optional<char> graph() const { return graph_; }
  /// Ends the family or parametric curve that is being drawn; what it has drawn stays.
  void stop() { in_progress_ = false; }
  /// Ends a redraw that is under way, at its next look.
  void giveUp() {
    ++latest_;
    begins_anew_ = false;
  }

 private:
  /// The flag as one redraw sees it: an abandoned redraw finds it cleared.
  class Flag : public DrawingFlag {
   public:
    Flag(Drawing& drawing, std::uint64_t number) : drawing_(drawing), number_(number) {}
    void set(bool in_progress) override { drawing_.in_progress_ = in_progress; }
    bool isSet() const override { return drawing_.in_progress_ && !isAbandoned(); }
    bool isAbandoned() const override { return number_ != drawing_.latest_; }
    void keepParameter(double p) override { drawing_.parameter_ = p; }

   private:
    Drawing& drawing_;
    std::uint64_t number_;
  };

  /// One redraw that has begun. It ends tidily where memory runs out in it, too.
  class Nesting {
   public:
    explicit Nesting(Drawing& drawing) : drawing_(drawing) { ++drawing_.nested_; }
    Nesting(const Nesting&) = delete;
    Nesting& operator=(const Nesting&) = delete;
    ~Nesting();

   private:
    Drawing& drawing_;
    int exceptions_ = std::uncaught_exceptions();
  };

  RedrawOutcome drawOnce(Viewport& viewport, const ScaleMarks& marks);
  RedrawOutcome drawGraphs(const Viewport& viewport, Flag& flag);
  bool drawGraph(const CurveTools& tools, const GraphDef& def);
  bool drawFamily(const CurveTools& tools, const GraphDef& def);
  void putParameterBack();

  Engine& engine_;
  const GraphTable& graphs_;
  Picture& picture_;
  Screen& screen_;
  bool in_progress_ = false;
  std::optional<char> graph_;
  std::optional<double> parameter_;  // what the engine's "p" is to be after the graph
  std::uint64_t latest_ = 0;         // the number of the redraw that owns the picture
  int nested_ = 0;                   // redraws that have begun and not returned
  bool begins_anew_ = false;         // the last of them, as soon as it notices
};

}  // namespace zel
