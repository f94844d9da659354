#include "stats/RegressionPlot.h"
#include "stats/ResultKeys.h"
#include "terminal/CommandLine.h"
#include "terminal/Commands.h"
#include "terminal/DataInput.h"
#include "terminal/ResultRows.h"
#include "terminal/Texts.h"
#include "toolkit/NumberBox.h"

namespace vexa::terminal {
namespace {

constexpr Choice kModels[] = {
    {"linear", static_cast<int>(RegressionModel::Linear), "A*X+B"},
    {"power", static_cast<int>(RegressionModel::Power), "A*X^B"},
    {"inverse", static_cast<int>(RegressionModel::Inverse), "A/X+B"},
    {"logarithmic", static_cast<int>(RegressionModel::Logarithmic), "A*ln(X)+B"},
    {"exponential", static_cast<int>(RegressionModel::Exponential), "A*exp(B*X)"},
    {"quadratic", static_cast<int>(RegressionModel::Quadratic), "A*X^2+B*X+C"},
};
constexpr Argument kArguments[] = {
    {.name = "MODEL", .help = "The curve", .choices = kModels},
    {.name = "FILE",
     .help = "Files of numbers; \"-\" is the standard input",
     .kind = WordKind::File,
     .most = kAnyNumber},
};
constexpr Option kOptions[] = {
    {.name = "y-at", .letter = 'y', .value = "X", .help = "Shows the curve's Y at this X"},
    {.name = "x-at", .letter = 'x', .value = "Y", .help = "Shows where the curve has this Y"},
    kRowsOption,
    kPrecisionOption,
    kDisplayOption,
    kJsonOption,
    kTsvOption,
};
constexpr std::string_view kMore =
    "A line has two numbers: X and Y, or three: X, Y and how often they count. What is no number\n"
    "separates numbers.\n"
    "\n"
    "Examples:\n"
    "  vexa regress linear points.txt --y-at 3\n"
    "  vexa regress quad --json - < points.txt\n";

std::vector<ResultRow> ResultsOf(const DataList& list, RegressionModel model, const Given& given,
                                 double x, double y) {
  Regression regression(list);
  regression.ChooseModel(model);
  const ResultSource source{list, regression, x, y};
  const bool quadratic = model == RegressionModel::Quadratic;
  std::vector<std::wstring_view> names{L"A", L"B"};
  if (quadratic) names.push_back(L"C");
  if (model == RegressionModel::Linear) names.push_back(L"r");
  if (given.Has("y-at")) names.push_back(L"Y'");
  if (given.Has("x-at") && !quadratic) names.push_back(L"X'");
  if (given.Has("x-at") && quadratic) names.insert(names.end(), {L"X1'", L"X2'"});
  std::vector<ResultRow> rows;
  for (const std::wstring_view name : names) {
    rows.push_back({std::wstring(name), FindResultKey(name)->compute(source)});
  }
  return rows;
}

/// The number of an option, 0 without it; false: it is none.
bool ReadNumber(const Given& given, std::string_view option, double& number) {
  if (!given.Has(option)) return true;
  const auto read = ReadNumberBox(Wide(given.One(option)));
  number = read.value_or(0.0);
  return read.has_value();
}

int Run(const Given& given, Console& console) {
  std::string error;
  NumberModes modes = ModesOf(given, console.store, error);
  if (!error.empty()) return console.RefuseUse(error);
  modes.base = BaseType::Dec;
  double x = 0.0;
  double y = 0.0;
  if (!ReadNumber(given, "y-at", x) || !ReadNumber(given, "x-at", y)) {
    return console.RefuseUse("--y-at and --x-at need numbers");
  }
  const auto model = static_cast<RegressionModel>(*FindChoice(kModels, given.One("MODEL")));
  int status = kDone;
  for (const std::string& path : given.All("FILE")) {
    DataInput input = ReadData(given, path, true);
    if (input.error.empty() && !input.pairs) input.error = path + ": rows without Y";
    if (input.error.empty() && input.data.completeRows == 0) input.error = path + ": no rows";
    if (!input.error.empty()) {
      status = console.Complain(input.error);
      continue;
    }
    DataList list(kTwoVarColumns);
    list.Load(std::move(input.data));
    WriteResults(Wide(path), ResultsOf(list, model, given, x, y), given, modes, console);
  }
  return status;
}

}  // namespace

const Command kRegressCommand{.name = "regress",
                              .summary = "Fits a curve to the points in files",
                              .arguments = kArguments,
                              .options = kOptions,
                              .more = kMore,
                              .run = Run};

}  // namespace vexa::terminal
