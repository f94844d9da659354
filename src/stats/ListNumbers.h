#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <optional>
#include <span>
#include <vector>

#include "stats/PackedRows.h"
#include "stats/Progress.h"

namespace vexa {

/// What the statistics of a column are made of, each row weighted by its count. The sums run from
/// the first row to the last, so that they are the same to the last bit every time.
struct ColumnSums {
  double values = 0.0;   ///< of count * value
  double squares = 0.0;  ///< of (value * value) * count
  /// The least and the greatest value of the rows whose count is not 0.
  double least = std::numeric_limits<double>::infinity();
  double greatest = -std::numeric_limits<double>::infinity();
};

/// The sums of a list; those of Y are of a list with two columns of values.
struct ListSums {
  ColumnSums x;
  ColumnSums y;
  double products = 0.0;  ///< of (count * x) * y
  /// Whether a row's count is not 1.
  bool weighted = false;
};

/// The numbers of consecutive rows; `y` is empty for one variable.
struct NumberPiece {
  std::span<const double> x;
  std::span<const double> y;
  std::span<const std::int32_t> counts;
};
using NumberVisitor = std::function<void(const NumberPiece&)>;

/// The numbers of a list's rows. They are read from the rows' texts at the first request and kept
/// until the rows change: eight bytes for each value. Counts are read from their texts, which are
/// short, as often as they are needed. Where the memory does not suffice to keep the values, they
/// are read each time, too.
///
/// An operation that takes a watcher may run on a thread of its own, one at a time, while nothing
/// changes the rows.
class ListNumbers {
 public:
  /// Reads all values, unless they are kept; false: `watcher` stopped it.
  bool Read(const PackedRows& rows, const ProgressWatcher& watcher);
  /// Hands all numbers to `visitor`, from the first row to the last; false: `watcher` stopped it.
  bool Visit(const PackedRows& rows, const NumberVisitor& visitor, const ProgressWatcher& watcher);
  /// Adds all rows up, unless that was done since they changed; false: `watcher` stopped it.
  bool Add(const PackedRows& rows, const ProgressWatcher& watcher);
  /// The sums, once they were added up.
  const ListSums& Sums() const { return *sums; }
  /// The kept values of a column; none where they are not kept, as those of the counts never are.
  std::span<const double> Kept(std::size_t column) const {
    return column < values.size() ? std::span<const double>(values[column])
                                  : std::span<const double>();
  }

  /// The numbers when the row that stands at order[i] comes to stand at i; none: `watcher` stopped
  /// it.
  std::optional<ListNumbers> Reordered(std::span<const std::size_t> order,
                                       const ProgressWatcher& watcher) const;

 private:
  static constexpr std::size_t kMostValues = 2;
  using Values = std::array<std::vector<double>, kMostValues>;

  bool IsKept(const PackedRows& rows) const { return values[0].size() == rows.Count(); }
  bool ReadTexts(const PackedRows& rows, const NumberVisitor& visitor,
                 const ProgressWatcher& watcher);

  Values values;
  std::optional<ListSums> sums;
};

}  // namespace vexa
