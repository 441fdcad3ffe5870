#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>
#include <optional>

#include "app/output/print_preview.h"
#include "forms/accessible_graphic.h"

namespace zel {

/// An image that fills its widget, finely scaled.
class ScaledImage : public QWidget {
  Q_OBJECT

 public:
  explicit ScaledImage(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    showAsGraphic(*this);
  }

  void setImage(const QImage& image);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QImage image_;
  QPixmap scaled_;  // of image_, for the present size; null when it is to be made
};

/// The page of the print preview, in the middle and as large as there is room: `Picture2` the sheet
/// of paper, `Image3` the picture on it, `Shape1` the outline that follows the mouse. The arrow
/// keys move the picture, too.
class PageView : public QWidget {
  Q_OBJECT

 public:
  explicit PageView(QWidget* parent = nullptr);

  void showPage(const PrintPreview& preview, const QImage& image);
  void clearPage();
  /// Puts the picture into the middle of the page, made smaller where it is larger than the page
  /// and that is wanted.
  void fitPicture(bool fitted);
  /// Nothing while there is no page.
  const std::optional<PrintPreview>& preview() const { return preview_; }

  void describeImage(const QString& name, const QString& description);
  QSize sizeHint() const override;

 signals:
  /// The user has put the picture at another place.
  void moved();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Image3_MouseDown(QPointF point);
  void Image3_MouseMove(QPointF point);
  void Image3_MouseUp();
  bool Image3_KeyDown(int key);
  void arrange();
  void placePicture();

  QWidget* Picture2_;
  ScaledImage* Image3_;
  QWidget* Shape1_;
  std::optional<PrintPreview> preview_;
};

}  // namespace zel
