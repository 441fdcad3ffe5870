#include "platform/icons/icons.h"

#include <QtCore/qglobal.h>

/// Stands outside of any namespace, as the macro wants.
static void initIconResource() { Q_INIT_RESOURCE(icons); }

namespace zel {

void initIcons() { initIconResource(); }

}  // namespace zel
