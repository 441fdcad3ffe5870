#pragma once

#include <optional>

#include "app/output/print_preview.h"
#include "app/services.h"

namespace zel {

/// What a picture is printed with.
enum class PrintTarget {
  printer,  // the desktop's printer that is chosen
  pdf,      // none: the page goes to a file that is asked for, on the paper that is usual here
};

/// The preview of a picture on the paper that lies as the picture does; nothing when there is no
/// printer, no paper or no picture.
std::optional<PrintPreview> buildPreview(Printer& printer, PrintTarget target, PaperSize picture);

/// That there is no preview.
void tellNoPreview(MessageBoxes& boxes);

/// Prints the picture where the preview shows it, and tells the user what went wrong. A page that
/// comes out needs no message, and neither does a user who cancels. For a file its path is asked,
/// with one that is proposed.
PrintOutcome printAt(const Services& services, PrintTarget target, const PrintPreview& preview,
                     const DrawingList& drawing, const Bitmap& bitmap,
                     const std::string& proposal = {});

}  // namespace zel
