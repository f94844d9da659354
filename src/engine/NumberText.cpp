#include "engine/NumberText.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <limits>
#include <string>

namespace vexa {
namespace {

constexpr std::string_view kBlanks = " \t\n\v\f\r";

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// The decimal exponent that `text` states behind its "e", saturated.
long long StatedExponent(std::string_view text) {
  const std::size_t mark = text.find_first_of("eE");
  if (mark == std::string_view::npos) return 0;
  std::string_view digits = text.substr(mark + 1);
  const bool negative = digits.starts_with('-');
  if (negative || digits.starts_with('+')) digits.remove_prefix(1);
  constexpr long long kSaturated = 1'000'000'000'000;
  long long exponent = 0;
  for (const char c : digits) {
    if (!IsDigit(c)) break;
    exponent = std::min(exponent * 10 + (c - '0'), kSaturated);
  }
  return negative ? -exponent : exponent;
}

/// Whether a decimal number whose conversion left the range of doubles is too large (and not too
/// small): decided by the power of ten of its first digit that is not 0.
bool IsTooLarge(std::string_view text) {
  long long power = -1;
  bool pointSeen = false;
  bool digitSeen = false;
  for (const char c : text) {
    if (c == '.') {
      pointSeen = true;
    } else if (!IsDigit(c)) {
      break;
    } else {
      digitSeen = digitSeen || c != '0';
      if (digitSeen && !pointSeen) ++power;
      if (!digitSeen && pointSeen) --power;
    }
  }
  return power + StatedExponent(text) > 0;
}

/// The unsigned number at the front of `text`.
double Magnitude(std::string_view text) {
  double value = 0.0;
  const char* const end = text.data() + text.size();
  if (text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X')) {
    const auto [stop, error] =
        std::from_chars(text.data() + 2, end, value, std::chars_format::hex);
    if (error == std::errc::result_out_of_range) {
      const bool tooSmall = text.find_first_of("pP") + 1 == text.find('-');
      return tooSmall ? 0.0 : std::numeric_limits<double>::infinity();
    }
    // "0x" that no digit follows is the number 0.
    return error == std::errc{} ? value : 0.0;
  }
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  if (error == std::errc::result_out_of_range) {
    return IsTooLarge(text) ? std::numeric_limits<double>::infinity() : 0.0;
  }
  return error == std::errc{} ? value : 0.0;
}

}  // namespace

double TextToDouble(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  // from_chars would take a second sign.
  if (text.starts_with('-')) return 0.0;
  const double magnitude = Magnitude(text);
  return negative ? -magnitude : magnitude;
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
