#pragma once

#include <QAbstractPrintDialog>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/services.h"

class QPrinter;

namespace zel {

/// What the print dialog offers beside printers: a file, where it would get a document. On Windows
/// it would get the printer's own language, under a name that nobody is asked for.
QAbstractPrintDialog::PrintDialogOptions printDialogOptions();

/// The desktop's printers; before a job the desktop's dialog sets one up. What was chosen last
/// stays chosen while that printer is there.
class WidgetPrinter : public Printer {
 public:
  /// Sets a printer up as the user wants it; false when the user cancels.
  using Chooser = std::function<bool(QPrinter&)>;

  /// By the print dialog over the active window.
  WidgetPrinter();
  explicit WidgetPrinter(Chooser choose);
  ~WidgetPrinter() override;

  std::vector<std::string> names() override;
  std::string chosen() override;
  void choose(const std::string& name) override;
  std::optional<PaperSize> paper(PageOrientation orientation) override;
  PrintOutcome print(const PrintJob& job) override;

  /// A4, or Letter where lengths are in inches.
  PaperSize usualPaper(PageOrientation orientation) override;
  std::optional<std::string> makePdf(const PrintJob& job) override;

 private:
  /// A printer that is there, if there is one; false when there is none.
  bool findPrinter();

  Chooser choose_;
  std::unique_ptr<QPrinter> printer_;
};

}  // namespace zel
