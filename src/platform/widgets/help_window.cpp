#include "platform/widgets/help_window.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/widgets/help_page.h"
#include "platform/widgets/qt_texts.h"

namespace zel {
namespace {

constexpr int kHeadingRole = Qt::UserRole;
constexpr int kDeepestTopic = 3;

template <class Control>
Control* named(const char* name) {
  auto* const control = new Control;
  control->setObjectName(QString::fromLatin1(name));
  return control;
}

}  // namespace

HelpWindow::HelpWindow()
    : CmdAtras_(named<QPushButton>("CmdAtras")),
      txtBuscar_(named<QLineEdit>("txtBuscar")),
      CmdBuscarAnterior_(named<QPushButton>("CmdBuscarAnterior")),
      CmdBuscarSiguiente_(named<QPushButton>("CmdBuscarSiguiente")),
      LblBuscar_(named<QLabel>("LblBuscar")),
      topics_(named<QListWidget>("listaTemas")),
      text_(named<HelpPage>("txtAyuda")) {
  setObjectName(QStringLiteral("frmAyuda"));
  setAttribute(Qt::WA_QuitOnClose, false);
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(makeBar());
  layout->addWidget(makeSplitter(), 1);
  resize(QSize(150 * fontMetrics().averageCharWidth(), 46 * fontMetrics().lineSpacing())
             .boundedTo(screen()->availableSize() * 0.9));
  connectParts();
  addKeys();
}

QWidget* HelpWindow::makeBar() {
  auto* const bar = new QWidget;
  auto* const layout = new QHBoxLayout(bar);
  layout->setContentsMargins({});
  layout->addWidget(CmdAtras_);
  layout->addStretch(1);
  layout->addWidget(LblBuscar_);
  layout->addWidget(txtBuscar_);
  layout->addWidget(CmdBuscarAnterior_);
  layout->addWidget(CmdBuscarSiguiente_);
  txtBuscar_->setClearButtonEnabled(true);
  txtBuscar_->setMinimumWidth(30 * fontMetrics().averageCharWidth());
  for (QPushButton* const button : {CmdAtras_, CmdBuscarAnterior_, CmdBuscarSiguiente_})
    button->setAutoDefault(false);
  CmdAtras_->setEnabled(false);
  return bar;
}

QWidget* HelpWindow::makeSplitter() {
  auto* const splitter = new QSplitter;
  splitter->setChildrenCollapsible(false);
  splitter->addWidget(topics_);
  splitter->addWidget(text_);
  splitter->setStretchFactor(1, 1);
  const int unit = fontMetrics().averageCharWidth();
  splitter->setSizes({40 * unit, 110 * unit});
  return splitter;
}

void HelpWindow::connectParts() {
  const auto go = [this](const QListWidgetItem* item) {
    if (item != nullptr) text_->goToHeading(item->data(kHeadingRole).toInt());
  };
  connect(topics_, &QListWidget::currentItemChanged, this, go);
  // A topic that is current already is gone to as well.
  connect(topics_, &QListWidget::itemClicked, this, go);
  connect(topics_, &QListWidget::itemActivated, this, go);
  connect(CmdAtras_, &QPushButton::clicked, text_, &HelpPage::goBack);
  connect(text_, &HelpPage::placesChanged, this,
          [this] { CmdAtras_->setEnabled(text_->canGoBack()); });
  connect(txtBuscar_, &QLineEdit::textEdited, this, &HelpWindow::findTyped);
  connect(txtBuscar_, &QLineEdit::returnPressed, this, [this] { find(false); });
  connect(CmdBuscarSiguiente_, &QPushButton::clicked, this, [this] { find(false); });
  connect(CmdBuscarAnterior_, &QPushButton::clicked, this, [this] { find(true); });
}

void HelpWindow::addKeys() {
  const auto add = [this](const QKeySequence& key, auto action) {
    connect(new QShortcut(key, this), &QShortcut::activated, this, action);
  };
  add(QKeySequence::Back, [this] { text_->goBack(); });
  add(QKeySequence::Find, [this] {
    txtBuscar_->setFocus();
    txtBuscar_->selectAll();
  });
  add(QKeySequence(Qt::Key_F3), [this] { find(false); });
  add(QKeySequence(Qt::SHIFT | Qt::Key_F3), [this] { find(true); });
}

void HelpWindow::showFile(const HelpFile& file) {
  ApplyLanguage();
  text_->take(file.text, QString::fromStdString(file.folder));
  listTopics();
  comeToFront();
}

void HelpWindow::showMissing(const std::string& name) {
  ApplyLanguage();
  text_->take({}, {});
  text_->setPlainText(inLanguage("No se puede encontrar el archivo de ayuda «%1».",
                                 "The help file “%1” cannot be found.")
                          .arg(QString::fromStdString(name)));
  listTopics();
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
  CmdAtras_->setText(inLanguage("A&trás", "&Back"));
  txtBuscar_->setPlaceholderText(inLanguage("Buscar en la ayuda", "Find in the help"));
  txtBuscar_->setAccessibleName(txtBuscar_->placeholderText());
  CmdBuscarAnterior_->setText(inLanguage("&Anterior", "&Previous"));
  CmdBuscarSiguiente_->setText(inLanguage("&Siguiente", "&Next"));
  showWhetherFound(true);
}

void HelpWindow::listTopics() {
  const QSignalBlocker quiet(topics_);
  topics_->clear();
  const auto& headings = text_->headings();
  for (std::size_t i = 0; i < headings.size(); ++i) {
    if (headings[i].level > kDeepestTopic) continue;
    const QString indent(2 * std::max<qsizetype>(0, headings[i].level - 2), ' ');
    auto* const item = new QListWidgetItem(indent + headings[i].text, topics_);
    item->setData(kHeadingRole, static_cast<int>(i));
  }
  topics_->setCurrentRow(0);
  const int width =
      topics_->sizeHintForColumn(0) + topics_->verticalScrollBar()->sizeHint().width();
  topics_->setMinimumWidth(width + 2 * topics_->frameWidth());
}

void HelpWindow::showWhetherFound(bool found) {
  LblBuscar_->setText(found ? QString() : inLanguage("No se encuentra.", "Not found."));
}

void HelpWindow::find(bool backwards) {
  const QString words = txtBuscar_->text();
  if (!words.isEmpty()) showWhetherFound(text_->findWords(words, backwards));
}

void HelpWindow::findTyped() {
  const QString words = txtBuscar_->text();
  showWhetherFound(text_->findTyped(words) || words.isEmpty());
}

void HelpWindow::comeToFront() {
  if (isMinimized()) showNormal();
  show();
  raise();
  activateWindow();
  text_->setFocus();
}

}  // namespace zel
