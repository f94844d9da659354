// How long a keystroke in the unit converter takes, from the text to what is shown, beside a bare
// loop that reads, converts and writes the same numbers with the C library.

#include <benchmark/benchmark.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "Ratios.h"
#include "converter/UnitConversion.h"
#include "converter/UnitConverter.h"
#include "display/MemorySettingsStore.h"
#include "display/SettingsLayout.h"

using namespace vexa;
using namespace vexa::bench;

namespace {

constexpr int kRepetitions = 9;
constexpr double kBoundNanoseconds = 1e6;
constexpr const char* kBareLoop = "bare loop";

constexpr int kLength = 6;
constexpr int kKilometers = 14;
constexpr int kMeters = 16;

/// What is in the field while a number is typed, then deleted again.
constexpr std::array<std::wstring_view, 8> kTexts{L"1",     L"12",   L"12.", L"12.3",
                                                  L"12.34", L"12.3", L"12.", L"12"};
constexpr std::array<const char*, kTexts.size()> kNarrowTexts{"1",     "12",   "12.", "12.3",
                                                              "12.34", "12.3", "12.", "12"};

/// A keystroke in a converter that is open on `positions`.
void Keystroke(benchmark::State& state, const ConverterPositions& positions,
               std::wstring_view shownAtLast) {
  MemorySettingsStore store;
  Write(store, settings::kConversionName, 0, L"Inch -> Centimeter");
  Write(store, settings::kConversionRate, 0, L"2.54");
  Write(store, settings::kConversionCount, 1);
  UnitConverter converter(store);
  converter.Open(positions, 0.0, L"1");
  std::size_t next = 0;
  for (auto _ : state) {
    converter.EnterText(kTexts[next]);
    next = (next + 1) % kTexts.size();
    benchmark::DoNotOptimize(converter.Result());
  }
  // A benchmark that converts nothing would measure nothing.
  converter.EnterText(kTexts.back());
  if (converter.ResultText() == shownAtLast) return;
  std::fprintf(stderr, "%ls instead of %ls\n", converter.ResultText().c_str(),
               std::wstring(shownAtLast).c_str());
  std::exit(EXIT_FAILURE);
}

/// A keystroke that leaves no number: the previous result stays.
void KeystrokeNoNumber(benchmark::State& state) {
  MemorySettingsStore store;
  UnitConverter converter(store);
  converter.Open({kLength, kKilometers, kMeters}, 0.0, L"1");
  for (auto _ : state) {
    converter.EnterText(L"12.34e");
    benchmark::DoNotOptimize(converter.Result());
  }
}

void BareLoop(benchmark::State& state) {
  std::array<char, 64> shown{};
  std::size_t next = 0;
  double kilometer = 1000.0;
  double meter = 1.0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(kilometer);
    benchmark::DoNotOptimize(meter);
    const double value = std::strtod(kNarrowTexts[next], nullptr);
    next = (next + 1) % kNarrowTexts.size();
    std::snprintf(shown.data(), shown.size(), "%.12f", ConvertByFactors(value, kilometer, meter));
    benchmark::DoNotOptimize(shown);
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
constexpr const char* kNoNumberName = "keystroke, no number";

void RegisterAll() {
  const auto measure = [](const char* name, auto function) {
    benchmark::RegisterBenchmark(name, function)->Repetitions(kRepetitions)->MinTime(0.1);
  };
  for (const Case& c : kCases) {
    measure(c.name,
            [&c](benchmark::State& state) { Keystroke(state, c.positions, c.shownAtLast); });
  }
  measure(kNoNumberName, KeystrokeNoNumber);
  measure(kBareLoop, BareLoop);
}

void PrintTime(const MedianReporter& reporter, const char* name) {
  const double time = reporter.Median(name);
  std::printf("%s %.3f us (bound %.0f us), %.1f bare loops\n", name, time / 1e3,
              kBoundNanoseconds / 1e3, time / reporter.Median(kBareLoop));
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return EXIT_FAILURE;
  RegisterAll();
  MedianReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  for (const Case& c : kCases) PrintTime(reporter, c.name);
  PrintTime(reporter, kNoNumberName);
  return EXIT_SUCCESS;
}
