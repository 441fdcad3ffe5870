#include "cli/file_picture.h"

namespace zel {

bool canPaint(std::string_view) { return false; }

std::unique_ptr<FilePicture> makePaintedPicture(std::string_view, int, int) { return nullptr; }

}  // namespace zel
