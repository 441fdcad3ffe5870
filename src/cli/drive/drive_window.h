#pragma once

#include <cstddef>
#include <deque>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/services.h"
#include "cli/console/progress.h"
#include "plot/session/plot_session.h"

namespace zel {

/// A message box, as it was shown.
struct ShownMessage {
  std::string_view kind;  // "information", "attention" or "report"
  std::string title;
  std::string text;
};

/// What a plot window shows to its user.
struct ShownPlot {
  StatusPanels panels;  // as shown last
  int redraws = 0;
  // Since the last command began:
  std::optional<std::vector<StatusPanels>> progress;  // while drawing; nothing without a redraw
  std::vector<ShownMessage> messages;
  std::string_view closed_to;  // "main" for good, "print" until the next command, or empty
};

/// The plot window without a window: keeps what would be shown, and answers what would be asked
/// with the answers that wait in a queue.
class DriveWindow : private PlotListener, private Screen, private Picture, private MessageBoxes {
 public:
  /// In bytes, one more for each.
  static constexpr std::size_t kMostAnswers = std::size_t{1} << 20;

  /// A long drawing shows its progress on `err`. All must outlive the window.
  DriveWindow(Engine& engine, const GraphTable& graphs, std::ostream& err)
      : session_(engine, graphs, *this, *this, *this), err_(err) {}

  PlotSession& session() { return session_; }
  const PlotSession& session() const { return session_; }

  /// The user begins something new: boxes are closed, and the print window too.
  void beginCommand();
  const ShownPlot& shown() const { return shown_; }
  /// Whether a view was refused, or failed.
  bool wasRefused() const { return was_refused_; }

  /// A line that will be typed into an input box; false when too many wait.
  bool queueAnswer(std::string_view answer);

 private:
  void pictureDrawn() override;
  void toolsChanged() override {}
  void showDrawingError(const std::string& message, std::optional<char> graph) override;
  void showInformation(const std::string& message) override;
  std::optional<std::string> askValue(const std::string&, const std::string&) override;
  void copyPicture(bool) override {}
  void openPrint() override { shown_.closed_to = "print"; }
  void returnToMain() override;

  void showStatus(const StatusPanels& panels) override { shown_.panels = panels; }
  void runPendingEvents() override;

  void clear() override;
  void beginAxes() override {}
  void line(Point, Point) override {}
  void beginGraph(char, std::int32_t) override { shown_.progress->push_back(shown_.panels); }
  void startPiece(Point) override {}
  void extendPiece(Point) override {}
  void dot(Point, double) override {}

  BoxAnswer show(const std::string& text, const std::string& title, BoxStyle style) override;

  PlotSession session_;
  std::ostream& err_;
  ShownPlot shown_;
  std::deque<std::string> answers_;
  std::size_t answers_size_ = 0;
  std::optional<Progress> progress_;
  bool was_refused_ = false;
  bool is_report_ = false;  // the box that is shown
};

}  // namespace zel
