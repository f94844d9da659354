#include "stats/StatisticsKeypad.h"

#include <algorithm>
#include <string_view>

namespace vexa {
namespace {

using enum KeyRole;

// The grids have six columns, so that rows of two, three and six keys are even.

/// caption, role, row, column, columns that it takes, help
constexpr Key NewKey(std::wstring_view caption, KeyRole role, int row, int column, int columnSpan,
                     std::wstring_view help) {
  return {.caption = caption,
          .role = role,
          .row = row,
          .column = column,
          .help = help,
          .columnSpan = columnSpan};
}

constexpr std::wstring_view kModelHelp = L"The curve that is fitted; press to choose another";
constexpr std::wstring_view kCurveHelp =
    L"The curve that is fitted; press to choose another. Counts other than 1 distort the fit: "
    L"enter "
    L"each row as often as it counts";

// What all values have in common costs a deviation its digits.
constexpr std::wstring_view kDeviationXN1 =
    L"Standard deviation of X, divisor n-1. Values that share many digits lose them: subtract a "
    L"number near the mean first";
constexpr std::wstring_view kDeviationXN =
    L"Standard deviation of X, divisor n. Values that share many digits lose them: subtract a "
    L"number near the mean first";
constexpr std::wstring_view kDeviationYN1 =
    L"Standard deviation of Y, divisor n-1. Values that share many digits lose them: subtract a "
    L"number near the mean first";
constexpr std::wstring_view kDeviationYN =
    L"Standard deviation of Y, divisor n. Values that share many digits lose them: subtract a "
    L"number near the mean first";

// clang-format off
constexpr Key kEntryKeys[] = {
    NewKey(L"Add",    Equals,  0, 0, 1, L"Add a row with these values at the top"),
    NewKey(L"Ok",     Equals,  0, 0, 1, L"Write these values into the row"),
    NewKey(L"Cancel", Editing, 0, 1, 1, L"Leave the row as it is"),
};

constexpr Key kListKeys[] = {
    NewKey(L"Edit",   Command, 0, 0, 1, L"Change the first selected row"),
    NewKey(L"Delete", Editing, 0, 1, 1, L"Delete the first selected row"),
    NewKey(L"Clear",  Editing, 0, 2, 1, L"Delete all rows"),
    NewKey(L"Save",   Command, 0, 3, 1, L"Save the rows in a file"),
    NewKey(L"Load",   Command, 0, 4, 1, L"Replace the rows by those of a file"),
};

constexpr Key kOneVarKeys[] = {
    NewKey(L"\u03A3X",              Function, 0, 0, 2, L"Sum of X"),
    NewKey(L"\u03A3X^2",            Function, 0, 2, 2, L"Sum of the squares of X"),
    NewKey(L"MEM",                  Command,  0, 4, 2, L"Memory variables"),
    NewKey(L"Arithmetic Mean of X", Function, 1, 0, 6, L"Arithmetic mean of X"),
    NewKey(L"\u03C3(n-1) of X",     Function, 2, 0, 3, kDeviationXN1),
    NewKey(L"\u03C3(n) of X",       Function, 2, 3, 3, kDeviationXN),
};

constexpr Key kTwoVarKeys[] = {
    NewKey(L"\u03A3X",          Function, 0, 0, 2, L"Sum of X"),
    NewKey(L"\u03A3Y",          Function, 0, 2, 2, L"Sum of Y"),
    NewKey(L"\u03A3XY",         Function, 0, 4, 2, L"Sum of the products of X and Y"),
    NewKey(L"\u03A3X^2",        Function, 1, 0, 2, L"Sum of the squares of X"),
    NewKey(L"\u03A3Y^2",        Function, 1, 2, 2, L"Sum of the squares of Y"),
    NewKey(L"MEM",              Command,  1, 4, 2, L"Memory variables"),
    NewKey(L"Mean of X",        Function, 2, 0, 2, L"Arithmetic mean of X"),
    NewKey(L"Mean of Y",        Function, 2, 2, 2, L"Arithmetic mean of Y"),
    NewKey(L"Lin",              Command,  2, 4, 2, kModelHelp),
    NewKey(L"Pow",              Command,  2, 4, 2, kCurveHelp),
    NewKey(L"Inv",              Command,  2, 4, 2, kCurveHelp),
    NewKey(L"Log",              Command,  2, 4, 2, kCurveHelp),
    NewKey(L"Exp",              Command,  2, 4, 2, kCurveHelp),
    NewKey(L"Quad",             Command,  2, 4, 2, kCurveHelp),
    NewKey(L"\u03C3(n-1) of X", Function, 3, 0, 2, kDeviationXN1),
    NewKey(L"\u03C3(n-1) of Y", Function, 3, 2, 2, kDeviationYN1),
    NewKey(L"Plot",             Command,  3, 4, 2, L"Draw the data and the fitted curve"),
    NewKey(L"\u03C3(n) of X",   Function, 4, 0, 2, kDeviationXN),
    NewKey(L"\u03C3(n) of Y",   Function, 4, 2, 2, kDeviationYN),
    NewKey(L"r",                Function, 4, 4, 2, L"Correlation coefficient of the linear model"),
    NewKey(L"C",                Function, 4, 4, 2, L"Coefficient C of the fitted curve"),
    NewKey(L"A",                Function, 5, 0, 1, L"Coefficient A of the fitted curve"),
    NewKey(L"B",                Function, 5, 1, 1, L"Coefficient B of the fitted curve"),
    NewKey(L"Y'",               Function, 5, 2, 2, L"The curve's Y for the X above"),
    NewKey(L"X'",               Function, 5, 4, 2, L"The curve's X for the Y above"),
    NewKey(L"X1'",              Function, 5, 4, 1, L"The curve's first X for the Y above"),
    NewKey(L"X2'",              Function, 5, 5, 1, L"The curve's second X for the Y above"),
};
// clang-format on

/// Keys that are shown in one of two states only.
enum class Shown { WhileEditing, WhileNotEditing, WithC, WithoutC, WithOneX, WithTwoX };
struct ShownKey {
  std::wstring_view caption;
  Shown shown;
};
constexpr ShownKey kShownKeys[] = {
    {L"Add", Shown::WhileNotEditing},
    {L"Ok", Shown::WhileEditing},
    {L"Cancel", Shown::WhileEditing},
    {L"r", Shown::WithoutC},
    {L"C", Shown::WithC},
    {L"X'", Shown::WithOneX},
    {L"X1'", Shown::WithTwoX},
    {L"X2'", Shown::WithTwoX},
};

/// Whether a key that is shown in one of two states is shown in this one.
bool IsShown(Shown shown, const StatisticsKeypadState& state) {
  const RegressionCurve* const curve = FindCurve(state.model);
  const bool hasC = curve && curve->pattern.hasC;
  const bool hasTwoX = curve && !curve->predictX;
  switch (shown) {
    case Shown::WhileEditing:
      return state.editing;
    case Shown::WhileNotEditing:
      return !state.editing;
    case Shown::WithC:
      return hasC;
    case Shown::WithoutC:
      return !hasC;
    case Shown::WithOneX:
      return !hasTwoX;
    case Shown::WithTwoX:
      return hasTwoX;
  }
  return true;
}

/// What enables a key; the others need the statistics.
struct ControlKey {
  std::wstring_view caption;
  bool ListControls::*control;
};
constexpr ControlKey kControlKeys[] = {
    {L"Edit", &ListControls::edit},   {L"Delete", &ListControls::remove},
    {L"Clear", &ListControls::clear}, {L"Save", &ListControls::save},
    {L"Load", &ListControls::load},   {L"r", &ListControls::correlation},
};
constexpr std::wstring_view kAlwaysEnabled[] = {L"Add", L"Ok", L"Cancel", L"MEM"};

const RegressionCurve* CurveOf(const Key& key) {
  const auto curve = std::ranges::find(kRegressionModels, key.caption, &RegressionCurve::caption);
  return curve == kRegressionModels.end() ? nullptr : &*curve;
}

// Each model needs its key, which opens the menu of models.
static_assert(std::ranges::all_of(kRegressionModels, [](const RegressionCurve& curve) {
  return std::ranges::find(kTwoVarKeys, curve.caption, &Key::caption) != std::end(kTwoVarKeys);
}));

}  // namespace

std::span<const Key> EntryKeys() {
  return kEntryKeys;
}
std::span<const Key> ListKeys() {
  return kListKeys;
}
std::span<const Key> OneVarKeys() {
  return kOneVarKeys;
}
std::span<const Key> TwoVarKeys() {
  return kTwoVarKeys;
}

bool IsKeyShown(const Key& key, const StatisticsKeypadState& state) {
  if (const RegressionCurve* const curve = CurveOf(key)) return curve->model == state.model;
  const auto entry = std::ranges::find(kShownKeys, key.caption, &ShownKey::caption);
  if (entry == std::ranges::end(kShownKeys)) return true;
  return IsShown(entry->shown, state);
}

bool IsKeyEnabled(const Key& key, const StatisticsKeypadState& state) {
  if (std::ranges::find(kAlwaysEnabled, key.caption) != std::ranges::end(kAlwaysEnabled)) {
    return true;
  }
  const auto entry = std::ranges::find(kControlKeys, key.caption, &ControlKey::caption);
  const bool listed = entry != std::ranges::end(kControlKeys);
  return state.controls.*(listed ? entry->control : &ListControls::statistics);
}

}  // namespace vexa
