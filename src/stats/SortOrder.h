#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "stats/Progress.h"

namespace vexa {

enum class SortDirection : int { Descending = 0, Ascending = 1 };

/// The order that sorts `values`: at each place the index of the value that belongs there; none
/// when `watcher` stops it. The exchanges of a partition sort whose pivot is the value in the
/// middle decide where equal values go, so their order is always the same, though not the one
/// before.
std::optional<std::vector<std::size_t>> SortOrder(std::span<const double> values,
                                                  SortDirection direction,
                                                  const ProgressWatcher& watcher);

}  // namespace vexa
