#include "forms/form.h"

#include <QApplication>
#include <QGroupBox>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QWindow>
#include <algorithm>

#include "base/language.h"

namespace zel {

QString toQt(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

std::string fromQt(const QString& text) { return text.toStdString(); }

QString caption(const char* spanish, const char* english) {
  return QString::fromUtf8(CurrentLanguage() == "EN" ? english : spanish);
}

QPixmap windowIconPixmap(int side) { return QApplication::windowIcon().pixmap(side); }

Form::Form(Program& program, const char* name) : program_(program) {
  setObjectName(QString::fromLatin1(name));
}

void Form::ApplyLanguage() {
  if (CurrentLanguage() == "ES" || CurrentLanguage() == "EN") assignCaptions();
}

void Form::showForm() {
  caller_ = callerOf(program_.params);
  ApplyLanguage();
  takeArguments();
  show();
  raise();
  activateWindow();
}

std::optional<std::string> Form::controlText(std::string_view name) const {
  const auto* const control = findChild<QWidget*>(toQt(name));
  if (const auto* const box = qobject_cast<const QLineEdit*>(control)) return fromQt(box->text());
  if (const auto* const label = qobject_cast<const QLabel*>(control)) return fromQt(label->text());
  if (const auto* const frame = qobject_cast<const QGroupBox*>(control))
    return fromQt(frame->title());
  return std::nullopt;
}

void Form::layOverCaller() {
  auto* caller = dynamic_cast<QWidget*>(callerOf(program_.params));
  if (!caller || !caller->windowHandle()) return;
  winId();  // makes the window handle
  windowHandle()->setTransientParent(caller->windowHandle());
  if (!isVisible()) moveOver(*caller);
}

void Form::moveOver(const QWidget& caller) {
  if (!testAttribute(Qt::WA_Resized)) adjustSize();
  const QRect screen = caller.screen()->availableGeometry();
  const QSize frame = caller.frameGeometry().size() - caller.size();  // this one's is not known yet
  QRect place(QPoint(), size() + frame);
  place.moveCenter(caller.frameGeometry().center());
  // Where it does not fit, its title and its left edge are seen.
  place.moveRight(std::min(place.right(), screen.right()));
  place.moveBottom(std::min(place.bottom(), screen.bottom()));
  move(std::max(place.left(), screen.left()), std::max(place.top(), screen.top()));
}

void Form::returnToCaller() {
  hide();
  if (caller_) caller_->showForm();
}

}  // namespace zel
