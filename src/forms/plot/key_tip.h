#pragma once

#include <QString>

class QWidget;

namespace zel {

/// Names a button's key in its tool tip, on a line below the tip's own text, which stays what it
/// is, and in its description. Called again, for another language, it names this one instead.
void nameKey(QWidget& button, const QString& key);

}  // namespace zel
