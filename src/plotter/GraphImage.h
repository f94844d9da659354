#pragma once

#include <QFont>
#include <QImage>

#include "plotter/GraphModel.h"

namespace vexa {

/// The picture of a graph on `background`, `scale` pixels for each pixel of the view.
QImage DrawGraphImage(const GraphModel& graph, qreal scale, const QFont& font,
                      const QColor& background);

}  // namespace vexa
