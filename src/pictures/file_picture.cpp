#include "pictures/file_picture.h"

#include <cmath>
#include <exception>
#include <new>
#include <utility>

#include "pictures/pdf_picture.h"
#include "pictures/png.h"
#include "pictures/raster_picture.h"
#include "pictures/svg_picture.h"

namespace zel {
namespace {

int scaled(int pixels, double scale) { return static_cast<int>(std::lround(pixels * scale)); }

class SvgFile : public FilePicture {
 public:
  SvgFile(int width, int height, double scale)
      : picture_(width, height, SvgPicture::kMaxText, scale) {}

  Picture& picture() override { return picture_; }
  bool isFull() const override { return picture_.isFull(); }
  std::string bytes() override { return picture_.text(); }

 private:
  SvgPicture picture_;
};

/// Leaves the making of a picture that nobody waits for any more.
class GivenUp : public std::exception {};

class PngFile : public FilePicture {
 public:
  PngFile(int width, int height, double scale, GoesOn goes_on)
      : goes_on_(std::move(goes_on)),
        picture_(scaled(width, scale), scaled(height, scale), scale, [this] { pause(); }) {
    is_made_ = true;
  }

  Picture& picture() override { return picture_; }
  std::string bytes() override { return writePng(picture_.finish(), goes_on_); }

 private:
  /// A drawing on it ends by itself.
  void pause() {
    if (!goes_on_() && !is_made_) throw GivenUp();
  }

  GoesOn goes_on_;
  bool is_made_ = false;
  RasterPicture picture_;
};

class PdfFile : public FilePicture {
 public:
  PdfFile(int width, int height, double scale)
      : picture_(width, height, PdfPicture::kMaxContent, scale) {}

  Picture& picture() override { return picture_; }
  bool isFull() const override { return picture_.isFull(); }
  std::string bytes() override { return picture_.bytes(); }

 private:
  PdfPicture picture_;
};

}  // namespace

bool canMakePicture(std::string_view ending) {
  return ending == "svg" || ending == "png" || ending == "pdf";
}

std::unique_ptr<FilePicture> makeFilePicture(std::string_view ending, int width, int height,
                                             double scale, GoesOn goes_on) try {
  if (ending == "svg") return std::make_unique<SvgFile>(width, height, scale);
  if (ending == "png") return std::make_unique<PngFile>(width, height, scale, std::move(goes_on));
  if (ending == "pdf") return std::make_unique<PdfFile>(width, height, scale);
  return nullptr;
} catch (const std::bad_alloc&) {
  return nullptr;
} catch (const GivenUp&) {
  return nullptr;
}

}  // namespace zel
