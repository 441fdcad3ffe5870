#include "cli/file_picture.h"

#include <new>

#include "pictures/pdf_picture.h"
#include "pictures/png.h"
#include "pictures/raster_picture.h"
#include "pictures/svg_picture.h"

namespace zel {
namespace {

class SvgFile : public FilePicture {
 public:
  SvgFile(int width, int height) : picture_(width, height) {}

  Picture& picture() override { return picture_; }
  bool isFull() const override { return picture_.isFull(); }
  std::string bytes() override { return picture_.text(); }

 private:
  SvgPicture picture_;
};

class PngFile : public FilePicture {
 public:
  PngFile(int width, int height) : picture_(width, height) {}

  Picture& picture() override { return picture_; }
  std::string bytes() override { return writePng(picture_.finish()); }

 private:
  RasterPicture picture_;
};

class PdfFile : public FilePicture {
 public:
  PdfFile(int width, int height) : picture_(width, height) {}

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

std::unique_ptr<FilePicture> makeFilePicture(std::string_view ending, int width, int height) try {
  if (ending == "svg") return std::make_unique<SvgFile>(width, height);
  if (ending == "png") return std::make_unique<PngFile>(width, height);
  if (ending == "pdf") return std::make_unique<PdfFile>(width, height);
  return nullptr;
} catch (const std::bad_alloc&) {
  return nullptr;
}

}  // namespace zel
