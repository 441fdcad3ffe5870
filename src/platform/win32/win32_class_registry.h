#pragma once

#include <string>

#include "app/services.h"

namespace zel {

/// The class registry of Windows. A call that fails is passed over, and keys are not closed: both
/// are meant.
class Win32ClassRegistry : public ClassRegistry {
 public:
  Key createKey(const std::string& name) override;
  void setValue(Key key, const std::string& subkey, const std::string& value) override;
};

}  // namespace zel
