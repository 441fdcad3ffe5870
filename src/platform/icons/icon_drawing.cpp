#include "platform/icons/icon_drawing.h"

#include <QHash>
#include <QPainter>
#include <QXmlStreamReader>

#include "platform/icons/path_data.h"

namespace zel {

/// Reads one file. Whatever it does not know ends it: an icon must not lose a part in silence.
class IconReader {
 public:
  explicit IconReader(const QByteArray& svg) : xml_(svg) {}

  std::optional<IconDrawing> read() {
    if (!xml_.readNextStartElement() || xml_.name() != u"svg") return std::nullopt;
    top_ = attributes({});
    if (!takeViewBox()) return std::nullopt;
    while (xml_.readNextStartElement()) {
      if (!takeShape()) return std::nullopt;
      xml_.skipCurrentElement();
    }
    if (xml_.hasError()) return std::nullopt;
    return drawing_;
  }

 private:
  using Attributes = QHash<QString, QString>;

  /// The element's attributes over those that it inherits.
  Attributes attributes(Attributes inherited) const {
    for (const QXmlStreamAttribute& attribute : xml_.attributes())
      inherited.insert(attribute.name().toString(), attribute.value().toString());
    return inherited;
  }

  bool takeViewBox() {
    const QStringList texts = top_.value("viewBox").split(' ');
    if (texts.size() != 4) return false;
    drawing_.view_box_ = {number(texts[0]), number(texts[1]), number(texts[2]), number(texts[3])};
    for (const char* const own : {"viewBox", "width", "height"}) top_.remove(own);
    return good_ && !drawing_.view_box_.isEmpty();
  }

  bool takeShape() {
    Attributes attributes = this->attributes(top_);
    IconDrawing::Shape shape;
    shape.path = takePath(attributes);
    shape.fill = takeColour(attributes, "fill", "#000000");
    shape.stroke = takeStroke(attributes);
    drawing_.shapes_.push_back(std::move(shape));
    return good_ && attributes.isEmpty();
  }

  QPainterPath takePath(Attributes& attributes) {
    if (xml_.name() == u"path") {
      const auto path = readPathData(attributes.take("d").toStdString());
      good_ = good_ && path;
      return path.value_or(QPainterPath());
    }
    QPainterPath path;
    if (xml_.name() == u"circle") {
      const QPointF centre(takeNumber(attributes, "cx"), takeNumber(attributes, "cy"));
      const double radius = takeNumber(attributes, "r");
      path.addEllipse(centre, radius, radius);
    } else if (xml_.name() == u"rect") {
      const QPointF corner(takeNumber(attributes, "x"), takeNumber(attributes, "y"));
      const QSizeF size(takeNumber(attributes, "width"), takeNumber(attributes, "height"));
      const double rounding = takeNumber(attributes, "rx");
      path.addRoundedRect(QRectF(corner, size), rounding, rounding);
    } else {
      good_ = false;
    }
    return path;
  }

  QPen takeStroke(Attributes& attributes) {
    const QColor colour = takeColour(attributes, "stroke", "none");
    QPen pen(colour, takeNumber(attributes, "stroke-width", "1"));
    const QString cap = attributes.take("stroke-linecap");
    const QString join = attributes.take("stroke-linejoin");
    pen.setCapStyle(cap == "round" ? Qt::RoundCap : Qt::FlatCap);
    pen.setJoinStyle(join == "round" ? Qt::RoundJoin : Qt::SvgMiterJoin);
    good_ = good_ && (cap.isEmpty() || cap == "round") && (join.isEmpty() || join == "round");
    return colour.isValid() ? pen : QPen(Qt::NoPen);
  }

  /// Invalid for "none".
  QColor takeColour(Attributes& attributes, const QString& name, const QString& otherwise) {
    const QString text = attributes.contains(name) ? attributes.take(name) : otherwise;
    const QColor colour = text == "none" ? QColor() : QColor(text);
    good_ = good_ && (text == "none" || colour.isValid());
    return colour;
  }

  double takeNumber(Attributes& attributes, const QString& name, const QString& otherwise = "0") {
    return number(attributes.contains(name) ? attributes.take(name) : otherwise);
  }

  double number(const QString& text) {
    bool is_number = false;
    const double value = text.toDouble(&is_number);
    good_ = good_ && is_number;
    return value;
  }

  QXmlStreamReader xml_;
  Attributes top_;
  IconDrawing drawing_;
  bool good_ = true;
};

std::optional<IconDrawing> IconDrawing::read(const QByteArray& svg) {
  return IconReader(svg).read();
}

void IconDrawing::paint(QPainter& painter, const QRectF& rectangle,
                        const Colouring& colouring) const {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(rectangle.topLeft());
  painter.scale(rectangle.width() / view_box_.width(), rectangle.height() / view_box_.height());
  painter.translate(-view_box_.topLeft());
  for (const Shape& shape : shapes_) {
    QPen pen = shape.stroke;
    pen.setColor(colouring(pen.color()));
    painter.setPen(pen);
    painter.setBrush(shape.fill.isValid() ? QBrush(colouring(shape.fill)) : QBrush());
    painter.drawPath(shape.path);
  }
  painter.restore();
}

}  // namespace zel
