#pragma once

#include <string>

#include "files/document.h"
#include "files/second_reading.h"

namespace zel::test {

/// What a load leaves, over a view, a header and a graph "z" of an older document.
struct LoadedDocument {
  LoadedDocument() {
    graphs.rebuildGraph('z', "old", "", 0, 'F', nullptr);
    header.Add("old", "pair");
  }

  void loadFile(const std::string& path) {
    loaded = loadDocument(path, view, graphs, header, message);
  }

  bool loaded = false;
  std::string message;
  MainView view;
  GraphTable graphs;
  DocumentHeader header;
};

inline std::string utf8Of(char32_t character) {
  const auto six = [&](int shift) {
    return static_cast<char>(0x80 | ((character >> shift) & 0x3F));
  };
  if (character < 0x80) return {static_cast<char>(character)};
  if (character < 0x800) return {static_cast<char>(0xC0 | (character >> 6)), six(0)};
  return {static_cast<char>(0xE0 | (character >> 12)), six(6), six(0)};
}

inline SecondReading::Pairs pairsOf(const Parameters& parameters) {
  SecondReading::Pairs pairs;
  for (const auto& [key, value] : parameters) pairs.emplace_back(key, value);
  return pairs;
}

inline bool isSameGraph(const GraphDef& def, const SecondReading::Graph& graph) {
  return def.ecuacion == graph.ecuacion && def.codigo == graph.codigo && def.color == graph.color &&
         def.carpeta.empty() && kindText(def) == (graph.tipo == 0 ? "" : utf8Of(graph.tipo)) &&
         pairsOf(*def.parameters) == graph.parameters;
}

/// Where the load and the second reading of the same text, over the same older view, differ; empty
/// where they do not.
inline std::string differenceFrom(const SecondReading& second, const LoadedDocument& document) {
  if (document.loaded != second.loaded()) return "whether it is loaded";
  if (document.message != second.message.value_or("")) return "the message " + document.message;
  if (!(document.view == second.view)) return "the view";
  if (pairsOf(document.header) != second.header.value_or(SecondReading::Pairs{{"old", "pair"}}))
    return "the header";
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    const GraphDef def = *document.graphs.graph(letter);
    const auto graph = second.graphs.find(letter);
    const bool is_expected = second.clears ? graph != second.graphs.end() : letter == 'z';
    if (def.defined != is_expected) return std::string("whether there is a graph ") + letter;
    if (second.clears && is_expected && !isSameGraph(def, graph->second))
      return std::string("the graph ") + letter;
  }
  const std::size_t count = second.clears ? second.graphs.size() : 1;
  return static_cast<std::size_t>(document.graphs.count()) == count ? "" : "the count of graphs";
}

}  // namespace zel::test
