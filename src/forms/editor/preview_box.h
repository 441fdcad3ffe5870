#pragma once

#include <QLabel>
#include <functional>

#include "pictures/picture.h"
#include "pictures/picture_size.h"

namespace zel {

/// A small picture on white paper, drawn whole and then shown. Its size follows the font. To those
/// who cannot see it, it is a graphic.
class PreviewBox : public QLabel {
  Q_OBJECT

 public:
  explicit PreviewBox(QWidget* parent = nullptr);

  /// In twips, 15 to a logical pixel.
  PictureSize pictureSize() const;
  /// Lets `draw` draw on an empty picture and shows it.
  void drawWith(const std::function<void(Picture&)>& draw);

 signals:
  /// What is shown has another resolution or size than the widget, and should be drawn again.
  void outgrown();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QSize pixels() const;  // of the device, at least one

  bool is_stale_ = false;  // outgrown was emitted
};

}  // namespace zel
