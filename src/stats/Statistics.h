#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "display/DisplayType.h"
#include "display/SettingsStore.h"
#include "macros/MemoryMenu.h"
#include "stats/DataEntry.h"
#include "stats/DataList.h"
#include "stats/Regression.h"
#include "stats/RegressionPlot.h"
#include "stats/ResultKeys.h"

namespace vexa {

/// A statistics screen without its window: the data list, the last result, the regression and how
/// numbers are shown. What kind of data it has is told by the list's columns.
class Statistics {
 public:
  /// What the edits hold when the screen opens.
  static constexpr std::wstring_view kFirstValue = L"0";
  static constexpr std::wstring_view kFirstCount = L"1";

  /// Reads how numbers are shown. `settingsStore` must outlive the object.
  Statistics(SettingsStore& settingsStore, std::span<const ListColumn> columns);
  Statistics(const Statistics&) = delete;
  Statistics& operator=(const Statistics&) = delete;

  const DataList& List() const { return list; }
  RegressionModel Model() const { return regression.Model(); }

  /// Adds the row that the edits hold at the top, or says what is wrong with them.
  EntryFault Add(const EntryTexts& texts);
  void SelectionChanged(bool any) { list.SelectionChanged(any); }
  /// Starts editing `row` and returns its texts for the edits.
  EntryTexts Edit(std::size_t row);
  /// Ends editing with what the edits hold, or says what is wrong with them and goes on.
  EntryFault Ok(const EntryTexts& texts);
  void Cancel();
  void Delete(std::size_t row);
  void Clear();
  void TakeSorted(DataList::SortedRows sorted);
  void Load(DataSet data);
  /// Takes rows that were kept aside.
  void Restore(DataSet data);
  void Saved() { list.Saved(); }

  /// Computes and shows what the key with this caption stands for. A prediction reads the X and Y
  /// edits first, and says what is wrong with them. None: `watcher` stopped it, and what is shown
  /// is as it was.
  ///
  /// This and PreparePlot may run on a thread of their own, one at a time, while others use nothing
  /// but what DataList allows them.
  std::optional<EntryFault> ShowResult(std::wstring_view caption, const EntryTexts& texts,
                                       const ProgressWatcher& watcher = Unwatched);
  void ChooseModel(RegressionModel model);
  /// Prepares the plot of the fitted curve; returns the message that refuses it, empty: success.
  /// None: `watcher` stopped it.
  std::optional<std::wstring> PreparePlot(GraphData& graph,
                                          const ProgressWatcher& watcher = Unwatched);
  /// Whether the result that is shown is less than it seems.
  ResultDoubt Doubt() const { return doubt; }

  /// The lines of the "MEM" menu.
  std::vector<PopupCommand> MemoryCommands() const {
    return VariableMenuCommands(lastError.empty());
  }
  /// The last result as memory variables keep it.
  std::wstring MemoryVariableText() { return FloatingText(lastResult); }
  /// What recalling the memory variable with this text puts into an edit: the number at the front
  /// of the text, 0 where there is none.
  std::wstring RecallText(std::wstring_view variableText);

  /// Changes and stores how numbers are shown, and shows the last result so.
  void SetDisplay(DisplayType type, int decimals);

  /// The result line's text; empty before the first result.
  std::wstring resultLine;
  /// What a quiet line says of the last operation; empty: nothing.
  std::wstring notice;
  /// The sentence of the last number that could not be shown; empty when it could.
  std::wstring lastError;
  /// The last statistic that was shown, whatever it was.
  double lastResult = 0.0;
  DisplayType displayType;
  int precision;

 private:
  std::wstring Formatted(double value, DisplayType type);
  /// As the list's cells show it.
  std::wstring FloatingText(double value) { return Formatted(value, DisplayType::FloatingPoint); }
  std::vector<std::wstring> CellTexts(const DataEntry& entry);
  void ShowLastResult();

  SettingsStore& store;
  DataList list;
  Regression regression;
  ResultDoubt doubt = ResultDoubt::None;
};

}  // namespace vexa
