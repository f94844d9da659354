#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>

namespace vexa {

/// Watches a long operation: hears the share that is done, 0 to 1, and says whether to go on. An
/// operation that is stopped leaves everything as it was. The watcher is called on the thread that
/// the operation runs on.
using ProgressWatcher = std::function<bool(double share)>;

/// For operations that nobody watches.
inline bool Unwatched(double) {
  return true;
}

/// The watcher of a part of an operation, which does the shares `from` to `to` of it. `watcher`
/// must outlive it.
inline ProgressWatcher PartOf(const ProgressWatcher& watcher, double from, double to) {
  return [&watcher, from, to](double share) { return watcher(from + share * (to - from)); };
}

/// Rows between two reports: few enough for the processor's cache, and well below a millisecond.
inline constexpr std::size_t kPieceRows = 4096;

/// Runs `work` on the rows from its first to before its second argument, for all of `count` rows in
/// turn, and reports behind each piece; false: `watcher` stopped it.
template <typename Work>
bool InPieces(std::size_t count, const ProgressWatcher& watcher, Work work) {
  for (std::size_t first = 0; first < count; first += kPieceRows) {
    const std::size_t end = std::min(first + kPieceRows, count);
    work(first, end);
    if (!watcher(static_cast<double>(end) / static_cast<double>(count))) return false;
  }
  return true;
}

}  // namespace vexa
