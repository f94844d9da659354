#pragma once

#include <string>
#include <vector>

#include "engine/CalcModes.h"
#include "engine/FormulaProgram.h"
#include "plotter/PlotRanges.h"

namespace vexa {

/// Functions that one graph shows at most.
inline constexpr std::size_t kMaxGraphFunctions = 3;

/// A function of a graph: what lists call it, and its formula of X.
struct GraphFunction {
  std::wstring label;
  FormulaProgram program;
};

/// A point that is drawn as a dot, whatever the functions are.
struct DataPoint {
  double x = 0.0;
  double y = 0.0;
};

/// What the graph view shows: at most kMaxGraphFunctions functions over home ranges whose minimum
/// lies below the maximum, and data points.
struct GraphData {
  std::vector<GraphFunction> functions{};
  PlotRanges ranges{};
  PlotOptions options{};
  AngleType angleType = AngleType::Degrees;
  std::vector<DataPoint> dataPoints{};
};

}  // namespace vexa
