#include "platform/widgets/widget_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

#include "platform/qt/bitmap_image.h"

namespace zel {

void WidgetClipboard::clear() { QGuiApplication::clipboard()->clear(); }

void WidgetClipboard::putBitmap(const Bitmap& bitmap) {
  QGuiApplication::clipboard()->setImage(toImage(bitmap));
}

}  // namespace zel
