#include "forms/text_box.h"

#include <QApplication>
#include <QKeyEvent>
#include <QToolTip>
#include <QWindow>

#include "base/language.h"
#include "forms/form.h"
#include "platform/qt/one_line.h"

namespace zel {
namespace {

constexpr int kNoteTime = 2000;                // milliseconds
constexpr qsizetype kLongestBeginning = 1000;  // characters, more than a screen has room for

class ShortLine : public OneLine {
 public:
  using OneLine::OneLine;

  State validate(QString& text, int& cursor) const override {
    return text.size() > TextBox::kMostCharacters ? Invalid : OneLine::validate(text, cursor);
  }
};

/// Lets the mouse through tool tips that are shown: a press on one is a press on what it covers.
void letMouseThroughTips() {
  for (QWindow* const window : QGuiApplication::topLevelWindows())
    if (window->type() == Qt::ToolTip) window->setFlag(Qt::WindowTransparentForInput);
}

}  // namespace

TextBox::TextBox(const char* name) {
  setObjectName(QString::fromLatin1(name));
  setMaxLength(kMostCharacters + 1);  // the box would cut what the validator is to refuse
  setValidator(new ShortLine(this));
  connect(this, &QLineEdit::inputRejected, this,
          [this] { noteBelow(*this, toQt(Localize("Valores demasiado grandes para operar."))); });
}

void TextBox::setWhole(const QString& text) {
  const QString line = inOneLine(text);
  const bool is_held = line.size() > kMostCharacters;
  held_ = is_held ? line : QString();
  setPlaceholderText(is_held ? line.first(kLongestBeginning) + u'…' : QString());
  setText(is_held ? QString() : line);
}

QString TextBox::whole() const { return text().isEmpty() ? held_ : text(); }

/// Before a shortcut of the window with the same keys.
bool TextBox::event(QEvent* event) {
  const bool asks = event->type() == QEvent::ShortcutOverride;
  if (!asks && event->type() != QEvent::KeyPress) return QLineEdit::event(event);
  if (static_cast<QKeyEvent*>(event)->keyCombination() != kAlsoRedo) return QLineEdit::event(event);
  if (!asks) redo();
  event->accept();
  return true;
}

/// So far down that what the box holds stays seen.
void noteBelow(QLineEdit& box, const QString& note) {
  QApplication::beep();
  QToolTip::showText(box.mapToGlobal(QPoint(0, box.height() / 2)), note, &box, {}, kNoteTime);
  letMouseThroughTips();
}

}  // namespace zel
