// Drawings with any coordinates on every picture that writes a file: pixels, PNG, SVG and PDF. The
// first line is "WIDTH HEIGHT DENSITY"; each other line is a call:
//   a               axes begin                 l X Y X Y   a line of them
//   g LETTER COLOUR a graph begins             s X Y       a piece of it begins
//   e X Y           the piece goes on          d X Y R     a dot
//   c               the picture is cleared
#include <algorithm>
#include <memory>

#include "fuzz.h"
#include "pictures/drawing_list.h"
#include "pictures/pdf_picture.h"
#include "pictures/png.h"
#include "pictures/raster_picture.h"
#include "pictures/svg_picture.h"
#include "support/png_reader.h"
#include "support/well_formed.h"

namespace zel::fuzz {
namespace {

struct Size {
  int width = 1;
  int height = 1;
  double density = 1;
};

/// PNG and PDF take turns: the memory of a compressor takes longer than all else.
bool makesPdf(const Size& size) { return size.width % 2 == 0; }

Size takeSize(Input line) {
  constexpr double kLongest = 64;
  const auto side = [&] {
    return static_cast<int>(std::clamp(line.finiteNumber(), 1.0, kLongest));
  };
  Size size;
  size.width = side();
  size.height = side();
  size.density = std::clamp(line.finiteNumber(), 0.25, 3.0);
  return size;
}

Point takePoint(Input& line) {
  const double x = line.finiteNumber();
  return {x, line.finiteNumber()};
}

void call(Picture& picture, Input line) {
  const auto command = line.until(' ');
  if (command == "a") picture.beginAxes();
  if (command == "c") picture.clear();
  if (command == "g") {
    const auto letter = line.until(' ');
    picture.beginGraph(letter.size() == 1 && letter[0] >= 'a' && letter[0] <= 'z' ? letter[0] : 'a',
                       roundToInt32(line.finiteNumber()).value_or(0));
  }
  if (command == "l") {
    const Point from = takePoint(line);
    picture.line(from, takePoint(line));
  }
  if (command == "s") picture.startPiece(takePoint(line));
  if (command == "e") picture.extendPiece(takePoint(line));
  if (command == "d") {
    const Point centre = takePoint(line);
    picture.dot(centre, std::clamp(line.finiteNumber(), 0.0, 1e4));
  }
}

void draw(Picture& picture, Input calls) {
  while (!calls.isEmpty()) call(picture, Input(calls.line()));
}

void checkRaster(const Size& size, Input calls, const DrawingList& list) {
  RasterPicture picture(size.width, size.height, size.density);
  draw(picture, calls);
  const Bitmap bitmap = picture.finish();
  for (const std::uint32_t pixel : bitmap.pixels) require(pixel >> 24 == 0xFF, "pixels are opaque");
  if (!makesPdf(size)) require(test::readPng(writePng(bitmap)) == bitmap, "a PNG has the pixels");
  // A list keeps the ends of straight runs alone, so its pixels may be others, but always the same.
  RasterPicture replayed(size.width, size.height, size.density);
  list.replay(replayed);
  RasterPicture again(size.width, size.height, size.density);
  list.replay(again);
  require(again.finish() == replayed.finish(), "a list draws the same pixels each time");
  picture.clear();
  Bitmap used(bitmap);
  picture.exchange(std::move(used));
  draw(picture, calls);
  require(picture.finish() == bitmap, "the same is drawn on used pixels");
}

void checkText(SvgPicture& picture) {
  const std::string text = picture.text();
  require(test::isWellFormed(text), "an SVG is well formed", text);
  for (const char character : text)
    require(character == '\n' || (character >= ' ' && character < 127), "an SVG is plain", text);
  require(text.find("nan") == std::string::npos && text.find("\"inf") == std::string::npos,
          "an SVG has numbers only", text);
}

void checkSvg(const Size& size, Input calls, const DrawingList& list) {
  SvgPicture picture(size.width, size.height);
  draw(picture, calls);
  checkText(picture);
  SvgPicture replayed(size.width, size.height);
  list.replay(replayed);
  checkText(replayed);
}

/// Each object is where the table says.
bool isSoundPdf(const std::string& document) {
  const std::size_t start = document.rfind("startxref\n");
  if (start == std::string::npos || !document.ends_with("%%EOF\n")) return false;
  const auto table = std::strtoul(document.c_str() + start + 10, nullptr, 10);
  for (int number = 1; number <= 5; ++number) {
    const std::size_t entry = table + 9 + 20 * static_cast<std::size_t>(number);
    if (entry + 10 > document.size()) return false;
    const auto begin = std::strtoul(document.substr(entry, 10).c_str(), nullptr, 10);
    if (document.compare(begin, 8, std::to_string(number) + " 0 obj\n") != 0) return false;
  }
  return true;
}

/// What is drawn, as long as the document says.
std::string contentOf(const std::string& document) {
  const std::size_t stream = document.find("stream\n") + 7;
  const std::size_t length = document.find("/Length ") + 8;
  const auto size = std::strtoul(document.c_str() + length, nullptr, 10);
  if (document.compare(stream + size, 10, "\nendstream") != 0) return {};
  return test::inflated(document.substr(stream, size));
}

void checkPdf(const Size& size, Input calls) {
  PdfPicture picture(size.width, size.height);
  draw(picture, calls);
  const std::string document = picture.bytes();
  require(isSoundPdf(document), "a PDF knows where its objects are");
  const std::string content = contentOf(document);
  require(!content.empty(), "a PDF has content");
  require(content.find_first_not_of("0123456789.- \ncmgrefjJwRGlS") == std::string::npos,
          "and it is numbers and operators", content);
}

}  // namespace
}  // namespace zel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zel::fuzz;
  Input input(data, size);
  const Size picture_size = takeSize(Input(input.line()));
  zel::DrawingList list;
  draw(list, input);
  checkRaster(picture_size, input, list);
  checkSvg(picture_size, input, list);
  if (makesPdf(picture_size)) checkPdf(picture_size, input);
  return 0;
}
