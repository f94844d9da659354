#pragma once

#include "plotter/Canvas.h"
#include "plotter/GraphModel.h"

namespace vexa {

/// Draws a graph: background, grid, axes, data points, functions, frame, range labels.
void DrawGraph(const GraphModel& graph, Canvas& canvas);

}  // namespace vexa
