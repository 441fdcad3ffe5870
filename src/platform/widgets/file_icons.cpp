#include "platform/widgets/file_icons.h"

#include <QFileInfo>
#include <QIcon>
#include <QMimeDatabase>

namespace zel {
namespace {

QMimeType typeByName(const QFileInfo& file) {
  return QMimeDatabase().mimeTypeForFile(file, QMimeDatabase::MatchExtension);
}

}  // namespace

QIcon FileIcons::icon(const QFileInfo& file) const {
  if (!file.isFile()) return QFileIconProvider::icon(file);
  return QIcon::fromTheme(typeByName(file).iconName(), icon(File));
}

QString FileIcons::type(const QFileInfo& file) const {
  if (!file.isFile()) return QFileIconProvider::type(file);
  const QMimeType type = typeByName(file);
  return type.comment().isEmpty() ? type.name() : type.comment();
}

}  // namespace zel
