#include "plotter/PlotFunctions.h"

#include <algorithm>

#include "display/SettingsLayout.h"
#include "display/ShortenedText.h"
#include "plotter/GraphFunction.h"

namespace vexa {
namespace {

constexpr std::wstring_view kNoText = L"Equation is null.";
constexpr std::wstring_view kFull = L"Maximum of graph equation is";
constexpr std::wstring_view kAdded = L" is added already.";
constexpr std::wstring_view kNothingToPlot = L"Please, Add a graph equation.";

constexpr std::wstring_view kNotListed = L"The field's text is not in the list: A adds it.";
constexpr std::wstring_view kNoRoomInList = L"The field's text is not in the list, which is full.";

constexpr ShorteningRule kAddedText{.longest = 17, .kept = 14};

constexpr HistoryKind kHistory{.capacity = PlotFunctions::kHistoryCapacity,
                               .count = settings::kGrapHistoryCount,
                               .entry = settings::kGrapHistory,
                               .caption = {.longest = 13, .kept = 10}};

/// The stored ranges in the order of the boxes.
constexpr std::array<settings::TextSetting, kRangeBoxCaptions.size()> kRangeSettings{
    settings::kXMin, settings::kXMax, settings::kYMin, settings::kYMax};

/// Any stored angle type but degrees is radians.
AngleType AngleOf(int stored) {
  return stored == static_cast<int>(AngleType::Degrees) ? AngleType::Degrees : AngleType::Radians;
}

std::wstring WithoutBlanks(std::wstring_view text) {
  std::wstring kept(text);
  std::erase(kept, L' ');
  return kept;
}

PlotterOutcome Refusal(std::wstring sentence) {
  return {.sentence = std::move(sentence)};
}

}  // namespace

PlotFunctions::PlotFunctions(SettingsStore& settingsStore)
    : store(settingsStore),
      angleType(AngleOf(Read(store, settings::kAngleType))),
      history(kHistory) {
  history.Load(store);
  const int count = settings::ClampCount(Read(store, settings::kFunctionCount), kCapacity);
  for (int i = 0; i < count; ++i) functions.push_back(Read(store, settings::kFunction, i));
  if (count > 0) selected = 0;
  for (std::size_t i = 0; i < storedRanges.size(); ++i) {
    storedRanges[i] = Read(store, kRangeSettings[i]);
  }
}

void PlotFunctions::Save(const RangeTexts& texts) const {
  if (!ReadRanges(texts).sentence.empty()) return;
  Write(store, settings::kFunctionCount, Count());
  for (int i = 0; i < Count(); ++i) Write(store, settings::kFunction, i, At(i));
  for (std::size_t i = 0; i < texts.size(); ++i) Write(store, kRangeSettings[i], texts[i]);
  history.Save(store);
}

std::wstring PlotFunctions::Parse(std::size_t position, const std::wstring& text,
                                  GraphFunction& function) const {
  MacroTable macros(store);
  macros.LoadMacroTable();
  return ParseGraphFunction(position, text, macros, function);
}

PlotterOutcome PlotFunctions::Add(std::wstring_view fieldText) {
  std::wstring text = WithoutBlanks(fieldText);
  if (text.empty()) return Refusal(std::wstring(kNoText));
  // Also a text that is refused below can be recalled and mended.
  history.AddHistory(text);
  if (!CanAdd()) return Refusal(std::wstring(kFull) + L" " + std::to_wstring(kCapacity));
  GraphFunction function;
  std::wstring sentence = Parse(functions.size(), text, function);
  if (!sentence.empty()) return Refusal(std::move(sentence));
  if (std::ranges::find(functions, text) != functions.end()) {
    return Refusal(Shortened(text, kAddedText) + std::wstring(kAdded));
  }
  functions.push_back(std::move(text));
  selected = Count() - 1;
  return {.fieldText = L""};
}

void PlotFunctions::DeleteSelected() {
  if (selected < 0 || selected >= Count()) return;
  functions.erase(functions.begin() + selected);
  selected = std::min(std::max(selected - 1, 0), Count() - 1);
}

std::wstring PlotFunctions::FieldNotice(std::wstring_view fieldText) const {
  const std::wstring text = WithoutBlanks(fieldText);
  const bool isListed = std::ranges::find(functions, text) != functions.end();
  if (text.empty() || functions.empty() || isListed) return {};
  return std::wstring(CanAdd() ? kNotListed : kNoRoomInList);
}

void PlotFunctions::ToggleAngle() {
  angleType = angleType == AngleType::Degrees ? AngleType::Radians : AngleType::Degrees;
}

PlotterOutcome PlotFunctions::Plot(std::wstring_view fieldText, const RangeTexts& texts,
                                   const PlotOptions& options, GraphData& graph) {
  const RangeReading reading = ReadRanges(texts);
  if (!reading.sentence.empty()) return Refusal(reading.sentence);
  PlotterOutcome outcome;
  if (functions.empty()) {
    if (fieldText.empty()) return Refusal(std::wstring(kNothingToPlot));
    outcome = Add(fieldText);
    if (!outcome.sentence.empty()) return outcome;
  }
  outcome.sentence = CheckRangeOrder(reading.ranges);
  if (!outcome.sentence.empty()) return outcome;

  graph = {.ranges = reading.ranges, .options = options, .angleType = angleType};
  for (std::size_t i = 0; i < functions.size(); ++i) {
    const std::wstring error = Parse(i, functions[i], graph.functions.emplace_back());
    if (error.empty()) continue;
    selected = static_cast<int>(i);
    return {.sentence = FunctionRefusal(functions[i], error), .fieldText = functions[i]};
  }
  return outcome;
}

}  // namespace vexa
