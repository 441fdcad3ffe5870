#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "pictures/picture.h"
#include "plot/axes.h"
#include "plot/drawing.h"
#include "plot/mark_numbers.h"
#include "plot/screen.h"
#include "plot/session/navigation.h"
#include "plot/session/plot_command.h"
#include "plot/session/trace.h"
#include "plot/session/walk.h"
#include "plot/session/zoom_rectangle.h"
#include "plot/viewport.h"

namespace zel {

/// What the mouse does on the picture: "NORMAL", "RECORRIDO" or "ZOOM".
enum class PlotMode { normal, recorrido, zoom };

enum class MouseButton { none, left, right, other };

/// The cross on the traced point, and the picture of the slope beside it.
struct TraceCursor {
  Point place;  // on the picture, and perhaps outside of it after a search
  Slope slope = Slope::igual;

  bool operator==(const TraceCursor&) const = default;
};

/// The window around a plot. Events may run inside of each call.
class PlotListener {
 public:
  virtual ~PlotListener() = default;

  /// The picture has been drawn, or cleared where its range is refused.
  virtual void pictureDrawn() = 0;
  /// The mode, the cursor, the zoom rectangle, the active graph or what is shown of numbers is no
  /// longer what it was.
  virtual void toolsChanged() = 0;
  /// Why the view was not drawn, in the current language, and the graph that was being drawn, or
  /// the active one where none was. Shown until the user has seen it.
  virtual void showDrawingError(const std::string& message, std::optional<char> graph) = 0;
  /// The same for what the user wanted to know.
  virtual void showInformation(const std::string& message) = 0;
  /// What the user types; nothing, or an empty text, when that was cancelled.
  virtual std::optional<std::string> askValue(const std::string& prompt,
                                              const std::string& title) = 0;
  /// The picture goes to the clipboard as it is, or with the numbers over it.
  virtual void copyPicture(bool with_numbers) = 0;
  /// The view goes to the print window, which is shown.
  virtual void openPrint() = 0;
  /// The view goes back to the main window, which is shown again.
  virtual void returnToMain() = 0;
};

/// What the plot window does, without the window. Every call may arrive while a drawing is under
/// way, or a trace, a search or a pick, from the pending events that they let run: what is out of
/// date ends by itself. One more trace, search or pick meanwhile does nothing.
class PlotSession {
 public:
  static constexpr double kSmallestSide = 1000;  // twips

  /// All must outlive the session. The graphs are those of each moment.
  PlotSession(Engine& engine, const GraphTable& graphs, Picture& picture, Screen& screen,
              PlotListener& listener);

  /// Takes a view and the scale marks; drawFirst or redraw draws them. A drawing of an earlier view
  /// ends. The mode is "NORMAL".
  /// Of the graphs the first in letter order is active.
  void open(const ViewSettings& view, const ScaleMarks& marks);
  /// Ends a drawing; nothing more is drawn until the next open.
  void close();
  bool isOpen() const { return state_ != State::closed; }

  /// Draws the view if nothing has been drawn since it was opened.
  void drawFirst();
  /// Draws the view; a point that is being traced stays traced while it is in the view. When that
  /// is refused or fails, the listener shows why and then returns to the main window; meanwhile
  /// nothing is drawn.
  void redraw();

  /// Whether the view is being drawn; the panels tell of the drawing meanwhile.
  bool isDrawing() const { return drawing_.isUnderWay(); }

  /// Whether a picture that follows its window takes this size: a smaller one stays as it was.
  static bool takesSize(const PictureSize& size);
  /// The picture has this size, which must be one that it takes. The mode is "NORMAL" again and the
  /// view is redrawn, once it has been drawn at all.
  void resize(const PictureSize& size);

  /// A button of the toolbar. One that is not enabled does nothing.
  void execute(PlotCommand command);
  bool isEnabled(PlotCommand command) const;
  /// As the button that copies, with the numbers, whether they are shown or not.
  void copyWithNumbers();

  /// A key on the picture, as its character code: Esc and Space stop a long drawing, a capital "C"
  /// shows the active graph's code, "+" and "-" zoom as the buttons do, "n" and "N" switch the
  /// numbers.
  void keyPressed(char32_t key);

  /// The mouse on the picture, at a place in twips.
  void mouseDown(MouseButton button, Point mouse);
  void mouseMove(MouseButton held, Point mouse);
  void mouseUp(MouseButton button, Point mouse);
  /// The mouse is no longer on the picture.
  void mouseLeft();
  /// Zooms about the place under the mouse.
  void wheelTurned(Zoom zoom, Point mouse);

