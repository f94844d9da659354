#include "engine/NumberText.h"

#include <gtest/gtest.h>
#include <locale.h>
#include <stdlib.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>

namespace vexa {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

void ExpectSame(double actual, double expected, const std::string& text) {
  if (std::isnan(expected)) {
    ASSERT_TRUE(std::isnan(actual)) << text;
  } else {
    ASSERT_EQ(std::bit_cast<std::uint64_t>(actual), std::bit_cast<std::uint64_t>(expected))
        << "\"" << text << "\" is " << actual << " instead of " << expected;
  }
}

/// The C library's own conversion, in the C locale whatever the process's is.
class CLibrary {
 public:
  CLibrary() : locale(newlocale(LC_ALL_MASK, "C", nullptr)) {}
  ~CLibrary() { freelocale(locale); }
  CLibrary(const CLibrary&) = delete;
  CLibrary& operator=(const CLibrary&) = delete;

  double Convert(const std::string& text) const {
    const locale_t previous = uselocale(locale);
    const double value = strtod(text.c_str(), nullptr);
    uselocale(previous);
    return value;
  }

 private:
  locale_t locale;
};

std::string Zeros(std::size_t count) {
  return std::string(count, '0');
}

TEST(NumberText, Table) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const std::pair<std::string, double> cases[] = {
      {"", 0.0},
      {".", 0.0},
      {"e5", 0.0},
      {".e5", 0.0},
      {"-", 0.0},
      {"+", 0.0},
      {"abc", 0.0},
      {"-abc", 0.0},
      {"5", 5.0},
      {"+5", 5.0},
      {"-5", -5.0},
      {"+-5", 0.0},
      {"-+5", 0.0},
      {"--5", 0.0},
      {"++5", 0.0},
      {"- 5", 0.0},
      {" \t12", 12.0},
      {" \t\n\v\f\r-12", -12.0},
      {"\xc2\xa0"
       "12",
       0.0},
      {"-0", -0.0},
      {".5", 0.5},
      {"5.", 5.0},
      {"007", 7.0},
      {"5e", 5.0},
      {"1e+", 1.0},
      {"1e-", 1.0},
      {"1e+-5", 1.0},
      {"1E5", 1e5},
      {"1e5.5", 1e5},
      {"1.2.3", 1.2},
      {"1,5", 1.0},
      {"1 5", 1.0},
      {"1_5", 1.0},
      {"0.1", 0.1},
      {"0x10", 16.0},
      {"0X1F", 31.0},
      {"-0x10", -16.0},
      {"0x", 0.0},
      {"0xg", 0.0},
      {"0x.", 0.0},
      {"0x.8", 0.5},
      {"0x-1", 0.0},
      {"0x+1", 0.0},
      {"0xinf", 0.0},
      {"0xnan", 0.0},
      {"0x1p", 1.0},
      {"0x1p+4", 16.0},
      {"0x1p+-4", 1.0},
      {"0x1p-5000", 0.0},
      {"0x1p5000", kInfinity},
      {"0x1p-1074", std::numeric_limits<double>::denorm_min()},
      {"0x1p-1080", 0.0},
      {"0x1" + Zeros(300) + "p-1", kInfinity},
      {"0x." + Zeros(300) + "1", 0.0},
      {"0x." + Zeros(300) + "1p1204", 1.0},
      {"1e308", 1e308},
      {"1e309", kInfinity},
      {"1e999", kInfinity},
      {"-1e999", -kInfinity},
      {"1e-999", 0.0},
      {"-1e-999", -0.0},
      {"1e-320", 1e-320},
      {"1e99999999999999999999999", kInfinity},
      {"1e-99999999999999999999999", 0.0},
      {"0e99999999999999999999999", 0.0},
      {"0.0" + Zeros(400) + "1e1000", kInfinity},
      {"0." + Zeros(400) + "1e401", 1.0},
      {"1" + Zeros(400) + "e-400", 1.0},
      {"1" + Zeros(400) + " e-999", kInfinity},
      {"0." + Zeros(400) + "1 e999", 0.0},
      {std::string(308, '9'), 1e308},
      {std::string(1000, '9'), kInfinity},
      {"0." + std::string(998, '9'), 1.0},
      {"inf", kInfinity},
      {"-inf", -kInfinity},
      {"INFINITY", kInfinity},
      {"infinite", kInfinity},
      {"in", 0.0},
      {"nan", nan},
      {"-nan", nan},
      {"NaN(12)", nan},
      {"na", 0.0},
      {"\xef\xbc\x95", 0.0},
      {"5\xef\xbc\x95", 5.0},
  };
  const CLibrary library;
  for (const auto& [text, value] : cases) {
    ExpectSame(TextToDouble(text), value, text);
    // The table itself is the C library's.
    ExpectSame(library.Convert(text), value, text);
  }
}

TEST(NumberText, WideTexts) {
  const std::pair<std::wstring, double> cases[] = {
      {L"", 0.0},
      {L"  -12.5e1x", -125.0},
      {L"1,5", 1.0},
      {L"5\uff15", 5.0},
      {L"\uff15", 0.0},
      {L"\u0665", 0.0},
      {L"\u00a05", 0.0},
      {L"\u22125", 0.0},
      {std::wstring(L"1\0002", 3), 1.0},
      {std::wstring{L'1', static_cast<wchar_t>(-1), L'2'}, 1.0},
      {L"1e999", kInfinity},
  };
  for (const auto& [text, value] : cases) {
    ExpectSame(TextToDouble(text), value, std::string(text.begin(), text.end()));
  }
}

TEST(NumberText, AMillionDigits) {
  const std::string digits(1'000'000, '7');
  ExpectSame(TextToDouble(digits), kInfinity, "digits");
  ExpectSame(TextToDouble("." + digits), 7.0 / 9.0, "decimals");
  ExpectSame(TextToDouble("0x" + digits), kInfinity, "hexadecimal");
  ExpectSame(TextToDouble("." + Zeros(1'000'000) + "1e1000001"), 1.0, "zeros");
}

TEST(NumberText, RandomTextsAsTheCLibraryReadsThem) {
  const CLibrary library;
  std::mt19937 random(20);
  const std::string alphabet = "0123456789.eE+-xXpPaf in,";
  for (int i = 0; i < 400'000; ++i) {
    std::string text = i % 4 == 0 ? "0x" : i % 4 == 1 ? "1e" : "";
    for (auto length = random() % 12; length > 0; --length) {
      text += alphabet[random() % alphabet.size()];
    }
    ExpectSame(TextToDouble(text), library.Convert(text), text);
    if (HasFatalFailure()) return;
  }
}

TEST(NumberText, WrittenDoublesReadBack) {
  std::mt19937_64 random(21);
  for (int i = 0; i < 100'000; ++i) {
    const double value = std::bit_cast<double>(random());
    if (!std::isfinite(value)) continue;
    for (const auto format : {std::chars_format::scientific, std::chars_format::fixed}) {
      char buffer[400];
      const auto written = std::to_chars(buffer, buffer + sizeof buffer, value, format);
      const std::string text(buffer, written.ptr);
      ExpectSame(TextToDouble(text), value, text);
      if (HasFatalFailure()) return;
    }
  }
}

}  // namespace
}  // namespace vexa
