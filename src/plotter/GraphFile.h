#pragma once

#include <QByteArray>
#include <QString>
#include <span>

#include "plotter/GraphModel.h"

namespace vexa {

/// A kind of file that a graph is saved in.
struct GraphFormat {
  /// As file dialogs name it.
  const char* filter;
  const char* suffix;
  QByteArray (*write)(const GraphModel& graph);
};

/// The formats in the order in which they are offered.
std::span<const GraphFormat> GraphFormats();

/// Writes the picture of `graph` to the file at `path`, in the format that its suffix names, else
/// the first one. The file is replaced whole, or left as it was: then the result is the system's
/// reason. Empty: success.
QString SaveGraph(const GraphModel& graph, const QString& path);

}  // namespace vexa
