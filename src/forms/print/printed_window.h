#pragma once

#include "pictures/number_layer.h"

namespace zel {

class PictureBox;

/// A window whose picture can be printed; it goes to the print preview under "imprimir".
class PrintedWindow {
 public:
  virtual ~PrintedWindow() = default;
  virtual PictureBox& picture() = 0;
  /// What can be printed over the picture.
  virtual NumberLayer numbers() const { return {}; }
};

}  // namespace zel
