#include "platform/desktop_services.h"

#include <QFileInfo>

#include "app/installation.h"
#include "platform/xdg/user_folders.h"
#include "platform/xdg/xdg_browser.h"
#include "platform/xdg/xdg_class_registry.h"
#include "platform/xdg/xdg_mail_client.h"
#include "platform/xdg/xdg_recent_documents.h"

namespace zel {

DesktopServices makeDesktopServices(const std::string& program_path) {
  const std::string data = folderNamedBy("XDG_DATA_HOME", "/.local/share");
  const QFileInfo program(QString::fromStdString(program_path));
  // What a package has told the desktop for all users, nobody says again for one.
  const Launcher publisher =
      isInstalledProgram(program.absolutePath().toStdString()) ? Launcher() : launch;
  return {std::make_unique<XdgClassRegistry>(data, program_path, publisher),
          std::make_unique<XdgBrowser>(), std::make_unique<XdgMailClient>(),
          std::make_unique<XdgRecentDocuments>(data)};
}

std::string userFolder() { return folderNamedBy("XDG_CONFIG_HOME", "/.config") + "/zel"; }

std::string stateFolder() { return folderNamedBy("XDG_STATE_HOME", "/.local/state") + "/zel"; }

ProgramPlace programPlace(const std::string& program_path) {
  const QFileInfo file(QString::fromStdString(program_path));
  return {file.absolutePath().toStdString(), file.fileName().toStdString()};
}

}  // namespace zel
