#pragma once

#include <QRectF>

#include "plotter/Canvas.h"

class QColor;
class QPainter;

namespace vexa {

/// A canvas at any resolution: straight lines are crisp, curves are smooth.
class PainterCanvas : public Canvas {
 public:
  /// Draws `area` of the view with `painter`, whose units are the device's pixels, from its origin
  /// on; `scale`: pixels of the device for each pixel of the view.
  PainterCanvas(QPainter& painter, const PixelBox& area, qreal scale);

  void Fill(const PixelBox& box, Colour colour) override;
  void Line(PixelPoint from, PixelPoint to, Colour colour) override;
  void Dot(const CurvePoint& point, Colour colour) override;
  void Segment(const CurvePoint& from, const CurvePoint& to, Colour colour) override;
  void Circle(const PixelBox& box, Colour colour) override;
  void Text(PixelPoint corner, std::wstring_view text, Colour colour) override;

 private:
  QPointF Corner(int x, int y) const;
  QPointF Place(const CurvePoint& point) const;
  void SetStroke(Colour colour);

  QPainter& painter;
  PixelBox area;
  qreal scale;
};

}  // namespace vexa
