#pragma once

#include <cstdint>
#include <vector>

#include "plotter/GraphModel.h"
#include "plotter/RasterCanvas.h"

namespace vexa {

/// The picture of a graph in exact pixels.
RasterCanvas DrawPicture(const GraphModel& graph);

/// `picture` as a Windows bitmap file of sixteen colours.
std::vector<std::uint8_t> BitmapFile(const RasterCanvas& picture);

}  // namespace vexa
