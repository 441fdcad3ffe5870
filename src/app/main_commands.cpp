#include "app/main_commands.h"

#include <optional>
#include <utility>

#include "app/graph_changes.h"
#include "app/messages.h"
#include "base/language.h"
#include "base/text.h"
#include "numbers/number_text.h"

namespace zel {
namespace {

constexpr std::size_t kTitleCharacters = 16;

/// The first characters of a UTF-8 text.
std::string_view firstCharacters(std::string_view text, std::size_t count) {
  std::size_t end = 0;
  for (; end < text.size(); ++end) {
    const bool begins_character = (static_cast<unsigned char>(text[end]) & 0xC0) != 0x80;
    if (begins_character && count-- == 0) break;
  }
  return text.substr(0, end);
}

/// An empty box reads as 0; one of blanks is no number.
std::optional<double> readScale(std::string_view text) {
  return text.empty() ? 0.0 : readNumber(trimBlanks(text));
}

bool keepScales(Program& program, const PlotFields& fields) {
  const auto marks = readScaleMarks(fields.escala_x, fields.escala_y);
  if (marks) program.marks = *marks;
  return marks.has_value();
}

/// The name of the bound at fault; empty where the range increases.
std::string_view boundAtFault(const Field& low, const Field& high, std::string_view low_box,
                              std::string_view high_box) {
  std::string unwanted;
  if (checkIncreasing(low, high, unwanted)) return {};
  return readNumber(low.text) && !readNumber(high.text) ? high_box : low_box;
}

void addPlotArguments(Program& program, const PlotFields& fields, FormWindow* caller) {
  FormParams& params = program.params;
  params.removeAll();
  params.Add("xi", *readNumber(fields.xi.text));
  params.Add("xf", *readNumber(fields.xf.text));
  params.Add("yi", *readNumber(fields.yi.text));
  params.Add("yf", *readNumber(fields.yf.text));
  params.Add("mantener_prop", fields.mantener_prop);
  params.Add("definicion", fields.definicion);
  params.Add("llamador", caller);
}

std::string fileName(const std::string& path) { return path.substr(path.find_last_of("/\\") + 1); }

/// Both of them or, in want of memory, none.
void setDocument(std::string& document_name, std::string& document_path, const std::string& path) {
  std::string name = fileName(path);
  document_path = absolutePath(path);
  document_name = std::move(name);
}

constexpr std::string_view kDocumentFilter = "Declaraciones ZEL (*.zel)|*.zel";

}  // namespace

std::string mainWindowTitle(const Program& program) {
  if (program.document_name.empty()) return Localize("ZEL - Datos iniciales");
  return "ZEL - " + std::string(firstCharacters(program.document_name, kTitleCharacters));
}

bool scaleIsGiven(std::string_view text) { return trimBlanks(text) != "0" && !text.empty(); }

std::optional<ScaleMarks> readScaleMarks(std::string_view escala_x, std::string_view escala_y) {
  const auto x = readScale(escala_x);
  const auto y = readScale(escala_y);
  if (!x || !y) return std::nullopt;
  return ScaleMarks{*x, *y, scaleIsGiven(escala_x), scaleIsGiven(escala_y)};
}

bool preparePlot(Program& program, const PlotFields& fields, FormWindow* caller) {
  std::string message;
  const bool x_increases = checkIncreasing(fields.xi, fields.xf, message);
  const bool y_increases = checkIncreasing(fields.yi, fields.yf, message);
  bool shows = x_increases && y_increases && program.graphs.count() >= 1;
  if (shows && !keepScales(program, fields)) {
    message = Localize("Datos no válidos en declaraciones y/o rango.");
    shows = false;
  }
  if (shows) addPlotArguments(program, fields, caller);
  ReportError(program.services.boxes, message);
  return shows;
}

std::string_view boxAtFault(const Program& program, const PlotFields& fields) {
  const auto x = boundAtFault(fields.xi, fields.xf, "txtRanXi", "txtRanXf");
  if (!x.empty()) return x;
  const auto y = boundAtFault(fields.yi, fields.yf, "txtRanYi", "txtRanYf");
  if (!y.empty()) return y;
  if (program.graphs.count() < 1) return {};  // nobody looks at the scales then
  if (!readScale(fields.escala_x)) return "txtEscalaX";
  return readScale(fields.escala_y) ? "" : "txtEscalaY";
}

bool openDocumentAt(Program& program, const std::string& path, MainView& view) {
  GraphsState before = wholeState(program, view);
  GraphsState opened = before;
  DocumentState& document = *opened.document;
  setDocument(document.name, document.path, path);
  std::string message;
  const bool is_loaded = loadDocument(path, document.view, opened.graphs, document.header, message);
  if (is_loaded)
    program.services.recent.add(document.path);
  else
    ShowAttention(program.services.boxes, Localize(openFailureMessage(message)));
  program.history.record(std::move(before));
  takeState(program, view, std::move(opened));
  return is_loaded;
}

bool openRecent(Program& program, const std::string& path, MainView& view) {
  if (fileExists(path)) return openDocumentAt(program, path, view);
  ShowAttention(program.services.boxes, Localize(messages::kCannotOpen));
  return false;
}

bool openDocument(Program& program, MainView& view) {
  const auto path = program.services.files.askOpen(kDocumentFilter, program.document_path);
  return path && openDocumentAt(program, *path, view);
}

void saveDocument(Program& program, const MainView& view) {
  if (program.document_name.empty()) {
    saveDocumentAs(program, view);
    return;
  }
  const auto message = saveDocument(program.document_path, view, program.graphs);
  if (message.empty()) program.services.recent.add(program.document_path);
  ShowAttention(program.services.boxes, Localize(message));
}

void saveDocumentAs(Program& program, const MainView& view) {
  const auto path = program.services.files.askSave(kDocumentFilter, program.document_path);
  if (!path) return;
  setDocument(program.document_name, program.document_path, *path);
  // Whether the file was there before is not looked at here; only a write that failed is told.
  const WriteResult result = writeDocument(*path, view, program.graphs);
  if (result.written)
    program.services.recent.add(program.document_path);
  else
    ShowAttention(program.services.boxes, saveFailure(result.error));
}

void newDocument(Program& program, const MainView& view) {
  program.history.record(wholeState(program, view));
  program.document_name.clear();
  program.document_path.clear();
  program.params.removeAll();
  program.graphs.clearGraphs();
}

void prepareNewGraph(Program& program, FormWindow* caller) {
  program.params.removeAll();
  program.params.Add("modo", std::string("agregar"));
  program.params.Add("llamador", caller);
}

void prepareGraphChange(Program& program, char letter, FormWindow* caller) {
  program.params.removeAll();
  program.params.Add("nombre", std::string(1, letter));
  program.params.Add("llamador", caller);
}

bool deleteGraphs(Program& program, std::string_view letters) {
  if (letters.empty()) return false;
  if (program.configuration.confirm_deletion) {
    const std::string question =
        Localize("¿Está seguro que desea borrar el elemento seleccionado?");
    if (program.services.boxes.show(question, "ZEL", BoxStyle::ok_cancel) != BoxAnswer::ok)
      return false;
  }
  GraphTable changed = program.graphs;
  for (const char letter : letters) changed.freeGraph(letter);
  changeGraphs(program, changed);
  return true;
}

}  // namespace zel
