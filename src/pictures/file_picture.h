#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "pictures/pause.h"
#include "pictures/picture.h"

namespace zel {

/// A picture that becomes the bytes of a file.
class FilePicture {
 public:
  virtual ~FilePicture() = default;

  virtual Picture& picture() = 0;
  /// It has outgrown its bound and takes nothing more.
  virtual bool isFull() const { return false; }
  /// The bytes of the whole file, once; empty when they could not be made or were given up.
  virtual std::string bytes() = 0;
};

/// Whether there are pictures with this ending, in lower case: "svg", "png" and "pdf".
bool canMakePicture(std::string_view ending);

/// A picture of a size in pixels of 15 twips in the format of a file's ending, so many times as
/// large as that when it is shown: a PNG file has more pixels then, the lines of the others are the
/// same. Null for any other ending, and when there is not memory enough. What takes long of a PNG
/// file, from here to its bytes, asks now and then whether it goes on. Where it does not, there is
/// no picture, or there are no bytes of it; whoever draws on it meanwhile gives that up.
std::unique_ptr<FilePicture> makeFilePicture(
    std::string_view ending, int width, int height, double scale = 1,
    GoesOn goes_on = [] { return true; });

}  // namespace zel
