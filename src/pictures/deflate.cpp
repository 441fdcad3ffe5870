#include "pictures/deflate.h"

namespace zel {

void Deflate::take(std::string_view part) {
  take(std::span(reinterpret_cast<const std::uint8_t*>(part.data()), part.size()));
}

}  // namespace zel
