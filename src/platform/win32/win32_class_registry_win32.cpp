#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include "platform/win32/text_encoding.h"
#include "platform/win32/win32_class_registry.h"

namespace zel {

ClassRegistry::Key Win32ClassRegistry::createKey(const std::string& name) {
  HKEY key = nullptr;
  if (RegCreateKeyA(HKEY_CLASSES_ROOT, toAnsi(name).c_str(), &key) != ERROR_SUCCESS) return 0;
  return reinterpret_cast<Key>(key);
}

void Win32ClassRegistry::setValue(Key key, const std::string& subkey, const std::string& value) {
  const std::string name = toAnsi(subkey);
  const std::string data = toAnsi(value);
  RegSetValueA(reinterpret_cast<HKEY>(key), name.empty() ? nullptr : name.c_str(), REG_SZ,
               data.c_str(), static_cast<DWORD>(data.size()));
}

}  // namespace zel
