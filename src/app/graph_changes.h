#pragma once

#include <string>
#include <string_view>

#include "app/program.h"

/// Changes of the graphs, and the way back from each of them.
namespace zel {

/// Keeps the graphs as they were before a change. A change that changed nothing is not kept.
void recordChange(Program& program, const GraphTable& before);

/// The graphs, the document around them and what the main window's controls hold, to be recorded
/// before another document takes their place.
GraphsState wholeState(const Program& program, const MainView& view);

/// Puts copies of the graphs under the next free letters, each in a colour that no graph has.
/// Returns their letters; none, and nothing changed, where there is no room for all of them, which
/// is told.
std::string duplicateGraphs(Program& program, std::string_view letters);

/// Takes the last change back, or makes the last one that was taken back again. After New and Open
/// that brings the document's name and the view back, too; any other change leaves them as they
/// are, and so does nothing else. Returns the letters of the graphs that differ now.
std::string undoChange(Program& program, MainView& view);
std::string redoChange(Program& program, MainView& view);

}  // namespace zel
