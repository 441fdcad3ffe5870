#include "platform/xdg/launcher.h"

#include <QProcess>
#include <QStandardPaths>
#include <algorithm>

namespace zel {
namespace {

/// The toolkit hands over texts: other bytes would become other arguments.
bool isUtf8(const std::string& argument) {
  return QString::fromStdString(argument).toStdString() == argument;
}

}  // namespace

bool launch(const std::string& program, const std::vector<std::string>& arguments) {
  if (!isInstalled(program) || !std::ranges::all_of(arguments, isUtf8)) return false;
  QProcess process;
  process.setProgram(QString::fromStdString(program));
  QStringList list;
  for (const std::string& argument : arguments) list << QString::fromStdString(argument);
  process.setArguments(list);
  process.setStandardInputFile(QProcess::nullDevice());
  process.setStandardOutputFile(QProcess::nullDevice());
  process.setStandardErrorFile(QProcess::nullDevice());
  return process.startDetached();
}

bool isInstalled(const std::string& program) {
  return !QStandardPaths::findExecutable(QString::fromStdString(program)).isEmpty();
}

}  // namespace zel
