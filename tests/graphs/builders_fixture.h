#pragma once

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "graphs/graph_builders.h"
#include "support/language_guard.h"

namespace zel::test {

using Pairs = std::vector<std::pair<std::string, std::string>>;

class GraphBuilders : public ::testing::Test {
 protected:
  BuiltGraph build(const GraphFields& fields) { return buildGraph('g', fields, engine); }

  /// The message of a refusal.
  std::string refusal(const GraphFields& fields) { return build(fields).message; }

  Accepted accept(char letter, const GraphFields& fields) {
    return acceptGraph(graphs, engine, letter, 255, fields, message);
  }

  GraphTable graphs;
  Engine engine{[this](char letter) { return graphs.codeOf(letter); }};
  std::string message;

 private:
  LanguageGuard guard_{"ES"};
};

inline Pairs pairsOf(const BuiltGraph& graph) {
  Pairs pairs;
  for (const auto& [key, value] : *graph.parameters) pairs.emplace_back(key, value);
  return pairs;
}

inline FunctionFields function(const char* formula) {
  return {{formula, "Declaración de la función"}};
}

inline FamilyFields family(const char* formula, const char* inicio = "-2", const char* fin = "2",
                           const char* variacion = "1") {
  return {{formula, "Declaración"}, {inicio, "<="}, {fin, "<="}, {variacion, "Variación="}};
}

inline ParametricFields parametric(const char* x, const char* y, const char* inicio = "0",
                                   const char* fin = "360", const char* variacion = "1") {
  return {{x, "X(t)="}, {y, "Y(t)="}, {inicio, "Rango"}, {fin, "Rango"}, {variacion, "Variación="}};
}

inline ParabolaFields parabola(const char* x, const char* y, const char* distance) {
  return {{x, "X="}, {y, "Y="}, {distance, "Distancia foco-directriz"}};
}

inline CircumferenceFields circumference(const char* x, const char* y, const char* radius) {
  return {{x, "X="}, {y, "Y="}, {radius, "Radio="}};
}

inline EllipseFields ellipse(const char* x, const char* y, const char* major, const char* minor) {
  return {{x, "X="}, {y, "Y="}, {major, "Mayor="}, {minor, "Menor="}};
}

inline HyperbolaFields hyperbola(const char* x, const char* y, const char* vertex,
                                 const char* focus) {
  return {{x, "X="}, {y, "Y="}, {vertex, "Vértice="}, {focus, "Foco="}};
}

}  // namespace zel::test
