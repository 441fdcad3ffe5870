#pragma once

class QLineEdit;

namespace zel {

/// Puts every key that is pressed in the box through FilterNumericKey; what is pasted is not
/// filtered. A key that is swallowed beeps, and a note at the box says why for two seconds.
void filterNumericKeys(QLineEdit& box, bool refuse_minus);

}  // namespace zel
