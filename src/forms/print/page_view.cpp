#include "forms/print/page_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "forms/paper_shadow.h"
#include "forms/pixel_frame.h"
#include "pictures/picture_size.h"

namespace zel {
namespace {

constexpr double kArrowStep = 144;  // twips of paper, a tenth of an inch
/// The edge of the picture: dashes in the light blue of guide lines, which nobody takes for ink, on
/// white paper in every palette.
constexpr QRgb kEdge = 0xFF8CC4F0;
constexpr QRgb kEdgeWithFocus = 0xFF1A6FC4;

PaperSize inTwips(QSize pixels) {
  return {pixels.width() * kTwipsPerPixel, pixels.height() * kTwipsPerPixel};
}

QRect inPixels(const Rectangle& twips) {
  return QRectF(twips.left / kTwipsPerPixel, twips.top / kTwipsPerPixel,
                twips.width / kTwipsPerPixel, twips.height / kTwipsPerPixel)
      .toRect();
}

/// A thin frame with nothing inside, which the mouse does not meet.
class Outline : public QWidget {
 public:
  explicit Outline(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    paintPixelFrame(painter, rect(), QPen(palette().color(QPalette::Highlight), 2, Qt::DashLine));
  }
};

QWidget* makeSheet(QWidget* parent) {
  auto* sheet = new QWidget(parent);
  sheet->setObjectName("Picture2");
  sheet->setAutoFillBackground(true);
  sheet->setPalette(QPalette(Qt::white));
  return sheet;
}

}  // namespace

void ScaledImage::setImage(const QImage& image) {
  image_ = image;
  scaled_ = QPixmap();
  update();
}

void ScaledImage::paintEvent(QPaintEvent*) {
  const QSize pixels = (QSizeF(size()) * devicePixelRatioF()).toSize();
  if (scaled_.size() != pixels && !image_.isNull()) {
    scaled_ =
        QPixmap::fromImage(image_.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    scaled_.setDevicePixelRatio(devicePixelRatioF());
  }
  QPainter painter(this);
  painter.drawPixmap(0, 0, scaled_);
  const QColor edge = QColor::fromRgb(hasFocus() ? kEdgeWithFocus : kEdge);
  paintPixelFrame(painter, rect(), QPen(edge, 1, Qt::DashLine));
}

PageView::PageView(QWidget* parent)
    : QWidget(parent),
      Picture2_(makeSheet(this)),
      Image3_(new ScaledImage(Picture2_)),
      Shape1_(new Outline(Picture2_)) {
  Image3_->setObjectName("Image3");
  Image3_->setCursor(Qt::OpenHandCursor);
  Image3_->installEventFilter(this);
  Shape1_->setObjectName("Shape1");
  clearPage();
}

QSize PageView::sizeHint() const { return {420, 420}; }

void PageView::describeImage(const QString& name, const QString& description) {
  Image3_->setAccessibleName(name);
  Image3_->setAccessibleDescription(description);
  Image3_->setToolTip(description);
}

void PageView::showPage(const PrintPreview& preview, const QImage& image) {
  preview_ = preview;
  Image3_->setImage(image);
  arrange();
  Picture2_->show();
}

void PageView::clearPage() {
  preview_.reset();
  Picture2_->hide();
  Shape1_->hide();
  Image3_->setCursor(Qt::OpenHandCursor);
  update();
}

void PageView::fitPicture(bool fitted) {
  if (!preview_) return;
  preview_->setFitted(fitted);
  placePicture();
}

void PageView::resizeEvent(QResizeEvent*) { arrange(); }

void PageView::arrange() {
  if (!preview_) return;
  const QSize room = (size() - QSize(2 * kPaperMargin, 2 * kPaperMargin)).expandedTo({1, 1});
  const PaperSize scaled = scaledInto(inTwips(room), preview_->paper());
  QRect sheet = inPixels({0, 0, scaled.width, scaled.height});
  sheet.setSize(sheet.size().expandedTo({1, 1}));
  sheet.moveCenter(rect().center());
  Picture2_->setGeometry(sheet);
  preview_->setScaledPage(inTwips(sheet.size()));
  placePicture();
  update();
}

void PageView::placePicture() {
  Image3_->setGeometry(inPixels(preview_->image()));
  Shape1_->setGeometry(inPixels(preview_->outline()));
}

void PageView::paintEvent(QPaintEvent*) {
  if (!preview_) return;
  QPainter painter(this);
  paintPaperShadow(painter, Picture2_->geometry(), palette());
}

bool PageView::eventFilter(QObject* watched, QEvent* event) {
  if (watched != Image3_ || !preview_) return QWidget::eventFilter(watched, event);
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      if (Shape1_->isVisible()) return true;  // another button while one drags
      Image3_MouseDown(static_cast<QMouseEvent*>(event)->position());
      return false;
    case QEvent::MouseMove:
      if (static_cast<QMouseEvent*>(event)->buttons() != Qt::NoButton)
        Image3_MouseMove(static_cast<QMouseEvent*>(event)->position());
      return true;
    case QEvent::MouseButtonRelease:
      if (static_cast<QMouseEvent*>(event)->buttons() == Qt::NoButton) Image3_MouseUp();
      return true;
    case QEvent::KeyPress: return Image3_KeyDown(static_cast<QKeyEvent*>(event)->key());
    default: return QWidget::eventFilter(watched, event);
  }
}

void PageView::Image3_MouseDown(QPointF point) {
  point *= kTwipsPerPixel;
  preview_->press(static_cast<float>(point.x()), static_cast<float>(point.y()));
  Image3_->setCursor(Qt::ClosedHandCursor);
  Shape1_->show();
}

void PageView::Image3_MouseMove(QPointF point) {
  point *= kTwipsPerPixel;
  preview_->dragTo(static_cast<float>(point.x()), static_cast<float>(point.y()));
  placePicture();
}

void PageView::Image3_MouseUp() {
  preview_->release();
  placePicture();
  Shape1_->hide();
  Image3_->setCursor(Qt::OpenHandCursor);
  emit moved();
}

bool PageView::Image3_KeyDown(int key) {
  Point step;
  switch (key) {
    case Qt::Key_Left: step.x = -kArrowStep; break;
    case Qt::Key_Right: step.x = kArrowStep; break;
    case Qt::Key_Up: step.y = -kArrowStep; break;
    case Qt::Key_Down: step.y = kArrowStep; break;
    default: return false;
  }
  if (!Shape1_->isVisible() && preview_->moveBy(step.x, step.y)) {
    placePicture();
    emit moved();
  }
  return true;
}

}  // namespace zel
