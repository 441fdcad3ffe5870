#include "app/plot_arguments.h"

#include "numbers/number_text.h"

namespace zel {
namespace {

double numberOf(const FormValue& value) {
  if (const auto number = std::get_if<double>(&value)) return *number;
  if (const auto integer = std::get_if<std::int16_t>(&value)) return *integer;
  if (const auto text = std::get_if<std::string>(&value)) return readNumber(*text).value_or(0);
  return 0;
}

void addViewAlone(FormParams& params, const ViewSettings& view) {
  params.removeAll();
  params.Add("xi", view.xi);
  params.Add("xf", view.xf);
  params.Add("yi", view.yi);
  params.Add("yf", view.yf);
  params.Add("definicion", view.definicion);
}

}  // namespace

ViewSettings viewIn(const FormParams& params) {
  const auto number = [&](std::string_view key) { return numberOf(params.Item(key)); };
  const FormValue flag = params.Item("mantener_prop");
  const auto mantener_prop = std::get_if<bool>(&flag);
  return {number("xi"),
          number("yi"),
          number("xf"),
          number("yf"),
          roundToInt16(number("definicion")).value_or(0),
          mantener_prop && *mantener_prop};
}

void handViewOver(FormParams& params, const ViewSettings& view, FormWindow* sender) {
  addViewAlone(params, view);
  params.Add("llamador", sender);
}

void handPlotOver(FormParams& params, const ViewSettings& view, FormWindow* plot) {
  addViewAlone(params, view);
  params.Add("imprimir", plot);
  params.Add("llamador", plot);
}

}  // namespace zel
