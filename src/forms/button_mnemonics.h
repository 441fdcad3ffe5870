#pragma once

class QMainWindow;

namespace zel {

/// Where a button and a menu of a window share a mnemonic, it clicks the button: a menu can be
/// reached with Alt alone and the arrow keys, too. Call it when the window's buttons are there.
void preferButtonMnemonics(QMainWindow& window);

}  // namespace zel
