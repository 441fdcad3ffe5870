#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "engine/engine.h"
#include "graphs/graph_table.h"
#include "pictures/picture.h"
#include "plot/axes.h"
#include "plot/drawing.h"
#include "plot/screen.h"
#include "plot/viewport.h"

/// A plot as a picture file, without a plot window.
namespace zel {

inline constexpr int kLongestSide = 32767;         // pixels
inline constexpr long long kMostPixels = 1 << 27;  // of a whole picture
inline constexpr int kLeastWidth = 100;  // pixels; samples are counted by hundreds of them

/// What a plot is opened with.
struct OpenedView {
  ViewSettings view;
  ScaleMarks marks;
};

struct PictureJob {
  std::string ending;  // the file's format: "svg", "png" or "pdf"
  int width = 0;       // pixels of 15 twips
  int height = 0;
  OpenedView opened;
  double scale = 1;  // how many times as large it is shown
};

/// Asked now and then while a picture is drawn, with what a status bar would show, and while a file
/// is made ready for the drawing and made of it, when nothing would be shown. All is given up when
/// it answers false. Pending events may run in it.
using DrawingWatcher = std::function<bool(const StatusPanels&)>;

/// The bytes of a file, or why there are none, in Spanish for Localize. Neither when the drawing
/// was given up.
struct PictureFile {
  std::string bytes;
  std::string_view message;
};

/// Draws all graphs. The engine's values are those that graphs find when they are drawn.
PictureFile drawPictureFile(const PictureJob& job, Engine& engine, const GraphTable& graphs,
                            const DrawingWatcher& goes_on);

/// The same on any picture of this size.
RedrawOutcome drawOpenedView(const OpenedView& opened, const PictureSize& size, Engine& engine,
                             const GraphTable& graphs, Picture& picture,
                             const DrawingWatcher& goes_on);

}  // namespace zel
