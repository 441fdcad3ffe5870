#include "platform/widgets/widget_message_boxes.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <vector>

#include "platform/widgets/qt_texts.h"

namespace zel {
namespace {

constexpr int kLongestRun = 80;
constexpr int kMostBoxLines = 40;

QString caption(BoxAnswer answer) {
  switch (answer) {
    case BoxAnswer::ok: return inLanguage("Aceptar", "OK");
    case BoxAnswer::cancel: return inLanguage("Cancelar", "Cancel");
    case BoxAnswer::try_again: return inLanguage("&Reintentar", "&Try Again");
    case BoxAnswer::continue_: return inLanguage("&Continuar", "&Continue");
  }
  return {};
}

/// The answers of a style's buttons, from left to right.
std::vector<BoxAnswer> answersOf(BoxStyle style) {
  switch (style) {
    case BoxStyle::ok_cancel: return {BoxAnswer::ok, BoxAnswer::cancel};
    case BoxStyle::cancel_try_again_continue:
      return {BoxAnswer::cancel, BoxAnswer::try_again, BoxAnswer::continue_};
    case BoxStyle::stop: return {BoxAnswer::ok};
  }
  return {};
}

/// Desktops sort buttons by their roles; three with the same role stay as they are.
QMessageBox::ButtonRole roleOf(BoxAnswer answer, BoxStyle style) {
  if (style == BoxStyle::cancel_try_again_continue) return QMessageBox::ActionRole;
  return answer == BoxAnswer::ok ? QMessageBox::AcceptRole : QMessageBox::RejectRole;
}

/// A text without line breaks, broken where it has no blank for too long.
QStringList foldedLine(const QString& line) {
  QString folded;
  qsizetype run = 0;
  for (const QChar c : line) {
    run = c == u' ' ? 0 : run + 1;
    if (run > kLongestRun && !c.isLowSurrogate()) {
      folded += u'\n';
      run = 1;
    }
    folded += c;
  }
  return folded.split(u'\n');
}

}  // namespace

std::string boxText(const std::string& text) {
  QStringList lines;
  for (const QString& line : QString::fromStdString(text).replace("\r\n", "\n").split(u'\n'))
    lines += foldedLine(line);
  if (lines.size() > kMostBoxLines) lines = lines.mid(0, kMostBoxLines) << QStringLiteral("…");
  return lines.join(u'\n').toStdString();
}

BoxAnswer WidgetMessageBoxes::show(const std::string& text, const std::string& title,
                                   BoxStyle style) {
  // The box goes away with the window below it, wherever that may be taken down.
  const QPointer<QMessageBox> box = new QMessageBox(QApplication::activeWindow());
  box->setIcon(style == BoxStyle::stop ? QMessageBox::Critical : QMessageBox::NoIcon);
  box->setWindowTitle(QString::fromStdString(title));
  box->setTextFormat(Qt::PlainText);
  box->setText(QString::fromStdString(boxText(text)));
  box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  const std::vector<BoxAnswer> answers = answersOf(style);
  std::vector<QPushButton*> buttons;
  buttons.reserve(answers.size());
  for (const BoxAnswer answer : answers)
    buttons.push_back(box->addButton(caption(answer), roleOf(answer, style)));
  const bool has_cancel = style != BoxStyle::stop;
  box->setDefaultButton(buttons.front());
  box->setEscapeButton(style == BoxStyle::ok_cancel ? buttons.back() : buttons.front());
  buttons.front()->setFocus();
  box->exec();
  BoxAnswer given = has_cancel ? BoxAnswer::cancel : BoxAnswer::ok;
  for (std::size_t i = 0; box && i < buttons.size(); ++i)
    if (box->clickedButton() == buttons[i]) given = answers[i];
  delete box;
  return given;
}

}  // namespace zel
