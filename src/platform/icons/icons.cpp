#include "platform/icons/icons.h"

#include <QtCore/qglobal.h>

/// Stands outside of any namespace, as the macro wants.
static void initIconResources() {
  Q_INIT_RESOURCE(icons);
  Q_INIT_RESOURCE(plot_icons);
}

namespace zel {

void initIcons() { initIconResources(); }

}  // namespace zel
