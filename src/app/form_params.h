#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "base/dictionary.h"

namespace zel {

/// A window as other windows know it.
class FormWindow {
 public:
  virtual ~FormWindow() = default;
  /// Shows the window, or brings it to the front.
  virtual void showForm() = 0;
};

/// What travels from one window to the next: nothing, a text, a number, a 16-bit integer, a flag or
/// a window.
using FormValue =
    std::variant<std::monostate, std::string, double, std::int16_t, bool, FormWindow*>;

/// The arguments of the window that is about to be shown. A sender empties it, adds its keys and
/// last "llamador", itself; the receiver shows "llamador" again when it closes.
using FormParams = KeyedDictionary<FormValue>;

/// With its single entry "llamador", no window.
FormParams makeFormParams();

/// The window under "llamador"; null when there is none.
FormWindow* callerOf(const FormParams& params);

}  // namespace zel
