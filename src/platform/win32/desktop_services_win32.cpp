#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include "platform/desktop_services.h"
#include "platform/win32/automation_browser.h"
#include "platform/win32/automation_mail_client.h"
#include "platform/win32/text_encoding.h"
#include "platform/win32/win32_class_registry.h"

namespace zel {

DesktopServices makeDesktopServices(const std::string& /*program_path*/) {
  return {std::make_unique<Win32ClassRegistry>(), std::make_unique<AutomationBrowser>(),
          std::make_unique<AutomationMailClient>()};
}

std::string userFolder() {
  wchar_t folder[MAX_PATH] = L"";
  const DWORD length = GetEnvironmentVariableW(L"APPDATA", folder, MAX_PATH);
  return fromWide({folder, length < MAX_PATH ? length : 0}) + "\\zel";
}

}  // namespace zel
