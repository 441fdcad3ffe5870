#include "cli/drive/drive_object.h"

#include <array>
#include <cmath>
#include <cstdint>

#include <nlohmann/json.hpp>

#include "base/utf8.h"
#include "cli/console/console.h"

namespace zel {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::array<std::string_view, 3> kModes = {"NORMAL", "RECORRIDO", "ZOOM"};

Json number(double value) {
  constexpr double kMostExact = 1LL << 53;
  if (!std::isfinite(value)) return nullptr;
  if (std::trunc(value) == value && std::fabs(value) < kMostExact)
    return static_cast<std::int64_t>(value);
  return value;
}

Json panelList(const StatusPanels& panels) {
  return {panels.first, panels.second, panels.third, panels.fourth};
}

void addCursor(Json& object, const std::optional<TraceCursor>& cursor) {
  object["cursor"] = nullptr;
  object["slope"] = nullptr;
  if (!cursor || !std::isfinite(cursor->place.x) || !std::isfinite(cursor->place.y)) return;
  object["cursor"] = {number(cursor->place.x), number(cursor->place.y)};
  object["slope"] = slopeKey(cursor->slope);
}

Json rectangle(const std::optional<ZoomRectangle>& shown) {
  if (!shown) return nullptr;
  return {number(shown->left), number(shown->top), number(shown->width), number(shown->height)};
}

void addTools(Json& object, const PlotSession& session) {
  const bool is_zoom = session.mode() == PlotMode::zoom;
  object["zoom_rectangle"] = rectangle(session.zoomRectangle());
  object["pointer"] = is_zoom ? "cross" : "default";
  object["zoom_pressed"] = is_zoom;
  for (const PlotCommand command : {PlotCommand::recorrer, PlotCommand::calcular_y})
    object["enabled"][std::string(keyOf(command))] = session.isEnabled(command);
}

/// Only while they are shown. Texts are reckoned with the same width for each character.
void addNumbers(Json& object, const PlotSession& session) {
  if (!session.showsNumbers()) return;
  constexpr double kCharacter = 90;  // twips
  const TextMeasure measure = {165, 195, [](std::string_view text) {
                                 return static_cast<double>(text.size()) * kCharacter;
                               }};
  object["numbers"] = Json::array();
  for (const PictureLabel& label : session.numbers(measure).labels)
    object["numbers"].push_back(
        {{"text", label.text}, {"x", number(label.corner.x)}, {"y", number(label.corner.y)}});
  const auto coordinates = session.coordinates(measure);
  object["coordinates"] = coordinates ? Json(coordinates->text) : Json();
}

void addShown(Json& object, const ShownPlot& shown) {
  object["redraws"] = shown.redraws;
  if (shown.progress) {
    object["progress"] = Json::array();
    for (const StatusPanels& panels : *shown.progress)
      object["progress"].push_back(panelList(panels));
  }
  object["messages"] = Json::array();
  for (const ShownMessage& message : shown.messages)
    object["messages"].push_back(
        {{"kind", message.kind}, {"title", message.title}, {"text", message.text}});
  object["closed_to"] = shown.closed_to.empty() ? Json() : Json(shown.closed_to);
}

/// The control characters from Del on, which a dump leaves as they are. Only strings hold them.
std::string escapeHighControls(std::string_view json) {
  std::string plain;
  plain.reserve(json.size());
  for (std::size_t i = 0; i < json.size(); ++i) {
    const DecodedCharacter decoded = decodeCharacter(json.substr(i));
    if (decoded.size == 0 || !isControl(decoded.character)) {
      plain += json[i];
      continue;
    }
    plain += "\\u00" + hexadecimal(decoded.character);
    i += decoded.size - 1;
  }
  return plain;
}

}  // namespace

std::string driveObject(const DriveWindow& window, const Engine& engine) {
  const PlotSession& session = window.session();
  const ViewSettings& view = session.view();
  Json object;
  object["mode"] = kModes[static_cast<std::size_t>(session.mode())];
  object["xi"] = number(view.xi);
  object["xf"] = number(view.xf);
  object["yi"] = number(view.yi);
  object["yf"] = number(view.yf);
  const auto active = session.activeGraph();
  object["active"] = active ? Json(std::string(1, *active)) : Json();
  object["panels"] = panelList(window.shown().panels);
  addCursor(object, session.cursor());
  object["trace_x"] = number(session.tracePosition());
  object["p"] = number(engine.GetP());
  addTools(object, session);
  addNumbers(object, session);
  addShown(object, window.shown());
  // What is not UTF-8 can come from the answers that are read.
  return escapeHighControls(object.dump(-1, ' ', false, Json::error_handler_t::replace));
}

}  // namespace zel
