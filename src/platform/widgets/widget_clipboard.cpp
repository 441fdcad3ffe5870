#include "platform/widgets/widget_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include "platform/qt/bitmap_image.h"

namespace zel {

void WidgetClipboard::clear() { QGuiApplication::clipboard()->clear(); }

void WidgetClipboard::putPicture(const Bitmap& bitmap, const std::string& svg) {
  auto* const data = new QMimeData;  // the clipboard's from now on
  data->setImageData(toImage(bitmap));
  if (!svg.empty()) data->setData("image/svg+xml", QByteArray::fromStdString(svg));
  QGuiApplication::clipboard()->setMimeData(data);
}

}  // namespace zel
