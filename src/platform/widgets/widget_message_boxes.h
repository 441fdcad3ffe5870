#pragma once

#include <string>

#include "app/services.h"

namespace zel {

/// Message boxes over the active window. Their texts can be selected; their buttons are in the
/// current language. The first button is the default one; Esc does what closing does.
class WidgetMessageBoxes : public MessageBoxes {
 public:
  BoxAnswer show(const std::string& text, const std::string& title, BoxStyle style) override;
};

/// A text as a box shows it: CR LF breaks a line, and so does a run of more than 80 characters
/// without a blank; what goes beyond 40 lines is cut and "…" stands for it.
std::string boxText(const std::string& text);

}  // namespace zel
