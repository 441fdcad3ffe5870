#pragma once

#include <QLineEdit>

namespace zel {

/// Redoes on every desktop, beside the keys that the desktop has for it.
inline constexpr QKeyCombination kAlsoRedo = Qt::CTRL | Qt::Key_Y;

/// A text box of one line, whatever is typed, pasted or dropped. What would make its text too long
/// to be laid out at every key is refused as a whole, with a note.
class TextBox : public QLineEdit {
  Q_OBJECT

 public:
  static constexpr int kMostCharacters = 32'767;

  explicit TextBox(const char* name);

  /// What it is to hold, of any length. A text that is too long to be edited is held behind the
  /// empty box, which shows its beginning in grey: what is typed takes its place, and gives it back
  /// when it is deleted.
  void setWhole(const QString& text);
  /// What is typed, or else the text that is held behind it.
  QString whole() const;

 protected:
  bool event(QEvent* event) override;

 private:
  QString held_;  // empty unless it is too long to be edited
};

/// A note below a box, for a while, with a beep.
void noteBelow(QLineEdit& box, const QString& note);

}  // namespace zel
