#include "platform/widgets/help_page.h"

#include <QAbstractTextDocumentLayout>
#include <QScopeGuard>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextTable>
#include <algorithm>

namespace zel {
namespace {

constexpr double kTextMargin = 14;
constexpr double kTableMargin = 6;

/// A colour between text and ground, light or dark.
QColor lineColour(const QPalette& palette) {
  const QColor text = palette.color(QPalette::Text);
  const QColor ground = palette.color(QPalette::Base);
  const auto between = [](int a, int b) { return (a + 2 * b) / 3; };
  return {between(text.red(), ground.red()), between(text.green(), ground.green()),
          between(text.blue(), ground.blue())};
}

/// Tables get room around their texts and thin lines.
void layOutTables(QTextFrame* frame, const QColor& lines) {
  for (QTextFrame* child : frame->childFrames()) {
    if (auto* const table = qobject_cast<QTextTable*>(child)) {
      QTextTableFormat format = table->format();
      format.setCellPadding(4);
      format.setTopMargin(kTableMargin);
      format.setBottomMargin(kTableMargin);
      format.setBorder(1);
      format.setBorderCollapse(true);
      format.setBorderBrush(lines);
      format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
      table->setFormat(format);
    }
    layOutTables(child, lines);
  }
}

/// The text without case and accents, each character in its place.
QString folded(QString text) {
  for (QChar& c : text) {
    if (c.decompositionTag() == QChar::Canonical) c = c.decomposition().at(0);
    c = c.toLower();
  }
  return text;
}

}  // namespace

QString headingName(const QString& text) {
  QString name;
  for (const QChar c : text) {
    if (c.isLetterOrNumber() || c == '_') name += c.toLower();
    if (c == ' ' || c == '-') name += '-';
  }
  return name;
}

HelpPage::HelpPage(QWidget* parent) : QTextBrowser(parent) {
  setOpenLinks(false);
  setTabChangesFocus(true);
  // One that came and went with the size of the pictures would change their size.
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  connect(this, &QTextBrowser::anchorClicked, this, &HelpPage::follow);
}

void HelpPage::take(const std::string& text, const QString& folder) {
  places_.clear();
  layOut(QString::fromStdString(text));
  listHeadings();
  loadPictures(folder);
  fitPictures();
  unmark();
  verticalScrollBar()->setValue(0);
  emit placesChanged();
}

/// Once, and not at each line as it comes.
void HelpPage::layOut(const QString& content) {
  document()->setLayoutEnabled(false);
  const auto enable = qScopeGuard([this] { document()->setLayoutEnabled(true); });
  if (Qt::mightBeRichText(content))
    setHtml(content);
  else
    setMarkdown(content);
  document()->setDocumentMargin(kTextMargin);
  layOutTables(document()->rootFrame(), lineColour(palette()));
}

void HelpPage::listHeadings() {
  headings_.clear();
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
    if (const int level = block.blockFormat().headingLevel(); level > 0)
      headings_.push_back({block.text(), level, block.blockNumber()});
}

void HelpPage::loadPictures(const QString& folder) {
  pictures_.clear();
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
    for (auto it = block.begin(); !it.atEnd(); ++it) {
      const QTextCharFormat format = it.fragment().charFormat();
      if (!format.isImageFormat()) continue;
      const QString name = format.toImageFormat().name();
      pictures_[name] = QImage(folder + "/" + name);
    }
}

void HelpPage::fitPictures() {
  const int room = viewport()->width() - static_cast<int>(2 * kTextMargin);
  const qreal density = devicePixelRatioF();
  for (const auto& [name, picture] : pictures_) {
    QImage fitting = picture;
    if (picture.width() > room) {
      const int width = std::max(1, static_cast<int>(room * density));
      fitting = picture.scaledToWidth(width, Qt::SmoothTransformation);
      fitting.setDevicePixelRatio(density);
    }
    document()->addResource(QTextDocument::ImageResource, QUrl(name), fitting);
  }
  document()->markContentsDirty(0, document()->characterCount());
}

void HelpPage::resizeEvent(QResizeEvent* event) {
  QTextBrowser::resizeEvent(event);
  fitPictures();
}

void HelpPage::goToHeading(int heading) {
  if (heading < 0 || heading >= static_cast<int>(headings_.size())) return;
  const int block = headings_[static_cast<std::size_t>(heading)].block;
  const QRectF place =
      document()->documentLayout()->blockBoundingRect(document()->findBlockByNumber(block));
  const int before = verticalScrollBar()->value();
  verticalScrollBar()->setValue(static_cast<int>(place.top() - kTableMargin));
  if (verticalScrollBar()->value() == before) return;
  places_.push_back(before);
  emit placesChanged();
}

void HelpPage::goBack() {
  if (places_.empty()) return;
  verticalScrollBar()->setValue(places_.back());
  places_.pop_back();
  emit placesChanged();
}

void HelpPage::follow(const QUrl& link) {
  const auto found = std::ranges::find_if(headings_, [&link](const Heading& heading) {
    return headingName(heading.text) == link.fragment(QUrl::FullyDecoded);
  });
  if (found != headings_.end()) goToHeading(static_cast<int>(found - headings_.begin()));
}

bool HelpPage::findWords(const QString& words, bool backwards) {
  const QString text = folded(toPlainText());
  const QString wanted = folded(words);
  const QTextCursor marked = textCursor();
  if (!backwards) {
    const qsizetype next = text.indexOf(wanted, marked.selectionEnd());
    return mark(next < 0 ? text.indexOf(wanted) : next, wanted.size());
  }
  const qsizetype start = marked.selectionStart();
  const qsizetype previous = start == 0 ? -1 : text.lastIndexOf(wanted, start - 1);
  return mark(previous < 0 ? text.lastIndexOf(wanted) : previous, wanted.size());
}

bool HelpPage::findTyped(const QString& words) {
  QTextCursor cursor = textCursor();
  cursor.setPosition(cursor.selectionStart());
  setTextCursor(cursor);
  return findWords(words, false);
}

bool HelpPage::mark(qsizetype place, qsizetype length) {
  if (place < 0 || length == 0) {
    unmark();
    return false;
  }
  QTextCursor cursor(document());
  cursor.setPosition(static_cast<int>(place));
  cursor.setPosition(static_cast<int>(place + length), QTextCursor::KeepAnchor);
  setTextCursor(cursor);
  // A selection alone is pale while the words are typed elsewhere.
  ExtraSelection found;
  found.cursor = cursor;
  found.format.setBackground(palette().brush(QPalette::Active, QPalette::Highlight));
  found.format.setForeground(palette().brush(QPalette::Active, QPalette::HighlightedText));
  setExtraSelections({found});
  return true;
}

void HelpPage::unmark() {
  setExtraSelections({});
  QTextCursor cursor = textCursor();
  cursor.clearSelection();
  setTextCursor(cursor);
}

}  // namespace zel
