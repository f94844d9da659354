#include "toolkit/NumberBox.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include "engine/NumberText.h"
#include "toolkit/TypesetNumbers.h"

namespace vexa {
namespace {

constexpr std::wstring_view kBlanks = L" \t\n\v\f\r";
constexpr std::wstring_view kDigits = L"0123456789";
constexpr std::size_t kGroup = 3;

bool Holds(std::wstring_view characters, wchar_t c) {
  return characters.find(c) != characters.npos;
}

bool IsBlank(wchar_t c) {
  return Holds(kBlanks, c) || Holds(kHardBlanks, c);
}

/// `text` without the blanks around it, its typeset minus signs plain.
std::wstring Trimmed(std::wstring_view text) {
  const auto first = std::ranges::find_if_not(text, IsBlank);
  const auto end = std::find_if_not(text.rbegin(), std::make_reverse_iterator(first), IsBlank);
  std::wstring trimmed(first, end.base());
  std::ranges::replace(trimmed, kTypesetMinus, L'-');
  return trimmed;
}

/// Takes the digits at the front of `text` and returns how many there were.
std::size_t TakeDigits(std::wstring_view& text) {
  const std::size_t count = std::min(text.find_first_not_of(kDigits), text.size());
  text.remove_prefix(count);
  return count;
}

/// Takes a character of `choice` from the front of `text`, if one stands there.
bool Take(std::wstring_view& text, std::wstring_view choice) {
  if (text.empty() || !Holds(choice, text.front())) return false;
  text.remove_prefix(1);
  return true;
}

/// Takes the digits of an integer part, grouped or not, and returns how many there were; none when
/// a group is not complete or its mark is another than the first one.
std::optional<std::size_t> TakeIntegerPart(std::wstring_view& text) {
  std::size_t count = TakeDigits(text);
  if (text.empty() || !IsGroupMark(text.front())) return count;
  if (count == 0 || count > kGroup) return std::nullopt;
  const std::wstring_view mark = text.substr(0, 1);
  while (Take(text, mark)) {
    if (TakeDigits(text) != kGroup) return std::nullopt;
    count += kGroup;
  }
  return count;
}

/// Takes "e", a sign and digits, if "e" stands there; false when no digit follows.
bool TakeExponent(std::wstring_view& text) {
  if (!Take(text, L"eE")) return true;
  Take(text, L"+-");
  return TakeDigits(text) > 0;
}

bool IsInteger(std::wstring_view text) {
  Take(text, L"+-");
  return TakeIntegerPart(text).value_or(0) > 0 && text.empty();
}

bool IsNumber(std::wstring_view text) {
  Take(text, L"+-");
  const std::optional<std::size_t> integerDigits = TakeIntegerPart(text);
  if (!integerDigits) return false;
  const std::size_t decimals = Take(text, L".") ? TakeDigits(text) : 0;
  return *integerDigits + decimals > 0 && TakeExponent(text) && text.empty();
}

/// A number without its grouping.
std::wstring Ungrouped(std::wstring number) {
  std::erase_if(number, IsGroupMark);
  return number;
}

}  // namespace

bool IsGroupMark(wchar_t c) {
  return c == L',' || Holds(kHardBlanks, c);
}

std::optional<std::wstring> PlainNumber(std::wstring_view text) {
  std::wstring number = Trimmed(text);
  if (!IsNumber(number)) return std::nullopt;
  number = Ungrouped(std::move(number));
  if (!std::isfinite(TextToDouble(number))) return std::nullopt;
  return number;
}

std::optional<double> ReadNumberBox(std::wstring_view text) {
  const std::optional<std::wstring> number = PlainNumber(text);
  if (!number) return std::nullopt;
  return TextToDouble(*number);
}

std::wstring ReadIntegerBox(std::wstring_view text, int low, int high, int& value) {
  const std::wstring number = Trimmed(text);
  if (!IsInteger(number)) return std::wstring(kEnterInteger);
  const double integer = TextToDouble(Ungrouped(number));
  if (integer < low || integer > high) {
    return L"Please enter an integer between " + std::to_wstring(low) + L" and " +
           std::to_wstring(high) + L".";
  }
  value = static_cast<int>(integer);
  return {};
}

}  // namespace vexa
