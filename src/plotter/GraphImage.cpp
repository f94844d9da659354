#include "plotter/GraphImage.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <array>

#include "display/WideText.h"
#include "plotter/DrawGraph.h"
#include "plotter/GridNumbers.h"
#include "plotter/PainterCanvas.h"
#include "plotter/PlotArea.h"

namespace vexa {
namespace {

using namespace plot_area;

constexpr Colour kNumberColour{90, 90, 90};
/// The room around a number, in shares of its height.
constexpr qreal kMargin = 0.25;

QFont SizedFont(QFont font, int pixels) {
  font.setPixelSize(pixels);
  return font;
}

using Numbers = std::array<std::wstring, kGridLines>;

QSizeF SizeOf(const std::wstring& text, const QFontMetricsF& metrics) {
  return {metrics.horizontalAdvance(FromWide(text)), metrics.height()};
}

/// Whether all of `numbers` have room in cells of this size.
bool HaveRoom(const Numbers& numbers, const QSizeF& cell, const QFontMetricsF& metrics) {
  const qreal gap = 2 * kMargin * metrics.height();
  return std::ranges::all_of(numbers, [&](const std::wstring& number) {
    const QSizeF size = SizeOf(number, metrics);
    return !number.empty() && size.width() + gap <= cell.width() &&
           size.height() + gap <= cell.height();
  });
}

/// Writes a number where no other text stands.
void WriteNumber(const QRectF& box, const std::wstring& number, PainterCanvas& canvas) {
  const std::vector<QRectF>& taken = canvas.TextBoxes();
  if (std::ranges::any_of(taken, [&](const QRectF& other) { return other.intersects(box); })) {
    return;
  }
  canvas.Write(box, FromWide(number), kNumberColour);
}

/// Numbers of X along the lower side of the frame, numbers of Y along its right one; none of either
/// where one has no room.
void DrawGridNumbers(const PlotRanges& ranges, PainterCanvas& canvas, const QFontMetricsF& metrics,
                     qreal scale) {
  constexpr int kCells = kGridLines + 1;
  const QSizeF cell(kWidth / kCells * scale, kHeight / kCells * scale);
  const Numbers columns = GridNumbers(ranges.xMin, ranges.xMax);
  const Numbers rows = GridNumbers(ranges.yMin, ranges.yMax);
  if (!HaveRoom(columns, cell, metrics) || !HaveRoom(rows, cell, metrics)) return;
  const qreal margin = kMargin * metrics.height();
  const QRectF frame = canvas.FrameBox();
  for (int k = 1; k <= kGridLines; ++k) {
    const std::wstring& number = columns[static_cast<std::size_t>(k - 1)];
    QRectF box(QPointF(), SizeOf(number, metrics));
    box.moveCenter({frame.left() + k * cell.width(), 0});
    box.moveBottom(frame.bottom() - margin / 2);
    WriteNumber(box, number, canvas);
  }
  for (int k = 1; k <= kGridLines; ++k) {
    // The rows run down, the numbers up.
    const std::wstring& number = rows[static_cast<std::size_t>(k - 1)];
    QRectF box(QPointF(), SizeOf(number, metrics));
    box.moveCenter({0, frame.bottom() - k * cell.height()});
    box.moveRight(frame.right() - 2 * margin);
    WriteNumber(box, number, canvas);
  }
}

}  // namespace

QImage DrawGraphImage(const GraphModel& graph, qreal scale, const QFont& font,
                      const QColor& background, const std::optional<ScreenLook>& look) {
  QImage image(qRound(kPictureWidth * scale), qRound(kPictureHeight * scale), QImage::Format_RGB32);
  if (image.isNull()) return image;
  image.fill(background);
  QPainter painter(&image);
  painter.setFont(font);
  PainterCanvas canvas(
      painter,
      {kPictureLeft, kPictureTop, kPictureLeft + kPictureWidth, kPictureTop + kPictureHeight},
      scale, look);
  DrawGraph(graph, canvas);
  if (look && graph.Options().grid && graph.Options().coordinates) {
    DrawGridNumbers(graph.Ranges(), canvas, QFontMetricsF(SizedFont(font, canvas.TextPixels())),
                    scale);
  }
  return image;
}

}  // namespace vexa
