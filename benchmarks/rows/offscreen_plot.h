#pragma once

#include <optional>
#include <string>

#include "engine/engine.h"
#include "forms/plot/panel_bar.h"
#include "forms/plot/picture_box.h"
#include "forms/plot/plot_screen.h"
#include "graphs/graph_table.h"
#include "pictures/drawing_list.h"
#include "plot/session/plot_session.h"

namespace zel::bench {

/// A plot window of 1920 x 1080 pixels as far as drawing goes: its session, its picture and its
/// bar, none of which is shown.
class OffscreenPlot : private PlotListener {
 public:
  OffscreenPlot(const GraphTable& graphs, const ViewSettings& view, const ScaleMarks& marks);

  /// Throws a std::runtime_error when the view is refused.
  void redraw();

  PictureBox& picture() { return picture_; }

 private:
  void pictureDrawn() override { picture_.showDrawn(); }
  void toolsChanged() override {}
  void showDrawingError(const std::string& message, std::optional<char>) override {
    refusal_ = message;
  }
  void showInformation(const std::string&) override {}
  std::optional<std::string> askValue(const std::string&, const std::string&) override {
    return std::nullopt;
  }
  void copyPicture(bool) override {}
  void openPrint() override {}
  void returnToMain() override {}

  Engine engine_;
  PictureBox picture_;
  PanelBar bar_{"StatusBar1"};
  PlotScreen screen_{picture_, bar_};
  PlotSession session_;
  std::string refusal_;
};

}  // namespace zel::bench
