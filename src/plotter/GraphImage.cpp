#include "plotter/GraphImage.h"

#include <QPainter>

#include "plotter/DrawGraph.h"
#include "plotter/PainterCanvas.h"
#include "plotter/PlotArea.h"

namespace vexa {

QImage DrawGraphImage(const GraphModel& graph, qreal scale, const QFont& font,
                      const QColor& background) {
  using namespace plot_area;
  QImage image(qRound(kPictureWidth * scale), qRound(kPictureHeight * scale), QImage::Format_RGB32);
  if (image.isNull()) return image;
  image.fill(background);
  QPainter painter(&image);
  painter.setFont(font);
  PainterCanvas canvas(
      painter,
      {kPictureLeft, kPictureTop, kPictureLeft + kPictureWidth, kPictureTop + kPictureHeight},
      scale);
  DrawGraph(graph, canvas);
  return image;
}

}  // namespace vexa
