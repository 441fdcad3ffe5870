#pragma once

#include <string>
#include <string_view>

#include "app/program.h"
#include "plot/picture_file.h"

/// What the export window decides, without the window.
namespace zel {

/// The formats that are offered, by the endings of their files.
inline constexpr std::string_view kExportEndings[] = {"png", "svg", "pdf"};

/// In which scale a picture is shown.
inline constexpr double kLeastScale = 0.25;
inline constexpr double kMostScale = 8;

/// What the export window holds.
struct ExportChoice {
  std::string ending = "png";
  int width = 800;  // pixels of 15 twips
  int height = 600;
  double scale = 1;
};

/// Whether a picture of this size is made in this scale.
bool isExported(const ExportChoice& choice);

/// How large the picture becomes.
struct ExportedSize {
  long long width = 0;
  long long height = 0;
  bool in_pixels = false;  // otherwise in millimetres, 96 pixels to an inch

  bool operator==(const ExportedSize&) const = default;
};

ExportedSize exportedSize(const ExportChoice& choice);

struct ExportResult {
  bool written = false;
  std::string message;  // what went wrong, in the user's language; none where nothing did
};

/// Asks for the file and writes the picture into it as `zel-cli render` does, whole or not at all.
/// The file's ending decides its format where it is one of ours. Nothing is drawn for a file that
/// cannot be written.
ExportResult exportPicture(const Program& program, const OpenedView& opened,
                           const ExportChoice& choice, const DrawingWatcher& goes_on);

/// Draws the same on a picture of the size, for a look at it before. The program's own engine is
/// not touched.
RedrawOutcome previewPicture(const Program& program, const OpenedView& opened,
                             const ExportChoice& choice, Picture& picture,
                             const DrawingWatcher& goes_on);

}  // namespace zel
