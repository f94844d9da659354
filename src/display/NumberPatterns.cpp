#include "display/NumberPatterns.h"

#include <array>
#include <charconv>
#include <string_view>

namespace vexa {
namespace {

constexpr int kGeneralDigits = 15;
constexpr std::size_t kExponentDigits = 3;

/// The longest text: a sign, 309 digits, a point and 100 decimals.
using Buffer = std::array<char, 512>;

std::string_view Written(Buffer& buffer, double value, std::chars_format format, int precision) {
  const auto [end, error] =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format, precision);
  return {buffer.data(), end};
}

std::wstring Widened(std::string_view text) {
  return {text.begin(), text.end()};
}

}  // namespace

std::wstring FixedText(double value, int decimals) {
  Buffer buffer;
  return Widened(Written(buffer, value, std::chars_format::fixed, decimals));
}

std::wstring ExponentText(double value, int decimals) {
  Buffer buffer;
  std::wstring text = Widened(Written(buffer, value, std::chars_format::scientific, decimals));
  const std::size_t exponent = text.find(L'e') + 2;
  const std::size_t digits = text.size() - exponent;
  if (digits < kExponentDigits) text.insert(exponent, kExponentDigits - digits, L'0');
  return text;
}

std::wstring GeneralText(double value) {
  Buffer buffer;
  return Widened(Written(buffer, value, std::chars_format::general, kGeneralDigits));
}

}  // namespace vexa
