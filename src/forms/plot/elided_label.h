#pragma once

#include <QLabel>

namespace zel {

/// A label of one line of plain text. One without room ends in dots and has all of it in its tool
/// tip; text() is the whole text, which others read.
class ElidedLabel : public QLabel {
  Q_OBJECT

 public:
  explicit ElidedLabel(QWidget* parent = nullptr);

  void showText(const QString& text);
  bool isElided() const;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QString fitted() const;
  void renewTip();
};

}  // namespace zel
