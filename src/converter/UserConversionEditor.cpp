#include "converter/UserConversionEditor.h"

#include <algorithm>
#include <optional>

#include "converter/UnitConversion.h"
#include "toolkit/NumberBox.h"

namespace vexa {
namespace {

constexpr std::wstring_view kMaximumReached = L"Maximum of user-define unit convert is";
constexpr std::wstring_view kUnitNameMissing = L"Please, Input a unit name";
constexpr std::wstring_view kUnitNameInvalid = L"Invalid unit name.";
constexpr std::wstring_view kExistsAlready = L" exists already.";
constexpr std::wstring_view kRateInvalid = L"Invalid convert rate";

/// `name` without blanks at its ends; no other white space counts.
std::wstring_view Stripped(std::wstring_view name) {
  name.remove_prefix(std::min(name.find_first_not_of(L' '), name.size()));
  name.remove_suffix(name.size() - (name.find_last_not_of(L' ') + 1));
  return name;
}

SaveOutcome Refusal(std::wstring_view sentence, ConversionBox focus) {
  return {std::wstring(sentence), focus};
}

}  // namespace

UserConversionEditor::UserConversionEditor(SettingsStore& settingsStore)
    : conversions(settingsStore) {
  conversions.Load();
  Select(0);
}

ConversionBox UserConversionEditor::New() {
  editing = true;
  editedIndex = -1;
  boxes = {L"", L"", L"0"};
  return ConversionBox::FirstName;
}

ConversionBox UserConversionEditor::Edit() {
  if (selected < 0) return ConversionBox::None;
  editing = true;
  editedIndex = selected;
  return ConversionBox::Rate;
}

SaveOutcome UserConversionEditor::Save(const ConversionBoxes& typed) {
  UserConversion conversion;
  SaveOutcome outcome = Check(typed, conversion);
  if (!outcome.sentence.empty()) return outcome;
  if (editedIndex < 0) {
    conversions.Add(conversion);
    editedIndex = conversions.Count() - 1;
  } else {
    conversions.Replace(editedIndex, conversion);
  }
  editing = false;
  Select(editedIndex);
  return outcome;
}

void UserConversionEditor::Cancel() {
  editing = false;
  Select(selected);
}

void UserConversionEditor::Delete() {
  if (selected < 0) return;
  conversions.Delete(selected);
  editing = false;
  Select(std::min(selected, conversions.Count() - 1));
}

void UserConversionEditor::Select(int position) {
  selected = position < conversions.Count() ? std::max(position, -1) : -1;
  boxes = {};
  if (selected < 0) return;
  const UserConversion& conversion = conversions.At(selected);
  const ConversionUnits units = SplitConversionName(conversion.name);
  boxes = {std::wstring(units.input), std::wstring(units.output), conversion.rateText};
}

SaveOutcome UserConversionEditor::Check(const ConversionBoxes& typed,
                                        UserConversion& conversion) const {
  using enum ConversionBox;
  // A full list refuses an edited conversion too; meant.
  if (conversions.Count() >= kMaxUserConversions) {
    return Refusal(std::wstring(kMaximumReached) + L" " + std::to_wstring(kMaxUserConversions),
                   None);
  }
  const std::optional<double> rate = ReadNumberBox(typed.rate);
  if (!rate) return Refusal(kEnterNumber, Rate);

  const std::wstring_view first = Stripped(typed.firstName);
  const std::wstring_view second = Stripped(typed.secondName);
  if (first.empty()) return Refusal(kUnitNameMissing, FirstName);
  if (second.empty()) return Refusal(kUnitNameMissing, SecondName);
  const auto hasArrow = [](std::wstring_view name) {
    return name.find(kConversionArrow) != std::wstring_view::npos;
  };
  if (hasArrow(first)) return Refusal(kUnitNameInvalid, FirstName);
  if (hasArrow(second)) return Refusal(kUnitNameInvalid, SecondName);

  conversion.name = ConversionName(first, second);
  if (conversions.HasOther(editedIndex, conversion.name)) {
    return Refusal(conversion.name + std::wstring(kExistsAlready), FirstName);
  }
  if (*rate == 0) return Refusal(kRateInvalid, Rate);
  conversion.rateText = typed.rate;
  // A stored rate ends at its first ",": grouping is for the eye only.
  std::erase(conversion.rateText, L',');
  return {};
}

}  // namespace vexa
