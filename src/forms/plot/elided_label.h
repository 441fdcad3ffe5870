#pragma once

#include <QLabel>

namespace zel {

/// A label of one line of plain text. One without room ends in dots and has a tool tip; text() is
/// the whole text, which others read.
class ElidedLabel : public QLabel {
  Q_OBJECT

 public:
  explicit ElidedLabel(QWidget* parent = nullptr);

  /// The tool tip has all of the text.
  void showText(const QString& text);
  /// The tool tip, as toolTipOf() makes it, has more than this text.
  void showText(const QString& text, const QString& tip);
  bool isElided() const;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QString fitted() const;
  void renewTip();

  QString tip_;  // while there is no room for the text
};

}  // namespace zel
