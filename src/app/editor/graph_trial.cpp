// A trial is an accept on a copy. What the checks say becomes hints; where they pass, the graph is
// stored in the copy and drawn alone, so that its calls find the other graphs and itself as they
// would be. A drawing asks whether it may go on wherever the plot window would let events run.

#include "app/editor/graph_trial.h"

#include <array>
#include <charconv>
#include <utility>

#include "app/output/preview_picture.h"
#include "app/value_survey.h"
#include "base/language.h"
#include "base/text.h"
#include "numbers/number_text.h"
#include "plot/drawing.h"

namespace zel {
namespace {

/// Gives a drawing up as soon as it may not go on.
class Patience : public Screen {
 public:
  explicit Patience(const std::function<bool()>& goes_on) : goes_on_(goes_on) {}

  void watch(Drawing& drawing) { drawing_ = &drawing; }

  void showStatus(const StatusPanels&) override {}
  void runPendingEvents() override {
    if (!goes_on_()) drawing_->giveUp();
  }

 private:
  const std::function<bool()>& goes_on_;
  Drawing* drawing_ = nullptr;
};

std::optional<double> numberIn(const std::string& box) {
  return readNumber(stripRelationSigns(box));
}

/// In as many digits as a look needs.
std::string shortNumber(double value) {
  constexpr int kDigits = 4;
  std::array<char, 32> text;
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value,
                                 std::chars_format::general, kDigits);
  return toUpperAscii(replaceAll({text.data(), end.ptr}, ".", ","));
}

std::string rangeText(const char* axis, double first, double last) {
  return std::string(axis) + ": " + shortNumber(first) + " … " + shortNumber(last);
}

}  // namespace

std::optional<ViewSettings> previewView(const MainView& view) {
  const auto xi = numberIn(view.xi);
  const auto xf = numberIn(view.xf);
  const auto yi = numberIn(view.yi);
  const auto yf = numberIn(view.yf);
  if (!xi || !xf || !yi || !yf || *xi >= *xf || *yi >= *yf) return std::nullopt;
  return ViewSettings{*xi, *yi, *xf, *yf, MainView::kHighestDefinicion, view.proporcional};
}

std::string previewText(Preview preview, const ViewSettings& view) {
  const bool english = CurrentLanguage() == "EN";
  switch (preview) {
    case Preview::unseen:
      return english ? "Nothing visible in the range" : "Nada visible en el rango";
    case Preview::given_up: return english ? "Too slow: not all drawn" : "Lento: dibujo incompleto";
    case Preview::no_view: return english ? "No valid range" : "Rango no válido";
    default: return rangeText("x", view.xi, view.xf) + "\n" + rangeText("y", view.yi, view.yf);
  }
}

GraphTrial::GraphTrial(const GraphTable& graphs, const EditedGraph& edited)
    : graphs_(graphs), letter_hint_(hintLetter(edited.letter, edited.changed, graphs)) {
  // Another engine than the one that draws, for it keeps what calls stood for before the graph.
  Engine checking([this](char letter) { return graphs_.codeOf(letter); });
  field_hints_ = hintFields(edited.fields, graphs_, checking);
  if (faultyField()) return;
  BuiltGraph built = buildGraph(edited.letter, edited.fields, checking);
  graphs_.rebuildGraph(edited.letter, std::move(built.ecuacion), std::move(built.codigo),
                       edited.colour, built.tipo, std::move(built.parameters));
  graph_ = graphs_.graph(edited.letter);
}

Preview GraphTrial::draw(ViewSettings& view, PictureSize size, Picture& picture,
                         const std::function<bool()>& goes_on) {
  GraphTable alone;
  if (graph_) alone.storeGraph(*graph_);
  PreviewPicture preview(picture);
  Patience patience(goes_on);
  Drawing drawing(engine_, alone, preview, patience);
  patience.watch(drawing);
  Viewport viewport;
  viewport.view = view;
  viewport.size = size;
  constexpr ScaleMarks kNoMarks = {1, 1, false, false};
  const RedrawOutcome outcome = drawing.redraw(viewport, kNoMarks);
  view = viewport.view;
  if (outcome == RedrawOutcome::abandoned) return Preview::given_up;
  if (outcome != RedrawOutcome::drawn) return Preview::no_view;
  if (!graph_) return Preview::no_graph;
  if (preview.showsGraph()) return Preview::drawn;
  tellWhatHasNoValue(viewport, goes_on);
  return Preview::unseen;
}

void GraphTrial::tellWhatHasNoValue(const Viewport& viewport,
                                    const std::function<bool()>& goes_on) {
  const auto found = findValuelessFormula(*graph_, viewport, engine_, goes_on);
  if (!found) return;
  FieldHint& hint = field_hints_[found->field];
  if (hint.tone == HintTone::none) hint = noValueHint(found->reason);
}

}  // namespace zel
