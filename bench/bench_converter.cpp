// How long a keystroke in the unit converter takes, from the text to what is shown, beside a bare
// loop that reads, converts and writes the same numbers with the C library.

#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include "Ratios.h"
#include "converter/UnitConversion.h"
#include "converter/UnitConverter.h"
#include "display/MemorySettingsStore.h"
#include "display/SettingsLayout.h"

using namespace vexa;
using namespace vexa::bench;

namespace {

/// A keystroke takes at most this many times as long as the bare loop.
constexpr double kBound = 4.0;

constexpr int kLength = 6;
constexpr int kKilometers = 14;
constexpr int kMeters = 16;

/// What is in the field while a number is typed, then deleted again.
constexpr std::array<std::wstring_view, 8> kTexts{L"1",     L"12",   L"12.", L"12.3",
                                                  L"12.34", L"12.3", L"12.", L"12"};
constexpr std::array<const char*, kTexts.size()> kNarrowTexts{"1",     "12",   "12.", "12.3",
                                                              "12.34", "12.3", "12.", "12"};

/// A converter that is open.
struct Opened {
  explicit Opened(const ConverterPositions& positions) {
    Write(store, settings::kConversionName, 0, L"Inch -> Centimeter");
    Write(store, settings::kConversionRate, 0, L"2.54");
    Write(store, settings::kConversionCount, 1);
    converter.Open(positions, 0.0, L"1");
  }

  MemorySettingsStore store;
  UnitConverter converter{store};
};

/// Keystrokes, of which the last text of a round shows `shownAtLast`.
Work Keystrokes(const ConverterPositions& positions, std::wstring_view shownAtLast) {
  const auto opened = std::make_shared<Opened>(positions);
  // A benchmark that converts nothing would measure nothing.
  opened->converter.EnterText(kTexts.back());
  if (opened->converter.ResultText() != shownAtLast) {
    std::fprintf(stderr, "%ls instead of %ls\n", opened->converter.ResultText().c_str(),
                 std::wstring(shownAtLast).c_str());
    std::exit(EXIT_FAILURE);
  }
  return [=, next = std::size_t{0}](std::size_t times) mutable {
    for (; times > 0; --times) {
      opened->converter.EnterText(kTexts[next]);
      next = (next + 1) % kTexts.size();
      Use(opened->converter.Result());
    }
  };
}

/// A keystroke that leaves no number: the previous result stays.
Work KeystrokesWithoutNumber() {
  const auto opened = std::make_shared<Opened>(ConverterPositions{kLength, kKilometers, kMeters});
  return [=](std::size_t times) {
    for (; times > 0; --times) {
      opened->converter.EnterText(L"12.34e");
      Use(opened->converter.Result());
    }
  };
}

void BareLoop(std::size_t times) {
  std::array<char, 64> shown{};
  double kilometer = 1000.0;
  double meter = 1.0;
  for (std::size_t i = 0; i < times; ++i) {
    Use(kilometer);
    Use(meter);
    const double value = std::strtod(kNarrowTexts[i % kNarrowTexts.size()], nullptr);
    std::snprintf(shown.data(), shown.size(), "%.12f", ConvertByFactors(value, kilometer, meter));
    Use(shown);
  }
}

struct Case {
  const char* name;
  ConverterPositions positions;
  std::wstring_view shownAtLast;
};
constexpr Case kCases[] = {
    {"keystroke, factors", {kLength, kKilometers, kMeters}, L"12,000"},
    {"keystroke, temperature", {11, 0, 0}, L"53.6"},
    {"keystroke, user-defined", {14, 0, 0}, L"30.48"},
};

}  // namespace

int main(int, char** argv) {
  Ratios ratios(argv[1]);
  for (const Case& c : kCases) {
    ratios.Ratio(c.name, Keystrokes(c.positions, c.shownAtLast), "bare loop", BareLoop, kBound);
  }
  ratios.Ratio("keystroke, no number", KeystrokesWithoutNumber(), "bare loop", BareLoop, kBound);
  return ratios.Finish();
}
