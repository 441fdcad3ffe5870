#pragma once

#include <cstdint>
#include <optional>

#include "app/services.h"

namespace zel {

/// The desktop's colour dialog over the active window.
class WidgetColourDialog : public ColourDialog {
 public:
  std::optional<std::int32_t> askColour(std::int32_t initial) override;
};

}  // namespace zel
