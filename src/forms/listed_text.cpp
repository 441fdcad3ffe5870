#include "forms/listed_text.h"

#include <QStringDecoder>
#include <algorithm>

#include "forms/tool_tip.h"
#include "platform/qt/one_line.h"

namespace zel {
namespace {

constexpr qsizetype kLongestText = 1000;  // characters, more than a screen has room for

/// A text of many megabytes is looked at in blocks, as far as it is shown.
constexpr std::size_t kBlock = 4096;

/// The graph's text on one line, as far as one character past `length` where it is longer.
QString beginning(const GraphDef& def, qsizetype length) {
  QStringDecoder decode(QStringDecoder::Utf8);
  QString text;
  for (std::string_view piece : displayPieces(def)) {
    while (!piece.empty() && text.size() <= length) {
      const std::string_view block = piece.substr(0, kBlock);
      const QString decoded =
          decode(QByteArrayView(block.data(), static_cast<qsizetype>(block.size())));
      text += inOneLine(decoded);
      piece.remove_prefix(block.size());
    }
  }
  return text.first(std::min(text.size(), length + 1));
}

}  // namespace

/// A style lays out all of a row's text each time that it measures or paints the row.
QString listedText(const GraphDef& def) {
  const QString text = beginning(def, kLongestText);
  return text.size() > kLongestText ? text.first(kLongestText) + u'…' : text;
}

QString listedTip(const GraphDef& def) { return toolTipOf(beginning(def, kLongestToolTip)); }

}  // namespace zel
