#pragma once

#include <string>
#include <string_view>

#include "engine/engine.h"
#include "graphs/graph_def.h"

/// The texts of the box that asks for an x and tells the graph's value there, in the current
/// language.
namespace zel {

std::string valueTitle();
std::string valuePrompt(const GraphDef& def);

/// The value of a code at an x that passes the numeric test, or why there is none.
std::string valueAt(Engine& engine, std::string_view code, const std::string& x_text);

}  // namespace zel
