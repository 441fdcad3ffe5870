#pragma once

#include <Qt>

class QLineEdit;

namespace zel {

/// Redoes on every desktop, beside the keys that the desktop has for it.
inline constexpr QKeyCombination kAlsoRedo = Qt::CTRL | Qt::Key_Y;

/// A text box with this object name. It holds one line, whatever is typed, pasted or dropped.
QLineEdit* makeTextBox(const char* name);

}  // namespace zel
