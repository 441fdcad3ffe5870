#pragma once

#include <QLabel>

#include "app/editor/field_hints.h"

namespace zel {

/// A line under a field that tells a hint in the colour of its tone. It keeps its room while it
/// says nothing; what does not fit ends in dots and is whole in the tool tip.
class HintLine : public QLabel {
  Q_OBJECT

 public:
  explicit HintLine(QWidget* parent = nullptr);

  const FieldHint& hint() const { return hint_; }
  void setHint(const FieldHint& hint);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QColor colour() const;
  void paintSign(QPainter& painter, const QRectF& place) const;
  void paintText(QPainter& painter) const;
  qreal signSide() const;
  int textLeft() const;
  void tellInTip();

  FieldHint hint_;
};

}  // namespace zel
