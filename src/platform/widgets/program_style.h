#pragma once

#include <QIcon>
#include <QProxyStyle>
#include <map>
#include <mutex>

namespace zel {

/// The desktop's style but for six things: a button that has the focus shows it, a default one
/// too; a button that is checked has a frame of the colour of selections; no button of a dialog has
/// an icon, so that those of message boxes look like all others; an icon is the same one each time,
/// until the colours or the theme of the desktop change, because the toolkit caches the pictures of
/// each new one anew; and for that reason the header of a list has no icon: that of file dialogs
/// would be a new one, and an empty one, at each paint; and the hint in an empty field is a paler
/// shade of what is typed there, because the toolkit leaves it black on some dark desktops.
class ProgramStyle : public QProxyStyle {
 public:
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override;
  using QProxyStyle::polish;
  /// The toolkit calls it whenever it makes up the palette of the application.
  void polish(QPalette& palette) override;
  QIcon standardIcon(StandardPixmap name, const QStyleOption* option,
                     const QWidget* widget) const override;

 private:
  mutable std::mutex icons_guard_;  // file dialogs read folders in threads of their own
  mutable std::map<StandardPixmap, QIcon> icons_;
};

}  // namespace zel
