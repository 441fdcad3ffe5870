#include "benchmarks/rows/documents.h"

#include <stdexcept>

#include "benchmarks/rows/measure.h"
#include "benchmarks/rows/rows.h"
#include "files/document.h"

namespace zel::bench {
namespace {

constexpr int kRounds = 201;

void open(GraphTable& graphs) {
  MainView fields;
  DocumentHeader header;
  std::string message;
  if (!loadDocument(AlphabetDocument::path(), fields, graphs, header, message))
    throw std::runtime_error("alphabet.zel cannot be opened: " + message);
  if (graphs.count() != GraphTable::kSlots) throw std::runtime_error("alphabet.zel lacks graphs");
}

}  // namespace

AlphabetDocument::AlphabetDocument() { open(graphs); }

void openRow() {
  GraphTable graphs;
  print("open", "26 graphs", measureAlone(kRounds, [&] { open(graphs); }));
}

}  // namespace zel::bench
