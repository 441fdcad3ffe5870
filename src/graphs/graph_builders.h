#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <variant>

#include "engine/engine.h"
#include "graphs/field_validation.h"
#include "graphs/graph_def.h"
#include "graphs/graph_table.h"

/// From the graph editor's fields to a graph. Each kind has its fields, in the order of the form.
namespace zel {

struct FunctionFields {  // F
  Field formula;
};

struct FamilyFields {  // Z
  Field formula;
  Field inicio;
  Field fin;
  Field variacion;
};

struct ParametricFields {  // T
  Field x;
  Field y;
  Field inicio;
  Field fin;
  Field variacion;
};

struct ParabolaFields {  // P
  Field focus_x;
  Field focus_y;
  Field distance;  // between focus and directrix
};

struct CircumferenceFields {  // C
  Field centre_x;
  Field centre_y;
  Field radius;
};

struct EllipseFields {  // E
  Field centre_x;
  Field centre_y;
  Field major;
  Field minor;
};

struct HyperbolaFields {  // H
  Field centre_x;
  Field centre_y;
  Field vertex;  // distance from the centre
  Field focus;   // distance from the centre
};

using GraphFields = std::variant<FunctionFields, CircumferenceFields, EllipseFields, ParabolaFields,
                                 ParametricFields, HyperbolaFields, FamilyFields>;

/// What the builders say of a formula: that it is empty, its parentheses, the formula check. Adds
/// to `message`; returns nothing, for there is nothing to add where all is well.
void checkFormulaField(const Field& field, Engine& engine, std::string& message);

/// What a builder made of its fields.
struct BuiltGraph {
  std::string message;  // why they are refused, in the current language; empty when they are not
  bool arithmetic_failure = false;  // the parabola's numbers have no value: nothing is to be said
  char tipo = '\0';
  std::string ecuacion;
  std::string codigo;  // of a parabola only
  std::shared_ptr<Parameters> parameters = NewDictionary();
};

/// Validates the fields and makes the graph of them. `letter` is the graph's name. A parabola with
/// distance 0 passes validation and fails at 1/0: this is meant.
BuiltGraph buildGraph(char letter, const GraphFields& fields, Engine& engine);

/// How an accept of the graph editor ended.
enum class Accepted {
  stored,        // in the table; the form closes
  refused_full,  // `message` stands alone
  refused,       // `message` is the cause of an error report
  failed,        // silently; `message` is empty
};

/// Builds and stores a graph. A full table refuses even a change of one of its graphs: this is
/// meant. `message` is in the current language.
Accepted acceptGraph(GraphTable& graphs, Engine& engine, char letter, std::int32_t color,
                     const GraphFields& fields, std::string& message);

}  // namespace zel
