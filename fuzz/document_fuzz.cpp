// Documents of any bytes: loading may refuse them and nothing else, and what was loaded is written
// and loaded again unchanged.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "base/code_page.h"
#include "files/document.h"
#include "files/document_parser.h"

namespace {

bool parse(const std::string& text, zel::MainView& view, zel::GraphTable& graphs) {
  zel::DocumentHeader header;
  return zel::parseDocument(text, view, graphs, header) == zel::ParseOutcome::complete;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  zel::MainView view;
  zel::GraphTable graphs;
  if (!parse(bytes, view, graphs)) return 0;
  const std::string written = zel::toCodePage(zel::documentText(view, graphs));
  zel::MainView again;
  zel::GraphTable graphs_again;
  if (!parse(written, again, graphs_again)) std::abort();
  if (zel::toCodePage(zel::documentText(again, graphs_again)) != written) std::abort();
  return 0;
}
