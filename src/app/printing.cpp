#include "app/printing.h"

#include "app/messages.h"
#include "base/language.h"

namespace zel {
namespace {

void tellOutcome(MessageBoxes& boxes, PrintOutcome outcome) {
  switch (outcome) {
    case PrintOutcome::printed: break;
    case PrintOutcome::cancelled: ShowInformation(boxes, "Trabajo de impresión cancelado."); break;
    case PrintOutcome::not_started: ShowAttention(boxes, Localize("No se puede imprimir.")); break;
    case PrintOutcome::failed: ShowAttention(boxes, Localize("Error de impresora")); break;
  }
}

}  // namespace

std::optional<PrintPreview> buildPreview(Printer& printer, PaperSize picture) {
  if (!(picture.width > 0 && picture.height > 0)) return std::nullopt;
  const auto paper = printer.paper(orientationFor(picture));
  if (!paper || !(paper->width > 0 && paper->height > 0)) return std::nullopt;
  return PrintPreview(*paper, picture);
}

void tellNoPreview(MessageBoxes& boxes) {
  ShowAttention(boxes, Localize("Error: No se puede mostrar vista previa."));
}

PrintOutcome printAt(Printer& printer, MessageBoxes& boxes, const PrintPreview& preview,
                     const DrawingList& drawing, const Bitmap& bitmap) {
  const PrintOutcome outcome = printer.print(
      {orientationFor(preview.picture()), preview.position(), preview.picture(), drawing, bitmap});
  tellOutcome(boxes, outcome);
  return outcome;
}

}  // namespace zel
