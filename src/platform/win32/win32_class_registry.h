#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "app/services.h"

namespace zel {

/// The class registry of Windows. Where the system refuses a key or a value, which takes an
/// administrator's rights outside of the user's own classes, those get it. A call that fails there
/// too is passed over, and keys are not closed: both are meant. No entry is made for a path that it
/// would name wrongly.
class Win32ClassRegistry : public ClassRegistry {
 public:
  /// Writes below HKEY_CLASSES_ROOT.
  Win32ClassRegistry();
  /// Writes below another open key.
  explicit Win32ClassRegistry(std::uintptr_t root) : root_(root) {}

  Key createKey(const std::string& name) override;
  void setValue(Key key, const std::string& subkey, const std::string& value) override;

 private:
  std::uintptr_t root_;
  std::map<Key, std::string> names_;  // of the keys that were made below the root
};

}  // namespace zel
