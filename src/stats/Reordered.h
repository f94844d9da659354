#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "stats/Progress.h"

namespace vexa {

/// `items` with what stands at order[i] at i; none: `watcher` stopped it.
template <typename Item>
std::optional<std::vector<Item>> Reordered(const std::vector<Item>& items,
                                           std::span<const std::size_t> order,
                                           const ProgressWatcher& watcher) {
  std::vector<Item> ordered;
  ordered.reserve(items.size());
  const bool done = InPieces(items.size(), watcher, [&](std::size_t first, std::size_t end) {
    for (std::size_t i = first; i < end; ++i) ordered.push_back(items[order[i]]);
  });
  if (!done) return std::nullopt;
  return ordered;
}

}  // namespace vexa
