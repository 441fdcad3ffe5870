#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "app/editor/field_hints.h"
#include "engine/engine.h"
#include "files/document.h"
#include "graphs/graph_builders.h"
#include "graphs/graph_table.h"
#include "pictures/picture.h"
#include "pictures/picture_size.h"
#include "plot/viewport.h"

namespace zel {

/// What the graph editor holds.
struct EditedGraph {
  char letter = 'a';
  std::int32_t colour = 0;
  GraphFields fields;
  std::optional<char> changed;  // the graph that was opened to be changed
};

/// What became of a preview.
enum class Preview {
  drawn,
  unseen,    // nothing of the graph lies in the view
  given_up,  // it took too long; what was drawn of it stays
  no_graph,  // the fields make none
  no_view,   // the range cannot be drawn
};

/// The view that a preview shows: the range as it stands in the main window, in its best quality.
/// Nothing when that is no range.
std::optional<ViewSettings> previewView(const MainView& view);

/// What is said beside a preview, in the current language: the range in two lines, or why
/// there is no whole curve.
std::string previewText(Preview preview, const ViewSettings& view);

/// Accepts and draws a graph on a copy of the table with engines of its own: nothing of the
/// program changes, neither graphs nor the engine with its parse cache, "t" and "p".
class GraphTrial {
 public:
  GraphTrial(const GraphTable& graphs, const EditedGraph& edited);

  const FieldHint& letterHint() const { return letter_hint_; }
  /// A hint for each field of the kind. A preview adds those of formulas that have no value.
  const std::vector<FieldHint>& fieldHints() const { return field_hints_; }
  /// The field that an accept refuses, the first one in the form; nothing when there is none.
  std::optional<std::size_t> faultyField() const { return firstFault(field_hints_); }

  /// Clears the picture and draws pale axes and the graph in its colour. The proportional rule may
  /// change the view. `goes_on` is asked between samples; once it says no, the drawing ends.
  Preview draw(ViewSettings& view, PictureSize size, Picture& picture,
               const std::function<bool()>& goes_on);

 private:
  void tellWhatHasNoValue(const Viewport& viewport, const std::function<bool()>& goes_on);

  GraphTable graphs_;
  Engine engine_{[this](char letter) { return graphs_.codeOf(letter); }};
  FieldHint letter_hint_;
  std::vector<FieldHint> field_hints_;
  std::optional<GraphDef> graph_;  // what the fields make
};

}  // namespace zel
