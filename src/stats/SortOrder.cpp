#include "stats/SortOrder.h"

#include <utility>

namespace vexa {
namespace {

using Index = std::ptrdiff_t;

/// Steps of work between two reports.
constexpr Index kReportEvery = Index{1} << 16;

/// Shares of the work at which all entries are made, and sorted.
constexpr double kEntered = 0.1;
constexpr double kSorted = 0.9;

struct Entry {
  double value;
  std::size_t index;
};

template <SortDirection direction>
bool IsBefore(double a, double b) {
  return direction == SortDirection::Ascending ? a < b : a > b;
}

template <SortDirection direction>
class PartitionSort {
 public:
  PartitionSort(std::vector<Entry>& sortedEntries, const ProgressWatcher& progressWatcher)
      : entries(sortedEntries), watcher(progressWatcher) {}

  /// False when the watcher stopped it.
  bool Run() { return Sort(0, static_cast<Index>(entries.size()) - 1); }

 private:
  Entry& At(Index i) { return entries[static_cast<std::size_t>(i)]; }

  /// Sorts the entries from `low` to `high`. It calls itself for the smaller part and goes on with
  /// the larger, so that no data can make it call itself deeply.
  bool Sort(Index low, Index high) {
    while (low < high) {
      const auto [leftEnd, rightStart] = Partition(low, high);
      if (!Report(high - low + 1, rightStart - leftEnd - 1)) return false;
      const bool leftIsSmaller = leftEnd - low < high - rightStart;
      if (!(leftIsSmaller ? Sort(low, leftEnd) : Sort(rightStart, high))) return false;
      leftIsSmaller ? low = rightStart : high = leftEnd;
    }
    if (low == high) ++settled;
    return true;
  }

  /// Exchanges entries until two parts are left to sort: `low` to the first of the result, and its
  /// second to `high`.
  std::pair<Index, Index> Partition(Index low, Index high) {
    const double pivot = At((low + high) / 2).value;
    Index left = low;
    Index right = high;
    while (left <= right) {
      while (IsBefore<direction>(At(left).value, pivot)) ++left;
      while (IsBefore<direction>(pivot, At(right).value)) --right;
      if (left > right) break;
      if (At(left).value != At(right).value) std::swap(At(left), At(right));
      ++left;
      --right;
    }
    return {right, left};
  }

  bool Report(Index steps, Index newlySettled) {
    settled += newlySettled;
    work += steps;
    if (work < kReportEvery) return true;
    work = 0;
    return watcher(static_cast<double>(settled) / static_cast<double>(entries.size()));
  }

  std::vector<Entry>& entries;
  const ProgressWatcher& watcher;
  /// Entries that are in their final place.
  Index settled = 0;
  Index work = 0;
};

}  // namespace

std::optional<std::vector<std::size_t>> SortOrder(std::span<const double> values,
                                                  SortDirection direction,
                                                  const ProgressWatcher& watcher) {
  const std::size_t count = values.size();
  std::vector<Entry> entries;
  entries.reserve(count);
  const auto enter = [&](std::size_t first, std::size_t end) {
    for (std::size_t i = first; i < end; ++i) entries.push_back({values[i], i});
  };
  if (!InPieces(count, PartOf(watcher, 0.0, kEntered), enter)) return std::nullopt;
  const ProgressWatcher sorting = PartOf(watcher, kEntered, kSorted);
  const bool sorted = direction == SortDirection::Ascending
                          ? PartitionSort<SortDirection::Ascending>(entries, sorting).Run()
                          : PartitionSort<SortDirection::Descending>(entries, sorting).Run();
  if (!sorted) return std::nullopt;
  std::vector<std::size_t> order;
  order.reserve(count);
  const auto take = [&](std::size_t first, std::size_t end) {
    for (std::size_t i = first; i < end; ++i) order.push_back(entries[i].index);
  };
  if (!InPieces(count, PartOf(watcher, kSorted, 1.0), take)) return std::nullopt;
  return order;
}

}  // namespace vexa
