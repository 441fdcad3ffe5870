#pragma once

class QLineEdit;

namespace zel {

/// Puts every key that is pressed in the box through FilterNumericKey; what is pasted is not
/// filtered.
void filterNumericKeys(QLineEdit& box, bool refuse_minus);

}  // namespace zel
