#pragma once

#include <functional>
#include <vector>

#include "plotter/Graphs.h"

namespace vexa::test {

/// A graph whose picture lies in tests/plotter/golden, and how it is made.
struct GoldenGraph {
  const char* name;
  std::function<GraphModel()> make;
};

std::vector<GoldenGraph> GoldenGraphs();

}  // namespace vexa::test
