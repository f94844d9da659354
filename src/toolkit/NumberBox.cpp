#include "toolkit/NumberBox.h"

#include <algorithm>
#include <cmath>

#include "engine/NumberText.h"

namespace vexa {
namespace {

constexpr std::wstring_view kBlanks = L" \t\n\v\f\r";
constexpr std::wstring_view kDigits = L"0123456789";
constexpr std::size_t kGroup = 3;

std::wstring_view Trimmed(std::wstring_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  text.remove_suffix(text.size() - (text.find_last_not_of(kBlanks) + 1));
  return text;
}

/// Takes the digits at the front of `text` and returns how many there were.
std::size_t TakeDigits(std::wstring_view& text) {
  const std::size_t count = std::min(text.find_first_not_of(kDigits), text.size());
  text.remove_prefix(count);
  return count;
}

/// Takes a character of `choice` from the front of `text`, if one stands there.
bool Take(std::wstring_view& text, std::wstring_view choice) {
  if (text.empty() || choice.find(text.front()) == std::wstring_view::npos) return false;
  text.remove_prefix(1);
  return true;
}

/// Takes the digits of an integer part, grouped or not, and returns how many there were; none when
/// a group is not complete.
std::optional<std::size_t> TakeIntegerPart(std::wstring_view& text) {
  std::size_t count = TakeDigits(text);
  if (!text.starts_with(L',')) return count;
  if (count == 0 || count > kGroup) return std::nullopt;
  while (Take(text, L",")) {
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

/// The value of a text that is a number.
double ValueOf(std::wstring_view text) {
  std::wstring plain(text);
  std::erase(plain, L',');
  return TextToDouble(plain);
}

}  // namespace

std::optional<double> ReadNumberBox(std::wstring_view text) {
  const std::wstring_view number = Trimmed(text);
  if (!IsNumber(number)) return std::nullopt;
  const double value = ValueOf(number);
  if (!std::isfinite(value)) return std::nullopt;
  return value;
}

std::wstring ReadIntegerBox(std::wstring_view text, int low, int high, int& value) {
  const std::wstring_view number = Trimmed(text);
  if (!IsInteger(number)) return std::wstring(kEnterInteger);
  const double integer = ValueOf(number);
  if (integer < low || integer > high) {
    return L"Please enter an integer between " + std::to_wstring(low) + L" and " +
           std::to_wstring(high) + L".";
  }
  value = static_cast<int>(integer);
  return {};
}

}  // namespace vexa
