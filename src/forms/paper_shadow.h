#pragma once

#include <QPainter>

namespace zel {

inline constexpr int kPaperMargin = 10;  // logical pixels around a sheet of paper, for its shadow

/// The edge and the shadow of a sheet of paper, which lie outside of it.
void paintPaperShadow(QPainter& painter, const QRect& sheet, const QPalette& palette);

}  // namespace zel
