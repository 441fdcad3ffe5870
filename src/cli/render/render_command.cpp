#include <filesystem>
#include <memory>
#include <ostream>
#include <string>
#include <system_error>
#include <vector>

#include "base/text.h"
#include "cli/commands.h"
#include "cli/console/input_output.h"
#include "cli/console/progress.h"
#include "cli/render/render_many.h"
#include "cli/render/render_one.h"
#include "cli/view_options.h"
#include "files/absolute_path.h"
#include "pictures/file_picture.h"

namespace zel {
namespace {

struct RenderOptions {
  std::vector<std::string> files;
  std::string out;
  std::string format;
  ViewOptions view;
};

/// Standard output gets SVG, which every build can write.
std::string endingOf(const std::string& path) {
  if (isStandardStream(path)) return "svg";
  const std::size_t dot = path.find_last_of("./\\");
  return dot == std::string::npos || path[dot] != '.' ? "" : toLower(path.substr(dot + 1));
}

bool isFolder(const std::string& out) {
  if (out.empty() || isStandardStream(out)) return false;
  std::error_code none;
  const auto path = pathOf(out);
  return !path.has_filename() || std::filesystem::is_directory(path, none);
}

int renderToFile(const RenderOptions& options, const WantedView& wanted, const Console& console) {
  if (options.files.size() > 1)
    throw CLI::ValidationError(
        "-o", "several documents need a folder that exists, or whose name ends in /");
  if (!options.format.empty())
    throw CLI::ValidationError("--format", "it is for pictures in a folder");
  const RenderJob job = {options.files.front(), options.out, endingOf(options.out)};
  if (!canMakePicture(job.ending))
    throw CLI::ValidationError("-o", "the picture must end in .png, .svg or .pdf, or be -");
  keepDocuments({job});
  if (tellNarrowPicture(wanted, console)) return kExitFailed;
  Progress progress(console.err);
  return renderOne(job, wanted, console, &progress);
}

int renderToFolder(const RenderOptions& options, const WantedView& wanted, const Console& console) {
  const auto jobs =
      picturesInFolder(options.files, options.out, options.format.empty() ? "png" : options.format);
  if (tellNarrowPicture(wanted, console)) return kExitFailed;
  std::error_code error;
  std::filesystem::create_directories(pathOf(options.out), error);
  if (error) {
    console.err << inLanguage("No se pudo crear la carpeta.", "Cannot make the folder.") << '\n';
    return kExitFailed;
  }
  return renderMany(jobs, wanted, console);
}

int render(const RenderOptions& options, const Console& console) {
  const WantedView wanted = readViewOptions(options.view);
  return isFolder(options.out) ? renderToFolder(options, wanted, console)
                               : renderToFile(options, wanted, console);
}

}  // namespace

void addRender(CLI::App& app, Console& console, Command& command) {
  const auto options = std::make_shared<RenderOptions>();
  CLI::App* subcommand = app.add_subcommand("render", "Draw documents into picture files");
  subcommand->add_option("FILE", options->files, "Documents; - is standard input")
      ->type_name("")
      ->required();
  subcommand
      ->add_option("-o", options->out,
                   "Picture: .png, .svg or .pdf; - is SVG on standard output; or a folder")
      ->type_name("OUT")
      ->required();
  subcommand->add_option("--format", options->format, "Of the pictures in a folder (png)")
      ->check(CLI::IsMember({"png", "svg", "pdf"}))
      ->option_text("png|svg|pdf");
  addViewOptions(*subcommand, options->view);
  subcommand->callback([&command, &console, options] {
    command = [&console, options] { return render(*options, console); };
  });
}

}  // namespace zel
