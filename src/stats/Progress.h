#pragma once

#include <functional>

namespace vexa {

/// Watches a long operation: hears the share that is done, 0 to 1, and says whether to go on. An
/// operation that is stopped leaves everything as it was.
using ProgressWatcher = std::function<bool(double share)>;

/// For operations that nobody watches.
inline bool Unwatched(double) {
  return true;
}

}  // namespace vexa
