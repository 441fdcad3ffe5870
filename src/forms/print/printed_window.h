#pragma once

namespace zel {

class PictureBox;

/// A window whose picture can be printed; it goes to the print preview under "imprimir".
class PrintedWindow {
 public:
  virtual ~PrintedWindow() = default;
  virtual PictureBox& picture() = 0;
};

}  // namespace zel
