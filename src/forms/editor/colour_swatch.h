#pragma once

#include <QColor>
#include <QPushButton>
#include <cstdint>

namespace zel {

/// A colour with red in its low byte.
QColor qtColour(std::int32_t colour);

/// A button that shows a colour. A click, Space and Enter all click it.
class ColourSwatch : public QPushButton {
  Q_OBJECT

 public:
  explicit ColourSwatch(QWidget* parent = nullptr);

  std::int32_t colour() const { return colour_; }
  void setColour(std::int32_t colour);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::int32_t colour_ = 0;
};

}  // namespace zel
