#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include "base/text.h"
#include "platform/desktop_services.h"
#include "platform/win32/automation_browser.h"
#include "platform/win32/automation_mail_client.h"
#include "platform/win32/text_encoding.h"
#include "platform/win32/win32_class_registry.h"
#include "platform/win32/win32_recent_documents.h"

namespace zel {

DesktopServices makeDesktopServices(const std::string& /*program_path*/) {
  return {std::make_unique<Win32ClassRegistry>(), std::make_unique<AutomationBrowser>(),
          std::make_unique<AutomationMailClient>(), std::make_unique<Win32RecentDocuments>()};
}

namespace {

/// A folder that the environment names; empty where it names none.
std::string folderOf(const wchar_t* variable) {
  const DWORD size = GetEnvironmentVariableW(variable, nullptr, 0);
  std::wstring folder(size, L'\0');
  const DWORD length = GetEnvironmentVariableW(variable, folder.data(), size);
  return fromWide({folder.data(), length < size ? length : 0});
}

/// The program's own folder in one that the environment names.
std::string ownFolderIn(const wchar_t* variable) {
  const std::string folder = folderOf(variable);
  return folder.empty() ? folder : folder + "\\zel";
}

}  // namespace

std::string userFolder() { return ownFolderIn(L"APPDATA"); }

std::string stateFolder() { return ownFolderIn(L"LOCALAPPDATA"); }

ProgramPlace programPlace(const std::string& program_path) {
  constexpr std::string_view kEnding = ".exe";
  const std::string path = replaceAll(program_path, "/", "\\");
  const std::size_t separator = path.rfind('\\');
  std::string name = path.substr(separator + 1);
  if (toLower(name).ends_with(kEnding)) name.resize(name.size() - kEnding.size());
  return {separator == std::string::npos ? "." : path.substr(0, separator), name};
}

void nameHome() {}

void quitOnSignals() {}

}  // namespace zel
