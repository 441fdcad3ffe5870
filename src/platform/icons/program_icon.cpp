#include "platform/icons/program_icon.h"

#include "platform/icons/icons.h"

namespace zel {

QIcon programIcon() {
  initIcons();
  QIcon icon;
  icon.addFile(QString::fromLatin1(kProgramIcon.png48));
  icon.addFile(QString::fromLatin1(kProgramIcon.png256));
  return icon;
}

}  // namespace zel
