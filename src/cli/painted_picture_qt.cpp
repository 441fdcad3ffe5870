#include <QBuffer>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <optional>

#include "cli/file_picture.h"
#include "pictures/picture_size.h"
#include "platform/qt/painter_picture.h"
#include "platform/qt/png_writer.h"

namespace zel {
namespace {

constexpr double kPixelsPerInch = 96;
constexpr double kPointsPerInch = 72;

QRectF twips(int width, int height) {
  return {0, 0, width * kTwipsPerPixel, height * kTwipsPerPixel};
}

/// What a painter paints on, with the picture that uses the painter.
class PaintedFile : public FilePicture {
 public:
  Picture& picture() override { return *picture_; }

 protected:
  void begin(QPaintDevice& device, int width, int height, double units_per_twip) {
    painter_.begin(&device);
    painter_.scale(units_per_twip, units_per_twip);
    picture_.emplace(painter_, twips(width, height), Qt::white, Qt::black);
  }

  bool end() {
    picture_.reset();
    return painter_.isActive() && painter_.end();
  }

 private:
  QPainter painter_;
  std::optional<PainterPicture> picture_;
};

class PngFile : public PaintedFile {
 public:
  PngFile(int width, int height) : image_(width, height, QImage::Format_RGB32) {
    if (!image_.isNull()) begin(image_, width, height, 1 / kTwipsPerPixel);
  }
  ~PngFile() override { end(); }

  bool isMade() const { return !image_.isNull(); }

  std::string bytes() override { return end() ? writePng(image_) : std::string(); }

 private:
  QImage image_;
};

class PdfFile : public PaintedFile {
 public:
  PdfFile(int width, int height) {
    buffer_.open(QIODevice::WriteOnly);
    writer_.emplace(&buffer_);
    const QSizeF points = QSizeF(width, height) * (kPointsPerInch / kPixelsPerInch);
    writer_->setPageSize(QPageSize(points, QPageSize::Point, {}, QPageSize::ExactMatch));
    writer_->setPageMargins(QMarginsF());
    writer_->setResolution(static_cast<int>(kPixelsPerInch * kTwipsPerPixel));
    writer_->setCreator("ZEL");
    begin(*writer_, width, height, 1);
  }
  ~PdfFile() override { end(); }

  std::string bytes() override {
    if (!end()) return {};
    writer_.reset();
    return buffer_.data().toStdString();
  }

 private:
  QBuffer buffer_;
  std::optional<QPdfWriter> writer_;
};

}  // namespace

bool canPaint(std::string_view ending) { return ending == "png" || ending == "pdf"; }

std::unique_ptr<FilePicture> makePaintedPicture(std::string_view ending, int width, int height) {
  if (ending == "pdf") return std::make_unique<PdfFile>(width, height);
  if (ending != "png") return nullptr;
  auto png = std::make_unique<PngFile>(width, height);
  return png->isMade() ? std::move(png) : nullptr;
}

}  // namespace zel
