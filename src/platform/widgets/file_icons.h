#pragma once

#include <QFileIconProvider>
#include <QHash>
#include <QIcon>

namespace zel {

/// Icons and kinds of files as their names tell them. The toolkit's own look into each file, and
/// wait with the whole program for one that gives nothing, as the system's log does to its
/// administrator.
class FileIcons : public QFileIconProvider {
 public:
  using QFileIconProvider::icon;
  QIcon icon(const QFileInfo& file) const override;
  QString type(const QFileInfo& file) const override;

 private:
  mutable QHash<QString, QIcon> icons_;  // by name: a name that no theme has is looked for long
};

}  // namespace zel
