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

/// Rows between two reports, and what the reading of the numbers is of a sort.
constexpr std::size_t kReportEvery = std::size_t{1} << 16;
constexpr double kReadingShare = 0.4;

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

std::int32_t DataList::Count(std::size_t row) const {
  return CellCount(Cell(row, CountColumn()));
}

void DataList::Add(std::span<const std::wstring> values, std::int32_t count) {
  rows.InsertFront(RowTexts(values, std::to_string(count)));
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
  modified = true;
  if (RowCount() == kRowsForStatistics - 1) EnableStatistics(false);
  if (RowCount() == kRowsToSave - 1) controls.clear = controls.save = false;
}

void DataList::Clear() {
  rows = PackedRows(columns.size());
  total = 0;
  // A cleared list counts as unchanged.
  modified = false;
  sortMark.reset();
  controls = ListControls();
}

std::optional<DataList::SortedRows> DataList::Sorted(std::size_t column,
                                                     const ProgressWatcher& watcher) const try {
  std::vector<double> values(RowCount());
  for (std::size_t row = 0; row < values.size(); ++row) {
    values[row] = Value(row, column);
    if (row % kReportEvery == kReportEvery - 1) {
      const double read = static_cast<double>(row) / static_cast<double>(values.size());
      if (!watcher(read * kReadingShare)) return std::nullopt;
    }
  }
  const auto order = SortOrder(values, nextDirection, [&](double sorted) {
    return watcher(kReadingShare + sorted * (1.0 - kReadingShare));
  });
  if (!order) return std::nullopt;
  return SortedRows{column, rows.Arranged(*order)};
} catch (const std::bad_alloc&) {
  return std::nullopt;
}

void DataList::TakeSorted(SortedRows sorted) {
  rows.Arrange(std::move(sorted.rows));
  sortMark = SortMark{sorted.column, nextDirection};
  nextDirection = nextDirection == SortDirection::Ascending ? SortDirection::Descending
                                                            : SortDirection::Ascending;
}

bool DataList::Sort(std::size_t column, const ProgressWatcher& watcher) {
  std::optional<SortedRows> sorted = Sorted(column, watcher);
  if (sorted) TakeSorted(*std::move(sorted));
  return sorted.has_value();
}

void DataList::Load(DataSet data) {
  rows = std::move(data.rows);
  total = data.total;
  modified = false;
  sortMark.reset();
  if (data.completeRows >= kRowsToSave) controls.clear = controls.save = true;
  if (data.completeRows >= kRowsForStatistics) EnableStatistics(true);
}

}  // namespace vexa
