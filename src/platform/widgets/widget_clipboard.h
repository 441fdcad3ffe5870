#pragma once

#include "app/services.h"

namespace zel {

/// The desktop's clipboard.
class WidgetClipboard : public Clipboard {
 public:
  void clear() override;
  void putBitmap(const Bitmap& bitmap) override;
};

}  // namespace zel
