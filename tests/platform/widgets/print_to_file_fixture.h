#pragma once

#include "platform/widgets/printer_fixture.h"

namespace zel::test {

/// Prints into a file that the print dialog has named.
class PrintToFile : public PrinterTest {
 protected:
  PrintOutcome print(const DrawingList& drawing, Point position,
                     PageOrientation orientation = PageOrientation::landscape) {
    return printer_.print({orientation, position, kPicture, drawing, bitmap});
  }
  PrintOutcome print() { return print(frame(kPicture), {1000, 2000}); }

  static bool isWholePdf(const std::string& bytes) {
    return bytes.starts_with("%PDF") && bytes.ends_with("%%EOF\n");
  }

  TemporaryFolder folder;
  std::string file = folder / "page.pdf";
  bool is_accepted = true;
  std::string proposed;  // the name that the dialog has found
  Bitmap bitmap{2, 1, {0xFF00FF00, 0xFF0000FF}};

 private:
  WidgetPrinter printer_{[this](QPrinter& printer) {
    proposed = printer.outputFileName().toStdString();
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setOutputFileName(QString::fromStdString(file));
    return is_accepted;
  }};
};

}  // namespace zel::test
