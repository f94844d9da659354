#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "display/SettingsStore.h"
#include "display/TextHistory.h"
#include "plotter/GraphData.h"
#include "plotter/PlotRanges.h"

namespace vexa {

/// Asks before a function is deleted.
inline constexpr std::wstring_view kDeleteFunctionQuestion =
    L"Are you sure you want to delete the selected graph equation?";

/// What a command of the plotter decided.
struct PlotterOutcome {
  /// The sentence of a refusal; empty: success.
  std::wstring sentence{};
  /// What the function field holds from now on; none: what it holds.
  std::optional<std::wstring> fieldText{};
};

/// The plotter without its window: up to three functions of X, the functions that were typed last,
/// the ranges and the angle type.
class PlotFunctions {
 public:
  static constexpr int kCapacity = static_cast<int>(kMaxGraphFunctions);
  static constexpr int kHistoryCapacity = 5;

  /// Reads everything. `settingsStore` must outlive the object.
  explicit PlotFunctions(SettingsStore& settingsStore);
  /// Writes functions, ranges as typed, and history; nothing when a range is no number. To be
  /// called after every change, so that nobody reads what is older than what the user sees. The
  /// angle type is only read here.
  void Save(const RangeTexts& texts) const;

  /// "A": takes the field's text, without its blanks, as a further function.
  PlotterOutcome Add(std::wstring_view fieldText);
  /// "D", once the question was answered with yes.
  void DeleteSelected();
  void Select(int index) { selected = index; }
  void ToggleAngle();
  /// "Plot": fills `graph`, or says why not.
  PlotterOutcome Plot(std::wstring_view fieldText, const RangeTexts& texts,
                      const PlotOptions& options, GraphData& graph);

  /// A quiet word on a field's text that Plot would leave out, because functions are held and it is
  /// none of them; empty: there is nothing to say.
  std::wstring FieldNotice(std::wstring_view fieldText) const;

  int Count() const { return static_cast<int>(functions.size()); }
  const std::wstring& At(int index) const { return functions[static_cast<std::size_t>(index)]; }
  /// The function shown in the list; -1: none.
  int Selected() const { return selected; }
  bool CanAdd() const { return Count() < kCapacity; }
  bool CanDelete() const { return Count() > 0; }
  AngleType Angle() const { return angleType; }
  const TextHistory& History() const { return history; }
  /// The ranges that the boxes show when the screen opens.
  const RangeTexts& StoredRanges() const { return storedRanges; }

 private:
  /// ParseGraphFunction of `text`, in which macros may be called.
  std::wstring Parse(std::size_t position, const std::wstring& text, GraphFunction& function) const;

  SettingsStore& store;
  std::vector<std::wstring> functions;
  int selected = -1;
  AngleType angleType;
  TextHistory history;
  RangeTexts storedRanges;
};

}  // namespace vexa
