#include "cli/view_options.h"

#include <limits>
#include <ostream>

#include "app/main_commands.h"
#include "base/text.h"
#include "cli/arguments.h"
#include "numbers/number_text.h"

namespace zel {
namespace {

std::vector<double> numbers(const char* name, const std::vector<std::string>& arguments) {
  std::vector<double> result;
  result.reserve(arguments.size());
  for (const std::string& argument : arguments) result.push_back(numberArgument(name, argument));
  return result;
}

std::int16_t readQuality(const std::string& argument) {
  using Limits = std::numeric_limits<std::int16_t>;
  const int quality = integerArgument("--quality", argument, Limits::min(), Limits::max());
  return static_cast<std::int16_t>(quality);
}

std::optional<std::vector<double>> readRange(const MainView& fields) {
  std::vector<double> result;
  for (const std::string& field : {fields.xi, fields.xf, fields.yi, fields.yf}) {
    const auto number = readNumber(stripRelationSigns(field));
    if (!number) return std::nullopt;
    result.push_back(*number);
  }
  return result;
}

std::optional<ScaleMarks> readMarks(const WantedView& wanted, const MainView& fields) {
  if (wanted.marks.empty()) return readScaleMarks(fields.escala_x, fields.escala_y);
  return ScaleMarks{wanted.marks[0], wanted.marks[1], wanted.marks[0] != 0, wanted.marks[1] != 0};
}

}  // namespace

void addViewOptions(CLI::App& command, ViewOptions& options) {
  command.add_option("--width", options.width, "Width of the picture (800)")->type_name("PX");
  command.add_option("--height", options.height, "Height of the picture (600)")->type_name("PX");
  command.add_option("--range", options.range, "The part of the plane that is shown")
      ->expected(4)
      ->option_text("XI XF YI YF");
  addText(command, "--quality", options.quality, "Sample points per 100 pixels")->type_name("N");
  command.add_option("--proportional", options.proportional, "One unit is as long on both axes")
      ->check(CLI::IsMember({"yes", "no"}))
      ->option_text("yes|no");
  command.add_option("--marks", options.marks, "Distances of the scale marks")
      ->expected(2)
      ->option_text("X Y");
}

WantedView readViewOptions(const ViewOptions& options) {
  WantedView wanted;
  wanted.width = integerArgument("--width", options.width, 1, kLongestSide);
  wanted.height = integerArgument("--height", options.height, 1, kLongestSide);
  if (static_cast<long long>(wanted.width) * wanted.height > kMostPixels)
    throw CLI::ValidationError("--width", "the picture is too large");
  wanted.size = PictureSize::ofPixels(wanted.width, wanted.height);
  wanted.range = numbers("--range", options.range);
  if (options.quality) wanted.quality = readQuality(*options.quality);
  if (!options.proportional.empty()) wanted.proportional = options.proportional == "yes";
  wanted.marks = numbers("--marks", options.marks);
  return wanted;
}

bool tellNarrowPicture(const WantedView& wanted, const Console& console) {
  if (wanted.width >= kLeastWidth) return false;
  console.err << inLanguage("La imagen es demasiado angosta para una muestra: necesita ",
                            "The picture is too narrow for a sample: it needs ")
              << kLeastWidth << inLanguage(" píxeles de ancho.", " pixels of width.") << '\n';
  return true;
}

std::optional<OpenedView> openedView(const WantedView& wanted, const MainView& fields) {
  const auto range = wanted.range.empty() ? readRange(fields) : wanted.range;
  const auto marks = readMarks(wanted, fields);
  if (!range || !marks) return std::nullopt;
  ViewSettings view;
  view.xi = (*range)[0];
  view.xf = (*range)[1];
  view.yi = (*range)[2];
  view.yf = (*range)[3];
  view.definicion = wanted.quality.value_or(fields.definicion);
  view.mantener_prop = wanted.proportional.value_or(fields.proporcional);
  return OpenedView{view, *marks};
}

}  // namespace zel
