#include "stats/ListNumbers.h"

#include <algorithm>
#include <new>
#include <string_view>
#include <utility>

#include "stats/CellValue.h"
#include "stats/Reordered.h"

namespace vexa {
namespace {

/// A part of a column; none where a list has no such column.
std::span<const double> Part(const std::vector<double>& column, std::size_t first,
                             std::size_t end) {
  if (column.empty()) return {};
  return std::span(column).subspan(first, end - first);
}

/// Reads the numbers of a piece from the texts, and has the room for them.
class PieceReader {
 public:
  explicit PieceReader(const PackedRows& packedRows)
      : rows(packedRows), cells(rows.Columns()), counts(kPieceRows) {
    for (std::size_t column = 0; column + 1 < rows.Columns(); ++column) {
      values[column].resize(kPieceRows);
    }
  }

  /// The numbers of the rows from `first` to before `end`, from their texts.
  NumberPiece Numbers(std::size_t first, std::size_t end) {
    for (std::size_t row = first; row < end; ++row) {
      rows.Cells(row, cells);
      for (std::size_t column = 0; column + 1 < cells.size(); ++column) {
        values[column][row - first] = CellValue(cells[column]);
      }
      counts[row - first] = CellCount(cells.back());
    }
    return {Part(values[0], 0, end - first), Part(values[1], 0, end - first),
            std::span(counts).first(end - first)};
  }

  /// Their counts alone.
  std::span<const std::int32_t> Counts(std::size_t first, std::size_t end) {
    for (std::size_t row = first; row < end; ++row) {
      counts[row - first] = CellCount(rows.Cell(row, cells.size() - 1));
    }
    return std::span(counts).first(end - first);
  }

 private:
  const PackedRows& rows;
  std::vector<std::string_view> cells;
  std::array<std::vector<double>, 2> values;
  std::vector<std::int32_t> counts;
};

/// Makes room for the values of all rows; false: there is not enough memory.
bool Reserve(std::span<std::vector<double>> values, const PackedRows& rows) try {
  for (std::size_t column = 0; column + 1 < rows.Columns(); ++column) {
    values[column].reserve(rows.Count());
  }
  return true;
} catch (const std::bad_alloc&) {
  return false;
}

void AddTo(ColumnSums& sums, double count, double value) {
  sums.values += count * value;
  sums.squares += (value * value) * count;
  if (count == 0.0) return;
  sums.least = std::min(sums.least, value);
  sums.greatest = std::max(sums.greatest, value);
}

void AddTo(ListSums& sums, const NumberPiece& piece) {
  for (std::size_t i = 0; i < piece.x.size(); ++i) {
    const double count = piece.counts[i];
    AddTo(sums.x, count, piece.x[i]);
    if (!piece.y.empty()) {
      AddTo(sums.y, count, piece.y[i]);
      sums.products += (count * piece.x[i]) * piece.y[i];
    }
    sums.weighted = sums.weighted || count != 1.0;
  }
}

}  // namespace

bool ListNumbers::Read(const PackedRows& rows, const ProgressWatcher& watcher) {
  return IsKept(rows) || ReadTexts(
                             rows, [](const NumberPiece&) {}, watcher);
}

bool ListNumbers::Visit(const PackedRows& rows, const NumberVisitor& visitor,
                        const ProgressWatcher& watcher) {
  if (!IsKept(rows)) return ReadTexts(rows, visitor, watcher);
  PieceReader reader(rows);
  const std::vector<std::int32_t> ones(kPieceRows, 1);
  const bool needsCounts = !sums || sums->weighted;
  return InPieces(rows.Count(), watcher, [&](std::size_t first, std::size_t end) {
    visitor({Part(values[0], first, end), Part(values[1], first, end),
             needsCounts ? reader.Counts(first, end) : std::span(ones).first(end - first)});
  });
}

bool ListNumbers::ReadTexts(const PackedRows& rows, const NumberVisitor& visitor,
                            const ProgressWatcher& watcher) {
  Values fresh;
  const bool keeps = Reserve(fresh, rows);
  PieceReader reader(rows);
  const bool done = InPieces(rows.Count(), watcher, [&](std::size_t first, std::size_t end) {
    const NumberPiece piece = reader.Numbers(first, end);
    visitor(piece);
    if (!keeps) return;
    fresh[0].insert(fresh[0].end(), piece.x.begin(), piece.x.end());
    fresh[1].insert(fresh[1].end(), piece.y.begin(), piece.y.end());
  });
  if (done && keeps) values = std::move(fresh);
  return done;
}

bool ListNumbers::Add(const PackedRows& rows, const ProgressWatcher& watcher) {
  if (sums) return true;
  ListSums fresh;
  const auto add = [&](const NumberPiece& piece) { AddTo(fresh, piece); };
  if (!Visit(rows, add, watcher)) return false;
  sums = fresh;
  return true;
}

std::optional<ListNumbers> ListNumbers::Reordered(std::span<const std::size_t> order,
                                                  const ProgressWatcher& watcher) const {
  ListNumbers reordered;
  for (std::size_t column = 0; column < kMostValues; ++column) {
    const double done = static_cast<double>(column) / kMostValues;
    const ProgressWatcher part = PartOf(watcher, done, done + 1.0 / kMostValues);
    auto ordered = vexa::Reordered(values[column], order, part);
    if (!ordered) return std::nullopt;
    reordered.values[column] = std::move(*ordered);
  }
  return reordered;
}

}  // namespace vexa
