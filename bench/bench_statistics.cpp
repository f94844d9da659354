// A million rows on the statistics screens: loading and showing them, every statistic and fit,
// sorting, scrolling, and the memory they take, against a bare loop over the same file in the same
// run.

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <unistd.h>

#include <QApplication>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <random>

#include "MedianReporter.h"
#include "display/MemorySettingsStore.h"
#include "stats/DataFileAccess.h"
#include "stats/OneVarScreen.h"
#include "stats/Regression.h"
#include "stats/ResultKeys.h"
#include "toolkit/FileDialogs.h"

using namespace vexa;
using namespace vexa::bench;

namespace {

constexpr int kRows = 1'000'000;
constexpr int kRepetitions = 5;
constexpr const char* kOneVarFile = "statistics-rows.txt";
constexpr const char* kTwoVarFile = "statistics-pairs.txt";

constexpr double kLoadBound = 6.0;
constexpr double kStatisticBound = 3.0;
constexpr double kSortBoundMs = 2000.0;
constexpr double kScrollBoundMs = 16.0;
constexpr double kMemoryBound = 120.0;

/// Rows as the program itself writes them: twelve decimals, mostly counted once.
void WriteFile(const char* name, int values) {
  std::mt19937_64 random(1);
  std::uniform_real_distribution<double> value(0.5, 1000.0);
  std::string bytes;
  char text[64];
  for (int row = 0; row < kRows; ++row) {
    for (int n = 0; n < values; ++n) {
      const auto end =
          std::to_chars(text, text + sizeof text, value(random), std::chars_format::fixed, 12).ptr;
      bytes.append(text, end);
      bytes += '\t';
    }
    bytes += std::to_string(1 + random() % 3) + "\r\n";
  }
  std::ofstream(name, std::ios::binary) << bytes;
}

std::string ReadWhole(const char* name) {
  std::ifstream file(name, std::ios::binary | std::ios::ate);
  std::string bytes(static_cast<std::size_t>(file.tellg()), '\0');
  file.seekg(0);
  file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return bytes;
}

/// The yardstick: every number of the file, added up.
double ParseSum(const std::string& bytes) {
  double sum = 0.0;
  const char* at = bytes.data();
  const char* const end = at + bytes.size();
  while (at < end) {
    double number = 0.0;
    at = std::from_chars(at, end, number).ptr;
    sum += number;
    while (at < end && (*at == '\t' || *at == '\r' || *at == '\n')) ++at;
  }
  return sum;
}

void BareLoop(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(ParseSum(ReadWhole(kOneVarFile)));
}

void BareParse(benchmark::State& state, const char* name) {
  const std::string bytes = ReadWhole(name);
  for (auto _ : state) benchmark::DoNotOptimize(ParseSum(bytes));
}

/// The 1-Var screen in a window.
struct Shown {
  Shown() : screen(store, &window) {
    window.resize(340, 560);
    screen.setGeometry(window.rect());
    window.show();
    QApplication::processEvents();
  }
  void Load() {
    file_dialogs::AddNextAnswer(QString::fromLatin1(kOneVarFile));
    screen.findChild<QPushButton*>(QStringLiteral("Load"))->click();
    window.repaint();
    QApplication::processEvents();
  }
  QTableView* Table() const { return screen.findChild<QTableView*>(); }

