#include "cli/view_options.h"

#include "cli/arguments.h"
#include "numbers/number_text.h"

namespace zel {
namespace {

constexpr long long kMostPixels = 1 << 27;  // of the whole picture

std::vector<double> numbers(const char* name, const std::vector<std::string>& arguments) {
  std::vector<double> result;
  for (const std::string& argument : arguments) result.push_back(numberArgument(name, argument));
  return result;
}

std::int16_t readQuality(const std::string& argument) {
  const double quality = numberArgument("--quality", argument);
  const auto rounded = roundToInt16(quality);
  if (!rounded || *rounded != quality)
    throw CLI::ValidationError("--quality", "give an integer of 16 bits");
  return *rounded;
}

/// A scale field: empty reads as 0.
std::optional<double> readScale(const std::string& text) {
  return text.empty() ? 0.0 : readNumber(text);
}

std::optional<std::vector<double>> readRange(const MainView& fields) {
  std::vector<double> result;
  for (const std::string& field : {fields.xi, fields.xf, fields.yi, fields.yf}) {
    const auto number = readNumber(field);
    if (!number) return std::nullopt;
    result.push_back(*number);
  }
  return result;
}

std::optional<ScaleMarks> readMarks(const WantedView& wanted, const MainView& fields) {
  const auto x = wanted.marks.empty() ? readScale(fields.escala_x) : wanted.marks[0];
  const auto y = wanted.marks.empty() ? readScale(fields.escala_y) : wanted.marks[1];
  if (!x || !y) return std::nullopt;
  return ScaleMarks{*x, *y, *x != 0, *y != 0};
}

}  // namespace

void addViewOptions(CLI::App& command, ViewOptions& options) {
  const auto side = CLI::Range(1, kLongestSide);
  command.add_option("--width", options.width, "Pixels (800)")->check(side);
  command.add_option("--height", options.height, "Pixels (600)")->check(side);
  command.add_option("--range", options.range, "XI XF YI YF")->expected(4);
  command.add_option("--quality", options.quality, "Sample points per 100 pixels");
  command.add_option("--proportional", options.proportional, "yes or no")
      ->check(CLI::IsMember({"yes", "no"}));
  command.add_option("--marks", options.marks, "Distances of the scale marks: X Y")->expected(2);
}

WantedView readViewOptions(const ViewOptions& options) {
  if (static_cast<long long>(options.width) * options.height > kMostPixels)
    throw CLI::ValidationError("--width", "the picture is too large");
  WantedView wanted;
  wanted.size = PictureSize::ofPixels(options.width, options.height);
  wanted.range = numbers("--range", options.range);
  if (!options.quality.empty()) wanted.quality = readQuality(options.quality);
  if (!options.proportional.empty()) wanted.proportional = options.proportional == "yes";
  wanted.marks = numbers("--marks", options.marks);
  return wanted;
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
