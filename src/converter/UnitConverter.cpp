#include "converter/UnitConverter.h"

#include <algorithm>
#include <optional>

#include "converter/UnitConversion.h"
#include "display/FormatResult.h"
#include "toolkit/NumberBox.h"

namespace vexa {
namespace {

constexpr std::wstring_view kCannotAccept = L"Converting value is error";
constexpr std::wstring_view kEqualsLine = L"\r\n=\r\n";

/// The category that stands in for one that cannot be shown.
constexpr int kFirstCategory = 0;

bool IsCategory(int code) {
  return code >= 0 && code < kCategoryCount;
}

std::wstring WithoutGrouping(std::wstring text) {
  std::erase(text, L',');
  return text;
}

/// `position` where the list has an entry there, else -1.
int InList(int position, const std::vector<std::wstring>& list) {
  const bool inside = position >= 0 && static_cast<std::size_t>(position) < list.size();
  return inside ? position : -1;
}

}  // namespace

std::wstring ConverterInputText(double answer, std::wstring_view calculatorError,
                                DisplayType displayType, int precision) {
  if (answer == 0.0 || !calculatorError.empty()) return L"1";
  const DisplayType ungrouped =
      displayType == DisplayType::Currency ? DisplayType::FloatingPoint : displayType;
  std::wstring overflow;
  return FormatResult(answer, ungrouped, precision, BaseType::Dec, overflow);
}

void UnitConverter::Open(const ConverterPositions& stored, double memoryValue,
                         std::wstring_view text) {
  inputText = text;
  memory = memoryValue;
  positions = stored;
  userConversions.Load();
  const bool known = IsCategory(stored.category);
  const bool usersOwn = known && CategoryOf(stored.category).kind == CategoryKind::UserDefined;
  if (!known || (usersOwn && userConversions.Count() == 0)) {
    LoadCategory(kFirstCategory);
    return ShowUnits(0);
  }
  LoadCategory(stored.category);
  if (usersOwn && userConversions.Count() <= stored.input) return ShowUnits(0);
  selection.input = InList(stored.input, inputUnits);
  selection.output = InList(stored.output, outputUnits);
  Convert();
}

CategoryOutcome UnitConverter::ChangeCategory(int category) {
  selection.category = category;
  if (!IsCategory(category)) {
    selection.category = positions.category = -1;
    return CategoryOutcome::Shown;
  }
  if (CategoryOf(category).kind == CategoryKind::UserDefined && userConversions.Count() == 0) {
    inputUnits.clear();
    outputUnits.clear();
    selection.input = selection.output = -1;
    return CategoryOutcome::NoUserConversions;
  }
  LoadCategory(category);
  ShowUnits(0);
  return CategoryOutcome::Shown;
}

void UnitConverter::ReloadUserConversions() {
  userConversions.Load();
  if (!IsCategory(selection.category)) return;
  if (CategoryOf(selection.category).kind != CategoryKind::UserDefined) return;
  const std::wstring chosen =
      selection.input < 0 ? L"" : inputUnits[static_cast<std::size_t>(selection.input)];
  LoadCategory(userConversions.Count() == 0 ? kFirstCategory : selection.category);
  const auto same = std::ranges::find(inputUnits, chosen);
  ShowUnits(same == inputUnits.end() ? 0 : static_cast<int>(same - inputUnits.begin()));
}

void UnitConverter::ChooseInput(int position) {
  selection.input = InList(position, inputUnits);
  Convert();
}

void UnitConverter::ChooseOutput(int position) {
  selection.output = InList(position, outputUnits);
  Convert();
}

void UnitConverter::EnterText(std::wstring_view text) {
  inputText = text;
  Convert();
}

void UnitConverter::MemoryRecall() {
  EnterText(WithoutGrouping(Formatted(memory)));
}

std::wstring_view UnitConverter::Accept() const {
  if (!inputNotice.empty()) return inputNotice;
  return lastError.empty() ? std::wstring_view{} : kCannotAccept;
}

std::wstring UnitConverter::ExpressionText() const {
  return HasResult() ? WithoutGrouping(resultText) : std::wstring{};
}

/// Fills the unit lists from scratch; nothing is selected in them.
void UnitConverter::LoadCategory(int category) {
  const UnitCategory& chosen = CategoryOf(category);
  inputUnits.clear();
  outputUnits.clear();
  for (const UnitEntry& unit : chosen.units) inputUnits.emplace_back(unit.name);
  if (chosen.kind == CategoryKind::Factors) outputUnits = inputUnits;
  if (chosen.kind == CategoryKind::UserDefined) {
    for (int i = 0; i < userConversions.Count(); ++i) {
      inputUnits.push_back(userConversions.At(i).name);
    }
  }
  layout =
      chosen.kind == CategoryKind::Factors ? ConverterLayout::Factor : ConverterLayout::SingleList;
  selection = {.category = category};
  positions.category = category;
}

/// Selects an entry of the input list and the first of the output list.
void UnitConverter::ShowUnits(int input) {
  selection.input = InList(input, inputUnits);
  selection.output = InList(0, outputUnits);
  Convert();
}

/// Whether the lists say what to convert from and to.
bool UnitConverter::HasSelection() const {
  return selection.category >= 0 && selection.input >= 0 &&
         (layout == ConverterLayout::SingleList || selection.output >= 0);
}

void UnitConverter::Convert() {
  lastError.clear();
  inputNotice.clear();
  const bool chosen = selection.category >= 0 && selection.input >= 0;
  const bool single = layout == ConverterLayout::SingleList;
  positions.input = chosen ? selection.input : -1;
  positions.output = !chosen ? -1 : single ? 0 : selection.output;
  if (!HasSelection()) return;
  const std::optional<double> value = ReadNumberBox(inputText);
  if (!value) {
    inputNotice = kEnterNumber;
    return;
  }
  if (layout == ConverterLayout::Factor) {
    ConvertUnits(*value);
  } else {
    ConvertWhole(*value);
  }
}

void UnitConverter::ConvertUnits(double value) {
  const auto factorOf = [units = CategoryOf(selection.category).units](int position) {
    return units[static_cast<std::size_t>(position)].factor;
  };
  result = ConvertByFactors(value, factorOf(selection.input), factorOf(selection.output));
  outputLine = Formatted(result);
}

void UnitConverter::ConvertWhole(double value) {
  const int chosen = selection.input;
  result = CategoryOf(selection.category).kind == CategoryKind::Temperature
               ? ConvertTemperature(value, chosen)
               : ConvertByRate(value, ReadRate(userConversions.At(chosen).rateText));
  const ConversionUnits units = SplitConversionName(inputUnits[static_cast<std::size_t>(chosen)]);
  outputBlock = Formatted(value);
  outputBlock.append(L" ").append(units.input).append(kEqualsLine);
  outputBlock.append(Formatted(result)).append(L" ").append(units.output);
  if (!lastError.empty()) outputBlock = lastError;
}

/// `value` as this screen shows numbers; becomes the result text.
std::wstring UnitConverter::Formatted(double value) {
  resultText = ReducedFormatResult(value, kConverterPrecision, lastError);
  return resultText;
}

}  // namespace vexa
