// A document is one text: the head, the view, and a block for each graph in letter order, each
// section ended by a line of one blank. Loading asks for the oldest compatible version only, and
// takes the graphs away before it parses, so that a load that fails half way leaves what was read
// by then.

#include "files/document.h"

#include <new>
#include <optional>

#include "base/code_page.h"
#include "base/text.h"
#include "files/document_check.h"
#include "files/document_parser.h"
#include "files/text_file.h"

namespace zel {
namespace {

constexpr std::string_view kLineBreak = "\r\n";
constexpr std::string_view kTerminator = " ";
constexpr std::string_view kOldestVersion = "versiones_compatibles=2.0";

constexpr std::string_view kHead =
    "Archivo creado con ZEL - https://zel.example/\r\n"
    "Advertencia: Se recomienda no modificar estos valores.\r\n"
    "\r\n"
    "[PRINCIPAL]\r\n"
    "version=2.8\r\n"
    "01.versiones_compatibles=2.0\r\n"
    "02.versiones_compatibles=2.1\r\n"
    "03.versiones_compatibles=2.2\r\n"
    "04.versiones_compatibles=2.3\r\n"
    "05.versiones_compatibles=2.4\r\n"
    "06.versiones_compatibles=2.5\r\n"
    "07.versiones_compatibles=2.6\r\n"
    "08.versiones_compatibles=2.7\r\n"
    "09.versiones_compatibles=2.8\r\n"
    "sistema=Windows\r\n"
    "usuario=desconocido\r\n"
    " ";

/// Appends lines to the text of a section.
class Lines {
 public:
  explicit Lines(std::string& text) : text_(text) {}

  void line(std::string_view content) { text_.append(content).append(kLineBreak); }
  void pair(std::string_view key, std::string_view value) {
    text_.append(key).append("=").append(value).append(kLineBreak);
  }

 private:
  std::string& text_;
};

std::string viewText(const MainView& view) {
  std::string text;
  Lines lines(text);
  lines.line("[VISTA PRINCIPAL]");
  lines.pair("xi", view.xi);
  lines.pair("xf", view.xf);
  lines.pair("yi", view.yi);
  lines.pair("yf", view.yf);
  lines.pair("definicion", std::to_string(view.definicion));
  lines.pair("proporcional", view.proporcional ? "1" : "0");
  lines.pair("escala_x", view.escala_x);
  lines.pair("escala_y", view.escala_y);
  return text.append(kTerminator);
}

void appendGraph(const GraphDef& def, Lines& lines) {
  lines.line("[GRAFICO]");
  lines.line("[PROPIEDADES]");
  lines.pair("nombre", std::string(1, def.nombre));
  lines.pair("carpeta", def.carpeta);
  lines.pair("codigo", def.codigo);
  lines.pair("color", std::to_string(def.color));
  lines.pair("ecuacion", def.ecuacion);
  lines.pair("tipo", kindText(def));
  lines.line(kTerminator);
  lines.line("[PARAMETROS]");
  if (def.parameters) {
    for (const auto& [key, value] : *def.parameters) lines.pair(key, value);
  }
  lines.line(kTerminator);
  lines.line(kTerminator);
}

std::string graphsText(const GraphTable& graphs) {
  std::string text;
  Lines lines(text);
  lines.line("[GRAFICOS PRINCIPAL]");
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    const auto def = graphs.graph(letter);
    if (def->defined) appendGraph(*def, lines);
  }
  return text.append(kTerminator);
}

bool isCompatible(std::string_view text) {
  return !trimBlanks(text).empty() && containsIgnoringCase(text, kOldestVersion);
}

/// Too little memory is an error like any other inside a section.
ParseOutcome parseWithinMemory(std::string_view text, MainView& view, GraphTable& graphs,
                               DocumentHeader& header) {
  try {
    return parseDocument(text, view, graphs, header);
  } catch (const std::bad_alloc&) {
    return ParseOutcome::failed;
  }
}

}  // namespace

std::string documentText(const MainView& view, const GraphTable& graphs) {
  std::string text(kHead);
  text.append(kLineBreak).append(viewText(view));
  text.append(kLineBreak).append(graphsText(graphs));
  return text;
}

bool loadDocument(const std::string& path, MainView& view, GraphTable& graphs,
                  DocumentHeader& header, std::string& message) {
  std::optional<std::string> text;
  readTextFile(path, text);
  if (!text) {
    message = messages::kCannotOpen;
    return false;
  }
  return loadDocumentText(*text, view, graphs, header, message);
}

bool loadDocumentText(std::string_view text, MainView& view, GraphTable& graphs,
                      DocumentHeader& header, std::string& message) {
  message.clear();
  if (!isCompatible(text)) {
    message = messages::kNotCompatible;
    return false;
  }
  graphs.clearGraphs();
  const ParseOutcome outcome = parseWithinMemory(text, view, graphs, header);
  if (outcome == ParseOutcome::section_missing) message = messages::kUnexpectedFormat;
  return outcome == ParseOutcome::complete;
}

std::string_view openFailureMessage(std::string_view message) {
  return message.empty() ? messages::kCannotOpen : message;
}

std::optional<std::string> documentBytes(const MainView& view, const GraphTable& graphs) {
  try {
    std::string bytes = toCodePage(documentText(view, graphs));
    if (bytes.size() > kMaxWholeFile || !isReadBack(bytes, view, graphs)) return std::nullopt;
    return bytes;
  } catch (const std::bad_alloc&) {
    return std::nullopt;
  }
}

WriteResult writeDocument(const std::string& path, const MainView& view, const GraphTable& graphs) {
  const auto bytes = documentBytes(view, graphs);
  return bytes ? writeWholeFile(path, *bytes) : WriteResult{fileExists(path), false};
}

std::string_view saveDocument(const std::string& path, const MainView& view,
                              const GraphTable& graphs) {
  const WriteResult result = writeDocument(path, view, graphs);
  return result.existed && result.written ? std::string_view() : messages::kCannotSave;
}

}  // namespace zel
