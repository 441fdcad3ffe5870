#include "app/output/printing.h"

#include "app/messages.h"
#include "base/language.h"
#include "files/whole_file.h"

namespace zel {
namespace {

constexpr std::string_view kPdfFilter = "PDF (*.pdf)|*.pdf";

void tellOutcome(MessageBoxes& boxes, PrintOutcome outcome) {
  switch (outcome) {
    case PrintOutcome::printed:
    case PrintOutcome::cancelled: break;
    case PrintOutcome::not_started: ShowAttention(boxes, Localize("No se puede imprimir.")); break;
    case PrintOutcome::failed: ShowAttention(boxes, Localize("Error de impresora")); break;
  }
}

/// A page that cannot be made is no printer's; a file that cannot be written is told as such.
PrintOutcome printToFile(const Services& services, const PrintJob& job,
                         const std::string& proposal) {
  const auto path = services.files.askSave(kPdfFilter, proposal);
  if (!path) return PrintOutcome::cancelled;
  const auto bytes = services.printer.makePdf(job);
  if (!bytes) {
    tellOutcome(services.boxes, PrintOutcome::not_started);
    return PrintOutcome::not_started;
  }
  const WriteResult result = writeWholeFile(*path, *bytes);
  if (result.written) return PrintOutcome::printed;
  ShowAttention(services.boxes, saveFailure(result.error));
  return PrintOutcome::failed;
}

}  // namespace

std::optional<PrintPreview> buildPreview(Printer& printer, PrintTarget target, PaperSize picture) {
  if (!(picture.width > 0 && picture.height > 0)) return std::nullopt;
  const PageOrientation orientation = orientationFor(picture);
  const auto paper =
      target == PrintTarget::pdf ? printer.usualPaper(orientation) : printer.paper(orientation);
  if (!paper || !(paper->width > 0 && paper->height > 0)) return std::nullopt;
  return PrintPreview(*paper, picture);
}

void tellNoPreview(MessageBoxes& boxes) {
  ShowAttention(boxes, Localize("Error: No se puede mostrar vista previa."));
}

PrintOutcome printAt(const Services& services, PrintTarget target, const PrintPreview& preview,
                     const DrawingList& drawing, const Bitmap& bitmap,
                     const std::string& proposal) {
  const PrintJob job = {orientationFor(preview.picture()),
                        preview.position(),
                        preview.picture(),
                        drawing,
                        bitmap,
                        preview.scale()};
  if (target == PrintTarget::pdf) return printToFile(services, job, proposal);
  const PrintOutcome outcome = services.printer.print(job);
  tellOutcome(services.boxes, outcome);
  return outcome;
}

}  // namespace zel
