// A plot session of any document, with events that arrive while it draws, walks and shows its
// boxes. The first line is the events, a character each with the bytes it needs behind it, and the
// rest the view and the graphs of a document with "\n" for its line breaks. The events are those of
// a user, taken one by one wherever the session lets pending events run; when they are used up, the
// user presses Esc, and closes the window in the end.
#include <algorithm>

#include "base/language.h"
#include "base/text.h"
#include "files/document.h"
#include "fuzz.h"
#include "plot/session/plot_session.h"
#include "support/recorder_picture.h"

namespace zel::fuzz {
namespace {

using test::RecorderPicture;

constexpr std::size_t kMostEvents = 24;
constexpr int kDeepest = 24;       // what a user can do inside of what was done
constexpr int kPatience = 40;      // so many looks at nothing, then Esc
constexpr int kLastPatience = 80;  // then the window is closed
constexpr std::int16_t kMostQuality = 20;

ViewSettings viewOf(const MainView& view) {
  const auto number = [](const std::string& text, double otherwise) {
    return readNumber(text).value_or(otherwise);
  };
  return {number(view.xi, -10),
          number(view.yi, -10),
          number(view.xf, 10),
          number(view.yf, 10),
          std::min(view.definicion, kMostQuality),
          view.proporcional};
}

class User : public Screen, public PlotListener {
 public:
  User(Input events, std::string_view document) : events_(events) {
    const std::string text = "versiones_compatibles=2.0\r\n[PRINCIPAL]\r\n \r\n" +
                             replaceAll(std::string(document), "\n", "\r\n");
    MainView view;
    DocumentHeader header;
    std::string message;
    loadDocumentBytes(text, view, graphs_, header, message);
    view_ = viewOf(view);
    marks_.escala_x = readNumber(view.escala_x).value_or(0);
    marks_.escala_y = readNumber(view.escala_y).value_or(0);
    for (char letter = 'a'; letter <= 'z'; ++letter)
      if (graphs_.graph(letter)->defined) letters_ += letter;
  }

  void plot() {
    session_.resize(PictureSize::ofPixels(100, 80));
    open(view_);
    session_.drawFirst();
    checkAtRest();
    for (std::size_t done = 0; done < kMostEvents && !events_.isEmpty(); ++done) {
      looks_ = 0;
      doNext();
      checkAtRest();
    }
    checkParameter();
  }

  void showStatus(const StatusPanels&) override {}
  void runPendingEvents() override {
    ++looks_;
    if (depth_ < kDeepest && !events_.isEmpty()) return doNext();
    if (looks_ == kPatience) session_.keyPressed(27);
    if (looks_ >= kLastPatience) session_.close();
  }

  void pictureDrawn() override { checkPicture(); }
  void toolsChanged() override { checkTools(); }
  void showDrawingError(const std::string& message, std::optional<char> graph) override {
    require(!message.empty(), "an error says why");
    require(!graph || letters_.find(*graph) != std::string::npos, "it names a graph of the plot");
    is_incomplete_ = false;
    runPendingEvents();
  }
  void showInformation(const std::string&) override { runPendingEvents(); }
  std::optional<std::string> askValue(const std::string&, const std::string&) override {
    runPendingEvents();
    return std::string(events_.until(' '));
  }
  void copyPicture(bool) override {}
  void openPrint() override {}
  void returnToMain() override { session_.close(); }

 private:
  void open(const ViewSettings& view) {
    is_incomplete_ = false;
    session_.open(view, marks_);
  }

  void doNext() {
    ++depth_;
    doEvent(static_cast<char>(events_.byte()));
    --depth_;
  }

  /// A place on the picture or a little beside it.
  Point place() {
    const double x = events_.byte() * 7.0 - 100;
    return {x, events_.byte() * 6.0 - 100};
  }

