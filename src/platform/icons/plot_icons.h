#pragma once

#include <QIcon>
#include <string_view>

namespace zel {

/// The icon of a button of the plot window or of a slope, by its key; null for any other key. It is
/// drawn at every size in the colours of the application's palette at that moment; slopes are drawn
/// for white paper.
QIcon plotIcon(std::string_view key);

}  // namespace zel
