#include "platform/desktop_services.h"

#include <QStandardPaths>

#include "platform/xdg/xdg_browser.h"
#include "platform/xdg/xdg_class_registry.h"
#include "platform/xdg/xdg_mail_client.h"

namespace zel {

DesktopServices makeDesktopServices(const std::string& program_path) {
  const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
  return {std::make_unique<XdgClassRegistry>(data.toStdString(), program_path),
          std::make_unique<XdgBrowser>(), std::make_unique<XdgMailClient>()};
}

}  // namespace zel
