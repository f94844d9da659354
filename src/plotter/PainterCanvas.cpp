#include "plotter/PainterCanvas.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "display/WideText.h"
#include "plotter/LineStyles.h"
#include "plotter/PlotArea.h"

namespace vexa {
namespace {

/// Text size in pixels of the view: four range labels have room in their rows.
constexpr qreal kTextSize = 10;
constexpr qreal kThinnestLine = 1;
constexpr qreal kWidestCurve = 2;
/// The halo around texts, in shares of their size.
constexpr qreal kHaloShare = 0.25;

QColor ColourOf(Colour colour) {
  return {colour.red, colour.green, colour.blue};
}

}  // namespace

PainterCanvas::PainterCanvas(QPainter& target, const PixelBox& covered, qreal factor,
                             const std::optional<ScreenLook>& screenLook)
    : painter(target), area(covered), scale(factor), look(screenLook) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::TextAntialiasing);
  painter.setClipRect(FrameBox());
}

QPointF PainterCanvas::Corner(int x, int y) const {
  return {qRound((x - area.left) * scale) * 1.0, qRound((y - area.top) * scale) * 1.0};
}

QPointF PainterCanvas::Place(const CurvePoint& point, double beyond) const {
  constexpr qreal kHalf = 0.5;
  return {(point.pixel.x - area.left + kHalf) * scale,
          (point.row + beyond - area.top + kHalf) * scale};
}

qreal PainterCanvas::LineWidth(qreal widest) const {
  const qreal width = look ? std::min(scale, widest * look->ratio) : scale;
  return std::max(kThinnestLine, std::floor(width + (look ? 0.0 : 0.5)));
}

qreal PainterCanvas::LineStart(int position, qreal width) const {
  // In the middle of its pixel, like the curves.
  const int low = qRound(position * scale);
  const int high = qRound((position + 1) * scale);
  return low + std::floor((high - low - width) / 2);
}

QRectF PainterCanvas::FrameBox() const {
  using namespace plot_area;
  const qreal width = LineWidth(line_styles::kFrame.widest);
  const QPointF topLeft(LineStart(kLeft - area.left, width), LineStart(kTop - 1 - area.top, width));
  const QPointF bottomRight(LineStart(kRight - 1 - area.left, width),
                            LineStart(kBottom - area.top, width));
  return {topLeft, bottomRight + QPointF(width, width)};
}

void PainterCanvas::SetStroke(Colour colour) {
  const qreal wanted = look ? std::min(scale, kWidestCurve * look->ratio) : scale;
  const qreal width = std::max(kThinnestLine, wanted);
  painter.setPen(QPen(ColourOf(colour), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void PainterCanvas::Fill(const PixelBox& box, Colour colour) {
  painter.fillRect(QRectF(Corner(box.left, box.top), Corner(box.right, box.bottom)),
                   ColourOf(colour));
}

void PainterCanvas::Line(PixelPoint from, PixelPoint to, const LineStyle& style) {
  // With its last pixel, so that thin lines meet; what is beyond the frame is cut off.
  const QPointF low = Corner(std::min(from.x, to.x), std::min(from.y, to.y));
  const QPointF high = Corner(std::max(from.x, to.x) + 1, std::max(from.y, to.y) + 1);
  QRectF line(low, high);
  const qreal width = LineWidth(style.widest);
  if (from.x == to.x) {
    line.moveLeft(LineStart(from.x - area.left, width));
    line.setWidth(width);
  } else {
    line.moveTop(LineStart(from.y - area.top, width));
    line.setHeight(width);
  }
  painter.fillRect(line, ColourOf(style.colour));
}

void PainterCanvas::Dot(const CurvePoint& point, Colour colour) {
  SetStroke(colour);
  painter.drawPoint(Place(point));
}

void PainterCanvas::Segment(const CurvePoint& from, const CurvePoint& to, Colour colour) {
  SetStroke(colour);
  painter.drawLine(Place(from, from.beyond), Place(to, to.beyond));
}

void PainterCanvas::Circle(const PixelBox& box, Colour colour) {
  const qreal width = (box.right - box.left) * scale;
  const qreal height = (box.bottom - box.top) * scale;
  painter.setClipping(false);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ColourOf(colour));
  painter.drawEllipse(
      QRectF((box.left - area.left) * scale, (box.top - area.top) * scale, width, height));
  painter.setClipping(true);
}

int PainterCanvas::TextPixels() const {
  const qreal wanted = kTextSize * scale;
  return std::max(1, qRound(look ? std::min(wanted, look->largestText) : wanted));
}

void PainterCanvas::Text(PixelPoint anchor, PixelPoint offset, std::wstring_view text,
                         Colour colour) {
  QFont font = painter.font();
  font.setPixelSize(TextPixels());
  const QFontMetricsF metrics(font);
  // Texts that do not grow any more keep close to what they name.
  const qreal textScale = look ? std::min(scale, TextPixels() / kTextSize) : scale;
  const QPointF place =
      Corner(anchor.x, anchor.y) + QPointF(offset.x * textScale, offset.y * textScale);
  const QString shown = FromWide(text);
  Write({place.x(), place.y(), metrics.horizontalAdvance(shown), metrics.height()}, shown, colour);
}

void PainterCanvas::Write(const QRectF& box, const QString& text, Colour colour) {
  QFont font = painter.font();
  font.setPixelSize(TextPixels());
  const QPointF baseLine(box.left(), box.top() + QFontMetricsF(font).ascent());
  QPainterPath letters;
  letters.addText(baseLine, font, text);
  const QPen halo(Qt::white, TextPixels() * kHaloShare, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  painter.strokePath(letters, halo);
  painter.setFont(font);
  painter.setPen(ColourOf(colour));
  painter.drawText(baseLine, text);
  textBoxes.push_back(box);
}

}  // namespace vexa
