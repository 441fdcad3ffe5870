#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zel {

/// A window as its controls, known by their names.
class FormControls {
 public:
  virtual ~FormControls() = default;
  /// The text of a box, or the caption of a label or a frame; nothing where there is no such
  /// control.
  virtual std::optional<std::string> controlText(std::string_view name) const = 0;
};

/// How a field is read: the text of a control without any "=", "<" and ">" and without blanks at
/// its ends. Empty for a control that cannot be read.
std::string ReadFieldText(const FormControls& form, std::string_view controlName);

}  // namespace zel
