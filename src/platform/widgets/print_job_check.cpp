#include "platform/widgets/print_job_check.h"

#include <QFile>
#include <QLibrary>
#include <QPrinter>
#include <algorithm>

namespace zel {
namespace {

/// Of a PDF document, whose last line says that it is whole.
bool isWhole(const QString& path) {
  constexpr qint64 kLongestEnd = 16;
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly) || file.size() == 0) return false;
  file.seek(std::max<qint64>(0, file.size() - kLongestEnd));
  return file.read(kLongestEnd).contains("%%EOF");
}

/// Asks the library that Qt prints through, which is loaded then. Elsewhere there is none, and no
/// job is known to be refused.
bool isRefusedByCups() {
  constexpr int kFirstError = 0x100;
  using LastError = int (*)();
  const auto last_error =
      reinterpret_cast<LastError>(QLibrary::resolve("cups", 2, "cupsLastError"));
  return last_error && last_error() >= kFirstError;
}

}  // namespace

bool hasTakenJob(const QPrinter& printer) {
  if (printer.printerState() == QPrinter::Error) return false;
  if (!printer.outputFileName().isEmpty()) return isWhole(printer.outputFileName());
  return !isRefusedByCups();
}

}  // namespace zel
