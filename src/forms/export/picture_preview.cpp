#include "forms/export/picture_preview.h"

#include <QPainter>

#include "forms/paper_shadow.h"

namespace zel {

PicturePreview::PicturePreview(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setMinimumSize(160, 120);
}

QSize PicturePreview::room() const {
  return (size() - QSize(2 * kPaperMargin, 2 * kPaperMargin)).expandedTo({1, 1});
}

void PicturePreview::showPicture(const QImage& image) {
  image_ = image;
  text_.clear();
  setAccessibleDescription({});
  update();
}

void PicturePreview::showText(const QString& text) {
  image_ = QImage();
  text_ = text;
  setAccessibleDescription(text);
  update();
}

void PicturePreview::resizeEvent(QResizeEvent*) { emit roomChanged(); }

void PicturePreview::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.drawText(rect().adjusted(kPaperMargin, 0, -kPaperMargin, 0),
                   Qt::AlignCenter | Qt::TextWordWrap, text_);
  if (image_.isNull()) return;
  QRect place(QPoint(), image_.deviceIndependentSize().toSize().expandedTo({1, 1}));
  place.moveCenter(rect().center());
  paintPaperShadow(painter, place, palette());
  painter.drawImage(place.topLeft(), image_);
}

}  // namespace zel
