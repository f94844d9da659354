#include "stats/Statistics.h"

#include <utility>

#include "display/FormatResult.h"
#include "display/SettingsLayout.h"
#include "engine/NumberText.h"

namespace vexa {
namespace {

/// The values that a prediction reads: X and Y.
constexpr std::size_t kPredictionValues = 2;
/// The characters that an edit holds; a cell of a file may be longer.
constexpr std::size_t kLongestEdit = 32767;

std::wstring CountOf(std::size_t count, std::wstring_view thing) {
  return std::to_wstring(count) + L' ' + std::wstring(thing) + (count == 1 ? L"" : L"s");
}

/// How much of a file was understood, so that a heading and a wrong file are seen at once.
std::wstring LoadedNotice(const DataSet& data) {
  const std::wstring rows = CountOf(data.rows.Count(), L"row") + L" read";
  if (data.strangeBytes == 0) return rows + L'.';
  return rows + L"; " + CountOf(data.strangeBytes, L"other character") + L" skipped.";
}

/// What is said beside a result that is as it must be and still not what a person expects.
std::wstring_view SentenceOf(ResultDoubt doubt) {
  switch (doubt) {
    case ResultDoubt::DigitsLost:
      return L"Digits were lost. Subtract a number near the mean from all values first.";
    case ResultDoubt::CountsHalved:
      return L"Counts other than 1 distort this fit. Enter each row as often as it counts.";
    case ResultDoubt::None:
      break;
  }
  return {};
}

}  // namespace

Statistics::Statistics(SettingsStore& settingsStore, std::span<const ListColumn> columns)
    : displayType(static_cast<DisplayType>(Read(settingsStore, settings::kDisplayType))),
      precision(Read(settingsStore, settings::kPrecision)),
      store(settingsStore),
      list(columns),
      regression(list) {}

EntryFault Statistics::Add(const EntryTexts& texts) {
  DataEntry entry;
  EntryFault fault = ReadEntry(texts, entry);
  if (!fault.sentence.empty()) return fault;
  notice.clear();
  list.Add(CellTexts(entry), entry.count);
  regression.Invalidate();
  return {};
}

EntryTexts Statistics::Edit(std::size_t row) {
  EntryTexts texts;
  for (std::size_t column = 0; column < list.Columns().size(); ++column) {
    const std::string_view cell = list.Cell(row, column).substr(0, kLongestEdit);
    texts.emplace_back(cell.begin(), cell.end());
  }
  notice.clear();
  list.Edit(row);
  return texts;
}

void Statistics::Cancel() {
  notice.clear();
  list.Cancel();
}

void Statistics::TakeSorted(DataList::SortedRows sorted) {
  notice.clear();
  list.TakeSorted(std::move(sorted));
}

EntryFault Statistics::Ok(const EntryTexts& texts) {
  DataEntry entry;
  EntryFault fault = ReadEntry(texts, entry);
  if (!fault.sentence.empty()) return fault;
  notice.clear();
  list.Ok(CellTexts(entry), entry.count);
  regression.Invalidate();
  return {};
}

void Statistics::Delete(std::size_t row) {
  notice.clear();
  list.Delete(row);
  regression.Invalidate();
}

void Statistics::Clear() {
  notice.clear();
  list.Clear();
  regression.Invalidate();
}

void Statistics::Load(DataSet data) {
  notice = LoadedNotice(data);
  list.Load(std::move(data));
  regression.Invalidate();
}

void Statistics::Restore(DataSet data) {
  notice = CountOf(data.rows.Count(), L"row") + L" restored.";
  list.Restore(std::move(data));
  regression.Invalidate();
}

std::optional<EntryFault> Statistics::ShowResult(std::wstring_view caption, const EntryTexts& texts,
                                                 const ProgressWatcher& watcher) {
  const ResultKey* const key = FindResultKey(caption);
  if (!key) return EntryFault();
  ResultSource source{list, regression};
  if (key->basis == ResultBasis::Prediction) {
    DataEntry entry;
    EntryFault fault = ReadValues(texts, kPredictionValues, entry);
    if (!fault.sentence.empty()) return fault;
    source.x = entry.values[0];
    source.y = entry.values[1];
  }
  // Without a model there is nothing to compute, and the last result is shown again.
  if (key->basis == ResultBasis::Sums || IsRegressionModel(regression.Model())) {
    if (!Prepare(*key, source, watcher)) return std::nullopt;
    lastResult = key->compute(source);
    doubt = DoubtOf(*key, source);
  }
  notice = SentenceOf(doubt);
  ShowLastResult();
  return EntryFault();
}

void Statistics::ChooseModel(RegressionModel model) {
  notice.clear();
  regression.ChooseModel(model);
  list.ModelChosen(model == RegressionModel::Linear);
}

std::optional<std::wstring> Statistics::PreparePlot(GraphData& graph,
                                                    const ProgressWatcher& watcher) {
  auto message = PrepareRegressionPlot(list, regression, precision, watcher, lastError, graph);
  if (message) {
    notice = SentenceOf(regression.HalvesCounts() ? ResultDoubt::CountsHalved : ResultDoubt::None);
  }
  return message;
}

std::wstring Statistics::RecallText(std::wstring_view variableText) {
  return FloatingText(TextToDouble(variableText));
}

void Statistics::SetDisplay(DisplayType type, int decimals) {
  displayType = type;
  precision = decimals;
  Write(store, settings::kDisplayType, static_cast<int>(displayType));
  Write(store, settings::kPrecision, precision);
  if (!resultLine.empty()) ShowLastResult();
}

void Statistics::ShowLastResult() {
  resultLine = Formatted(lastResult, displayType);
}

std::wstring Statistics::Formatted(double value, DisplayType type) {
  lastError.clear();
  return FormatResult(value, type, precision, BaseType::Dec, lastError);
}

std::vector<std::wstring> Statistics::CellTexts(const DataEntry& entry) {
  std::vector<std::wstring> texts;
  for (const double value : entry.values) texts.push_back(FloatingText(value));
  return texts;
}

}  // namespace vexa
