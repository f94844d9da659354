#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "stats/DataFile.h"
#include "stats/ListNumbers.h"
#include "stats/PackedRows.h"
#include "stats/SortOrder.h"

namespace vexa {

/// A column of the list: its heading, and its width in logical pixels on the smallest layout.
struct ListColumn {
  std::wstring_view caption;
  int width;
};

/// The columns of the two kinds of data. The last one counts how often its row was observed.
inline constexpr ListColumn kOneVarColumns[] = {{L"X", 117}, {L"Count", 45}};
inline constexpr ListColumn kTwoVarColumns[] = {{L"X", 85}, {L"Y", 85}, {L"Cnt", 40}};

/// What can be used beside the list. Operations on the list switch these; they are no function of
/// its rows: a list that was emptied by loading an empty file keeps its statistics enabled. Meant.
struct ListControls {
  bool list = true;
  bool edit = false;
  bool remove = false;
  bool clear = false;
  bool save = false;
  bool load = true;
  bool statistics = false;
  /// Switched like the statistics, and by each choice of a model.
  bool correlation = false;
};

/// Rows of data. Every value is kept as the text that its cell shows: what is computed is computed
/// from the texts, whose numbers are read once (see ListNumbers).
///
/// AddUp, VisitNumbers and Sorted, and with them all that computes from the rows
/// (SummaryStatistics, Regression, PrepareRegressionPlot), may run on one thread at a time beside
/// others that read texts, counts, total and controls. Nothing may change the list meanwhile.
class DataList {
 public:
  static constexpr std::wstring_view kNothingSelected = L"No items were selected!";
  static constexpr std::wstring_view kDeleteQuestion =
      L"Are you sure you want to delete the selected data?";
  static constexpr std::wstring_view kClearQuestion = L"Are you sure you want to delete all data?";
  static constexpr std::wstring_view kSaveQuestion = L"Do you want to save changes to Data?";

  explicit DataList(std::span<const ListColumn> listColumns);

  std::span<const ListColumn> Columns() const { return columns; }
  std::size_t CountColumn() const { return columns.size() - 1; }
  const PackedRows& Rows() const { return rows; }
  std::size_t RowCount() const { return rows.Count(); }
  /// A cell's text, a byte for each character; see PackedRows for how long it is valid.
  std::string_view Cell(std::size_t row, std::size_t column) const {
    return rows.Cell(row, column);
  }
  double Value(std::size_t row, std::size_t column) const;
  std::int32_t Count(std::size_t row) const;

  /// Adds all rows up, unless that was done since they changed. False: `watcher` stopped it.
  bool AddUp(const ProgressWatcher& watcher) const { return numbers.Add(rows, watcher); }
  /// The sums of all rows, which are added up where that was not done.
  const ListSums& Sums() const;
  /// Hands all numbers to `visitor`, from the first row to the last. False: `watcher` stopped it.
  bool VisitNumbers(const NumberVisitor& visitor, const ProgressWatcher& watcher) const {
    return numbers.Visit(rows, visitor, watcher);
  }

  /// The sum of all counts, in 32 bits.
  std::int32_t Total() const { return total; }
  /// Whether there is something that a file does not have.
  bool Modified() const { return modified; }
  const ListControls& Controls() const { return controls; }
  /// The row that is being edited; none: normal mode.
  std::optional<std::size_t> EditedRow() const { return editedRow; }

  /// Inserts a row at the top. `values` are the texts of all columns but the count.
  void Add(std::span<const std::wstring> values, std::int32_t count);
  /// The selection changed: `any` tells whether a row is selected.
  void SelectionChanged(bool any);
  /// A model was chosen that has a correlation coefficient, or has none.
  void ModelChosen(bool hasCorrelation) { controls.correlation = hasCorrelation; }
  /// Starts editing `row`.
  void Edit(std::size_t row);
  /// Ends editing: the edited row takes the values and the count.
  void Ok(std::span<const std::wstring> values, std::int32_t count);
  /// Ends editing without touching the row.
  void Cancel();
  void Delete(std::size_t row);
  void Clear();
  /// The rows sorted by the numbers of `column`: ascending the first time, then the other way each
  /// time, whatever the column. Nothing is changed, so that it can run beside the window.
  struct SortedRows {
    std::size_t column;
    PackedRows::Arrangement rows;
    ListNumbers numbers;
  };
  /// None: `watcher` stopped it, or the memory does not suffice.
  std::optional<SortedRows> Sorted(std::size_t column, const ProgressWatcher& watcher) const;
  /// Puts the rows in the order that Sorted found for them as they are.
  void TakeSorted(SortedRows sorted);
  /// Both at once. False, and everything is as it was: there is no order.
  bool Sort(std::size_t column, const ProgressWatcher& watcher = Unwatched);
  /// Takes the place of all rows.
  void Load(DataSet data);
  /// The same with rows that were kept aside: no file has them.
  void Restore(DataSet data);
  /// The rows are in a file now.
  void Saved() { modified = false; }
  /// Whether rows would be lost that are worth a question; a single observation is not, meant.
  bool AsksToSave() const { return total > 1 && modified; }
  /// Whether rows would be lost that are worth to be kept aside where nobody can be asked.
  bool IsWorthKeeping() const { return modified && (total > 1 || RowCount() > 1); }

  /// The column by which the rows stand sorted, and how; none once that no longer holds.
  struct SortMark {
    std::size_t column;
    SortDirection direction;
  };
  std::optional<SortMark> sortMark;

 private:
  void EndEditing();
  /// The order of the rows sorted by the numbers of `column`; none: `watcher` stopped it.
  std::optional<std::vector<std::size_t>> OrderBy(std::size_t column,
                                                  const ProgressWatcher& watcher) const;
  void EnableStatistics(bool enabled) { controls.statistics = controls.correlation = enabled; }

  std::span<const ListColumn> columns;
  PackedRows rows;
  /// What was read of the rows so far: nothing that a reader of the list can tell.
  mutable ListNumbers numbers;
  std::int32_t total = 0;
  bool modified = false;
  ListControls controls;
  std::optional<std::size_t> editedRow;
  std::int32_t oldCount = 0;
  SortDirection nextDirection = SortDirection::Ascending;
};

}  // namespace vexa
