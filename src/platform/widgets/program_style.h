#pragma once

#include <QProxyStyle>

namespace zel {

/// The desktop's style but for two things: a button that has the focus shows it, a default one too,
/// and no button of a dialog has an icon, so that those of message boxes look like all others.
class ProgramStyle : public QProxyStyle {
 public:
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override;
};

}  // namespace zel
