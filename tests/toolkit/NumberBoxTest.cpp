// What counts as a number in a box, and what a box says otherwise.

#include "toolkit/NumberBox.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "display/FormatResult.h"
#include "support/Vectors.h"

namespace vexa {
namespace {

using test::Narrow;

TEST(NumberBox, ReadsNumbers) {
  const struct {
    std::wstring_view text;
    double value;
  } cases[] = {
      {L"0", 0.0},
      {L"12", 12.0},
      {L"+12", 12.0},
      {L"-12.5", -12.5},
      {L".5", 0.5},
      {L"5.", 5.0},
      {L"-.25", -0.25},
      {L"007", 7.0},
      {L"1e3", 1000.0},
      {L"1E+013", 1e13},
      {L"1.5e-003", 0.0015},
      {L"1.23456e+123", 1.23456e123},
      {L"12.34500E+003", 12345.0},
      {L"1.7976931348623157e308", std::numeric_limits<double>::max()},
      {L"5e-324", std::numeric_limits<double>::denorm_min()},
      {L"1e-400", 0.0},
      {L"  42 ", 42.0},
      {L"\t42\r\n", 42.0},
      {L"1,234", 1234.0},
      {L"-12,345.678", -12345.678},
      {L"123,456,789", 123456789.0},
      {L"999,999,999,999.5", 999999999999.5},
      {L"1,234.5e3", 1234500.0},
      // What web pages and spreadsheets give.
      {L"\u22125", -5.0},
      {L"\u22121,234.5e\u22123", -1.2345},
      {L"\u00a05\u00a0", 5.0},
      {L"\u2009 5\u202f\n", 5.0},
      {L"1\u00a0234", 1234.0},
      {L"1\u2009234\u2009567.5", 1234567.5},
      {L"\u221212\u202f345", -12345.0},
  };
  for (const auto& c : cases) {
    const auto value = ReadNumberBox(c.text);
    ASSERT_TRUE(value) << Narrow(c.text);
    EXPECT_EQ(*value, c.value) << Narrow(c.text);
  }
  EXPECT_TRUE(std::signbit(*ReadNumberBox(L"-0")));
}

const std::wstring_view kNoNumbers[] = {
    L"",       L" ",        L"-",         L"+",        L".",         L"-.",     L"e5",      L"1e",
    L"1e+",    L"1e5.0",    L"1 2",       L"- 1",      L"--1",       L"+-1",    L"1-",      L"1..2",
    L"1.2.3",  L"12abc",    L"abc",       L"0x10",     L"1p3",       L"inf",    L"-inf",    L"nan",
    L"NaN",    L"1e999",    L"-1e309",    L"1,5",      L"1,50",      L"1,2345", L",123",    L"1,",
    L"1,,234", L"1234,567", L"12,34,567", L"1,234,56", L"1.234,567", L"1,234,", L"1e1,000", L"0,5",
    L"1 234",  L"\u0661",   L"\uff11",
};
const std::wstring_view kNoTypesetNumbers[] = {
    L"\u2212",         L"5\u2212",  L"\u2212-5",     L"1\u200923", L"1\u00a02345",
    L"1\u202f234,567", L"1\u00d75", L"1.5\u00a0000", L"\u00a0",
};

TEST(NumberBox, RefusesEverythingElse) {
  for (const auto text : kNoNumbers) EXPECT_FALSE(ReadNumberBox(text)) << Narrow(text);
  for (const auto text : kNoTypesetNumbers) EXPECT_FALSE(ReadNumberBox(text)) << Narrow(text);
  EXPECT_FALSE(ReadNumberBox(std::wstring_view(L"1\0", 2))) << "a hidden character";
}

TEST(NumberBox, ReadsWhatTheFormatterWrites) {
  const double values[] = {0.1,   1.0 / 3, 1234.5, -1234567.5, 1e12,   1.5e12, -9.99e200,
                           1e-11, 1e-13,   5e-324, 65536.25,   -0.001, 1e300,  999999.999};
  for (const double value : values) {
    for (int type = 0; type <= 4; ++type) {
      std::wstring lastError;
      const std::wstring text =
          FormatResult(value, static_cast<DisplayType>(type), 12, BaseType::Dec, lastError);
      const auto read = ReadNumberBox(text);
      ASSERT_TRUE(read) << Narrow(text);
      // Twelve decimals are kept.
      EXPECT_NEAR(*read, value, std::max(std::abs(value) * 1e-11, 1e-12)) << Narrow(text);
    }
  }
}

TEST(NumberBox, ThePlainNumberIsAnExpressions) {
  const std::pair<const wchar_t*, const wchar_t*> cases[] = {{L"1,234.5", L"1234.5"},
                                                             {L"  42 ", L"42"},
                                                             {L"+1", L"+1"},
                                                             {L"1.50", L"1.50"},
                                                             {L"\u22121\u2009234", L"-1234"},
                                                             {L"2e\u22123", L"2e-3"},
                                                             {L"1E+013", L"1E+013"}};
  for (const auto& [text, plain] : cases) EXPECT_EQ(PlainNumber(text), plain) << Narrow(plain);
  for (const auto text : kNoNumbers) EXPECT_FALSE(PlainNumber(text)) << Narrow(text);
}

TEST(NumberBox, TheLongestNumberHasRoom) {
  std::wstring digits = L"-1";
  for (int n = 0; n < 102; ++n) digits += L",000";
  EXPECT_EQ(*ReadNumberBox(digits), -1e306);
  EXPECT_LT(digits.size() + 20, kNumberLength.longest);
}

TEST(NumberBox, Sentences) {
  EXPECT_EQ(kNumberLength.sentence, L"Number exceeded length limit.");
  EXPECT_EQ(kEnterNumber, L"Please enter a number.");
  EXPECT_EQ(kEnterInteger, L"Please enter an integer.");
}

TEST(IntegerBox, ReadsWithinTheRange) {
  const struct {
    std::wstring_view text;
    int value;
  } cases[] = {{L"0", 0},  {L"12", 12}, {L" 7 ", 7},
               {L"+5", 5}, {L"-0", 0},  {L"0000000000000000000000005", 5}};
  for (const auto& c : cases) {
    int value = -1;
    EXPECT_EQ(ReadIntegerBox(c.text, 0, 12, value), L"") << Narrow(c.text);
    EXPECT_EQ(value, c.value) << Narrow(c.text);
  }
  int grouped = 0;
  EXPECT_EQ(ReadIntegerBox(L"-1,234", -2000, 2000, grouped), L"");
  EXPECT_EQ(grouped, -1234);
  int extreme = 0;
  constexpr int kLow = std::numeric_limits<int>::min();
  constexpr int kHigh = std::numeric_limits<int>::max();
  EXPECT_EQ(ReadIntegerBox(L"-2147483648", kLow, kHigh, extreme), L"");
  EXPECT_EQ(extreme, kLow);
}

TEST(IntegerBox, RefusesWhatIsOutOfRange) {
  for (const auto text : {L"13", L"-1", L"2147483648", L"99999999999999999999"}) {
    int value = 7;
    EXPECT_EQ(ReadIntegerBox(text, 0, 12, value), L"Please enter an integer between 0 and 12.")
        << Narrow(text);
    EXPECT_EQ(value, 7) << Narrow(text);
  }
  int value = 7;
  EXPECT_EQ(ReadIntegerBox(std::wstring(400, L'9'), -5, 100, value),
            L"Please enter an integer between -5 and 100.");
  EXPECT_EQ(value, 7);
}

TEST(IntegerBox, RefusesWhatIsNoInteger) {
  std::vector<std::wstring_view> texts(std::begin(kNoNumbers), std::end(kNoNumbers));
  for (const auto text : {L"5.0", L"5.", L"1e0", L".5"}) texts.push_back(text);
  for (const auto text : texts) {
    int value = 7;
    EXPECT_EQ(ReadIntegerBox(text, 0, 12, value), L"Please enter an integer.") << Narrow(text);
    EXPECT_EQ(value, 7) << Narrow(text);
  }
}

}  // namespace
}  // namespace vexa
