#pragma once

#include <QRectF>
#include <optional>
#include <vector>

#include "plotter/Canvas.h"

class QColor;
class QPainter;

namespace vexa {

/// What keeps a graph in a window of any size as fine as what is around it. A picture of its own
/// has none of it: there everything grows with the picture.
struct ScreenLook {
  /// Pixels of the device for each logical pixel of the screen.
  qreal ratio = 1;
  /// The size of the letters around the graph, in pixels of the device.
  qreal largestText = 0;
};

/// A canvas at any resolution: straight lines are crisp, curves are smooth, and both end at the
/// frame.
class PainterCanvas : public Canvas {
 public:
  /// Draws `area` of the view with `painter`, whose units are the device's pixels, from its origin
  /// on; `scale`: pixels of the device for each pixel of the view.
  PainterCanvas(QPainter& painter, const PixelBox& area, qreal scale,
                const std::optional<ScreenLook>& look = {});

  void Fill(const PixelBox& box, Colour colour) override;
  void Line(PixelPoint from, PixelPoint to, const LineStyle& style) override;
  void Dot(const CurvePoint& point, Colour colour) override;
  void Segment(const CurvePoint& from, const CurvePoint& to, Colour colour) override;
  void Circle(const PixelBox& box, Colour colour) override;
  void Text(PixelPoint anchor, PixelPoint offset, std::wstring_view text, Colour colour) override;

  /// The inside of the frame with the frame itself, in pixels of the device.
  QRectF FrameBox() const;
  /// Where texts stand.
  const std::vector<QRectF>& TextBoxes() const { return textBoxes; }
  /// The size of texts.
  int TextPixels() const;
  /// Writes a text whose place is known, with a halo that parts it from what it covers.
  void Write(const QRectF& box, const QString& text, Colour colour);

 private:
  QPointF Corner(int x, int y) const;
  /// The place of a point whose value is `beyond` rows beyond it.
  QPointF Place(const CurvePoint& point, double beyond = 0) const;
  /// The thickness of a straight line: whole pixels of the device.
  qreal LineWidth(qreal widest) const;
  /// Where a line of this thickness along the area's row or column `position` begins.
  qreal LineStart(int position, qreal width) const;
  void SetStroke(Colour colour);

  QPainter& painter;
  PixelBox area;
  qreal scale;
  std::optional<ScreenLook> look;
  std::vector<QRectF> textBoxes;
};

}  // namespace vexa
