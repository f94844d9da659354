#include "stats/ResultKeys.h"
#include "terminal/Commands.h"
#include "terminal/DataInput.h"
#include "terminal/ResultRows.h"
#include "terminal/Texts.h"

namespace vexa::terminal {
namespace {

constexpr Argument kArguments[] = {
    {.name = "FILE",
     .help = "Files of numbers; \"-\" is the standard input",
     .kind = WordKind::File,
     .most = kAnyNumber},
};
constexpr Option kOptions[] = {kRowsOption, kPrecisionOption, kDisplayOption, kJsonOption,
                               kTsvOption};
constexpr std::string_view kMore =
    "A line has one number, or two: X and how often it counts, or three: X, Y and how often they\n"
    "count. --rows xy reads two numbers as X and Y. What is no number separates numbers.\n"
    "\n"
    "Examples:\n"
    "  seq 10 | vexa stats -\n"
    "  vexa stats --json heights.txt\n";

/// What the keys of the screens are called; each list of data has the ones for its columns.
constexpr std::wstring_view kOneVarResults[] = {L"\u03A3X", L"\u03A3X^2", L"Mean of X",
                                                L"\u03C3(n-1) of X", L"\u03C3(n) of X"};
constexpr std::wstring_view kTwoVarResults[] = {
    L"\u03A3X",          L"\u03A3X^2",      L"Mean of X", L"\u03C3(n-1) of X",
    L"\u03C3(n) of X",   L"\u03A3Y",        L"\u03A3Y^2", L"Mean of Y",
    L"\u03C3(n-1) of Y", L"\u03C3(n) of Y", L"\u03A3XY"};

std::vector<ResultRow> ResultsOf(const DataList& list, bool pairs) {
  Regression regression(list);
  const ResultSource source{list, regression};
  std::vector<ResultRow> rows{{L"Rows", static_cast<double>(list.RowCount())},
                              {L"Total", static_cast<double>(list.Total())}};
  const auto names = pairs ? std::span<const std::wstring_view>(kTwoVarResults)
                           : std::span<const std::wstring_view>(kOneVarResults);
  for (const std::wstring_view name : names) {
    rows.push_back({std::wstring(name), FindResultKey(name)->compute(source)});
  }
  return rows;
}

int Run(const Given& given, Console& console) {
  std::string error;
  NumberModes modes = ModesOf(given, console.store, error);
  if (!error.empty()) return console.RefuseUse(error);
  modes.base = BaseType::Dec;
  int status = kDone;
  const auto files = given.All("FILE");
  for (const std::string& path : files) {
    DataInput input = ReadData(given, path, false);
    if (input.error.empty() && input.data.completeRows == 0) input.error = path + ": no rows";
    if (!input.error.empty()) {
      status = console.Complain(input.error);
      continue;
    }
    DataList list(input.pairs ? std::span<const ListColumn>(kTwoVarColumns) : kOneVarColumns);
    list.Load(std::move(input.data));
    const bool titled = files.size() > 1 && !given.Has("json") && !given.Has("tsv");
    if (titled) console.out.Write(Printable(Wide(path)) + L"\n");
    WriteResults(Wide(path), ResultsOf(list, input.pairs), given, modes, console);
  }
  return status;
}

}  // namespace

const Command kStatsCommand{.name = "stats",
                            .summary = "Computes the statistics of the numbers in files",
                            .arguments = kArguments,
                            .options = kOptions,
                            .more = kMore,
                            .run = Run};

}  // namespace vexa::terminal
