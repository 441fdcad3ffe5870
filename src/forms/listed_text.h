#pragma once

#include <QString>

#include "graphs/graph_def.h"

namespace zel {

/// What a list or a label shows of a graph, on one line: at most a thousand characters of it, with
/// "…" where it is longer.
QString listedText(const GraphDef& def);

/// The tool tip of whatever shows that: more of the text, as far as toolTipOf() takes it.
QString listedTip(const GraphDef& def);

}  // namespace zel
