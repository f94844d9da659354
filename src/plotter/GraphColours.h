#pragma once

#include "plotter/Canvas.h"
#include "plotter/GraphData.h"

namespace vexa {

/// The functions of a graph are drawn in these colours, in order.
inline constexpr Colour kCurveColours[kMaxGraphFunctions] = {{255, 0, 0}, {0, 255, 0}, {0, 0, 255}};

}  // namespace vexa
