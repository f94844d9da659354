// A million rows on the statistics screens, or as many as --rows=N says: loading and showing them,
// the first statistic, every further one and every fit, sorting, scrolling, and the memory they
// take, beside a bare loop over the same file.

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
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <thread>

#include "Ratios.h"
#include "display/MemorySettingsStore.h"
#include "stats/DataFileAccess.h"
#include "stats/OneVarScreen.h"
#include "stats/Regression.h"
#include "stats/ResultKeys.h"
#include "toolkit/FileDialogs.h"

using namespace vexa;
using namespace vexa::bench;

namespace {

/// The bounds in milliseconds are those of so many rows.
constexpr int kBoundRows = 1'000'000;
int rowCount = kBoundRows;
constexpr const char* kOneVarFile = "statistics-rows.txt";
constexpr const char* kTwoVarFile = "statistics-pairs.txt";

constexpr double kMs = 1e6;
constexpr double kLoadBound = 1.8;
constexpr double kFirstBound = 1.6;
constexpr double kFurtherBound = 10 * kMs;
constexpr double kFitBound = 60 * kMs;
constexpr double kSortBound = 250 * kMs;
constexpr double kScrollBound = 16 * kMs;
constexpr double kMemoryBound = 60.0;

void Check(bool holds, const char* fault) {
  if (holds) return;
  std::fprintf(stderr, "%s\n", fault);
  std::exit(EXIT_FAILURE);
}

/// Rows as the program itself writes them: twelve decimals, mostly counted once.
void WriteFile(const char* name, int values) {
  std::mt19937_64 random(1);
  std::uniform_real_distribution<double> value(0.5, 1000.0);
  std::string bytes;
  char text[64];
  for (int row = 0; row < rowCount; ++row) {
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

/// The file is read, too.
void BareLoop(std::size_t times) {
  for (; times > 0; --times) Use(ParseSum(ReadWhole(kOneVarFile)));
}

Work BareParse(const char* name) {
  return [bytes = ReadWhole(name)](std::size_t times) {
    for (; times > 0; --times) Use(ParseSum(bytes));
  };
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

Work LoadAndShow() {
  const auto shown = std::make_shared<Shown>();
  return [shown](std::size_t times) {
    for (; times > 0; --times) shown->Load();
    Check(shown->Table()->model()->rowCount() == rowCount, "the rows are not there");
  };
}

Work Scroll() {
  const auto shown = std::make_shared<Shown>();
  shown->Load();
  return [shown, random = std::mt19937(2)](std::size_t times) mutable {
    QScrollBar* const bar = shown->Table()->verticalScrollBar();
    for (; times > 0; --times) {
      bar->setValue(static_cast<int>(random() % static_cast<unsigned>(bar->maximum())));
      shown->Table()->viewport()->repaint();
    }
  };
}

DataList ListOf(std::span<const ListColumn> columns, const char* name) {
  DataSet data{PackedRows(columns.size())};
  const FileOutcome outcome = LoadDataFile(QString::fromLatin1(name), columns.size(),
                                           static_cast<std::size_t>(rowCount), Unwatched, data);
  Check(outcome.end == FileEnd::Done, "the file cannot be read");
  DataList list(columns);
  list.Load(std::move(data));
  return list;
}

/// What the first statistic of a list takes: all numbers are read, kept and added up.
Work FirstStatistic(const DataList& list) {
  return [&list](std::size_t times) {
    for (; times > 0; --times) {
      ListNumbers numbers;
      numbers.Add(list.Rows(), Unwatched);
      Use(numbers.Sums().x.values);
    }
  };
}

/// What a further one takes, or a fit.
Work Result(const DataList& list, const wchar_t* caption, RegressionModel model) {
  const ResultKey& key = *FindResultKey(caption);
  const auto regression = std::make_shared<Regression>(list);
  // The numbers are there.
  list.AddUp(Unwatched);
  return [=, &list, &key](std::size_t times) {
    // As the screens do it: beside the window.
    std::jthread([&] {
      for (std::size_t i = 0; i < times; ++i) {
        // Fits anew each time.
        regression->ChooseModel(model);
        Use(key.compute({list, *regression, 1.5, 2.5}));
      }
    });
  };
}

Work Sort() {
  const auto list = std::make_shared<DataList>(ListOf(kTwoVarColumns, kTwoVarFile));
  // The columns are independent, so each sort finds the rows in no order.
  return [list, column = std::size_t{0}](std::size_t times) mutable {
    for (; times > 0; --times) {
      list->Sort(column);
      column = 1 - column;
    }
  };
}

/// Resident memory in bytes, without what the allocator keeps for later.
double Memory() {
  malloc_trim(0);
  std::ifstream statm("/proc/self/statm");
  long pages = 0;
  statm >> pages >> pages;
  return static_cast<double>(pages) * static_cast<double>(sysconf(_SC_PAGESIZE));
}

/// Bytes a row that a loaded and shown file takes, its numbers with it.
double MemoryPerRow() {
  Shown shown;
  const double before = Memory();
  shown.Load();
  shown.screen.findChild<QPushButton*>(QStringLiteral("\u03A3X"))->click();
  return (Memory() - before) / rowCount;
}

/// The same of pairs in a list, which nothing shows.
double MemoryPerPair() {
  const double before = Memory();
  const DataList list = ListOf(kTwoVarColumns, kTwoVarFile);
  list.AddUp(Unwatched);
  return (Memory() - before) / rowCount;
}

/// The rows that --rows=N asks for; the argument is not another's then.
bool TakeRowCount(const char* argument) {
  constexpr std::string_view kOption = "--rows=";
  if (!argument || !std::string_view(argument).starts_with(kOption)) return false;
  rowCount = std::atoi(argument + kOption.size());
  Check(rowCount > 1, "too few rows");
  return true;
}

struct StatisticKey {
  const char* name;
  const wchar_t* caption;
};
constexpr StatisticKey kOneVarStatistics[] = {{"sum", L"\u03A3X"},
                                              {"sum of squares", L"\u03A3X^2"},
                                              {"mean", L"Arithmetic Mean of X"},
                                              {"deviation n-1", L"\u03C3(n-1) of X"},
                                              {"deviation n", L"\u03C3(n) of X"}};
constexpr StatisticKey kTwoVarStatistics[] = {{"sum of products", L"\u03A3XY"},
                                              {"correlation", L"r"}};

}  // namespace

int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  QApplication application(argc, argv);
  Ratios ratios(TakeRowCount(argv[1]) ? nullptr : argv[1]);
  const double times = static_cast<double>(rowCount) / kBoundRows;
  WriteFile(kOneVarFile, 1);
  WriteFile(kTwoVarFile, 2);
  ratios.Figure("memory of a row, its numbers too", MemoryPerRow(), "bytes", kMemoryBound);
  ratios.Figure("memory of a pair, not shown", MemoryPerPair(), "bytes", kUnbounded);
  ratios.Ratio("load and show", LoadAndShow(), "bare loop", BareLoop, kLoadBound);
  ratios.Time("scroll", Scroll(), kScrollBound);
  ratios.Time("sort", Sort(), kSortBound * times);

  const DataList one = ListOf(kOneVarColumns, kOneVarFile);
  const DataList two = ListOf(kTwoVarColumns, kTwoVarFile);
  ratios.Ratio("first statistic", FirstStatistic(one), "parse", BareParse(kOneVarFile),
               kFirstBound);
  ratios.Ratio("first statistic of pairs", FirstStatistic(two), "parse", BareParse(kTwoVarFile),
               kFirstBound);
  for (const StatisticKey& key : kOneVarStatistics) {
    ratios.Time(key.name, Result(one, key.caption, RegressionModel::Linear), kFurtherBound * times);
  }
  for (const StatisticKey& key : kTwoVarStatistics) {
    ratios.Time(key.name, Result(two, key.caption, RegressionModel::Linear), kFurtherBound * times);
  }
  for (const RegressionCurve& curve : kRegressionModels) {
    const std::string caption(curve.caption.begin(), curve.caption.end());
    ratios.Time("fit " + caption, Result(two, L"A", curve.model), kFitBound * times);
  }
  std::remove(kOneVarFile);
  std::remove(kTwoVarFile);
  return ratios.Finish();
}
