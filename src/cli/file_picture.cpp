#include "cli/file_picture.h"

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

}  // namespace

bool canMakePicture(std::string_view ending) { return ending == "svg" || canPaint(ending); }

std::unique_ptr<FilePicture> makeFilePicture(std::string_view ending, int width, int height) {
  if (ending == "svg") return std::make_unique<SvgFile>(width, height);
  return makePaintedPicture(ending, width, height);
}

}  // namespace zel
