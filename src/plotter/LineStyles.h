#pragma once

#include "plotter/Canvas.h"

/// The straight lines of a graph.
namespace vexa::line_styles {

inline constexpr LineStyle kGrid{{192, 192, 192}, 1};
inline constexpr LineStyle kAxis{{0, 130, 132}, 1.5};
inline constexpr LineStyle kFrame{{0, 0, 0}, 1};

}  // namespace vexa::line_styles
