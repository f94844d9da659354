#pragma once

#include <initializer_list>
#include <string_view>

#include "plotter/GraphFunction.h"
#include "plotter/GraphModel.h"

namespace vexa::test {

/// A graph of these functions over these ranges, in radians. Functions that are no formulas of X
/// have no records.
inline GraphData Graph(std::initializer_list<std::wstring_view> functions,
                       const PlotRanges& ranges = {}) {
  GraphData graph;
  graph.ranges = ranges;
  graph.angleType = AngleType::Radians;
  for (const std::wstring_view text : functions) {
    GraphFunction function;
    ParseGraphFunction(graph.functions.size(), text, function);
    graph.functions.push_back(function);
  }
  return graph;
}

/// The graph as it opens with a fresh store.
inline GraphModel Opened(const GraphData& data) {
  return {data, DisplayType::Currency, 5};
}

}  // namespace vexa::test
