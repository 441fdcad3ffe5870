#pragma once

#include <optional>

#include "app/print_preview.h"
#include "app/services.h"

namespace zel {

/// The preview of a picture on the paper that lies as the picture does; nothing when there is no
/// printer, no paper or no picture.
std::optional<PrintPreview> buildPreview(Printer& printer, PaperSize picture);

/// That there is no preview.
void tellNoPreview(MessageBoxes& boxes);

/// Prints the picture where the preview shows it, and tells the user what went wrong; a page that
/// comes out needs no message.
PrintOutcome printAt(Printer& printer, MessageBoxes& boxes, const PrintPreview& preview,
                     const DrawingList& drawing, const Bitmap& bitmap);

}  // namespace zel
