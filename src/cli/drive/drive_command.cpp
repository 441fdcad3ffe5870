#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/console/input_output.h"
#include "cli/console/line_reader.h"
#include "cli/drive/drive_object.h"
#include "cli/drive/drive_script.h"
#include "cli/drive/drive_window.h"
#include "cli/session.h"
#include "cli/view_options.h"

namespace zel {
namespace {

struct DriveOptions {
  std::string file;
  std::optional<std::string> active;
  ViewOptions view;
};

/// Reads commands and answers each with an object, which whoever asks line by line gets at once.
class Dialogue {
 public:
  Dialogue(const Console& console, const Engine& engine, DriveWindow& window)
      : console_(console), engine_(engine), window_(window) {}

  int run() {
    LineReader reader(console_.in);
    writeObject();
    while (console_.out.good()) {
      const auto line = reader.next();
      if (!line) break;
      ++line_number_;
      if (line->find_first_not_of(" \t") == std::string_view::npos) continue;
      window_.beginCommand();
      complain(reader.wasTooLong()
                   ? std::string(inLanguage("línea demasiado larga", "line too long"))
                   : runDriveLine(window_, *line));
      writeObject();
    }
    if (reader.hasFailed()) return console_.failReading();
    return was_wrong_ || window_.wasRefused() ? kExitFailed : kExitDone;
  }

 private:
  void complain(const std::string& complaint) {
    if (complaint.empty()) return;
    was_wrong_ = true;
    console_.err << inLanguage("línea ", "line ") << line_number_ << ": " << complaint << std::endl;
  }

  void writeObject() { console_.out << driveObject(window_, engine_) << std::endl; }

  const Console& console_;
  const Engine& engine_;
  DriveWindow& window_;
  std::size_t line_number_ = 0;
  bool was_wrong_ = false;
};

int drive(const DriveOptions& options, const Console& console) {
  keepInputFree("FILE", options.file);
  const WantedView wanted = readViewOptions(options.view);
  std::optional<char> active;
  if (options.active) active = letterArgument("--active", *options.active);
  Session session;
  if (const int status = session.load(options.file, console)) return status;
  const auto opened = openedView(wanted, session.view);
  if (!opened) return console.fail("Datos no válidos en declaraciones y/o rango.");
  if (active && !session.graphInUse(*active, console)) return kExitFailed;
  tellNarrowPicture(wanted, console);
  DriveWindow window(session.engine, session.graphs, console.err);
  window.session().resize(wanted.size);
  window.session().open(opened->view, opened->marks);
  if (active) window.session().activate(*active);
  window.session().drawFirst();
  return Dialogue(console, session.engine, window).run();
}

}  // namespace

void addDrive(CLI::App& app, Console& console, Command& command) {
  const auto options = std::make_shared<DriveOptions>();
  CLI::App* subcommand =
      app.add_subcommand("drive", "Plot a document and carry out the commands that are read");
  subcommand->add_option("FILE", options->file, "Document")->type_name("")->required();
  addText(*subcommand, "--active", options->active, "The active graph (the first)")
      ->type_name("LETTER");
  addViewOptions(*subcommand, options->view);
  subcommand->callback([&command, &console, options] {
    command = [&console, options] { return drive(*options, console); };
  });
}

}  // namespace zel
