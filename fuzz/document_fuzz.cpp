// Documents of any bytes, as files: a load leaves what a second reading of the rules says and the
// file as it was, and what was loaded is saved and loaded again unchanged.
#include "base/code_page.h"
#include "base/utf8.h"
#include "files/loaded_twice.h"
#include "fuzz.h"
#include "support/temporary_folder.h"

namespace zel::fuzz {
namespace {

const test::TemporaryFolder& folder() {
  static const test::TemporaryFolder made;
  return made;
}

bool holdsControl(const MainView& view) {
  for (const std::string* text :
       {&view.xi, &view.xf, &view.yi, &view.yf, &view.escala_x, &view.escala_y})
    if (zel::holdsControl(*text)) return true;
  return false;
}

bool holdsControl(const GraphDef& def) {
  for (const std::string& text : {def.codigo, def.ecuacion, kindText(def)})
    if (zel::holdsControl(text)) return true;
  for (const auto& [key, value] : *def.parameters)
    if (zel::holdsControl(key) || zel::holdsControl(value)) return true;
  return false;
}

bool holdsControl(const test::LoadedDocument& document) {
  bool holds = holdsControl(document.view);
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    const GraphDef def = *document.graphs.graph(letter);
    holds = holds || (def.defined && holdsControl(def));
  }
  return holds;
}

void checkSave(const test::LoadedDocument& document) {
  static const std::string copy = folder() / "copy.zel";
  const WriteResult result = writeDocument(copy, document.view, document.graphs);
  require(result.error == 0, "nothing stands in the way of a write");
  require(result.written == !holdsControl(document), "all is written but control characters");
  if (!result.written) return;
  test::LoadedDocument again;
  again.loadFile(copy);
  require(again.loaded, "what was saved is loaded");
  require(again.view == document.view, "the view is loaded again");
  const std::string text = documentText(document.view, document.graphs);
  require(documentText(again.view, again.graphs) == text, "the graphs are loaded again", text);
  require(test::bytesOf(copy) == toCodePage(text), "the file holds the text", text);
}

}  // namespace
}  // namespace zel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zel::fuzz;
  static const std::string path = folder() / "document.zel";
  const std::string bytes(Input(data, size).rest());
  zel::test::putBytes(path, bytes);
  const zel::test::SecondReading second(zel::fromCodePage(bytes), zel::MainView());
  zel::test::LoadedDocument document;
  document.loadFile(path);
  requireNone(differenceFrom(second, document), "a document is read as the rules say");
  require(zel::test::bytesOf(path) == bytes, "a load changes no file");
  if (document.loaded) checkSave(document);
  return 0;
}
