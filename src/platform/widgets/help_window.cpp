#include "platform/widgets/help_window.h"

#include <QAbstractTextDocumentLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QListWidget>
#include <QScrollBar>
#include <QSplitter>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextTable>

#include "platform/widgets/qt_texts.h"

namespace zel {
namespace {

constexpr int kTopicLevel = 2;
constexpr int kBlockRole = Qt::UserRole;
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

}  // namespace

HelpWindow::HelpWindow() : topics_(new QListWidget), text_(new QTextBrowser) {
  setObjectName(QStringLiteral("frmAyuda"));
  setAttribute(Qt::WA_QuitOnClose, false);
  topics_->setObjectName(QStringLiteral("listaTemas"));
  text_->setObjectName(QStringLiteral("txtAyuda"));
  text_->setOpenLinks(false);
  text_->setTabChangesFocus(true);
  auto* const splitter = new QSplitter;
  splitter->setChildrenCollapsible(false);
  splitter->addWidget(topics_);
  splitter->addWidget(text_);
  splitter->setStretchFactor(1, 1);
  const int unit = fontMetrics().averageCharWidth();
  splitter->setSizes({28 * unit, 90 * unit});
  auto* const layout = new QHBoxLayout(this);
  layout->addWidget(splitter);
  resize(120 * unit, 38 * fontMetrics().lineSpacing());
  connect(topics_, &QListWidget::currentRowChanged, this, &HelpWindow::goToTopic);
  // A topic that is current already is gone to as well.
  connect(topics_, &QListWidget::itemClicked, this,
          [this](QListWidgetItem* item) { goToTopic(topics_->row(item)); });
}

void HelpWindow::showText(const std::string& text) {
  ApplyLanguage();
  const QString content = QString::fromStdString(text);
  if (Qt::mightBeRichText(content))
    text_->setHtml(content);
  else
    text_->setMarkdown(content);
  text_->document()->setDocumentMargin(kTextMargin);
  layOutTables(text_->document()->rootFrame(), lineColour(palette()));
  listTopics();
  comeToFront();
}

void HelpWindow::showMissing(const std::string& name) {
  ApplyLanguage();
  topics_->clear();
  text_->setPlainText(inLanguage("No se puede encontrar el archivo de ayuda «%1».",
                                 "The help file “%1” cannot be found.")
                          .arg(QString::fromStdString(name)));
  comeToFront();
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape)
    close();
  else
    QWidget::keyPressEvent(event);
}

void HelpWindow::ApplyLanguage() {
  setWindowTitle(inLanguage("Ayuda de ZEL", "ZEL Help"));
  topics_->setAccessibleName(inLanguage("Temas", "Topics"));
  text_->setAccessibleName(inLanguage("Texto de la ayuda", "Help text"));
}

void HelpWindow::listTopics() {
  topics_->clear();
  for (QTextBlock block = text_->document()->begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() != kTopicLevel) continue;
    auto* const item = new QListWidgetItem(block.text(), topics_);
    item->setData(kBlockRole, block.blockNumber());
  }
  const int width =
      topics_->sizeHintForColumn(0) + topics_->verticalScrollBar()->sizeHint().width();
  topics_->setMinimumWidth(width + 2 * topics_->frameWidth());
}

void HelpWindow::goToTopic(int row) {
  const QListWidgetItem* const item = topics_->item(row);
  if (!item) return;
  const QTextBlock block = text_->document()->findBlockByNumber(item->data(kBlockRole).toInt());
  const QRectF place = text_->document()->documentLayout()->blockBoundingRect(block);
  text_->verticalScrollBar()->setValue(static_cast<int>(place.top() - kTableMargin));
}

void HelpWindow::comeToFront() {
  text_->verticalScrollBar()->setValue(0);
  if (isMinimized()) showNormal();
  show();
  raise();
  activateWindow();
}

}  // namespace zel
