// A value with a line break would end its line, and what follows would be read as other lines:
// other pairs, the end of a section, or nothing that can be read at all. So a document is read
// again before it is written, and compared value by value; equal texts alone would not tell, as the
// lines of a broken value may read as pairs that are written the same.

#include "files/document_check.h"

#include <algorithm>
#include <array>
#include <string>

#include "base/code_page.h"
#include "base/utf8.h"
#include "files/document_parser.h"

namespace zel {
namespace {

bool isPlain(std::string_view text) { return !holdsControl(text); }

bool isPlain(const GraphDef& def) {
  const std::array<std::string_view, 3> texts = {def.carpeta, def.codigo, def.ecuacion};
  return isPlain(kindText(def)) &&
         std::ranges::all_of(texts, [](auto text) { return isPlain(text); }) &&
         (!def.parameters || std::ranges::all_of(*def.parameters, [](const auto& entry) {
           return isPlain(entry.key) && isPlain(entry.value);
         }));
}

bool isKept(std::string_view written, std::string_view read) {
  return isKeptByCodePage(written, read);
}

bool isKept(const Parameters* written, const Parameters& read) {
  if (written == nullptr) return read.Count() == 0;
  return std::ranges::equal(*written, read, [](const auto& one, const auto& other) {
    return isKept(one.key, other.key) && isKept(one.value, other.value);
  });
}

bool isKept(const MainView& written, const MainView& read) {
  return isKept(written.xi, read.xi) && isKept(written.xf, read.xf) &&
         isKept(written.yi, read.yi) && isKept(written.yf, read.yf) &&
         isKept(written.escala_x, read.escala_x) && isKept(written.escala_y, read.escala_y) &&
         written.definicion == read.definicion && written.proporcional == read.proporcional;
}

bool isKept(const GraphDef& written, const GraphDef& read) {
  if (!written.defined) return !read.defined;
  return read.defined && isPlain(written) && written.tipo == read.tipo &&
         written.color == read.color && isKept(written.ecuacion, read.ecuacion) &&
         isKept(written.codigo, read.codigo) && isKept(written.parameters.get(), *read.parameters);
}

bool isPlain(const MainView& view) {
  return isPlain(view.xi) && isPlain(view.xf) && isPlain(view.yi) && isPlain(view.yf) &&
         isPlain(view.escala_x) && isPlain(view.escala_y);
}

}  // namespace

bool isReadBack(std::string_view bytes, const MainView& view, const GraphTable& graphs) {
  MainView read_view;
  GraphTable read_graphs;
  std::optional<DocumentHeader> header;
  const auto outcome = parseDocument(bytes, read_view, read_graphs, header);
  if (outcome != ParseOutcome::complete || !isPlain(view) || !isKept(view, read_view)) return false;
  for (char letter = 'a'; letter <= 'z'; ++letter)
    if (!isKept(*graphs.slot(letter), *read_graphs.slot(letter))) return false;
  return true;
}

}  // namespace zel
