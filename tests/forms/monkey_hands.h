#pragma once

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QWheelEvent>
#include <algorithm>
#include <array>
#include <random>
#include <string_view>

#include "forms/hostile_inputs.h"

namespace zel::test {

/// What a user without a plan does to a control, by chance. The same seed gives the same events.
class MonkeyHands {
 public:
  explicit MonkeyHands(unsigned long seed)
      : random_(static_cast<std::mt19937::result_type>(seed)) {}

  int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }

  /// The window itself now and then, otherwise one of its controls.
  QWidget& anyControl(QWidget& window) {
    QWidgetList controls = {&window};
    for (QWidget* child : window.findChildren<QWidget*>())
      if (child->isVisible() && child->isEnabled()) controls.append(child);
    return *controls[below(static_cast<int>(controls.size()))];
  }

  void click(QWidget& window) {
    QWidget& target = anyControl(window);
    const QPointF place(below(std::max(1, target.width())), below(std::max(1, target.height())));
    const auto button = below(6) == 0 ? Qt::RightButton : Qt::LeftButton;
    const QPointF global = target.mapToGlobal(place);
    QMouseEvent press(below(8) == 0 ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress, place,
                      global, button, button, Qt::NoModifier);
    const QPointer<QWidget> alive(&target);
    QApplication::sendEvent(&target, &press);
    if (alive && below(3) == 0) {
      const QPointF further = place + QPointF(below(200) - 100, below(200) - 100);
      QMouseEvent move(QEvent::MouseMove, further, target.mapToGlobal(further), Qt::NoButton,
                       button, Qt::NoModifier);
      QApplication::sendEvent(&target, &move);
    }
    if (!alive) return;
    QMouseEvent release(QEvent::MouseButtonRelease, place, global, button, Qt::NoButton,
                        Qt::NoModifier);
    QApplication::sendEvent(&target, &release);
  }

  void turnWheel(QWidget& window) {
    QWidget& target = anyControl(window);
    const QPointF place(below(std::max(1, target.width())), below(std::max(1, target.height())));
    QWheelEvent event(place, target.mapToGlobal(place), QPoint(), QPoint(0, 60 * (below(9) - 4)),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&target, &event);
  }

  void press(QWidget& window) {
    QWidget& target = anyControl(window);
    constexpr std::array<Qt::Key, 16> kKeys = {
        Qt::Key_Return, Qt::Key_Escape,    Qt::Key_Tab,  Qt::Key_Space,
        Qt::Key_Up,     Qt::Key_Down,      Qt::Key_Left, Qt::Key_Right,
        Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Home, Qt::Key_End,
        Qt::Key_PageUp, Qt::Key_PageDown,  Qt::Key_F1,   Qt::Key_Backtab};
    constexpr std::string_view kTyped = "0123456789,.-+*/^()!xtpeEsincolg CcPp";
    if (below(2) == 0) {
      const Qt::Key key = kKeys[static_cast<std::size_t>(below(kKeys.size()))];
      const QString text = key == Qt::Key_Escape ? "\x1b" : key == Qt::Key_Space ? " " : "";
      QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, text);
      QApplication::sendEvent(&target, &down);
    } else {
      const char typed = kTyped[static_cast<std::size_t>(below(static_cast<int>(kTyped.size())))];
      QKeyEvent down(QEvent::KeyPress, typed, Qt::NoModifier, QString(QChar(typed)));
      QApplication::sendEvent(&target, &down);
    }
  }

  const QString& anyText() {
    const auto& texts = hostileTexts();
    return texts[static_cast<std::size_t>(below(static_cast<int>(texts.size())))];
  }

  /// Typed at once, as input methods do, or pasted.
  void enterText(QWidget& window) {
    QWidget& target = anyControl(window);
    auto* const box = qobject_cast<QLineEdit*>(&target);
    if (!box || below(2) == 0) {
      QKeyEvent down(QEvent::KeyPress, 0, Qt::NoModifier, anyText());
      QApplication::sendEvent(&target, &down);
      return;
    }
    if (below(2) == 0) box->selectAll();
    QApplication::clipboard()->setText(anyText());
    box->paste();
  }

  void resize(QWidget& window) { window.resize(40 + below(1000), 40 + below(700)); }

 private:
  std::mt19937 random_;
};

}  // namespace zel::test
