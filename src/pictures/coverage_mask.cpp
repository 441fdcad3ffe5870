// A graph's coverage is gathered before its colour is laid on, so that no place of it gets darker
// where its own lines meet. Tiles remember where anything was touched; blending and clearing walk
// over those alone.

#include "pictures/coverage_mask.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <optional>

namespace zel {
namespace {

int roundUp(int value, int step) { return (value + step - 1) / step * step; }

constexpr std::size_t kAtOnce = 8;
constexpr std::size_t kBytesAtOnce = kAtOnce * sizeof(std::uint32_t);
template <class Number>
using Bytes = std::array<Number, kBytesAtOnce>;

/// The coverage of pixels, for each of their bytes.
Bytes<std::uint8_t> forEachByte(const std::uint8_t* coverage) {
  std::array<std::uint32_t, kAtOnce> words;
  for (std::size_t i = 0; i < kAtOnce; ++i) {
    const std::uint32_t twice = coverage[i] | std::uint32_t{coverage[i]} << 8;
    words[i] = twice | twice << 16;
  }
  return std::bit_cast<Bytes<std::uint8_t>>(words);
}

/// Lays a share of a colour on bytes of pixels: all of it for a coverage of 255, nothing for 0.
Bytes<std::uint8_t> blend(const Bytes<std::uint8_t>& pixels, const Bytes<std::uint8_t>& colour,
                          const Bytes<std::uint8_t>& coverage) {
  Bytes<std::uint8_t> blended;
  for (std::size_t i = 0; i < kBytesAtOnce; ++i) {
    const auto share = static_cast<std::uint16_t>(coverage[i] + (coverage[i] >> 7));  // of 256
    const auto rest = static_cast<std::uint16_t>(256 - share);
    const auto sum = static_cast<std::uint16_t>(pixels[i] * rest + colour[i] * share + 128);
    blended[i] = static_cast<std::uint8_t>(sum >> 8);
  }
  return blended;
}

/// Blends as many pixels as are blended at once.
void blendGroup(std::uint32_t* place, const Bytes<std::uint8_t>& colour,
                const std::uint8_t* covered) {
  std::uint64_t any = 0;
  std::memcpy(&any, covered, sizeof any);
  if (any == 0) return;
  Bytes<std::uint8_t> pixels;
  std::memcpy(pixels.data(), place, sizeof pixels);
  pixels = blend(pixels, colour, forEachByte(covered));
  std::memcpy(place, pixels.data(), sizeof pixels);
}

/// What is behind the last pixel of the row counts as covered by nothing.
void blendRow(std::uint32_t* pixels, const Bytes<std::uint8_t>& colour, const std::uint8_t* covered,
              std::size_t count) {
  std::size_t i = 0;
  for (; i + kAtOnce <= count; i += kAtOnce) blendGroup(pixels + i, colour, covered + i);
  if (i == count) return;
  std::array<std::uint32_t, kAtOnce> last = {};
  std::copy(pixels + i, pixels + count, last.begin());
  blendGroup(last.data(), colour, covered + i);
  std::copy_n(last.begin(), count - i, pixels + i);
}

/// The bytes of a colour with all its opacity, once for each pixel.
Bytes<std::uint8_t> opaque(std::uint32_t colour) {
  std::array<std::uint32_t, kAtOnce> words;
  words.fill(0xFF000000 | colour);
  return std::bit_cast<Bytes<std::uint8_t>>(words);
}

}  // namespace

CoverageMask::CoverageMask(int width, int height, int margin, const Pause& pause)
    : width_(width),
      height_(height),
      margin_(roundUp(margin, kTileWidth)),
      stride_(roundUp(width, kTileWidth) + 2 * margin_),
      tiles_across_(static_cast<int>(stride_) / kTileWidth),
      tiles_down_((roundUp(height, kTileHeight) + 2 * margin_) / kTileHeight),
      covered_(filledVector(
          static_cast<std::size_t>(stride_) * static_cast<std::size_t>(tiles_down_) * kTileHeight,
          std::uint8_t{0}, pause)),
      touched_(static_cast<std::size_t>(tiles_across_) * static_cast<std::size_t>(tiles_down_)) {}

void CoverageMask::touch(int left, int top, int right, int bottom) {
  const int first = (left + margin_) / kTileWidth;
  const int last = (right + margin_) / kTileWidth;
  for (int row = (top + margin_) / kTileHeight; row <= (bottom + margin_) / kTileHeight; ++row)
    for (int tile = first; tile <= last; ++tile) {
      const int number = row * tiles_across_ + tile;
      touched_[static_cast<std::size_t>(number)] = 1;
    }
}

bool CoverageMask::blendOnto(Bitmap& bitmap, std::uint32_t colour, const Pause& pause) {
  const Bytes<std::uint8_t> bytes = opaque(colour);
  std::optional<int> row;
  return takeTouched([&](int left, int top) {
    if (row && *row != top) pause();
    row = top;
    const int count = std::min(kTileWidth, width_ - left);
    if (left >= 0 && top >= 0 && count > 0) {
      for (int y = top; y < std::min(top + kTileHeight, height_); ++y)
        blendRow(bitmap.row(y) + left, bytes, at(left, y), static_cast<std::size_t>(count));
    }
    clearTile(left, top);
  });
}

void CoverageMask::clear() {
  takeTouched([this](int left, int top) { clearTile(left, top); });
}

/// Hands over each touched tile. False when there is none.
template <class Tile>
bool CoverageMask::takeTouched(const Tile& tile) {
  std::size_t number = 0;
  bool has_any = false;
  while (const void* const found =
             std::memchr(touched_.data() + number, 1, touched_.size() - number)) {
    number = static_cast<std::size_t>(static_cast<const std::uint8_t*>(found) - touched_.data());
    touched_[number] = 0;
    has_any = true;
    const int place = static_cast<int>(number);
    tile(place % tiles_across_ * kTileWidth - margin_,
         place / tiles_across_ * kTileHeight - margin_);
  }
  return has_any;
}

void CoverageMask::clearTile(int left, int top) {
  for (int y = top; y < top + kTileHeight; ++y)
    std::memset(&covered_[offsetOf(left, y)], 0, kTileWidth);
}

}  // namespace zel
