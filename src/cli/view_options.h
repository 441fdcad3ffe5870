#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "cli/console/console.h"
#include "files/document.h"
#include "plot/picture_file.h"

namespace zel {

/// The options of a command that draws a document, as they were typed; empty where they were not.
struct ViewOptions {
  std::string width = "800";   // pixels
  std::string height = "600";  // pixels
  std::vector<std::string> range;
  std::optional<std::string> quality;
  std::string proportional;
  std::vector<std::string> marks;
};

void addViewOptions(CLI::App& command, ViewOptions& options);

/// What the command line says in the place of the document.
struct WantedView {
  int width = 0;   // pixels
  int height = 0;  // pixels
  PictureSize size;
  std::vector<double> range;  // xi, xf, yi, yf, or nothing
  std::optional<std::int16_t> quality;
  std::optional<bool> proportional;
  std::vector<double> marks;  // of the x and the y axis, or nothing
};

/// Throws CLI::ValidationError with a line that says what is wrong.
WantedView readViewOptions(const ViewOptions& options);

/// Whether not one sample fits into the picture; then says so, with the width that it needs.
bool tellNarrowPicture(const WantedView& wanted, const Console& console);

/// Nothing when a field of the document that counts is no number. Its scale texts are read as the
/// main window reads them; of the command line, a distance of 0 means no marks.
std::optional<OpenedView> openedView(const WantedView& wanted, const MainView& fields);

}  // namespace zel