  MemorySettingsStore store;
  QWidget window;
  OneVarScreen screen;
};

void LoadAndShow(benchmark::State& state) {
  Shown shown;
  for (auto _ : state) shown.Load();
  if (shown.Table()->model()->rowCount() != kRows) state.SkipWithError("the rows are not there");
}

void Scroll(benchmark::State& state) {
  Shown shown;
  shown.Load();
  QScrollBar* const bar = shown.Table()->verticalScrollBar();
  std::mt19937 random(2);
  for (auto _ : state) {
    bar->setValue(static_cast<int>(random() % static_cast<unsigned>(bar->maximum())));
    shown.Table()->viewport()->repaint();
  }
}

DataList ListOf(std::span<const ListColumn> columns, const char* name) {
  DataSet data{PackedRows(columns.size())};
  if (LoadDataFile(QString::fromLatin1(name), columns.size(), kRows, Unwatched, data) !=
      FileOutcome::Done) {
    std::fprintf(stderr, "%s cannot be read\n", name);
    std::exit(EXIT_FAILURE);
  }
  DataList list(columns);
  list.Load(std::move(data));
  return list;
}

void Result(benchmark::State& state, const DataList& list, const ResultKey& key,
            RegressionModel model) {
  Regression regression(list);
  for (auto _ : state) {
    // Fits anew each time.
    regression.ChooseModel(model);
    benchmark::DoNotOptimize(key.compute({list, regression, 1.5, 2.5}));
  }
}

void Sort(benchmark::State& state) {
  DataList list = ListOf(kTwoVarColumns, kTwoVarFile);
  // The columns are independent, so each sort finds the rows in no order.
  std::size_t column = 0;
  for (auto _ : state) {
    list.Sort(column);
    column = 1 - column;
  }
}

/// Resident memory in bytes, without what the allocator keeps for later.
double Memory() {
  malloc_trim(0);
  std::ifstream statm("/proc/self/statm");
  long pages = 0;
  statm >> pages >> pages;
  return static_cast<double>(pages) * static_cast<double>(sysconf(_SC_PAGESIZE));
}

/// Bytes a row that a loaded and shown file takes.
double MemoryPerRow() {
  Shown shown;
  const double before = Memory();
  shown.Load();
  return (Memory() - before) / kRows;
}

void PrintRatio(const MedianReporter& reporter, const std::string& name,
                const std::string& yardstick, double bound) {
  std::printf("ratio %s %.2f (bound %.2f)\n", name.c_str(),
              reporter.Median(name) / reporter.Median(yardstick), bound);
}

}  // namespace

int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return EXIT_FAILURE;
  WriteFile(kOneVarFile, 1);
  WriteFile(kTwoVarFile, 2);
  const double bytesPerRow = MemoryPerRow();

  const auto measure = [](const std::string& name, auto function) {
    benchmark::RegisterBenchmark(name.c_str(), function)
        ->Repetitions(kRepetitions)
        ->Unit(benchmark::kMillisecond);
  };
  measure("bare loop", BareLoop);
  measure("parse", [](benchmark::State& state) { BareParse(state, kOneVarFile); });
  measure("parse pairs", [](benchmark::State& state) { BareParse(state, kTwoVarFile); });
  measure("load and show", LoadAndShow);
  measure("sort", Sort);
  measure("scroll", Scroll);

  const DataList one = ListOf(kOneVarColumns, kOneVarFile);
  const DataList two = ListOf(kTwoVarColumns, kTwoVarFile);
  struct Measured {
    std::string name;
    std::string yardstick;
  };
  std::vector<Measured> statistics;
  const auto measureKey = [&](const std::string& name, const wchar_t* caption, const DataList& list,
                              RegressionModel model) {
    const ResultKey& key = *FindResultKey(caption);
    measure(name, [&, model](benchmark::State& state) { Result(state, list, key, model); });
    statistics.push_back({name, &list == &one ? "parse" : "parse pairs"});
  };
  using enum RegressionModel;
  measureKey("sum", L"ΣX", one, Linear);
  measureKey("sum of squares", L"ΣX^2", one, Linear);
  measureKey("mean", L"Arithmetic Mean of X", one, Linear);
  measureKey("deviation n-1", L"σ(n-1) of X", one, Linear);
  measureKey("deviation n", L"σ(n) of X", one, Linear);
  measureKey("sum of products", L"ΣXY", two, Linear);
  measureKey("correlation", L"r", two, Linear);
  measureKey("linear fit", L"A", two, Linear);
  measureKey("power fit", L"A", two, Power);
  measureKey("logarithmic fit", L"A", two, Logarithmic);
  measureKey("exponential fit", L"A", two, Exponential);
  measureKey("quadratic fit", L"A", two, Quadratic);

  MedianReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  PrintRatio(reporter, "load and show", "bare loop", kLoadBound);
  for (const Measured& statistic : statistics) {
    PrintRatio(reporter, statistic.name, statistic.yardstick, kStatisticBound);
  }
  std::printf("sort %.0f ms (bound %.0f)\n", reporter.Median("sort") / 1e6, kSortBoundMs);
  std::printf("scroll %.2f ms (bound %.0f)\n", reporter.Median("scroll") / 1e6, kScrollBoundMs);
  std::printf("memory %.1f bytes a row (bound %.0f)\n", bytesPerRow, kMemoryBound);
  std::remove(kOneVarFile);
  std::remove(kTwoVarFile);
  return EXIT_SUCCESS;
}
