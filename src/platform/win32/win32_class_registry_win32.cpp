#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include "platform/win32/text_encoding.h"
#include "platform/win32/win32_class_registry.h"

namespace zel {
namespace {

constexpr std::string_view kCommand = "shell\\open\\command";
constexpr std::string_view kDocument = "%1";

/// Whether what reads the entry finds the file that it names: the code page has every letter, and
/// in a command "%" stands for the document at its end and nowhere else.
bool namesItsFile(const std::string& subkey, const std::string& value) {
  if (subkey.empty()) return true;  // a description
  if (!fitsAnsi(value)) return false;
  return subkey != kCommand || value.find('%') == value.rfind(kDocument);
}

constexpr const char* kUsersClasses = "Software\\Classes\\";

bool create(HKEY root, const std::string& name, HKEY& key) {
  return RegCreateKeyA(root, toAnsi(name).c_str(), &key) == ERROR_SUCCESS;
}

bool set(HKEY key, const std::string& subkey, const std::string& value) {
  const std::string name = toAnsi(subkey);
  const std::string data = toAnsi(value);
  return RegSetValueA(key, name.empty() ? nullptr : name.c_str(), REG_SZ, data.c_str(),
                      static_cast<DWORD>(data.size())) == ERROR_SUCCESS;
}

}  // namespace

Win32ClassRegistry::Win32ClassRegistry()
    : Win32ClassRegistry(reinterpret_cast<std::uintptr_t>(HKEY_CLASSES_ROOT)) {}

ClassRegistry::Key Win32ClassRegistry::createKey(const std::string& name) {
  HKEY key = nullptr;
  if (create(reinterpret_cast<HKEY>(root_), name, key)) {
    names_[reinterpret_cast<Key>(key)] = name;
    return reinterpret_cast<Key>(key);
  }
  return create(HKEY_CURRENT_USER, kUsersClasses + name, key) ? reinterpret_cast<Key>(key) : 0;
}

void Win32ClassRegistry::setValue(Key key, const std::string& subkey, const std::string& value) {
  if (!namesItsFile(subkey, value) || set(reinterpret_cast<HKEY>(key), subkey, value)) return;
  // A key of the whole machine may be opened by everyone and written by few.
  HKEY own = nullptr;
  const auto name = names_.find(key);
  if (name != names_.end() && create(HKEY_CURRENT_USER, kUsersClasses + name->second, own))
    set(own, subkey, value);
}

}  // namespace zel
