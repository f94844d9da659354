#include "engine/NumberText.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <optional>
#include <string>

namespace vexa {
namespace {

constexpr std::string_view kBlanks = " \t\n\v\f\r";

/// How a number is written: its digits, the letters before its exponent, and the steps of the
/// exponent that one digit is worth.
struct Notation {
  std::string_view digits;
  std::string_view exponentMarks;
  long long stepsPerDigit;
};

constexpr Notation kDecimal{"0123456789", "eE", 1};
constexpr Notation kHexadecimal{"0123456789abcdefABCDEF", "pP", 4};

bool Holds(std::string_view characters, char c) {
  return characters.find(c) != std::string_view::npos;
}

/// The exponent that stands at the front of `text`, saturated; 0 when none does.
long long StatedExponent(std::string_view text, const Notation& notation) {
  if (text.empty() || !Holds(notation.exponentMarks, text.front())) return 0;
  text.remove_prefix(1);
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  constexpr long long kSaturated = 1'000'000'000'000;
  long long exponent = 0;
  for (const char c : text) {
    if (!Holds(kDecimal.digits, c)) break;
    exponent = std::min(exponent * 10 + (c - '0'), kSaturated);
  }
  return negative ? -exponent : exponent;
}

/// Whether the number at the front of `text`, whose conversion left the range of doubles, is too
/// large (and not too small): decided by the place of its first digit that is not 0.
bool IsTooLarge(std::string_view text, const Notation& notation) {
  long long place = -1;
  bool pointSeen = false;
  bool digitSeen = false;
  std::size_t length = 0;
  for (; length < text.size(); ++length) {
    const char c = text[length];
    if (c == '.' && !pointSeen) {
      pointSeen = true;
    } else if (!Holds(notation.digits, c)) {
      break;
    } else {
      digitSeen = digitSeen || c != '0';
      if (digitSeen && !pointSeen) ++place;
      if (!digitSeen && pointSeen) --place;
    }
  }
  const long long exponent = StatedExponent(text.substr(length), notation);
  return place * notation.stepsPerDigit + exponent > 0;
}

/// Whether `text` begins with "0x" and a hexadecimal digit, which a point may precede. Otherwise
/// the "0" is the number.
bool IsHexadecimal(std::string_view text) {
  if (!text.starts_with("0x") && !text.starts_with("0X")) return false;
  text.remove_prefix(2);
  if (text.starts_with('.')) text.remove_prefix(1);
  return !text.empty() && Holds(kHexadecimal.digits, text.front());
}

/// The unsigned number at the front of `text`; none when no number stands there.
std::optional<double> Magnitude(std::string_view text) {
  // from_chars would take a sign, and a second one in a hexadecimal exponent.
  if (text.starts_with('-')) return std::nullopt;
  text = text.substr(0, text.find("+-"));
  const bool hexadecimal = IsHexadecimal(text);
  if (hexadecimal) text.remove_prefix(2);
  const auto format = hexadecimal ? std::chars_format::hex : std::chars_format::general;
  double value = 0.0;
  const auto error = std::from_chars(text.data(), text.data() + text.size(), value, format).ec;
  if (error == std::errc{}) return value;
  if (error != std::errc::result_out_of_range) return std::nullopt;
  const Notation& notation = hexadecimal ? kHexadecimal : kDecimal;
  return IsTooLarge(text, notation) ? std::numeric_limits<double>::infinity() : 0.0;
}

}  // namespace

double TextToDouble(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  const std::optional<double> magnitude = Magnitude(text);
  if (!magnitude) return 0.0;
  return negative ? -*magnitude : *magnitude;
}

double TextToDouble(std::wstring_view text) {
  std::string narrow;
  narrow.reserve(text.size());
  for (const wchar_t c : text) {
    if (c <= 0 || c > 0x7f) break;
    narrow += static_cast<char>(c);
  }
  return TextToDouble(narrow);
}

}  // namespace vexa
