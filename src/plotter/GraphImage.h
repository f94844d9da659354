#pragma once

#include <QFont>
#include <QImage>
#include <optional>

#include "plotter/GraphModel.h"
#include "plotter/PainterCanvas.h"

namespace vexa {

/// The picture of a graph on `background`, `scale` pixels for each pixel of the view. With `look`
/// as a window shows it: with numbers at the grid where there is room.
QImage DrawGraphImage(const GraphModel& graph, qreal scale, const QFont& font,
                      const QColor& background, const std::optional<ScreenLook>& look = {});

}  // namespace vexa
