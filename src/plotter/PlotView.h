#pragma once

#include <QImage>
#include <QWidget>

#include "plotter/GraphModel.h"

namespace vexa {

/// Shows a graph as large as there is room, and says where the pen is, in pixels of the view.
class PlotView : public QWidget {
  Q_OBJECT

 public:
  /// `graph` must outlive the widget.
  PlotView(const GraphModel& graph, QWidget* parent);

  /// Draws the graph again.
  void ShowGraph();
  /// Draws what lies over the graph again: the traced points and the rubber-band box.
  void ShowDrag() { update(); }
  /// Whether the pen is down on the graph.
  bool IsPenDown() const { return penIsDown; }
  /// Forgets a pen that is down: it is not waited for any more.
  void DropPen();

  QSize sizeHint() const override;

 signals:
  void PenPressed(PixelPoint point);
  void PenMoved(PixelPoint point);
  void PenReleased(PixelPoint point);
  /// The pen went away, or was dropped, without being released on the graph.
  void PenLost();
  /// The wheel was turned at a point: steps away from the user, below 0 towards.
  void WheelTurned(PixelPoint point, int steps);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  /// Display pixels of the widget for each pixel of the view, and where the picture begins.
  qreal Scale() const;
  QPointF Origin() const;
  PixelPoint PixelAt(QPointF position) const;
  QRectF BoxOf(const PenDrag& drag) const;
  void DrawRubberBand(QPainter& painter) const;
  void DrawTraceMarks(QPainter& painter) const;

  const GraphModel& graph;
  /// The graph as it was drawn last; null: it is to be drawn again.
  QImage picture;
  bool penIsDown = false;
  int wheelAngle = 0;
};

}  // namespace vexa
