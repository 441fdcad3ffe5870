#include "app/output/picture_export.h"

#include <cmath>
#include <new>

#include "app/messages.h"
#include "base/language.h"
#include "base/text.h"
#include "files/whole_file.h"
#include "pictures/file_picture.h"

namespace zel {
namespace {

long long scaled(int pixels, double scale) { return std::llround(pixels * scale); }

/// "PNG (*.png)|*.png"
std::string filterFor(const std::string& ending) {
  return toUpperAscii(ending) + " (*." + ending + ")|*." + ending;
}

std::string formatOf(const std::string& path, const std::string& otherwise) {
  const std::size_t dot = path.find_last_of("./\\");
  if (dot == std::string::npos || path[dot] != '.') return otherwise;
  const std::string ending = toLower(path.substr(dot + 1));
  return canMakePicture(ending) ? ending : otherwise;
}

/// Graphs that are drawn find what they find in a document that was just read.
Engine engineFor(const GraphTable& graphs) {
  return Engine([&graphs](char letter) { return graphs.codeOf(letter); });
}

PictureFile draw(const Program& program, const PictureJob& job, const DrawingWatcher& goes_on) try {
  Engine engine = engineFor(program.graphs);
  return drawPictureFile(job, engine, program.graphs, goes_on);
} catch (const std::bad_alloc&) {
  return {{}, "Valores demasiado grandes para operar."};
}

}  // namespace

bool isExported(const ExportChoice& choice) {
  const long long width = scaled(choice.width, choice.scale);
  const long long height = scaled(choice.height, choice.scale);
  return choice.width >= kLeastWidth && choice.height >= 1 && height >= 1 &&
         width <= kLongestSide && height <= kLongestSide && width * height <= kMostPixels;
}

ExportedSize exportedSize(const ExportChoice& choice) {
  constexpr double kMillimetresPerPixel = 25.4 / 96;
  const bool in_pixels = choice.ending == "png";
  const double unit = choice.scale * (in_pixels ? 1 : kMillimetresPerPixel);
  return {scaled(choice.width, unit), scaled(choice.height, unit), in_pixels};
}

ExportResult exportPicture(const Program& program, const OpenedView& opened,
                           const ExportChoice& choice, const DrawingWatcher& goes_on) {
  const auto path = program.services.files.askSave(filterFor(choice.ending),
                                                   besideDocument(program, choice.ending));
  if (!path) return {};
  if (const int obstacle = obstacleToWriting(*path)) return {false, saveFailure(obstacle)};
  const std::string format = formatOf(*path, choice.ending);
  const PictureFile file =
      draw(program, {format, choice.width, choice.height, opened, choice.scale}, goes_on);
  if (file.bytes.empty()) return {false, Localize(file.message)};
  const WriteResult result = writeWholeFile(*path, file.bytes);
  return {result.written, result.written ? "" : saveFailure(result.error)};
}

RedrawOutcome previewPicture(const Program& program, const OpenedView& opened,
                             const ExportChoice& choice, Picture& picture,
                             const DrawingWatcher& goes_on) try {
  Engine engine = engineFor(program.graphs);
  return drawOpenedView(opened, PictureSize::ofPixels(choice.width, choice.height), engine,
                        program.graphs, picture, goes_on);
} catch (const std::bad_alloc&) {
  return RedrawOutcome::failed;
}

}  // namespace zel
