#include "engine/NumberReaders.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "engine/NumberText.h"

namespace vexa {
namespace {

/// A number's text is shorter than this.
constexpr std::size_t kNumberLengthLimit = 31;

bool IsDigit(wchar_t c) {
  return c >= L'0' && c <= L'9';
}
bool IsHexLetter(wchar_t c) {
  return c >= L'a' && c <= L'f';
}

/// What the scan of a decimal number found.
struct DecimalScan {
  std::size_t length = 0;
  int exponents = 0;
  int points = 0;
  std::size_t firstExponent = 0;
  std::size_t lastPoint = 0;
};

DecimalScan ScanDecimal(std::wstring_view text) {
  DecimalScan scan;
  for (; scan.length < text.size(); ++scan.length) {
    const wchar_t c = text[scan.length];
    if (c == L'.') {
      ++scan.points;
      scan.lastPoint = scan.length;
    } else if (c == L'e') {
      if (++scan.exponents == 1) scan.firstExponent = scan.length;
      const std::size_t next = scan.length + 1;
      if (next < text.size() && (text[next] == L'+' || text[next] == L'-')) ++scan.length;
    } else if (!IsDigit(c)) {
      break;
    }
  }
  return scan;
}

/// Whole numbers of so many digits are doubles.
constexpr std::size_t kExactDigits = 15;

double DecimalValue(std::wstring_view number, const DecimalScan& scan) {
  if (scan.points == 0 && scan.exponents == 0 && number.size() <= kExactDigits) {
    std::int64_t value = 0;
    for (const wchar_t c : number) value = value * 10 + (c - L'0');
    return static_cast<double>(value);
  }
  std::array<char, kNumberLengthLimit> narrow;
  std::transform(number.begin(), number.end(), narrow.begin(),
                 [](wchar_t c) { return static_cast<char>(c); });
  return TextToDouble(std::string_view(narrow.data(), number.size()));
}

/// An integer base: its digits, its longest number and the sentence for a longer one.
struct IntegerBase {
  int radix;
  std::size_t longest;
  std::wstring_view tooLong;
};

constexpr IntegerBase kHex{16, 8, L"Out of range(HEX MODE)"};
constexpr IntegerBase kBinary{2, 32, L"Out of range(BIN MODE)"};
constexpr IntegerBase kOctal{8, 11, L"Out of range(OCT MODE)"};

/// The value of digit `c`, or -1 when `radix` has no such digit.
int DigitValue(wchar_t c, int radix) {
  const int value = IsDigit(c) ? c - L'0' : IsHexLetter(c) ? c - L'a' + 10 : -1;
  return value < radix ? value : -1;
}

/// Length of the run of digits at the front of `text`. A run of hexadecimal letters that "n"
/// follows is the beginning of a word ("and"), never digits.
std::size_t DigitRun(std::wstring_view text, int radix) {
  std::size_t length = 0;
  while (length < text.size() && DigitValue(text[length], radix) >= 0) {
    if (!IsHexLetter(text[length])) {
      ++length;
      continue;
    }
    const auto letters = text.substr(length);
    const auto end = std::find_if_not(letters.begin(), letters.end(), IsHexLetter);
    if (end != letters.end() && *end == L'n') break;
    length += static_cast<std::size_t>(end - letters.begin());
  }
  return length;
}

std::size_t ReadInteger(std::wstring_view text, const IntegerBase& base, Token& token,
                        TokenList& errors) {
  const std::size_t length = DigitRun(text, base.radix);
  if (length == 0) return 0;
  if (length > base.longest) {
    errors.ReportError(ErrorCode::Message, base.tooLong);
    return 0;
  }
  double value = 0.0;
  for (const wchar_t c : text.substr(0, length))
    value = value * base.radix + DigitValue(c, base.radix);
  token = {.isOperand = 1, .value = value};
  return length;
}

}  // namespace

std::size_t ReadDecimalNumber(std::wstring_view text, Token& token, TokenList& errors) {
  if (!IsDigit(text.front()) && text.front() != L'.') return 0;
  const DecimalScan scan = ScanDecimal(text);
  if (scan.exponents > 1 || scan.points > 1) {
    errors.ReportError(ErrorCode::Expression);
    return 0;
  }
  if (scan.length >= kNumberLengthLimit) {
    errors.ReportError(ErrorCode::LengthLimit);
    return 0;
  }
  if (scan.exponents == 1 && scan.points == 1 && scan.lastPoint > scan.firstExponent) {
    errors.ReportError(ErrorCode::Expression);
    return 0;
  }
  token = {.isOperand = 1, .value = DecimalValue(text.substr(0, scan.length), scan)};
  return scan.length;
}

std::size_t ReadHexNumber(std::wstring_view text, Token& token, TokenList& errors) {
  return ReadInteger(text, kHex, token, errors);
}

std::size_t ReadBinaryNumber(std::wstring_view text, Token& token, TokenList& errors) {
  return ReadInteger(text, kBinary, token, errors);
}

std::size_t ReadOctalNumber(std::wstring_view text, Token& token, TokenList& errors) {
  return ReadInteger(text, kOctal, token, errors);
}

}  // namespace vexa
