#include "platform/desktop_services.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include "app/installation.h"
#include "platform/xdg/xdg_browser.h"
#include "platform/xdg/xdg_class_registry.h"
#include "platform/xdg/xdg_mail_client.h"
#include "platform/xdg/xdg_recent_documents.h"

namespace zel {

DesktopServices makeDesktopServices(const std::string& program_path) {
  const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
  const QFileInfo program(QString::fromStdString(program_path));
  // What a package has told the desktop for all users, nobody says again for one.
  const Launcher publisher =
      isInstalledProgram(program.absolutePath().toStdString()) ? Launcher() : launch;
  return {std::make_unique<XdgClassRegistry>(data.toStdString(), program_path, publisher),
          std::make_unique<XdgBrowser>(), std::make_unique<XdgMailClient>(),
          std::make_unique<XdgRecentDocuments>(data.toStdString())};
}

std::string userFolder() {
  const QString configurations =
      QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
  return configurations.toStdString() + "/zel";
}

std::string stateFolder() {
  // A path that is not from the root counts as none.
  const QString states = qEnvironmentVariable("XDG_STATE_HOME");
  if (QDir::isAbsolutePath(states)) return states.toStdString() + "/zel";
  return (QDir::homePath() + "/.local/state/zel").toStdString();
}

ProgramPlace programPlace(const std::string& program_path) {
  const QFileInfo file(QString::fromStdString(program_path));
  return {file.absolutePath().toStdString(), file.fileName().toStdString()};
}

}  // namespace zel
