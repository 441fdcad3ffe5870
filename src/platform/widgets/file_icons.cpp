#include "platform/widgets/file_icons.h"

#include <QFileInfo>
#include <QMimeDatabase>

#include "platform/widgets/qt_texts.h"

namespace zel {
namespace {

QMimeType typeByName(const QFileInfo& file) {
  return QMimeDatabase().mimeTypeForFile(file, QMimeDatabase::MatchExtension);
}

}  // namespace

QIcon FileIcons::icon(const QFileInfo& file) const {
  if (!file.isFile()) return QFileIconProvider::icon(file);
  const QString name = typeByName(file).iconName();
  if (!icons_.contains(name)) icons_.insert(name, QIcon::fromTheme(name, icon(File)));
  return icons_.value(name);
}

QString FileIcons::type(const QFileInfo& file) const {
  // The toolkit's own translations lack it.
  if (file.isDir()) return inLanguage("Carpeta", "Folder");
  if (!file.isFile()) return QFileIconProvider::type(file);
  const QMimeType type = typeByName(file);
  return type.comment().isEmpty() ? type.name() : type.comment();
}

}  // namespace zel
