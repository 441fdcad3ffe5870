#pragma once

#include <QImage>
#include <QWidget>

namespace zel {

/// A picture in the middle of the widget, on white paper with a shadow, or a text in its place.
class PicturePreview : public QWidget {
  Q_OBJECT

 public:
  explicit PicturePreview(QWidget* parent = nullptr);

  /// The room for a picture, in logical pixels.
  QSize room() const;
  /// With its own density.
  void showPicture(const QImage& image);
  void showText(const QString& text);

  QSize sizeHint() const override { return {460, 345}; }

 signals:
  void roomChanged();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QImage image_;
  QString text_;
};

}  // namespace zel
