#pragma once

#include <string>
#include <string_view>

#include "app/program.h"

/// Changes of the graphs, and the way back from each of them. One that fails for want of memory has
/// changed nothing.
namespace zel {

/// Puts changed graphs in the place of the program's, which are kept. A change that changes nothing
/// is not kept.
void changeGraphs(Program& program, const GraphTable& changed);

/// The graphs, the document around them and what the main window's controls hold, to be recorded
/// before another document takes their place.
GraphsState wholeState(const Program& program, const MainView& view);

/// Puts a state in the place of what the program and the controls hold. Needs no memory.
void takeState(Program& program, MainView& view, GraphsState state);

/// Puts copies of the graphs under the next free letters, each in a colour that no graph has.
/// Returns their letters; none, and nothing changed, where there is no room for all of them, which
/// is told.
std::string duplicateGraphs(Program& program, std::string_view letters);

/// Takes the last change back, or makes the last one that was taken back again. After New and Open
/// that brings the document's name and the view back, too; any other change leaves them as they
/// are, and so does nothing else. Returns the letters of the graphs that differ now; none after New
/// and Open, where it is another document.
std::string undoChange(Program& program, MainView& view);
std::string redoChange(Program& program, MainView& view);

}  // namespace zel
