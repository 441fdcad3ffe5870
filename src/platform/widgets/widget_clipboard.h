#pragma once

#include "app/services.h"

namespace zel {

/// The desktop's clipboard. What is put on it outlives the program where the application is taken
/// down in order: Qt hands it to the clipboard manager then, or leaves it with Windows.
class WidgetClipboard : public Clipboard {
 public:
  void clear() override;
  void putPicture(const Bitmap& bitmap, const std::string& svg) override;
};

}  // namespace zel
