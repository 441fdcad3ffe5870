#include "pictures/colour.h"

namespace zel {

std::string colourText(std::int32_t colour) {
  constexpr char kDigits[] = "0123456789abcdef";
  const auto bits = static_cast<std::uint32_t>(colour);
  std::string text = "#";
  for (const unsigned shift : {0u, 8u, 16u}) {
    text += kDigits[bits >> (shift + 4) & 0xF];
    text += kDigits[bits >> shift & 0xF];
  }
  return text;
}

}  // namespace zel
