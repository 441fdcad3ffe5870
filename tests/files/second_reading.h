#pragma once

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "engine/compiler.h"
#include "files/document.h"
#include "support/plain_number.h"

/// The rules of a document read a second time, in the plainest way: all lines in a list, an index
/// that goes forward, numbers by the C library. It shares nothing with the parser.
namespace zel::test {

struct SecondReading {
  using Pairs = std::vector<std::pair<std::string, std::string>>;
  struct Graph {
    std::string ecuacion;
    std::string codigo;
    std::int32_t color = 0;
    char32_t tipo = 0;
    Pairs parameters;
  };

  /// `text` is in UTF-8, as it comes from the code page; `view` is what stands before.
  SecondReading(const std::string& text, MainView before) : view(std::move(before)) {
    message = read(text);
  }

  bool loaded() const { return !message; }

  /// Nothing when all is well; empty for an error inside a section.
  std::optional<std::string> message;
  MainView view;
  bool clears = false;  // whether the old graphs go
  std::optional<Pairs> header;
  std::map<char, Graph> graphs;

 private:
  static constexpr const char* kNotCompatible =
      "El archivo no es compatible con esta versión del programa.";
  static constexpr const char* kMissing =
      "No es posible cargar las funciones en memoria porque el formato del archivo no es el "
      "esperado.";

  std::optional<std::string> read(const std::string& text) {
    std::string lower = text;
    for (char& c : lower) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    if (lower.find("versiones_compatibles=2.0") == std::string::npos) return kNotCompatible;
    clears = true;
    split(text);
    if (!find("[PRINCIPAL]")) return kMissing;
    header = section();
    if (!header || hasDuplicates(*header)) {
      header.reset();
      return "";
    }
    if (!find("[VISTA PRINCIPAL]")) return kMissing;
    if (!readView()) return "";
    if (!find("[GRAFICOS PRINCIPAL]")) return kMissing;
    while (index_ < lines_.size())
      if (!readGraph()) return "";
    return std::nullopt;
  }

  void split(const std::string& text) {
    std::size_t begin = 0;
    for (std::size_t end; (end = text.find("\r\n", begin)) != std::string::npos; begin = end + 2)
      lines_.push_back(text.substr(begin, end - begin));
    lines_.push_back(text.substr(begin));
  }

  bool find(const std::string& line) {
    while (index_ < lines_.size())
      if (lines_[index_++] == line) return true;
    return false;
  }

  static std::pair<std::string, std::string> pairOf(const std::string& line) {
    const std::size_t equals = line.find('=');
    if (equals == std::string::npos) return {};
    return {line.substr(0, equals), line.substr(equals + 1)};
  }

  /// Nothing when the lines run out before the blank.
  std::optional<Pairs> section() {
    Pairs pairs;
    while (index_ < lines_.size()) {
      const std::string& line = lines_[index_++];
      if (line == " ") return pairs;
      pairs.push_back(pairOf(line));
    }
    return std::nullopt;
  }

  static bool hasDuplicates(const Pairs& pairs) {
    std::map<std::string, int> counts;
    return std::ranges::any_of(pairs, [&](const auto& pair) { return ++counts[pair.first] > 1; });
  }

  static std::string valueOf(const Pairs& pairs, const std::string& key) {
    for (const auto& pair : pairs)
      if (pair.first == key) return pair.second;
    return {};
  }

  static std::optional<double> number(const std::string& text, double lowest, double highest) {
    const auto exact = plainNumber(text);
    if (text.size() > 300 || !exact) return std::nullopt;
    const double value = std::nearbyint(*exact);
    if (!(value >= lowest && value <= highest)) return std::nullopt;
    return value;
  }

  bool readView() {
    const std::map<std::string, std::string*> texts = {{"xi", &view.xi},
                                                       {"xf", &view.xf},
                                                       {"yi", &view.yi},
                                                       {"yf", &view.yf},
                                                       {"escala_x", &view.escala_x},
                                                       {"escala_y", &view.escala_y}};
    while (index_ < lines_.size()) {
      const std::string& line = lines_[index_++];
      if (line == " ") return true;
      const auto [key, value] = pairOf(line);
      if (texts.contains(key)) *texts.at(key) = value;
      if (key != "definicion" && key != "proporcional") continue;
      const auto integer = number(value, -32768, 32767);
      if (!integer) return false;
      if (key == "proporcional") view.proporcional = *integer != 0;
      if (key == "definicion")
        view.definicion = static_cast<std::int16_t>(std::min(std::max(*integer, 1.0), 100.0));
    }
    return false;
  }

  /// The number of the first character, up to three bytes of UTF-8; 0 for none.
  static char32_t firstCharacter(const std::string& text) {
    if (text.empty()) return 0;
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text.at(i)); };
    if (byte(0) < 0x80) return byte(0);
    if (byte(0) < 0xE0) return ((byte(0) & 0x1Fu) << 6) | (byte(1) & 0x3Fu);
    return ((byte(0) & 0x0Fu) << 12) | ((byte(1) & 0x3Fu) << 6) | (byte(2) & 0x3Fu);
  }

  static void put(Pairs& pairs, const std::string& key, const std::string& value) {
    for (auto& pair : pairs) {
      if (pair.first != key) continue;
      pair.second = value;
      return;
    }
    pairs.emplace_back(key, value);
  }

  static std::string codeOf(Graph& graph, const std::string& stored) {
    switch (graph.tipo) {
      case 'F':
      case 'Z': return NormaliseFormula(graph.ecuacion);
      case 'P': return stored;
      case 'C':
      case 'E':
      case 'H': return valueOf(graph.parameters, "codigo1");
      case 'T':
        for (const std::string axis : {"xt", "yt"})
          put(graph.parameters, "codigo_" + axis,
              NormaliseFormula(valueOf(graph.parameters, "ecuacion_" + axis)));
        return {};
      default: return {};
    }
  }

  bool readGraph() {
    if (!find("[PROPIEDADES]")) return true;
    const auto properties = section();
    if (!properties || hasDuplicates(*properties)) return false;
    if (!find("[PARAMETROS]")) return true;
    auto parameters = section();
    if (!parameters || hasDuplicates(*parameters)) return false;
    const auto color = number(valueOf(*properties, "color"), -2147483648.0, 2147483647.0);
    const char32_t name = firstCharacter(valueOf(*properties, "nombre"));
    if (!color || name < 'a' || name > 'z') return false;
    Graph graph;
    graph.ecuacion = valueOf(*properties, "ecuacion");
    graph.color = static_cast<std::int32_t>(*color);
    graph.tipo = firstCharacter(valueOf(*properties, "tipo"));
    graph.parameters = std::move(*parameters);
    graph.codigo = codeOf(graph, valueOf(*properties, "codigo"));
    graphs[static_cast<char>(name)] = std::move(graph);
    return true;
  }

  std::vector<std::string> lines_;
  std::size_t index_ = 0;
};

}  // namespace zel::test
