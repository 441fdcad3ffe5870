#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "app/program.h"
#include "files/document.h"
#include "graphs/field_validation.h"

/// What the main window's commands decide, without the window.
namespace zel {

/// The title: the document's name, its first 16 characters, or the program's own.
std::string mainWindowTitle(const Program& program);

/// Whether a scale box asks for marks: not when it holds "0" or nothing. A box of blanks asks for
/// them, and then holds no number.
bool scaleIsGiven(std::string_view text);

/// What the two scale boxes say; nothing when one holds no number.
std::optional<ScaleMarks> readScaleMarks(std::string_view escala_x, std::string_view escala_y);

/// The fields that the plot command reads, each with its label's caption.
struct PlotFields {
  Field xi;
  Field xf;
  Field yi;
  Field yf;
  std::string escala_x;
  std::string escala_y;
  bool mantener_prop = false;
  std::int16_t definicion = 0;
};

/// Checks the fields, keeps the scale values and puts the plot window's arguments into FormParams,
/// "llamador" last. True when the plot window is to be shown. A message that was collected is
/// reported; without graphs nothing is shown at all.
bool preparePlot(Program& program, const PlotFields& fields, FormWindow* caller);

/// The box, by its given name, that has to be corrected where preparePlot refuses these fields: of
/// a range that does not increase the bound that is no number, or else the lower one; after the
/// ranges the scales. Empty where there is none.
std::string_view boxAtFault(const Program& program, const PlotFields& fields);

/// The document reader with its messages; the path becomes the current document's in any case. The
/// view holds what the window's controls hold, and then what they are to hold. Undo brings back
/// what was there before.
bool openDocumentAt(Program& program, const std::string& path, MainView& view);

/// Opens a document of the recent ones. One that is gone meanwhile is told, and nothing changes.
bool openRecent(Program& program, const std::string& path, MainView& view);

/// The Open command: asks for the path first. False when nothing was opened.
bool openDocument(Program& program, MainView& view);

/// The Save command. Without a current document it is saveDocumentAs.
void saveDocument(Program& program, const MainView& view);

/// The Save As command.
void saveDocumentAs(Program& program, const MainView& view);

/// The New command but for the window's own controls, which hold this view: undo brings it back.
void newDocument(Program& program, const MainView& view);

/// Empties FormParams and adds the arguments of the editor for a new graph, or for this one.
void prepareNewGraph(Program& program, FormWindow* caller);
void prepareGraphChange(Program& program, char letter, FormWindow* caller);

/// Asks where that is wanted, then removes the graphs. True when they are gone.
bool deleteGraphs(Program& program, std::string_view letters);

}  // namespace zel