  /// The next or the previous graph in use becomes the active one; the mode is "NORMAL".
  void activateNext();
  void activatePrevious();
  /// The same with a graph that is chosen by its letter; nothing where there is no such graph.
  void choose(char letter);
  /// Makes a graph in use the active one; false when there is no such graph.
  bool activate(char letter);
  /// The active graph's letter; nothing in a document without graphs.
  std::optional<char> activeGraph() const { return active_; }

  /// Shows numbers at the marks, a grid, and the coordinates beside the pointer, or hides them.
  /// They are hidden at first, and stay as they are from one opening to the next.
  void toggleNumbers();
  bool showsNumbers() const { return shows_numbers_; }
  /// The numbers and the grid of the view that is drawn, shown or not; none while there is none.
  NumberLayer numbers(const TextMeasure& measure) const;
  /// The coordinates beside the pointer, while they are shown.
  std::optional<PictureLabel> coordinates(const TextMeasure& measure) const;

  void setMode(PlotMode mode);
  PlotMode mode() const { return mode_; }

  /// The cursor while it is shown, and the plane x of the last trace point; 0 before the first.
  const std::optional<TraceCursor>& cursor() const { return cursor_; }
  double tracePosition() const { return trace_x_; }
  /// The rectangle while it is dragged.
  std::optional<ZoomRectangle> zoomRectangle() const;

  /// The view as it is, and as it was when it was opened.
  const ViewSettings& view() const { return viewport_.view; }
  const ViewSettings& openedView() const { return opened_view_; }
  const PictureSize& pictureSize() const { return viewport_.size; }
  /// How the view lies on the picture, once it has been drawn.
  const Viewport& viewport() const { return viewport_; }

 private:
  enum class State {
    closed,
    opened,  // and not drawn yet
    drawn,
    refused,  // the message is being shown
  };

  bool isDrawn() const { return state_ == State::drawn; }
  void report(RedrawOutcome outcome);
  /// Draws the view; false when that was not done to its end.
  bool drawView();
  /// A view to be drawn next. One that leads beyond the range of a double fails like a drawing, and
  /// is not taken.
  bool takeView(const ViewSettings& view);

  void activateFirst();
  void makeActive(const GraphDef* def);
  void setActive(char letter);
  /// A copy, for what lets events run; an empty definition in a document without graphs.
  GraphDef activeDef() const;

  void pan(PlotCommand direction);
  void zoomTo(const ViewSettings& view);
  void toggleZoom();
  void followMouse(MouseButton held, Point mouse);
  void applyRectangle();
  void pick(Point mouse);

  /// Does what may be a long walk, unless one is under way.
  void walkOnce(const std::function<void()>& task);
  /// A walk that another mode, view or active graph ends.
  Walk beginWalk();

  /// In the mode "RECORRIDO", which a step that finds nothing ends.
  void trace(double x, int direction);
  void startTrace(double x, int direction);
  void placeCursor(PlanePoint cursor, PlanePoint traced, bool to_the_left);
  /// "P=" and its value for a family, else an empty text.
  std::string parameterText(const GraphDef& def) const;
  void search();
  void calculateValues();
  void copy(bool with_numbers);

  Engine& engine_;
  const GraphTable& graphs_;
  Drawing drawing_;
  Screen& screen_;
  PlotListener& listener_;
  Viewport viewport_;
  ViewSettings opened_view_;
  ScaleMarks marks_;
  PlotMode mode_ = PlotMode::normal;
  std::optional<char> active_;
  double trace_x_ = 0;             // of the last trace point
  std::optional<double> trace_y_;  // the same, where it was on the active graph
  std::optional<TraceCursor> cursor_;
  ZoomRectangle rectangle_;
  bool is_dragging_ = false;    // the rectangle, which is shown
  bool drags_in_mode_ = false;  // the left button went down in this mode, and has not come up
  bool ignores_press_ = false;  // with what belongs to it, until the button is up
  State state_ = State::closed;
  std::uint64_t opened_count_ = 0;  // tells one opening from the next
  std::uint64_t changes_ = 0;       // of mode, view and active graph
  bool is_walking_ = false;
  bool shows_numbers_ = false;
  std::optional<Point> pointer_;  // of the mouse, on the picture
};

}  // namespace zel
