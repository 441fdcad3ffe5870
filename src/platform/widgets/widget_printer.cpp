#include "platform/widgets/widget_printer.h"

#include <QApplication>
#include <QBuffer>
#include <QLocale>
#include <QPainter>
#include <QPdfWriter>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QScopeGuard>
#include <QTemporaryFile>

#include "files/whole_file.h"
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

PaperSize sizeOf(const QPageLayout& layout) {
  const QSizeF points = layout.fullRect(QPageLayout::Point).size();
  return {points.width() * kTwipsPerPoint, points.height() * kTwipsPerPoint};
}

/// Of the paper from edge to edge.
QPageLayout usualLayout(PageOrientation orientation) {
  const bool has_inches = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
  QPageLayout layout(QPageSize(has_inches ? QPageSize::Letter : QPageSize::A4), toQt(orientation),
                     QMarginsF());
  layout.setMode(QPageLayout::FullPageMode);
  return layout;
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
    painter.scale(job.scale, job.scale);
    const QRectF drawn(QPointF(), area.size() / job.scale);
    paintBehind(painter, job.drawing.layer());
    {
      PainterPicture picture(painter, drawn, Qt::white, Qt::black);
      job.drawing.replay(picture);
    }
    paintBefore(painter, job.drawing.layer(), drawn);
  }
}

PrintOutcome printPage(QPrinter& printer, const PrintJob& job) {
  QPainter painter;
  if (!printer.isValid() || !painter.begin(&printer)) return PrintOutcome::not_started;
  paint(painter, job);
  return painter.end() && hasTakenJob(printer) ? PrintOutcome::printed : PrintOutcome::failed;
}

/// The toolkit would write over the older file while it paints, and leave half of the new one where
/// the disk is full. So it gets a file of its own, and what is whole takes the place of the older.
PrintOutcome printToFile(QPrinter& printer, const PrintJob& job) {
  const QString chosen = printer.outputFileName();
  const std::string path = chosen.toStdString();
  if (obstacleToWriting(path) != 0) return PrintOutcome::not_started;
  QTemporaryFile page;
  if (!page.open()) return PrintOutcome::not_started;
  const QString name = page.fileName();  // first: an open file may have no name yet
  page.close();
  printer.setOutputFileName(name);
  const auto restore = qScopeGuard([&] { printer.setOutputFileName(chosen); });
  const PrintOutcome outcome = printPage(printer, job);
  if (outcome != PrintOutcome::printed) return outcome;
  const auto bytes = readWholeFile(name.toStdString());
  return bytes && writeWholeFile(path, *bytes).written ? PrintOutcome::printed
                                                       : PrintOutcome::failed;
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

bool WidgetPrinter::findPrinter() {
  const QStringList names = QPrinterInfo::availablePrinterNames();
  if (names.isEmpty())
    printer_.reset();
  else if (!printer_ || !names.contains(printer_->printerName()))
    printer_ = std::make_unique<QPrinter>(firstPrinter(names), QPrinter::HighResolution);
  return printer_ != nullptr;
}

std::vector<std::string> WidgetPrinter::names() {
  std::vector<std::string> names;
  for (const QString& name : QPrinterInfo::availablePrinterNames())
    names.push_back(name.toStdString());
  return names;
}

std::string WidgetPrinter::chosen() {
  return findPrinter() ? printer_->printerName().toStdString() : "";
}

void WidgetPrinter::choose(const std::string& name) {
  if (findPrinter() && printer_->printerName() != QString::fromStdString(name))
    printer_ = std::make_unique<QPrinter>(QPrinterInfo::printerInfo(QString::fromStdString(name)),
                                          QPrinter::HighResolution);
}

std::optional<PaperSize> WidgetPrinter::paper(PageOrientation orientation) {
  if (!findPrinter()) return std::nullopt;
  QPageLayout layout = printer_->pageLayout();
  layout.setOrientation(toQt(orientation));
  const PaperSize size = sizeOf(layout);
  return size.width > 0 && size.height > 0 ? std::optional(size) : std::nullopt;
}

PaperSize WidgetPrinter::usualPaper(PageOrientation orientation) {
  return sizeOf(usualLayout(orientation));
}

std::optional<std::string> WidgetPrinter::makePdf(const PrintJob& job) {
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  QPdfWriter writer(&bytes);
  writer.setCreator("ZEL");
  writer.setPageLayout(usualLayout(job.orientation));
  QPainter painter;
  if (!painter.begin(&writer)) return std::nullopt;
  paint(painter, job);
  if (!painter.end()) return std::nullopt;
  return bytes.data().toStdString();
}

PrintOutcome WidgetPrinter::print(const PrintJob& job) {
  if (!printer_) printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
  printer_->setDocName("ZEL");
  printer_->setPageOrientation(toQt(job.orientation));
  if (!choose_(*printer_)) return PrintOutcome::cancelled;
  printer_->setFullPage(true);  // places are measured from the edges of the paper
  return printer_->outputFileName().isEmpty() ? printPage(*printer_, job)
                                              : printToFile(*printer_, job);
}

}  // namespace zel
