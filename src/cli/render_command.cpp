#include <algorithm>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "base/number_text.h"
#include "base/text.h"
#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/file_picture.h"
#include "cli/interrupt.h"
#include "cli/progress.h"
#include "cli/session.h"
#include "files/whole_file.h"
#include "plot/drawing.h"

namespace zel {
namespace {

constexpr int kLongestSide = 32767;         // pixels
constexpr long long kMostPixels = 1 << 27;  // of the whole picture

struct Options {
  std::string file;
  std::string out;
  int width = 800;
  int height = 600;
  std::vector<std::string> range;
  std::string quality;
  std::string proportional;
  std::vector<std::string> marks;
};

/// What the command line says in the place of the document.
struct Wanted {
  std::vector<double> range;
  std::optional<std::int16_t> quality;
  std::vector<double> marks;
};

std::vector<double> numbers(const char* name, const std::vector<std::string>& arguments) {
  std::vector<double> result;
  for (const std::string& argument : arguments) result.push_back(numberArgument(name, argument));
  return result;
}

Wanted readOptions(const Options& options) {
  Wanted wanted{numbers("--range", options.range), {}, numbers("--marks", options.marks)};
  if (!options.quality.empty()) {
    const double quality = numberArgument("--quality", options.quality);
    wanted.quality = roundToInt16(quality);
    if (!wanted.quality || *wanted.quality != quality)
      throw CLI::ValidationError("--quality", "give an integer of 16 bits");
  }
  if (static_cast<long long>(options.width) * options.height > kMostPixels)
    throw CLI::ValidationError("--width", "the picture is too large");
  return wanted;
}

/// A scale field: empty reads as 0.
std::optional<double> readScale(const std::string& text) {
  return text.empty() ? 0.0 : readNumber(text);
}

std::optional<ViewSettings> makeView(const MainView& fields, const Options& options,
                                     const Wanted& wanted) {
  ViewSettings view;
  view.definicion = wanted.quality.value_or(fields.definicion);
  view.mantener_prop =
      options.proportional.empty() ? fields.proporcional : options.proportional == "yes";
  if (!wanted.range.empty()) {
    view.xi = wanted.range[0];
    view.xf = wanted.range[1];
    view.yi = wanted.range[2];
    view.yf = wanted.range[3];
    return view;
  }
  const auto xi = readNumber(fields.xi);
  const auto xf = readNumber(fields.xf);
  const auto yi = readNumber(fields.yi);
  const auto yf = readNumber(fields.yf);
  if (!xi || !xf || !yi || !yf) return std::nullopt;
  view.xi = *xi;
  view.xf = *xf;
  view.yi = *yi;
  view.yf = *yf;
  return view;
}

/// An axis whose distance is 0 or not given shows no marks.
std::optional<ScaleMarks> makeMarks(const MainView& fields, const Wanted& wanted) {
  const auto x = wanted.marks.empty() ? readScale(fields.escala_x) : wanted.marks[0];
  const auto y = wanted.marks.empty() ? readScale(fields.escala_y) : wanted.marks[1];
  if (!x || !y) return std::nullopt;
  return ScaleMarks{*x, *y, *x != 0, *y != 0};
}

/// The screen of a drawing without a window: its status is shown as progress.
class ProgressScreen : public Screen {
 public:
  ProgressScreen(std::ostream& err, const FilePicture& file) : progress_(err), file_(file) {}

  void watch(Drawing& drawing) { drawing_ = &drawing; }
  void showStatus(const StatusPanels& panels) override { status_ = panels; }
  void runPendingEvents() override {
    progress_.show([&] { return status_.first + status_.second; });
    if (file_.isFull()) drawing_->giveUp();
  }

 private:
  Progress progress_;
  const FilePicture& file_;
  Drawing* drawing_ = nullptr;
  StatusPanels status_;
};

std::string endingOf(const std::string& path) {
  const std::size_t dot = path.find_last_of("./\\");
  return dot == std::string::npos || path[dot] != '.' ? "" : toLower(path.substr(dot + 1));
}

int draw(Session& session, Viewport& viewport, const ScaleMarks& marks, FilePicture& file,
         const Console& console) {
  ProgressScreen screen(console.err, file);
  Drawing drawing(session.engine, session.graphs, file.picture(), screen);
  screen.watch(drawing);
  const RedrawOutcome outcome = drawing.redraw(viewport, marks);
  if (outcome == RedrawOutcome::drawn && !file.isFull()) return kExitDone;
  const bool outgrown = outcome == RedrawOutcome::drawn || outcome == RedrawOutcome::abandoned;
  return console.fail(redrawMessage(outgrown ? RedrawOutcome::failed : outcome));
}

int render(const Options& options, const Console& console) {
  const Wanted wanted = readOptions(options);
  const std::string ending = endingOf(options.out);
  if (!canMakePicture(ending))
    throw CLI::ValidationError("-o", "the picture must end in .png, .svg or .pdf");
  const auto file = makeFilePicture(ending, options.width, options.height);
  if (!file) return console.fail("Valores demasiado grandes para operar.");
  Session session;
  if (const int status = session.load(options.file, console)) return status;
  const auto view = makeView(session.view, options, wanted);
  const auto marks = makeMarks(session.view, wanted);
  if (!view || !marks) return console.fail("Datos no válidos en declaraciones y/o rango.");
  Viewport viewport;
  viewport.view = *view;
  viewport.size = PictureSize::ofPixels(options.width, options.height);
  if (const int status = draw(session, viewport, *marks, *file, console)) return status;
  const std::string bytes = file->bytes();
  const DeferInterrupt whole;
  if (bytes.empty() || !writeWholeFile(options.out, bytes).written)
    return console.fail(messages::kCannotSave);
  return kExitDone;
}

}  // namespace

void addRender(CLI::App& app, Console& console, Command& command) {
  const auto options = std::make_shared<Options>();
  CLI::App* subcommand = app.add_subcommand("render", "Draw a document into a picture file");
  const auto side = CLI::Range(1, kLongestSide);
  subcommand->add_option("file", options->file, "FILE")->required();
  subcommand->add_option("-o", options->out, "Picture: .png, .svg or .pdf")->required();
  subcommand->add_option("--width", options->width, "Pixels (800)")->check(side);
  subcommand->add_option("--height", options->height, "Pixels (600)")->check(side);
  subcommand->add_option("--range", options->range, "XI XF YI YF")->expected(4);
  subcommand->add_option("--quality", options->quality, "Sample points per 100 pixels");
  subcommand->add_option("--proportional", options->proportional, "yes or no")
      ->check(CLI::IsMember({"yes", "no"}));
  subcommand->add_option("--marks", options->marks, "Distances of the scale marks: X Y")
      ->expected(2);
  subcommand->callback([&command, &console, options] {
    command = [&console, options] { return render(*options, console); };
  });
}

}  // namespace zel
