#include "forms/tool_tip.h"

#include <QStringList>
#include <algorithm>

#include "platform/qt/one_line.h"

namespace zel {
namespace {

constexpr qsizetype kLineLength = 80;
constexpr qsizetype kMostLines = kLongestToolTip / kLineLength;
static_assert(kMostLines * kLineLength == kLongestToolTip);

}  // namespace

QString toolTipOf(const QString& document_text) {
  const QString text = inOneLine(document_text);
  if (text.isEmpty()) return {};
  QStringList lines;
  for (qsizetype i = 0; i < text.size() && lines.size() < kMostLines; i += kLineLength)
    lines << text.sliced(i, std::min(kLineLength, text.size() - i));
  if (text.size() > kLongestToolTip) lines << QStringLiteral("…");
  return "<p style='white-space:pre'>" + lines.join(u'\n').toHtmlEscaped() + "</p>";
}

}  // namespace zel
