// A million rows on the statistics screens: loading and showing them, every statistic and fit,
// sorting, scrolling, and the memory they take, against a bare loop over the same file in the same
// run.

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
#include <span>

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

constexpr int kRows = 1'000'000;
constexpr const char* kOneVarFile = "statistics-rows.txt";
constexpr const char* kTwoVarFile = "statistics-pairs.txt";

constexpr double kLoadBound = 6.0;
constexpr double kStatisticBound = 3.0;
/// In nanoseconds.
constexpr double kSortBound = 2e9;
constexpr double kScrollBound = 16e6;
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
  return [=](std::size_t times) {
    for (; times > 0; --times) shown->Load();
    if (shown->Table()->model()->rowCount() == kRows) return;
    std::fprintf(stderr, "the rows are not there\n");
    std::exit(EXIT_FAILURE);
  };
}

Work Scroll() {
  const auto shown = std::make_shared<Shown>();
  shown->Load();
  return [=, random = std::mt19937(2)](std::size_t times) mutable {
    QScrollBar* const bar = shown->Table()->verticalScrollBar();
    for (; times > 0; --times) {
      bar->setValue(static_cast<int>(random() % static_cast<unsigned>(bar->maximum())));
      shown->Table()->viewport()->repaint();
    }
  };
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

Work Result(const DataList& list, const ResultKey& key, RegressionModel model) {
  const auto regression = std::make_shared<Regression>(list);
  return [=, &list, &key](std::size_t times) {
    for (; times > 0; --times) {
      // Fits anew each time.
      regression->ChooseModel(model);
      Use(key.compute({list, *regression, 1.5, 2.5}));
    }
  };
}

Work Sort() {
  const auto list = std::make_shared<DataList>(ListOf(kTwoVarColumns, kTwoVarFile));
  // The columns are independent, so each sort finds the rows in no order.
  return [=, column = std::size_t{0}](std::size_t times) mutable {
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

/// Bytes a row that a loaded and shown file takes.
double MemoryPerRow() {
  Shown shown;
  const double before = Memory();
  shown.Load();
  return (Memory() - before) / kRows;
}

/// A statistic, by its key.
struct Statistic {
  const char* name;
  const wchar_t* key;
  RegressionModel model = RegressionModel::Linear;
};
constexpr Statistic kOneVarStatistics[] = {
    {"sum", L"ΣX"},
    {"sum of squares", L"ΣX^2"},
    {"mean", L"Arithmetic Mean of X"},
    {"deviation n-1", L"σ(n-1) of X"},
    {"deviation n", L"σ(n) of X"},
};
constexpr Statistic kTwoVarStatistics[] = {
    {"sum of products", L"ΣXY"},
    {"correlation", L"r"},
    {"linear fit", L"A"},
    {"power fit", L"A", RegressionModel::Power},
    {"logarithmic fit", L"A", RegressionModel::Logarithmic},
    {"exponential fit", L"A", RegressionModel::Exponential},
    {"quadratic fit", L"A", RegressionModel::Quadratic},
};

void MeasureStatistics(Ratios& ratios, std::span<const Statistic> statistics, const DataList& list,
                       const char* file) {
  for (const Statistic& statistic : statistics) {
    ratios.Ratio(statistic.name, Result(list, *FindResultKey(statistic.key), statistic.model),
                 "parse", BareParse(file), kStatisticBound);
  }
}

}  // namespace

int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  QApplication application(argc, argv);
  Ratios ratios(argv[1]);
  WriteFile(kOneVarFile, 1);
  WriteFile(kTwoVarFile, 2);
  ratios.Figure("memory of loaded rows", MemoryPerRow(), "bytes a row", kMemoryBound);
  ratios.Ratio("load and show", LoadAndShow(), "bare loop", BareLoop, kLoadBound);
  ratios.Time("sort", Sort(), kSortBound);
  ratios.Time("scroll", Scroll(), kScrollBound);
  MeasureStatistics(ratios, kOneVarStatistics, ListOf(kOneVarColumns, kOneVarFile), kOneVarFile);
  MeasureStatistics(ratios, kTwoVarStatistics, ListOf(kTwoVarColumns, kTwoVarFile), kTwoVarFile);
  std::remove(kOneVarFile);
  std::remove(kTwoVarFile);
  return ratios.Finish();
}
