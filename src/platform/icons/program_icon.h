#pragma once

#include <QIcon>

namespace zel {

/// The program's own icon, for all its windows.
QIcon programIcon();

}  // namespace zel
