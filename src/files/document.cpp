// A document is one text: the head, the view, and a block for each graph in letter order, each
// section ended by a line of one blank. Loading asks for the oldest compatible version only, and
// what it reads takes the place of what was there even where it fails half way, but for want of
// memory.

#include "files/document.h"

#include <algorithm>
#include <functional>
#include <new>
#include <optional>
#include <utility>

#include "base/code_page.h"
#include "base/text.h"
#include "files/document_check.h"
#include "files/document_parser.h"
#include "files/text_file.h"

namespace zel {
namespace {

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

using Take = std::function<void(std::string_view)>;

/// Hands over the lines of a section, piece by piece.
class Lines {
 public:
  explicit Lines(const Take& take) : take_(take) {}

  void line(std::string_view content) {
    take_(content);
    take_(kLineBreak);
  }
  void pair(std::string_view key, std::string_view value) {
    take_(key);
    take_("=");
    line(value);
  }

 private:
  const Take& take_;
};

void writeView(const MainView& view, const Take& take) {
  Lines lines(take);
  lines.line("[VISTA PRINCIPAL]");
  lines.pair("xi", view.xi);
  lines.pair("xf", view.xf);
  lines.pair("yi", view.yi);
  lines.pair("yf", view.yf);
  lines.pair("definicion", std::to_string(view.definicion));
  lines.pair("proporcional", view.proporcional ? "1" : "0");
  lines.pair("escala_x", view.escala_x);
  lines.pair("escala_y", view.escala_y);
  take(kTerminator);
}

void writeGraph(const GraphDef& def, const Take& take) {
  Lines lines(take);
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

/// The whole document, piece by piece, so that whoever takes it needs no second copy.
void writeDocumentTo(const MainView& view, const GraphTable& graphs, const Take& take) {
  Lines(take).line(kHead);
  writeView(view, take);
  take(kLineBreak);
  Lines(take).line("[GRAFICOS PRINCIPAL]");
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    const GraphDef& def = *graphs.slot(letter);
    if (def.defined) writeGraph(def, take);
  }
  take(kTerminator);
}

/// Looks at the bytes where they are: a copy of them all would be needed for a moment only.
bool isCompatible(std::string_view bytes) {
  const auto is_same = [](char one, char other) {
    const bool is_capital = one >= 'A' && one <= 'Z';
    return (is_capital ? static_cast<char>(one - 'A' + 'a') : one) == other;
  };
  return std::search(bytes.begin(), bytes.end(), kOldestVersion.begin(), kOldestVersion.end(),
                     is_same) != bytes.end();
}

}  // namespace

std::string documentText(const MainView& view, const GraphTable& graphs) {
  std::string text;
  writeDocumentTo(view, graphs, [&](std::string_view piece) { text.append(piece); });
  return text;
}

bool loadDocument(const std::string& path, MainView& view, GraphTable& graphs,
                  DocumentHeader& header, std::string& message) {
  std::optional<std::string> bytes;
  readTextBytes(path, bytes);
  if (!bytes) {
    message = messages::kCannotOpen;
    return false;
  }
  return loadDocumentBytes(*bytes, view, graphs, header, message);
}

bool loadDocumentBytes(std::string_view bytes, MainView& view, GraphTable& graphs,
                       DocumentHeader& header, std::string& message) try {
  message.clear();
  if (!isCompatible(bytes)) {
    message = messages::kNotCompatible;
    return false;
  }
  MainView read_view = view;
  GraphTable read_graphs;
  std::optional<DocumentHeader> read_header;
  const ParseOutcome outcome = parseDocument(bytes, read_view, read_graphs, read_header);
  if (outcome == ParseOutcome::section_missing) message = messages::kUnexpectedFormat;
  view = std::move(read_view);
  graphs = read_graphs;
  if (read_header) header = std::move(*read_header);
  return outcome == ParseOutcome::complete;
} catch (const std::bad_alloc&) {
  message = messages::kCannotOpen;
  return false;
}

std::string_view openFailureMessage(std::string_view message) {
  return message.empty() ? messages::kCannotOpen : message;
}

std::optional<std::string> documentBytes(const MainView& view, const GraphTable& graphs) {
  try {
    std::size_t size = 0;
    writeDocumentTo(view, graphs, [&](std::string_view piece) { size += codePageSize(piece); });
    if (size > kMaxWholeFile) return std::nullopt;
    std::string bytes;
    bytes.reserve(size);
    writeDocumentTo(view, graphs, [&](std::string_view piece) { appendToCodePage(piece, bytes); });
    if (!isReadBack(bytes, view, graphs)) return std::nullopt;
    return bytes;
  } catch (const std::bad_alloc&) {
    return std::nullopt;
  }
}

bool isDocument(std::string_view bytes, const MainView& view, const GraphTable& graphs) {
  bool is_same = true;
  writeDocumentTo(view, graphs,
                  [&](std::string_view piece) { is_same = is_same && takeCodePage(piece, bytes); });
  return is_same && bytes.empty();
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
