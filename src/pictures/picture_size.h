#pragma once

namespace zel {

inline constexpr double kTwipsPerPixel = 15;

/// The size of a picture: its inner size, on which everything is drawn, and its outer size, which
/// includes a border where it has one.
struct PictureSize {
  double scale_width = 0;   // twips
  double scale_height = 0;  // twips
  double width = 0;         // twips
  double height = 0;        // twips
  double pixel_width = 0;

  /// A picture without a border.
  static constexpr PictureSize ofPixels(int width, int height) {
    const double twips_wide = width * kTwipsPerPixel;
    const double twips_high = height * kTwipsPerPixel;
    return {twips_wide, twips_high, twips_wide, twips_high, static_cast<double>(width)};
  }

  bool operator==(const PictureSize&) const = default;
};

}  // namespace zel
