#pragma once

#include <optional>
#include <string>

#include "app/services.h"

namespace zel {

/// Input boxes over the active window, with their buttons in the current language.
class WidgetInputBoxes : public InputBoxes {
 public:
  std::optional<std::string> ask(const std::string& prompt, const std::string& title) override;
};

}  // namespace zel
