// Three sections are looked for in their order; what lies between them is passed over. A section is
// key=value lines up to a line of one blank, and one whose lines run out first is an error. Graphs
// follow each other until the text ends; the blank line that closes a graph and the header of the
// next are skipped by the search for its properties. The lines are the file's own bytes: only what
// is kept is turned into UTF-8, which may take three times as many.

#include "files/document_parser.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "base/code_page.h"
#include "base/text.h"
#include "numbers/number_text.h"

namespace zel {
namespace {

/// Walks the lines of a text without keeping them.
class LineReader {
 public:
  explicit LineReader(std::string_view text) : rest_(text) {}

  bool atEnd() const { return at_end_; }

  /// Not at the end.
  std::string_view next() {
    const std::size_t size = rest_.find(kLineBreak);
    const std::string_view line = rest_.substr(0, size);
    at_end_ = size == std::string_view::npos;
    if (!at_end_) rest_.remove_prefix(size + kLineBreak.size());
    return line;
  }

  /// Goes to the line after the next one that is exactly the header; to the end when there is none.
  bool find(std::string_view header) {
    while (!at_end_) {
      if (next() == header) return true;
    }
    return false;
  }

 private:
  std::string_view rest_;
  bool at_end_ = false;
};

/// Hands each pair up to the terminator on. False when `take` refuses one, or the lines run out
/// before the terminator. A line without "=" is a pair of empty texts.
template <class Take>
bool readPairs(LineReader& lines, Take take) {
  while (!lines.atEnd()) {
    const std::string_view line = lines.next();
    if (line == kTerminator) return true;
    const std::size_t equals = line.find('=');
    const bool is_pair = equals != std::string_view::npos;
    const std::string_view key = is_pair ? line.substr(0, equals) : std::string_view();
    const std::string_view value = is_pair ? line.substr(equals + 1) : std::string_view();
    if (!take(key, value)) return false;
  }
  return false;
}

/// A key that comes twice is refused, and so is one pair too many.
bool collectPairs(LineReader& lines, Parameters& pairs) {
  return readPairs(lines, [&pairs](std::string_view key, std::string_view value) {
    return pairs.Count() < kMostPairs && pairs.Add(fromCodePage(key), fromCodePage(value));
  });
}

std::optional<std::int16_t> toInt16(std::string_view text) {
  const auto value = readNumber(text);
  return value ? roundToInt16(*value) : std::nullopt;
}

std::optional<std::int32_t> toInt32(std::string_view text) {
  const auto value = readNumber(text);
  return value ? roundToInt32(*value) : std::nullopt;
}

/// The value of a field that holds one character of the code page; '\0' for none.
char firstCharacter(std::string_view text) {
  constexpr std::size_t kLongestCharacter = 3;
  return text.empty() ? '\0' : toCodePage(text.substr(0, kLongestCharacter)).front();
}

std::string* textOf(MainView& view, std::string_view key) {
  if (key == "xi") return &view.xi;
  if (key == "xf") return &view.xf;
  if (key == "yi") return &view.yi;
  if (key == "yf") return &view.yf;
  if (key == "escala_x") return &view.escala_x;
  if (key == "escala_y") return &view.escala_y;
  return nullptr;
}

/// False when the value cannot be converted. Keys that are not known are passed over.
bool applyToView(MainView& view, std::string_view key, std::string_view value) {
  if (std::string* const text = textOf(view, key)) {
    *text = fromCodePage(value);
  } else if (key == "definicion") {
    const auto definicion = toInt16(value);
    if (!definicion) return false;
    view.definicion =
        std::clamp(*definicion, MainView::kLowestDefinicion, MainView::kHighestDefinicion);
  } else if (key == "proporcional") {
    const auto proporcional = toInt16(value);
    if (!proporcional) return false;
    view.proporcional = *proporcional != 0;
  }
  return true;
}

/// Reads the next graph, if there is one. False after an error.
bool readGraph(LineReader& lines, GraphTable& graphs) {
  if (!lines.find("[PROPIEDADES]")) return true;
  Parameters properties;
  if (!collectPairs(lines, properties)) return false;
  if (!lines.find("[PARAMETROS]")) return true;
  auto parameters = NewDictionary();
  if (!collectPairs(lines, *parameters)) return false;
  const auto color = toInt32(properties.Item("color"));
  return color &&
         graphs.rebuildGraph(firstCharacter(properties.Item("nombre")), properties.take("ecuacion"),
                             properties.take("codigo"), *color,
                             firstCharacter(properties.Item("tipo")), std::move(parameters));
}

}  // namespace

ParseOutcome parseDocument(std::string_view bytes, MainView& view, GraphTable& graphs,
                           std::optional<DocumentHeader>& header) {
  LineReader lines(bytes);
  if (!lines.find("[PRINCIPAL]")) return ParseOutcome::section_missing;
  DocumentHeader new_header;
  if (!collectPairs(lines, new_header)) return ParseOutcome::failed;
  header = std::move(new_header);

  if (!lines.find("[VISTA PRINCIPAL]")) return ParseOutcome::section_missing;
  const auto apply = [&view](std::string_view key, std::string_view value) {
    return applyToView(view, key, value);
  };
  if (!readPairs(lines, apply)) return ParseOutcome::failed;

  if (!lines.find("[GRAFICOS PRINCIPAL]")) return ParseOutcome::section_missing;
  while (!lines.atEnd()) {
    if (!readGraph(lines, graphs)) return ParseOutcome::failed;
  }
  return ParseOutcome::complete;
}

}  // namespace zel
