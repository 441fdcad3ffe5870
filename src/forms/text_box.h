#pragma once

class QLineEdit;

namespace zel {

/// A text box with this object name. It holds one line, whatever is typed, pasted or dropped.
QLineEdit* makeTextBox(const char* name);

}  // namespace zel
