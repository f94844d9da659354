#include <cmath>
#include <utility>

#include "terminal/Commands.h"
#include "terminal/Json.h"
#include "terminal/NumberOptions.h"
#include "terminal/PlotOptions.h"
#include "terminal/Texts.h"
#include "toolkit/NumberBox.h"

namespace vexa::terminal {
namespace {

constexpr Argument kArguments[] = {kFunctionsArgument};
constexpr Option kOptions[] = {
    kXOption,
    {.name = "step", .letter = 's', .value = "STEP", .help = "From one X to the next; left out: 1"},
    kAngleOption,
    kPrecisionOption,
    kDisplayOption,
    kJsonOption,
    kTsvOption,
};
constexpr std::string_view kMore =
    "Examples:\n"
    "  vexa table 'x^2' 'sqrt(x)' --x 0 10 --step 0.5\n"
    "  vexa table --tsv 'sin(x)' --x 0 360 --step 15 > sines.tsv\n";

constexpr double kMostRows = 1'000'000;
constexpr std::size_t kColumnWidth = 20;
/// Rows that are computed together.
constexpr std::size_t kBlock = 1024;

/// Writes rows of X and the functions' values, a block of them at a time.
class TableWriter {
 public:
  TableWriter(GraphData graph, const NumberModes& numberModes, const Given& given,
              Console& usedConsole)
      : data(std::move(graph)),
        modes(numberModes),
        asJson(given.Has("json")),
        asTsv(given.Has("tsv")),
        console(usedConsole),
        outcomes(data.functions.size()) {}

  void Write(const std::vector<double>& xs) {
    for (std::size_t i = 0; i < outcomes.size(); ++i) {
      data.functions[i].program.Evaluate(xs, data.angleType, outcomes[i]);
    }
    for (std::size_t row = 0; row < xs.size(); ++row) WriteRow(xs, row);
  }

 private:
  void WriteRow(const std::vector<double>& xs, std::size_t row) {
    if (asJson) json.Begin('[');
    WriteCell(xs[row], L"", true);
    for (const FormulaValues& outcome : outcomes) {
      WriteCell(outcome.values[row], outcome.Sentence(row), false);
    }
    if (asJson) json.End(']');
    console.out.Write(asJson ? json.Take() : "\n");
  }

  void WriteCell(double value, const std::wstring& error, bool first) {
    if (asJson) return error.empty() ? json.Number(value) : json.Null();
    if (!first) console.out.Write(asTsv ? "\t" : " ");
    if (asTsv) return console.out.Write(error.empty() ? ExactText(value) : "");
    std::wstring cell = error.empty() ? Formatted(value, modes) : error;
    if (cell.size() < kColumnWidth) cell.insert(0, kColumnWidth - cell.size(), L' ');
    console.out.Write(cell);
  }

  GraphData data;
  NumberModes modes;
  bool asJson;
  bool asTsv;
  Console& console;
  std::vector<FormulaValues> outcomes;
  Json json;
};

int Run(const Given& given, Console& console) {
  std::string error;
  NumberModes modes = ModesOf(given, console.store, error);
  if (!error.empty()) return console.RefuseUse(error);
  modes.base = BaseType::Dec;
  const auto step = given.Has("step") ? ReadNumberBox(Wide(given.One("step"))) : 1.0;
  if (!step || *step <= 0.0) return console.RefuseUse("--step needs a number above 0");
  GraphData data{.angleType = modes.angle};
  const std::wstring sentence = ReadGraph(given, console.store, data);
  if (!sentence.empty()) return console.Complain(sentence);

  // A last X that only rounding keeps from being reached counts too.
  const double last = std::floor((data.ranges.xMax - data.ranges.xMin) / *step + 1e-9);
  if (!(last < kMostRows)) return console.Complain("The table has more than 1000000 rows.");
  const PlotRanges ranges = data.ranges;
  TableWriter writer(std::move(data), modes, given, console);
  std::vector<double> xs;
  for (double row = 0; row <= last && !console.out.HasFailed(); ++row) {
    xs.push_back(ranges.xMin + row * *step);
    if (xs.size() < kBlock && row < last) continue;
    writer.Write(xs);
    xs.clear();
  }
  return kDone;
}

}  // namespace

const Command kTableCommand{.name = "table",
                            .summary = "Lists the values of functions",
                            .arguments = kArguments,
                            .options = kOptions,
                            .more = kMore,
                            .run = Run};

}  // namespace vexa::terminal
