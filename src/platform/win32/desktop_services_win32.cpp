#include "platform/desktop_services.h"
#include "platform/win32/automation_browser.h"
#include "platform/win32/automation_mail_client.h"
#include "platform/win32/win32_class_registry.h"

namespace zel {

DesktopServices makeDesktopServices(const std::string& /*program_path*/) {
  return {std::make_unique<Win32ClassRegistry>(), std::make_unique<AutomationBrowser>(),
          std::make_unique<AutomationMailClient>()};
}

}  // namespace zel
