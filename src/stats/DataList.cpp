#include "stats/DataList.h"

#include <new>
#include <utility>
#include <vector>

#include "stats/CellValue.h"
#include "stats/WrappedSum.h"

namespace vexa {
namespace {

/// Row counts at which operations switch controls.
constexpr std::size_t kRowsToSave = 1;
constexpr std::size_t kRowsForStatistics = 2;

/// Shares of a sort at which the numbers are read, the order is found, the numbers are in order.
constexpr double kNumbersRead = 0.3;
constexpr double kOrderFound = 0.8;
constexpr double kNumbersOrdered = 0.9;

std::vector<std::string> RowTexts(std::span<const std::wstring> values, std::string countText) {
  std::vector<std::string> texts;
  for (const std::wstring& value : values) texts.push_back(NarrowCell(value));
  texts.push_back(std::move(countText));
  return texts;
}

}  // namespace

DataList::DataList(std::span<const ListColumn> listColumns)
    : columns(listColumns), rows(listColumns.size()) {}

double DataList::Value(std::size_t row, std::size_t column) const {
  return CellValue(Cell(row, column));
}

const ListSums& DataList::Sums() const {
  AddUp(Unwatched);
  return numbers.Sums();
}

std::int32_t DataList::Count(std::size_t row) const {
  return CellCount(Cell(row, CountColumn()));
}

void DataList::Add(std::span<const std::wstring> values, std::int32_t count) {
  rows.InsertFront(RowTexts(values, std::to_string(count)));
  numbers = {};
  total = WrappedSum(total, count);
  modified = true;
  sortMark.reset();
  if (RowCount() == kRowsToSave) controls.clear = controls.save = true;
  if (RowCount() == kRowsForStatistics) EnableStatistics(true);
}

void DataList::SelectionChanged(bool any) {
  controls.edit = controls.remove = any;
}

void DataList::Edit(std::size_t row) {
  editedRow = row;
  oldCount = Count(row);
  controls.list = controls.edit = controls.remove = false;
  controls.clear = controls.save = controls.load = false;
}

void DataList::Ok(std::span<const std::wstring> values, std::int32_t count) {
  // A count that stays the same keeps its text.
  const std::string oldText(Cell(*editedRow, CountColumn()));
  rows.Replace(*editedRow, RowTexts(values, count == oldCount ? oldText : std::to_string(count)));
  numbers = {};
  total = WrappedSum(total, WrappedDifference(count, oldCount));
  modified = true;
  sortMark.reset();
  EndEditing();
}

void DataList::Cancel() {
  EndEditing();
}

void DataList::EndEditing() {
  editedRow.reset();
  controls.list = controls.edit = controls.remove = true;
  controls.clear = controls.save = controls.load = true;
}

void DataList::Delete(std::size_t row) {
  total = WrappedDifference(total, Count(row));
  rows.Remove(row);
  numbers = {};
  modified = true;
  if (RowCount() == kRowsForStatistics - 1) EnableStatistics(false);
  if (RowCount() == kRowsToSave - 1) controls.clear = controls.save = false;
}

void DataList::Clear() {
  rows = PackedRows(columns.size());
  numbers = {};
  total = 0;
  // A cleared list counts as unchanged.
  modified = false;
  sortMark.reset();
  controls = ListControls();
}

std::optional<DataList::SortedRows> DataList::Sorted(std::size_t column,
                                                     const ProgressWatcher& watcher) const try {
  const auto order = OrderBy(column, PartOf(watcher, 0.0, kOrderFound));
  if (!order) return std::nullopt;
  auto itsNumbers = numbers.Reordered(*order, PartOf(watcher, kOrderFound, kNumbersOrdered));
  if (!itsNumbers) return std::nullopt;
  auto itsRows = rows.Arranged(*order, PartOf(watcher, kNumbersOrdered, 1.0));
  if (!itsRows) return std::nullopt;
  return SortedRows{column, *std::move(itsRows), *std::move(itsNumbers)};
} catch (const std::bad_alloc&) {
  return std::nullopt;
}

void DataList::TakeSorted(SortedRows sorted) {
  rows.Arrange(std::move(sorted.rows));
  numbers = std::move(sorted.numbers);
  sortMark = SortMark{sorted.column, nextDirection};
  nextDirection = nextDirection == SortDirection::Ascending ? SortDirection::Descending
                                                            : SortDirection::Ascending;
}

bool DataList::Sort(std::size_t column, const ProgressWatcher& watcher) {
  std::optional<SortedRows> sorted = Sorted(column, watcher);
  if (sorted) TakeSorted(*std::move(sorted));
  return sorted.has_value();
}

std::optional<std::vector<std::size_t>> DataList::OrderBy(std::size_t column,
                                                          const ProgressWatcher& watcher) const {
  const ProgressWatcher reading = PartOf(watcher, 0.0, kNumbersRead);
  const ProgressWatcher sorting = PartOf(watcher, kNumbersRead, 1.0);
  if (column != CountColumn()) {
    if (!numbers.Read(rows, reading)) return std::nullopt;
    const std::span<const double> values = numbers.Kept(column);
    if (values.size() == RowCount()) return SortOrder(values, nextDirection, sorting);
  }
  std::vector<double> values(RowCount());
  const bool read = InPieces(values.size(), reading, [&](std::size_t first, std::size_t end) {
    for (std::size_t row = first; row < end; ++row) values[row] = Value(row, column);
  });
  if (!read) return std::nullopt;
  return SortOrder(values, nextDirection, sorting);
}

void DataList::Restore(DataSet data) {
  Load(std::move(data));
  modified = true;
}

void DataList::Load(DataSet data) {
  rows = std::move(data.rows);
  numbers = {};
  total = data.total;
  modified = false;
  sortMark.reset();
  if (data.completeRows >= kRowsToSave) controls.clear = controls.save = true;
  if (data.completeRows >= kRowsForStatistics) EnableStatistics(true);
}

}  // namespace vexa
