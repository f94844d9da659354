#pragma once

#include <string>
#include <string_view>

#include "plotter/GraphModel.h"

namespace vexa::terminal {

/// `graph` as a file of the kind that `path` ends with: .bmp, .png or .svg; empty: it ends with
/// none of these, or there is no room for it.
std::string GraphFileBytes(const GraphModel& graph, std::string_view path);

/// Gives the file at `path`, or what it links to, the content `bytes`; it can be read by whom a new
/// file can be read by. Returns the system's words for what is wrong; empty: success.
std::string WriteGraphFile(const std::string& path, std::string_view bytes);

}  // namespace vexa::terminal
