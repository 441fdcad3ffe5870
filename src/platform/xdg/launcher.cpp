#include "platform/xdg/launcher.h"

#include <QProcess>
#include <QStandardPaths>

namespace zel {

bool launch(const std::string& program, const std::vector<std::string>& arguments) {
  if (!isInstalled(program)) return false;
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
