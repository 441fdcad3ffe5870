#include "platform/widgets/widget_printer.h"

#include <QApplication>
#include <QPainter>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include "pictures/picture_size.h"
#include "platform/qt/bitmap_image.h"
#include "platform/qt/number_painter.h"
#include "platform/qt/painter_picture.h"
#include "platform/widgets/print_job_check.h"

namespace zel {
namespace {

constexpr double kTwipsPerPoint = 20;
constexpr double kTwipsPerInch = 1440;

bool askInDialog(QPrinter& printer) {
  // The dialog goes away with the window below it, wherever that may be taken down.
  const QPointer<QPrintDialog> dialog = new QPrintDialog(&printer, QApplication::activeWindow());
  dialog->setOptions(printDialogOptions());
  const bool accepted = dialog->exec() == QDialog::Accepted && dialog;
  delete dialog;
  return accepted;
}

QPageLayout::Orientation toQt(PageOrientation orientation) {
  return orientation == PageOrientation::landscape ? QPageLayout::Landscape : QPageLayout::Portrait;
}

/// The printer that a user finds chosen at first; null where there is none.
QPrinterInfo firstPrinter(const QStringList& names) {
  const QPrinterInfo preset = QPrinterInfo::defaultPrinter();
  return preset.isNull() ? QPrinterInfo::printerInfo(names.value(0)) : preset;
}

// What lies over a picture is painted in pixels, on a page in twips.

void paintBehind(QPainter& painter, const NumberLayer& layer) {
  painter.save();
  painter.scale(kTwipsPerPixel, kTwipsPerPixel);
  paintGrid(painter, layer);
  painter.restore();
}

void paintBefore(QPainter& painter, const NumberLayer& layer, const QRectF& area) {
  painter.save();
  painter.scale(kTwipsPerPixel, kTwipsPerPixel);
  paintNumbers(painter, layer, area);
  painter.restore();
}

void paint(QPainter& painter, const PrintJob& job) {
  const QRectF area(0, 0, job.size.width, job.size.height);
  const double units = painter.device()->logicalDpiX() / kTwipsPerInch;
  painter.scale(units, units);
  painter.translate(job.position.x, job.position.y);
  painter.setClipRect(area);
  painter.setRenderHint(QPainter::LosslessImageRendering);
  if (job.drawing.isFull()) {
    painter.drawImage(area, toImage(job.bitmap));
  } else {
    paintBehind(painter, job.drawing.layer());
    {
      PainterPicture picture(painter, area, Qt::white, Qt::black);
      job.drawing.replay(picture);
    }
    paintBefore(painter, job.drawing.layer(), area);
  }
}

}  // namespace

QAbstractPrintDialog::PrintDialogOptions printDialogOptions() {
#ifdef _WIN32
  return {};
#else
  return QAbstractPrintDialog::PrintToFile;
#endif
}

WidgetPrinter::WidgetPrinter() : WidgetPrinter(askInDialog) {}

WidgetPrinter::WidgetPrinter(Chooser choose) : choose_(std::move(choose)) {}

WidgetPrinter::~WidgetPrinter() = default;

std::optional<PaperSize> WidgetPrinter::paper(PageOrientation orientation) {
  const QStringList names = QPrinterInfo::availablePrinterNames();
  if (names.isEmpty()) {
    printer_.reset();
    return std::nullopt;
  }
  if (!printer_ || !names.contains(printer_->printerName()))
    printer_ = std::make_unique<QPrinter>(firstPrinter(names), QPrinter::HighResolution);
  QPageLayout layout = printer_->pageLayout();
  layout.setOrientation(toQt(orientation));
  const QSizeF points = layout.fullRect(QPageLayout::Point).size();
  if (points.isEmpty()) return std::nullopt;
  return PaperSize{points.width() * kTwipsPerPoint, points.height() * kTwipsPerPoint};
}

PrintOutcome WidgetPrinter::print(const PrintJob& job) {
  if (!printer_) printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
  printer_->setDocName("ZEL");
  printer_->setPageOrientation(toQt(job.orientation));
  if (!choose_(*printer_)) return PrintOutcome::cancelled;
  printer_->setFullPage(true);  // places are measured from the edges of the paper
  QPainter painter;
  if (!printer_->isValid() || !painter.begin(printer_.get())) return PrintOutcome::not_started;
  paint(painter, job);
  return painter.end() && hasTakenJob(*printer_) ? PrintOutcome::printed : PrintOutcome::failed;
}

}  // namespace zel
