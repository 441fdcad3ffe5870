#include "forms/form.h"

#include <QApplication>
#include <QGroupBox>
#include <QHideEvent>
#include <QIcon>
#include <QLabel>
#include <QScreen>
#include <QToolButton>
#include <QWindow>
#include <algorithm>

#include "base/language.h"
#include "forms/text_box.h"

namespace zel {

QString toQt(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

std::string fromQt(const QString& text) { return text.toStdString(); }

QString caption(const char* spanish, const char* english) {
  return QString::fromUtf8(CurrentLanguage() == "EN" ? english : spanish);
}

QPixmap windowIconPixmap(int side) { return QApplication::windowIcon().pixmap(side); }

namespace {

/// The toolkit's own buttons that show what a bar has no room for.
void nameExtensions(const QWidget& window) {
  for (const char* const name : {"qt_menubar_ext_button", "qt_toolbar_ext_button"})
    for (auto* const button : window.findChildren<QToolButton*>(QString::fromLatin1(name)))
      button->setAccessibleName(caption("Más", "More"));
}

}  // namespace

Form::Form(Program& program, const char* name) : program_(program) {
  setObjectName(QString::fromLatin1(name));
}

void Form::ApplyLanguage() {
  if (CurrentLanguage() != "ES" && CurrentLanguage() != "EN") return;
  assignCaptions();
  nameExtensions(*this);
}

void Form::showForm() {
  caller_ = callerOf(program_.params);
  ApplyLanguage();
  const bool has_size = testAttribute(Qt::WA_Resized);
  takeArguments();
  if (!has_size) growToContents();
  appear();
  setAttribute(Qt::WA_Resized, has_size);
}

void Form::appear() {
  takePlace();
  show();
  raise();
  activateWindow();
}

std::optional<std::string> Form::controlText(std::string_view name) const {
  const auto* const control = findChild<QWidget*>(toQt(name));
  if (const auto* const box = qobject_cast<const TextBox*>(control)) return fromQt(box->whole());
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
  if (!isVisible() && !place_) moveOver(*caller);
}

void Form::hideEvent(QHideEvent* event) {
  if (!event->spontaneous() && !isMaximized() && !isFullScreen()) place_ = geometry().topLeft();
  QMainWindow::hideEvent(event);
}

/// A window that comes back is as large as it was left, or as its captions now need.
void Form::growToContents() {
  if (isVisible() || !place_) return;
  const QSize frame = frameGeometry().size() - size();
  resize(size().expandedTo(sizeHint()).boundedTo(screen()->availableSize() - frame));
}

/// To the window manager a window that comes back is a new one, which it puts where it likes unless
/// it is told a place, even the one where it stands.
void Form::takePlace() {
  if (isVisible() || !place_ || isMaximized() || isFullScreen() || !windowHandle()) return;
  const QRect place(*place_, size());
  const QList<QScreen*> screens = QGuiApplication::screens();
  const auto sees = [&](const QScreen* screen) {
    return screen->availableGeometry().intersects(place);
  };
  if (std::any_of(screens.begin(), screens.end(), sees)) windowHandle()->setGeometry(place);
}

void Form::moveOver(const QWidget& caller) {
  const QRect screen = caller.screen()->availableGeometry();
  // This window's frame is not known yet, and is taken to be like its caller's.
  const QRect outside = caller.frameGeometry();
  const QSize frame = outside.size() - caller.size();
  const QPoint inside = caller.geometry().topLeft() - outside.topLeft();
  if (!testAttribute(Qt::WA_Resized)) {
    adjustSize();  // to two thirds of the screen at the most
    resize(size().expandedTo(sizeHint()).boundedTo(screen.size() - frame));
  }
  QRect place(QPoint(), size() + frame);
  place.moveCenter(outside.center());
  // Where it does not fit, its title and its left edge are seen.
  place.moveRight(std::min(place.right(), screen.right()));
  place.moveBottom(std::min(place.bottom(), screen.bottom()));
  place.moveLeft(std::max(place.left(), screen.left()));
  place.moveTop(std::max(place.top(), screen.top()));
  setGeometry(QRect(place.topLeft() + inside, size()));
}

void Form::returnToCaller() {
  hide();
  if (caller_) caller_->showForm();
}

}  // namespace zel