  void doEvent(char event) {
    if (event >= 'a' && event <= 'p')
      return session_.execute(static_cast<PlotCommand>(event - 'a'));
    switch (event) {
      case 'r': return session_.redraw();
      case 'f': return session_.drawFirst();
      case 'R': {
        const int width = 67 + events_.byte() % 100;
        return session_.resize(PictureSize::ofPixels(width, 67 + events_.byte() % 100));
      }
      case 'O': return open(view_);
      case 'V': return openAnother();
      case 'X': return session_.close();
      case 'D': return session_.mouseDown(MouseButton::left, place());
      case 'Z': return session_.mouseDown(MouseButton::right, place());
      case 'M': return session_.mouseMove(MouseButton::left, place());
      case 'N': return session_.mouseMove(MouseButton::none, place());
      case 'U': return session_.mouseUp(MouseButton::left, place());
      case 'W': return session_.wheelTurned(Zoom::in, place());
      case 'w': return session_.wheelTurned(Zoom::out, place());
      case 'K': return session_.keyPressed(events_.byte());
      case '>': return session_.activateNext();
      case '<': return session_.activatePrevious();
      case 'A': session_.activate(static_cast<char>(events_.byte())); return;
      case 'L': return SetCurrentLanguage(events_.byte() % 2 == 0 ? "ES" : "EN");
      default: return;  // nothing happens at this look
    }
  }

  void openAnother() {
    ViewSettings view = view_;
    view.xf = view.xi + events_.byte() - 3;
    open(view);
    session_.drawFirst();
  }

  /// Axes, and then the graphs in letter order, none of them twice: whatever was begun meanwhile,
  /// the picture is that of one redraw. All of them, unless an error is shown next.
  void checkPicture() {
    std::string drawn;
    for (const RecorderPicture::Call& call : picture_.calls)
      if (call.kind == RecorderPicture::Call::Kind::graph) drawn += call.letter;
    require(letters_.starts_with(drawn), "the graphs in letter order", drawn);
    is_incomplete_ = drawn != letters_;
    require(!picture_.calls.empty() &&
                picture_.calls.front().kind == RecorderPicture::Call::Kind::clear,
            "the picture was cleared first");
    for (const RecorderPicture::Call& call : picture_.calls)
      require(std::isfinite(call.point.x) && std::isfinite(call.point.y) &&
                  call.point.x == std::floor(call.point.x),
              "coordinates are whole");
  }

  void checkTools() const {
    require(!session_.cursor() || session_.mode() == PlotMode::recorrido, "a cursor in its mode");
    require(!session_.zoomRectangle() || session_.mode() == PlotMode::zoom, "a rectangle in its");
  }

  void checkAtRest() const {
    require(depth_ == 0, "all events have returned");
    require(!session_.isDrawing(), "no drawing is left under way");
    require(!is_incomplete_, "a drawing is whole, or an error was shown");
    checkTools();
    require(session_.activeGraph().has_value() == !letters_.empty(), "a graph is active");
    const ViewSettings& view = session_.view();
    for (const double end : {view.xi, view.xf, view.yi, view.yf, session_.tracePosition()})
      require(std::isfinite(end), "the view is finite");
    if (session_.cursor())
      require(
          std::isfinite(session_.cursor()->place.x) && std::isfinite(session_.cursor()->place.y),
          "the cursor has a place");
  }

  /// A redraw that nobody meddles with puts "p" back.
  void checkParameter() {
    events_ = Input("");
    looks_ = 0;
    const double p = engine_.GetP();
    session_.redraw();
    checkAtRest();
    require(isSame(engine_.GetP(), p), "a redraw puts the parameter back");
  }

  Input events_;
  GraphTable graphs_;
  Engine engine_{[this](char letter) { return graphs_.codeOf(letter); }};
  RecorderPicture picture_;
  PlotSession session_{engine_, graphs_, picture_, *this, *this};
  ViewSettings view_;
  ScaleMarks marks_;
  std::string letters_;
  int depth_ = 0;
  int looks_ = 0;
  bool is_incomplete_ = false;
};

}  // namespace
}  // namespace zel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zel::fuzz;
  zel::SetCurrentLanguage("ES");
  Input input(data, size);
  const auto events = input.line();
  User(Input(events), input.rest()).plot();
  return 0;
}
