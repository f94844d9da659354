#pragma once

#include <QIcon>
#include <cstddef>

namespace vexa {

/// A spot in the colour of the function at `position` of a graph.
QIcon CurveIcon(std::size_t position);

}  // namespace vexa
