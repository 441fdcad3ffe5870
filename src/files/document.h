#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "files/whole_file.h"
#include "graphs/graph_table.h"

/// Documents (.zel): the main view and every graph in use. docs/document_format.md describes the
/// file. Messages come in Spanish; whoever shows one passes it through Localize.
namespace zel {

/// What the main window's controls hold, texts as typed.
struct MainView {
  static constexpr std::int16_t kLowestDefinicion = 1;
  static constexpr std::int16_t kHighestDefinicion = 100;

  std::string xi = "-10";
  std::string xf = "10";
  std::string yi = "-10";
  std::string yf = "10";
  std::int16_t definicion = kHighestDefinicion;  // the quality slider, sample points per 100 pixels
  bool proporcional = false;
  std::string escala_x = "1";
  std::string escala_y = "1";

  bool operator==(const MainView&) const = default;
};

/// The pairs of the section "[PRINCIPAL]" of the document that was read last.
using DocumentHeader = Parameters;

/// The messages of this folder.
namespace messages {
inline constexpr std::string_view kCannotOpen = "Error: No se pudo abrir el archivo.";
inline constexpr std::string_view kNotCompatible =
    "El archivo no es compatible con esta versión del programa.";
inline constexpr std::string_view kUnexpectedFormat =
    "No es posible cargar las funciones en memoria porque el formato del archivo no es el "
    "esperado.";
inline constexpr std::string_view kCannotSave = "No se pudo salvar el archivo.";
}  // namespace messages

/// The whole document, lines separated by CR LF, none after the last.
std::string documentText(const MainView& view, const GraphTable& graphs);

/// The same as the bytes of a file. Nothing where a load would not give back what is there: for a
/// control character in a value, a document longer than a file that is read, and want of memory.
std::optional<std::string> documentBytes(const MainView& view, const GraphTable& graphs);

/// Whether these are the bytes of the file of that document, without making them.
bool isDocument(std::string_view bytes, const MainView& view, const GraphTable& graphs);

/// False with a message when the file cannot be read, for want of memory included, is not
/// compatible (all is then as it was) or lacks a section, and without one when an error inside a
/// section stops it. In the latter cases the old graphs are gone, those read before the failure
/// stay, and so does what the view section set. A file that does not exist is created empty, which
/// is meant.
bool loadDocument(const std::string& path, MainView& view, GraphTable& graphs,
                  DocumentHeader& header, std::string& message);

/// The same for the bytes of a document that was read already.
bool loadDocumentBytes(std::string_view bytes, MainView& view, GraphTable& graphs,
                       DocumentHeader& header, std::string& message);

/// What the Open command shows when a load failed with this message.
std::string_view openFailureMessage(std::string_view message);

/// Writes the document; the older file stays whole when that fails. Without an error of the system
/// it is the document that cannot be written.
WriteResult writeDocument(const std::string& path, const MainView& view, const GraphTable& graphs);

/// Saves to the path of the current document. Returns the message to show, empty when the file was
/// there before and is written now. A file that was deleted in the meantime is written, and still
/// reported: this is meant.
std::string_view saveDocument(const std::string& path, const MainView& view,
                              const GraphTable& graphs);

}  // namespace zel
