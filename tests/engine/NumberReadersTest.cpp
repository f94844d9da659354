#include "engine/NumberReaders.h"

#include <gtest/gtest.h>

#include <charconv>

#include <cstdlib>
#include <limits>
#include <string>

#include "engine/CalcEngine.h"

namespace vexa {
namespace {

using Reader = std::size_t (*)(std::wstring_view, Token&, TokenList&);

void ExpectNumber(Reader read, const std::wstring& text, std::size_t length, double value) {
  CalcEngine errors;
  Token token;
  EXPECT_EQ(read(text, token, errors), length) << testing::PrintToString(text);
  EXPECT_EQ(errors.errorText, L"") << testing::PrintToString(text);
  EXPECT_EQ(token.isOperand, 1) << testing::PrintToString(text);
  EXPECT_EQ(token.op, 0);
  EXPECT_EQ(token.kind, 0);
  EXPECT_EQ(token.funcCode, 0);
  EXPECT_EQ(token.value, value) << testing::PrintToString(text);
}

void ExpectNone(Reader read, const std::wstring& text) {
  CalcEngine errors;
  Token token;
  EXPECT_EQ(read(text, token, errors), 0u) << testing::PrintToString(text);
  EXPECT_EQ(errors.errorFlag, 0) << testing::PrintToString(text);
  EXPECT_EQ(token.isOperand, 0);
}

void ExpectError(Reader read, const std::wstring& text, std::wstring_view sentence) {
  CalcEngine errors;
  Token token;
  EXPECT_EQ(read(text, token, errors), 0u) << testing::PrintToString(text);
  EXPECT_EQ(errors.errorText, sentence) << testing::PrintToString(text);
}

struct NumberCase {
  std::wstring text;
  std::size_t length;
  double value;
};

const std::wstring kThirtyDigits(30, L'1');

TEST(DecimalNumber, LengthAndValue) {
  const NumberCase cases[] = {
      {L"0", 1, 0},
      {L"123", 3, 123},
      {L".", 1, 0},
      {L".5", 2, 0.5},
      {L"5.", 2, 5},
      {L"1e-3", 4, 0.001},
      {L"1e+3", 4, 1000},
      {L"1e5", 3, 1e5},
      {L"5e", 2, 5},
      {L"1e+", 3, 1},
      {L"1e-", 3, 1},
      {L".e5", 3, 0},
      {L".5e1", 4, 5},
      {L"1e400", 5, std::numeric_limits<double>::infinity()},
      {L"1e-400", 6, 0},
      {L"12+3", 2, 12},
      {L"12-3", 2, 12},
      {L"1e--5", 3, 1},
      {L"2pi", 1, 2},
      {L"2exp(1)", 2, 2},
      {L"1,5", 1, 1},
      {L"1 2", 1, 1},
      {L"5\uff15", 1, 5},
      {kThirtyDigits, 30, 111111111111111111111111111111.0},
      {L"0." + std::wstring(27, L'3') + L"e", 30, 0.333333333333333333333333333},
  };
  for (const NumberCase& c : cases) ExpectNumber(ReadDecimalNumber, c.text, c.length, c.value);
}

TEST(DecimalNumber, ReadsWhatTheTextIsWorth) {
  // Whole numbers of every length, and the same with a point and with an exponent.
  std::string digits;
  for (std::size_t length = 1; length <= 28; ++length) {
    digits += static_cast<char>('0' + (7 * length + 2) % 10);
    for (const std::string& number : {digits, digits + ".", "." + digits, digits + "e3"}) {
      const std::wstring text(number.begin(), number.end());
      if (text.size() > 30) continue;
      double value = 0.0;
      std::from_chars(number.data(), number.data() + number.size(), value);
      ExpectNumber(ReadDecimalNumber, text, text.size(), value);
      ExpectNumber(ReadDecimalNumber, text + L"+1", text.size(), value);
    }
  }
}

TEST(DecimalNumber, NoNumberStartsOtherwise) {
  for (const wchar_t* text : {L"+5", L"-5", L"e5", L"x", L" 5", L"(", L"\uff15", L",5"}) {
    ExpectNone(ReadDecimalNumber, text);
  }
}

TEST(DecimalNumber, Errors) {
  const std::wstring expressionError = L"Expression error.";
  const std::wstring lengthError = L"number exceeded length limit.";
  const std::pair<std::wstring, std::wstring> cases[] = {
      {L"1.2.3", expressionError},
      {L"..", expressionError},
      {L"1e2e3", expressionError},
      {L"1ee", expressionError},
      {L"1e2.5", expressionError},
      {L"1e.", expressionError},
      {kThirtyDigits + L"1", lengthError},
      {L"1e" + std::wstring(29, L'0'), lengthError},
      // Counted before the length is looked at, which is before the places.
      {kThirtyDigits + L".1.", expressionError},
      {L"1e1." + kThirtyDigits, lengthError},
      {std::wstring(1'000'000, L'1'), lengthError},
      {std::wstring(1'000'000, L'.'), expressionError},
  };
  for (const auto& [text, sentence] : cases) ExpectError(ReadDecimalNumber, text, sentence);
}

TEST(HexNumber, LengthAndValue) {
  const NumberCase cases[] = {
      {L"0", 1, 0},
      {L"ff", 2, 255},
      {L"ffffffff", 8, 4294967295.0},
      {L"80000000", 8, 2147483648.0},
      {L"12345678", 8, 305419896},
      {L"9abcdef0", 8, 2596069104.0},
      {L"00000001", 8, 1},
      {L"a and f", 1, 10},
      {L"5and3", 1, 5},
      {L"5fand3", 1, 5},
      {L"f1and3", 2, 241},
      {L"abor", 2, 171},
      {L"fxor", 1, 15},
      {L"1g", 1, 1},
      {L"f)", 1, 15},
      {L"1.5", 1, 1},
  };
  for (const NumberCase& c : cases) ExpectNumber(ReadHexNumber, c.text, c.length, c.value);
}

TEST(HexNumber, LettersBeforeNBelongToAWord) {
  for (const wchar_t* text : {L"and", L"and3", L"fand", L"an", L"ffffffffffn", L"n", L"g", L"xor",
                              L"-5", L" f", L"(", L"FF"}) {
    ExpectNone(ReadHexNumber, text);
  }
}

TEST(BinaryNumber, LengthAndValue) {
  const NumberCase cases[] = {
      {L"0", 1, 0},
      {L"101", 3, 5},
      {std::wstring(32, L'1'), 32, 4294967295.0},
      {std::wstring(31, L'0') + L"1", 32, 1},
      {L"12", 1, 1},
      {L"1 1", 1, 1},
      {L"1and1", 1, 1},
  };
  for (const NumberCase& c : cases) ExpectNumber(ReadBinaryNumber, c.text, c.length, c.value);
  for (const wchar_t* text : {L"2", L"a", L"and", L"."}) ExpectNone(ReadBinaryNumber, text);
}

TEST(OctalNumber, LengthAndValue) {
  const NumberCase cases[] = {
      {L"0", 1, 0},
      {L"17", 2, 15},
      {L"37777777777", 11, 4294967295.0},
      {L"77777777777", 11, 8589934591.0},
      {L"78", 1, 7},
      {L"7e", 1, 7},
  };
  for (const NumberCase& c : cases) ExpectNumber(ReadOctalNumber, c.text, c.length, c.value);
  for (const wchar_t* text : {L"8", L"9", L"a", L"or"}) ExpectNone(ReadOctalNumber, text);
}

TEST(IntegerNumbers, TooManyDigits) {
  ExpectError(ReadHexNumber, L"fffffffff", L"Out of range(HEX MODE)");
  ExpectError(ReadHexNumber, L"000000001", L"Out of range(HEX MODE)");
  ExpectError(ReadHexNumber, L"123456789and1", L"Out of range(HEX MODE)");
  ExpectError(ReadHexNumber, std::wstring(1'000'000, L'f'), L"Out of range(HEX MODE)");
  ExpectError(ReadBinaryNumber, std::wstring(33, L'1'), L"Out of range(BIN MODE)");
  ExpectError(ReadBinaryNumber, std::wstring(33, L'0'), L"Out of range(BIN MODE)");
  ExpectError(ReadOctalNumber, std::wstring(12, L'7'), L"Out of range(OCT MODE)");
  ExpectError(ReadOctalNumber, L"000000000007", L"Out of range(OCT MODE)");
}

}  // namespace
}  // namespace vexa
