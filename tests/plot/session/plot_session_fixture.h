#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "plot/plot_fixture.h"
#include "plot/session/plot_session.h"

namespace zel::test {

/// Records what a session reports; `on_message` and `on_drawn` are the user meanwhile.
class RecorderListener : public PlotListener {
 public:
  void pictureDrawn() override {
    ++drawn;
    if (on_drawn) on_drawn();
  }
  void showDrawingError(const std::string& message, std::optional<char> graph) override {
    messages.push_back(message);
    named_graphs += graph.value_or('-');
    if (on_message) on_message();
  }
  void toolsChanged() override { ++tools_changes; }
  void showInformation(const std::string& message) override { informations.push_back(message); }
  std::optional<std::string> askValue(const std::string& prompt,
                                      const std::string& title) override {
    asked.push_back(title + "|" + prompt);
    if (on_ask) on_ask();
    if (answers.empty()) return std::nullopt;
    std::string answer = answers.front();
    answers.pop_front();
    return answer;
  }
  void copyPicture(bool with_numbers) override { copies += with_numbers ? "n" : "p"; }
  void openPrint() override { ++prints; }
  void returnToMain() override {
    ++returns;
    if (on_return) on_return();
  }

  int drawn = 0;
  std::vector<std::string> messages;
  std::string named_graphs;  // by the messages; "-" for none
  int returns = 0;
  int tools_changes = 0;
  std::vector<std::string> informations;
  std::vector<std::string> asked;   // "title|prompt"
  std::deque<std::string> answers;  // none left: cancelled
  std::string copies;               // "p" for the picture alone, "n" with its numbers
  int prints = 0;
  std::function<void()> on_drawn;
  std::function<void()> on_message;
  std::function<void()> on_ask;
  std::function<void()> on_return;
};

/// A session on the picture and the view of PlotTest, not opened yet.
class PlotSessionTest : public PlotTest {
 protected:
  PlotSessionTest() { session.resize(viewport.size); }

  void openAndDraw() {
    session.open(viewport.view, marks);
    session.drawFirst();
  }

  /// A family of three straight lines, and a function.
  void addFamilyAndFunction() {
    addGraph('a', FamilyFields{field("P*x"), field("0"), field("2"), field("1")});
    addFunction('d', "x^2/2-3");
  }

  ViewSettings panned() const {
    ViewSettings view = viewport.view;
    view.xi += 1;
    view.xf += 1;
    return view;
  }

  /// What a fresh drawing of a view on a picture of this size draws.
  Texts drawnFresh(const ViewSettings& view, PictureSize size) {
    RecorderPicture own_picture;
    RecorderScreen own_screen;
    Viewport own;
    own.view = view;
    own.size = size;
    EXPECT_EQ(Drawing(engine, graphs, own_picture, own_screen).redraw(own, marks),
              RedrawOutcome::drawn);
    return own_picture.texts();
  }

  RecorderListener listener;
  PlotSession session{engine, graphs, picture, screen, listener};
};

inline constexpr const char* kTooLarge = "Error: Los valores del rango son demasiado elevados.";
inline constexpr const char* kFailed =
    "Error: No se puede graficar con la ecuación y rango elegidos.";

}  // namespace zel::test
