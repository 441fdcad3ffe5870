#include <memory>
#include <ostream>
#include <string>

#include "base/text.h"
#include "cli/commands.h"
#include "cli/file_picture.h"
#include "cli/input_output.h"
#include "cli/progress.h"
#include "cli/session.h"
#include "cli/view_options.h"
#include "plot/drawing.h"

namespace zel {
namespace {

struct Options {
  std::string file;
  std::string out;
  ViewOptions view;
};

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

/// Standard output gets SVG, which every build can write.
std::string endingOf(const std::string& path) {
  if (isStandardStream(path)) return "svg";
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
  const WantedView wanted = readViewOptions(options.view);
  const std::string ending = endingOf(options.out);
  if (!canMakePicture(ending))
    throw CLI::ValidationError("-o", "the picture must end in .png, .svg or .pdf, or be -");
  if (tellNarrowPicture(wanted, console)) return kExitFailed;
  const auto file = makeFilePicture(ending, wanted.width, wanted.height);
  if (!file) return console.fail("Valores demasiado grandes para operar.");
  Session session;
  if (const int status = session.load(options.file, console)) return status;
  const auto opened = openedView(wanted, session.view);
  if (!opened) return console.fail("Datos no válidos en declaraciones y/o rango.");
  Viewport viewport;
  viewport.view = opened->view;
  viewport.size = wanted.size;
  if (const int status = draw(session, viewport, opened->marks, *file, console)) return status;
  const std::string bytes = file->bytes();
  if (bytes.empty() || !writeOutput(options.out, bytes, console))
    return console.fail(messages::kCannotSave);
  return kExitDone;
}

}  // namespace

void addRender(CLI::App& app, Console& console, Command& command) {
  const auto options = std::make_shared<Options>();
  CLI::App* subcommand = app.add_subcommand("render", "Draw a document into a picture file");
  subcommand->add_option("FILE", options->file, "Document; - is standard input")
      ->type_name("")
      ->required();
  subcommand
      ->add_option("-o", options->out, "Picture: .png, .svg or .pdf; - is SVG on standard output")
      ->type_name("OUT")
      ->required();
  addViewOptions(*subcommand, options->view);
  subcommand->callback([&command, &console, options] {
    command = [&console, options] { return render(*options, console); };
  });
}

}  // namespace zel
