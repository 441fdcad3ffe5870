// A document of five objects: catalogue, list of pages, page, its content and who made it. The
// content is in twips, which one transformation turns upright and into points; a dot is a line of
// no length with round ends.
#include "pictures/pdf_picture.h"

#include <cstdint>
#include <utility>
#include <vector>

#include "pictures/coordinate_text.h"
#include "pictures/line_clip.h"
#include "pictures/line_style.h"
#include "pictures/picture_size.h"

namespace zel {
namespace {

constexpr double kPointsPerPixel = 0.75;
/// Numbers of a content have no exponent, and readers take no large ones.
constexpr double kFarAway = 1e6;  // twips
constexpr ClipBox kNearby = {-kFarAway, -kFarAway, kFarAway, kFarAway};

std::string place(Point point) { return coordinateText(point.x) + " " + coordinateText(point.y); }

std::string moveTo(Point point) { return place(point) + " m\n"; }
std::string lineTo(Point point) { return place(point) + " l\n"; }

/// Red, green and blue as thousandths of the brightest.
std::string colourOf(std::int32_t colour) {
  std::string text;
  for (const int shift : {0, 8, 16}) {
    const int thousandths = (((colour >> shift) & 0xFF) * 1000 + 127) / 255;
    text += coordinateText(thousandths / 1000.0) + " ";
  }
  return text;
}

/// Objects one after the other, with the table of where each begins.
class Document {
 public:
  void add(const std::string& object) {
    begins_.push_back(text_.size());
    text_ += std::to_string(begins_.size()) + " 0 obj\n" + object + "\nendobj\n";
  }

  std::string finish() {
    const std::size_t table = text_.size();
    const std::string count = std::to_string(begins_.size() + 1);
    text_ += "xref\n0 " + count + "\n0000000000 65535 f \n";
    for (const std::size_t begin : begins_) {
      const std::string digits = std::to_string(begin);
      text_ += std::string(10 - digits.size(), '0') + digits + " 00000 n \n";
    }
    text_ += "trailer\n<</Size " + count + "/Root 1 0 R/Info 5 0 R>>\nstartxref\n" +
             std::to_string(table) + "\n%%EOF\n";
    return std::move(text_);
  }

 private:
  std::string text_ = "%PDF-1.4\n%\xE2\xE3\xCF\xD3\n";
  std::vector<std::size_t> begins_;
};

}  // namespace

PdfPicture::PdfPicture(int width, int height, std::size_t max_content, double scale)
    : width_(width), height_(height), max_content_(max_content), points_(kPointsPerPixel * scale) {
  const std::string twip = coordinateText(points_ / kTwipsPerPixel);
  write(twip + " 0 0 -" + twip + " 0 " + coordinateText(height * points_) + " cm\n1 g 0 0 " +
        place({width * kTwipsPerPixel, height * kTwipsPerPixel}) + " re f\n1 j\n");
}

void PdfPicture::clear() {
  *this = PdfPicture(width_, height_, max_content_, points_ / kPointsPerPixel);
}

void PdfPicture::beginAxes() {
  endGroup();
  write("0 J " + coordinateText(kAxisWidth) + " w 0 G\n");
}

void PdfPicture::line(Point from, Point to) {
  if (clipLine(from, to, kNearby)) write(moveTo(from) + lineTo(to) + "S\n");
}

void PdfPicture::beginGraph(char, std::int32_t colour) {
  endGroup();
  write("1 J " + coordinateText(kCurveWidth) + " w " + colourOf(colour) + "RG\n");
}

void PdfPicture::startPiece(Point point) {
  endPiece();
  piece_ = Piece{.pen = point};
}

void PdfPicture::extendPiece(Point point) {
  if (!piece_) return startPiece(point);
  Point from = piece_->pen;
  Point to = point;
  piece_->is_alone = false;
  const bool is_near = clipLine(from, to, kNearby);
  if (is_near) {
    if (!piece_->goes_on || from != piece_->pen) write(moveTo(from));
    write(lineTo(to));
    piece_->has_path = true;
  }
  piece_->goes_on = is_near && to == point;
  piece_->pen = point;
}

void PdfPicture::dot(Point centre, double radius) {
  if (!kNearby.holds(centre)) return;
  const std::string text =
      coordinateText(2 * radius) + " w " + moveTo(centre) + lineTo(centre) + "S\n";
  if (takes(text)) dots_ += text;
}

std::string PdfPicture::bytes() {
  endGroup();
  const std::string content = content_.finish();
  if (isFull() || content.empty()) return {};
  const std::string box =
      coordinateText(width_ * points_) + " " + coordinateText(height_ * points_);
  Document document;
  document.add("<</Type/Catalog/Pages 2 0 R>>");
  document.add("<</Type/Pages/Kids[3 0 R]/Count 1>>");
  document.add("<</Type/Page/Parent 2 0 R/Resources<<>>/MediaBox[0 0 " + box +
               "]/Contents 4 0 R>>");
  document.add("<</Length " + std::to_string(content.size()) + "/Filter/FlateDecode>>\nstream\n" +
               content + "\nendstream");
  document.add("<</Creator(ZEL)>>");
  return document.finish();
}

/// Counts what is written; false from the first text on that is too much.
bool PdfPicture::takes(std::string_view text) {
  if (!isFull()) written_ += text.size();
  return !isFull();
}

void PdfPicture::write(std::string_view text) {
  if (takes(text)) content_.take(text);
}

void PdfPicture::endPiece() {
  if (!piece_) return;
  if (piece_->is_alone) extendPiece(piece_->pen);
  if (piece_->has_path) write("S\n");
  piece_.reset();
}

void PdfPicture::endGroup() {
  endPiece();
  content_.take(dots_);
  dots_.clear();
}

}  // namespace zel
