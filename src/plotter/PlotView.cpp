#include "plotter/PlotView.h"

#include <QEvent>
#include <QFontInfo>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "plotter/GraphColours.h"
#include "plotter/GraphImage.h"
#include "plotter/PlotArea.h"

namespace vexa {
namespace {

using namespace plot_area;

/// The opening size shows each pixel of the view larger than one of the display.
constexpr qreal kComfortableScale = 1.5;
/// Traced points are found at a glance, the selected function's first.
constexpr qreal kMarkRadius = 3;
constexpr qreal kSelectedMarkRadius = 5;
/// What a wheel's notch turns by.
constexpr int kWheelStep = 120;
/// Beyond every display; what a pen can be dragged to is within.
constexpr qreal kFarthest = 1e6;

/// The picture's length in whole pixels of the device.
int DevicePixels(int length, qreal scale) {
  return qRound(length * scale);
}

int PixelOf(qreal position, qreal scale) {
  return static_cast<int>(std::clamp(std::floor(position / scale), -kFarthest, kFarthest));
}

}  // namespace

PlotView::PlotView(const GraphModel& shownGraph, QWidget* parent)
    : QWidget(parent), graph(shownGraph) {
  setObjectName(QStringLiteral("Graph"));
  setAccessibleName(QStringLiteral("Graph"));
  setFocusPolicy(Qt::StrongFocus);
  setMinimumSize(kPictureWidth, kPictureHeight);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setCursor(Qt::CrossCursor);
  // A pen that comes back without its button down was released elsewhere.
  setMouseTracking(true);
}

QSize PlotView::sizeHint() const {
  return {DevicePixels(kPictureWidth, kComfortableScale),
          DevicePixels(kPictureHeight, kComfortableScale)};
}

void PlotView::ShowGraph() {
  picture = {};
  update();
}

qreal PlotView::Scale() const {
  return std::min(width() * 1.0 / kPictureWidth, height() * 1.0 / kPictureHeight);
}

QPointF PlotView::Origin() const {
  // On a pixel of the device, so that the picture is shown as it was drawn.
  const qreal ratio = devicePixelRatioF();
  const qreal deviceScale = Scale() * ratio;
  const auto centred = [ratio](int room, int used) {
    return std::floor((room * ratio - used) / 2) / ratio;
  };
  return {centred(width(), DevicePixels(kPictureWidth, deviceScale)),
          centred(height(), DevicePixels(kPictureHeight, deviceScale))};
}

PixelPoint PlotView::PixelAt(QPointF position) const {
  const QPointF inside = position - Origin();
  return {PixelOf(inside.x(), Scale()) + kPictureLeft, PixelOf(inside.y(), Scale()) + kPictureTop};
}

void PlotView::paintEvent(QPaintEvent*) {
  const qreal ratio = devicePixelRatioF();
  const qreal scale = Scale() * ratio;
  const QSize size(DevicePixels(kPictureWidth, scale), DevicePixels(kPictureHeight, scale));
  if (picture.size() != size) {
    const ScreenLook look{ratio, QFontInfo(font()).pixelSize() * ratio};
    picture = DrawGraphImage(graph, scale, font(), palette().color(QPalette::Window), look);
  }
  picture.setDevicePixelRatio(ratio);
  QPainter painter(this);
  painter.drawImage(Origin(), picture);
  DrawTraceMarks(painter);
  if (graph.Drag().IsShown()) DrawRubberBand(painter);
  if (hasFocus()) {
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
  }
}

QRectF PlotView::BoxOf(const PenDrag& drag) const {
  const auto place = [this](PixelPoint point) {
    constexpr qreal kHalf = 0.5;
    return Origin() +
           QPointF(point.x - kPictureLeft + kHalf, point.y - kPictureTop + kHalf) * Scale();
  };
  return QRectF(place(drag.Start()), place(drag.End())).normalized();
}

void PlotView::DrawRubberBand(QPainter& painter) const {
  // Inverts what is below, so that the box is seen on every colour.
  painter.save();
  painter.setCompositionMode(QPainter::CompositionMode_Difference);
  painter.setPen(Qt::white);
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(BoxOf(graph.Drag()));
  painter.restore();
}

void PlotView::DrawTraceMarks(QPainter& painter) const {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  for (const TraceMark& mark : graph.TraceMarks()) {
    constexpr qreal kHalf = 0.5;
    const QPointF centre =
        Origin() +
        QPointF(mark.column - kPictureLeft + kHalf, mark.row - kPictureTop + kHalf) * Scale();
    const Colour& colour = kCurveColours[mark.function];
    const bool isSelected = static_cast<int>(mark.function) == graph.SelectedFunction();
    const qreal radius = isSelected ? kSelectedMarkRadius : kMarkRadius;
    painter.setPen(QPen(Qt::black, 1));
    painter.setBrush(QColor(colour.red, colour.green, colour.blue));
    painter.drawEllipse(centre, radius, radius);
  }
  painter.restore();
}

void PlotView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return QWidget::mousePressEvent(event);
  penIsDown = true;
  emit PenPressed(PixelAt(event->position()));
}

void PlotView::mouseMoveEvent(QMouseEvent* event) {
  if (!(event->buttons() & Qt::LeftButton)) DropPen();
  if (penIsDown) emit PenMoved(PixelAt(event->position()));
}

void PlotView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !penIsDown) return;
  penIsDown = false;
  emit PenReleased(PixelAt(event->position()));
}

void PlotView::DropPen() {
  if (std::exchange(penIsDown, false)) emit PenLost();
}

bool PlotView::event(QEvent* event) {
  // What covers the graph takes the end of the drag.
  if (event->type() == QEvent::WindowDeactivate || event->type() == QEvent::Hide) DropPen();
  return QWidget::event(event);
}

void PlotView::wheelEvent(QWheelEvent* event) {
  event->accept();
  wheelAngle += event->angleDelta().y();
  const int steps = wheelAngle / kWheelStep;
  wheelAngle %= kWheelStep;
  if (steps != 0) emit WheelTurned(PixelAt(event->position()), steps);
}

void PlotView::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) ShowGraph();
  QWidget::changeEvent(event);
}

}  // namespace vexa
