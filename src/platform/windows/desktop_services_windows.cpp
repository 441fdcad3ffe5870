#include "platform/desktop_services.h"
#include "platform/windows/automation_browser.h"
#include "platform/windows/automation_mail_client.h"
#include "platform/windows/windows_class_registry.h"

namespace zel {

DesktopServices makeDesktopServices(const std::string& /*program_path*/) {
  return {std::make_unique<WindowsClassRegistry>(), std::make_unique<AutomationBrowser>(),
          std::make_unique<AutomationMailClient>()};
}

}  // namespace zel
