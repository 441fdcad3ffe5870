#pragma once

#include <QString>

namespace zel {

/// The name of a kind of graph as the user reads it in the current language, "Circunferencia" or
/// "Circumference" for "C"; empty for a letter that is no kind.
QString kindCaption(char kind);

}  // namespace zel
