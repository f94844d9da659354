#include "plotter/PainterCanvas.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

#include "display/WideText.h"
#include "plotter/LineBox.h"

namespace vexa {
namespace {

/// Text size in pixels of the view: four range labels have room in their rows.
constexpr qreal kTextSize = 10;
constexpr qreal kThinnestLine = 1;

QColor ColourOf(Colour colour) {
  return {colour.red, colour.green, colour.blue};
}

}  // namespace

PainterCanvas::PainterCanvas(QPainter& target, const PixelBox& covered, qreal factor)
    : painter(target), area(covered), scale(factor) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::TextAntialiasing);
}

QPointF PainterCanvas::Corner(int x, int y) const {
  return {qRound((x - area.left) * scale) * 1.0, qRound((y - area.top) * scale) * 1.0};
}

QPointF PainterCanvas::Place(const CurvePoint& point) const {
  constexpr qreal kHalf = 0.5;
  return {(point.pixel.x - area.left + kHalf) * scale, (point.row - area.top + kHalf) * scale};
}

void PainterCanvas::SetStroke(Colour colour) {
  const qreal width = std::max(kThinnestLine, scale);
  painter.setPen(QPen(ColourOf(colour), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void PainterCanvas::Fill(const PixelBox& box, Colour colour) {
  painter.fillRect(QRectF(Corner(box.left, box.top), Corner(box.right, box.bottom)),
                   ColourOf(colour));
}

void PainterCanvas::Line(PixelPoint from, PixelPoint to, Colour colour) {
  // Whole pixels of the device, the same number for every line.
  const PixelBox box = BoxOfLine(from, to);
  QRectF line(Corner(box.left, box.top), Corner(box.right, box.bottom));
  const qreal width = std::max(kThinnestLine, qRound(scale) * 1.0);
  if (from.x == to.x) {
    line.setWidth(width);
  } else {
    line.setHeight(width);
  }
  painter.fillRect(line, ColourOf(colour));
}

void PainterCanvas::Dot(const CurvePoint& point, Colour colour) {
  SetStroke(colour);
  painter.drawPoint(Place(point));
}

void PainterCanvas::Segment(const CurvePoint& from, const CurvePoint& to, Colour colour) {
  SetStroke(colour);
  painter.drawLine(Place(from), Place(to));
}

void PainterCanvas::Circle(const PixelBox& box, Colour colour) {
  const qreal width = (box.right - box.left) * scale;
  const qreal height = (box.bottom - box.top) * scale;
  painter.setPen(Qt::NoPen);
  painter.setBrush(ColourOf(colour));
  painter.drawEllipse(
      QRectF((box.left - area.left) * scale, (box.top - area.top) * scale, width, height));
}

void PainterCanvas::Text(PixelPoint corner, std::wstring_view text, Colour colour) {
  QFont font = painter.font();
  font.setPixelSize(std::max(1, qRound(kTextSize * scale)));
  painter.setFont(font);
  painter.setPen(ColourOf(colour));
  const QPointF baseLine(0, QFontMetricsF(font).ascent());
  painter.drawText(Corner(corner.x, corner.y) + baseLine, FromWide(text));
}

}  // namespace vexa
