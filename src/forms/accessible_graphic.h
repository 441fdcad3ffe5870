#pragma once

class QWidget;

namespace zel {

/// Lets assistive technology meet a widget as a picture, whatever it is made of.
void showAsGraphic(QWidget& widget);

}  // namespace zel
