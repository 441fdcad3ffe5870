#include "platform/widgets/widget_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <memory>

#include "platform/qt/bitmap_image.h"

namespace zel {

void WidgetClipboard::clear() { QGuiApplication::clipboard()->clear(); }

void WidgetClipboard::putPicture(const Bitmap& bitmap, const std::string& svg) {
  auto data = std::make_unique<QMimeData>();
  data->setImageData(toImage(bitmap));
  if (!svg.empty()) data->setData("image/svg+xml", QByteArray::fromStdString(svg));
  QGuiApplication::clipboard()->setMimeData(data.release());
}

}  // namespace zel
