#pragma once

#include <QString>

namespace zel {

/// Characters that a tool tip shows of a text; "…" stands for the others.
inline constexpr qsizetype kLongestToolTip = 1600;

/// A tool tip that shows a text of a document letter by letter: toolkits take tool tips for markup
/// where they look like it. A long text is folded and cut; an empty one gives no tool tip.
QString toolTipOf(const QString& text);

}  // namespace zel
