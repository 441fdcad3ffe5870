#pragma once

#include <string_view>

#include "files/document.h"

namespace zel {

/// Whether a load of these bytes, which were made of this view and these graphs, gives them back:
/// all texts as the code page holds them, but for the folder texts, which no load reads. Control
/// characters are refused wherever they stand.
bool isReadBack(std::string_view bytes, const MainView& view, const GraphTable& graphs);

}  // namespace zel
