#include "forms/listed_text.h"

#include "forms/form.h"
#include "forms/tool_tip.h"
#include "platform/qt/one_line.h"

namespace zel {
namespace {

constexpr qsizetype kLongestText = 1000;  // characters, more than a screen has room for

}  // namespace

/// A style lays out all of a row's text each time that it measures or paints the row.
QString listedText(const GraphDef& def) {
  const QString text = inOneLine(toQt(displayText(def)));
  return text.size() > kLongestText ? text.first(kLongestText) + u'…' : text;
}

QString listedTip(const GraphDef& def) { return toolTipOf(toQt(displayText(def))); }

}  // namespace zel
