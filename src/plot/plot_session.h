#pragma once

#include <cstdint>
#include <string>

#include "plot/axes.h"
#include "plot/drawing.h"
#include "plot/picture.h"
#include "plot/screen.h"
#include "plot/viewport.h"

namespace zel {

/// What the mouse does on the picture: "NORMAL", "RECORRIDO" or "ZOOM".
enum class PlotMode { normal, recorrido, zoom };

/// The window around a plot. Events may run inside of each call.
class PlotListener {
 public:
  virtual ~PlotListener() = default;

  /// The picture has been drawn, or cleared where its range is refused.
  virtual void pictureDrawn() = 0;
  /// Why the view was not drawn, in the current language. Shown until the user has seen it.
  virtual void showMessage(const std::string& message) = 0;
  /// The view goes back to the main window, which is shown again.
  virtual void returnToMain() = 0;
};

/// What the plot window does, without the window. Every call may arrive while a drawing is under
/// way, from the pending events that it lets run: a drawing that is out of date ends by itself.
class PlotSession {
 public:
  static constexpr double kSmallestSide = 1000;  // twips

  /// All must outlive the session. The graphs are those of each moment.
  PlotSession(Engine& engine, const GraphTable& graphs, Picture& picture, Screen& screen,
              PlotListener& listener);

  /// Takes a view and the scale marks; drawFirst or redraw draws them. A drawing of an earlier view
  /// ends. The mode is "NORMAL".
  void open(const ViewSettings& view, const ScaleMarks& marks);
  /// Ends a drawing; nothing more is drawn until the next open.
  void close();
  bool isOpen() const { return state_ != State::closed; }

  /// Draws the view if nothing has been drawn since it was opened.
  void drawFirst();
  /// Draws the view. When that is refused or fails, the listener shows why and then returns to the
  /// main window; meanwhile nothing is drawn.
  void redraw();

  /// Whether a picture that follows its window takes this size: a smaller one stays as it was.
  static bool takesSize(const PictureSize& size);
  /// The picture has this size, which must be one that it takes. The mode is "NORMAL" again and the
  /// view is redrawn, once it has been drawn at all.
  void resize(const PictureSize& size);

  /// A key on the picture, as its character code: Esc and Space stop a long drawing.
  void keyPressed(char32_t key);

  void setMode(PlotMode mode);
  PlotMode mode() const { return mode_; }

  /// The view as it is, and as it was when it was opened.
  const ViewSettings& view() const { return viewport_.view; }
  const ViewSettings& openedView() const { return opened_view_; }
  const PictureSize& pictureSize() const { return viewport_.size; }

 private:
  enum class State {
    closed,
    opened,  // and not drawn yet
    drawn,
    refused,  // the message is being shown
  };

  void report(RedrawOutcome outcome);

  Drawing drawing_;
  Screen& screen_;
  PlotListener& listener_;
  Viewport viewport_;
  ViewSettings opened_view_;
  ScaleMarks marks_;
  PlotMode mode_ = PlotMode::normal;
  State state_ = State::closed;
  std::uint64_t opened_count_ = 0;  // tells one opening from the next
};

}  // namespace zel
