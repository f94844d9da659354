#include "converter/UserConversionEditor.h"

#include <algorithm>
#include <optional>

#include "converter/UnitConversion.h"
#include "toolkit/NumberBox.h"
#include "toolkit/TypesetNumbers.h"

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

}  // namespace

UserConversionEditor::UserConversionEditor(SettingsStore& settingsStore)
    : ListEditor(kMaxUserConversions), conversions(settingsStore) {
  conversions.Load();
  Select(0);
}

std::wstring_view UserConversionEditor::DeleteQuestion() const {
  return L"Are you sure you want to delete the selected unit convert?";
}

ListEditor::Refusal UserConversionEditor::Save(const ConversionBoxes& typed) {
  UserConversion conversion;
  Refusal refusal = Check(typed, conversion);
  if (!refusal.sentence.empty()) return refusal;
  if (Edited() < 0) {
    conversions.Add(conversion);
    ShowSaved(Count() - 1);
  } else {
    conversions.Replace(Edited(), conversion);
    ShowSaved(Edited());
  }
  return {};
}

ConversionBoxes UserConversionEditor::ShownBoxes() const {
  if (Shown() < 0) return {L"", L"", IsEditing() ? L"0" : L""};
  const UserConversion& conversion = conversions.At(Shown());
  const ConversionUnits units = SplitConversionName(conversion.name);
  return {std::wstring(units.input), std::wstring(units.output), conversion.rateText};
}

ListEditor::Refusal UserConversionEditor::Check(const ConversionBoxes& typed,
                                                UserConversion& conversion) const {
  // A full list refuses an edited conversion too; meant.
  if (conversions.Count() >= kMaxUserConversions) {
    return {std::wstring(kMaximumReached) + L" " + std::to_wstring(kMaxUserConversions)};
  }
  const std::optional<double> rate = ReadNumberBox(typed.rate);
  if (!rate) return {std::wstring(kEnterNumber), Rate};

  const std::wstring_view first = Stripped(typed.firstName);
  const std::wstring_view second = Stripped(typed.secondName);
  if (first.empty()) return {std::wstring(kUnitNameMissing), FirstName};
  if (second.empty()) return {std::wstring(kUnitNameMissing), SecondName};
  const auto hasArrow = [](std::wstring_view name) {
    return name.find(kConversionArrow) != std::wstring_view::npos;
  };
  if (hasArrow(first)) return {std::wstring(kUnitNameInvalid), FirstName};
  if (hasArrow(second)) return {std::wstring(kUnitNameInvalid), SecondName};

  conversion.name = ConversionName(first, second);
  if (conversions.HasOther(Edited(), conversion.name)) {
    return {conversion.name + std::wstring(kExistsAlready), FirstName};
  }
  if (*rate == 0) return {std::wstring(kRateInvalid), Rate};
  // A stored rate ends at its first ",": grouping is for the eye only, as is a typeset minus.
  conversion.rateText = typed.rate;
  std::erase_if(conversion.rateText, IsGroupMark);
  std::ranges::replace(conversion.rateText, kTypesetMinus, L'-');
  return {};
}

}  // namespace vexa
