// How fast the plotter is: sampling a formula against another parser and against the formula
// compiled into the program, in the same run; and from a command to the painted frame.

#include <benchmark/benchmark.h>
#include <muParser.h>

#include <QGuiApplication>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "Ratios.h"
#include "plotter/GraphBitmap.h"
#include "plotter/GraphFunction.h"
#include "plotter/GraphImage.h"
#include "plotter/SampleGraph.h"

using namespace vexa;
using namespace vexa::bench;

namespace {

constexpr std::wstring_view kFormula = L"x^3-2*x+sin(x)/3";
constexpr const char* kFormulaMuParser = "x^3-2*x+sin(x)/3";
/// A frame of the display, in nanoseconds.
constexpr double kFrame = 16e6;

/// Ends the program: a formula that fails would measure how fast errors are found.
[[noreturn]] void Refuse(const std::wstring& formula, const std::wstring& sentence) {
  std::fprintf(stderr, "%ls: %ls\n", formula.c_str(), sentence.c_str());
  std::exit(EXIT_FAILURE);
}

GraphData Graph(std::initializer_list<std::wstring> functions) {
  GraphData graph;
  graph.angleType = AngleType::Radians;
  for (const std::wstring& text : functions) {
    GraphFunction function;
    const std::wstring sentence = ParseGraphFunction(graph.functions.size(), text, function);
    if (!sentence.empty()) Refuse(text, sentence);
    FormulaValues outcome;
    function.program.Evaluate(std::array{1.0}, graph.angleType, outcome);
    if (outcome.errors[0]) Refuse(text, outcome.Sentence(0));
    graph.functions.push_back(function);
  }
  return graph;
}

GraphModel Opened(const GraphData& data) {
  return {data, DisplayType::Currency, 5};
}

GraphData ThreeFunctions() {
  return Graph({L"x^3/20-2*x", L"5*sin(x)", L"10/(x^2+1)"});
}

/// Formulas of as many tokens as an expression has: a sum, a product of sines, powers.
GraphData LongestFunctions() {
  std::wstring sum = L"x";
  std::wstring sines = L"sin(x)";
  std::wstring powers = L"x";
  while (sum.size() + 2 <= 150) sum += L"+x";
  for (int n = 4; n + 5 <= 150; n += 5) sines += L"*sin(x)";
  for (int n = 1; n + 4 <= 150; n += 4) powers += L"-x^2";
  return Graph({sum, sines, powers});
}

void Sample(benchmark::State& state, const GraphData& data) {
  for (auto _ : state) benchmark::DoNotOptimize(SampleGraph(data, data.ranges));
}

// The same rows, found by the other parser and by compiled code.

template <typename Evaluate>
void SampleRows(benchmark::State& state, Evaluate evaluate) {
  for (auto _ : state) {
    std::array<int, kSampleCount> rows{};
    for (std::size_t i = 0; i < kSampleCount; ++i) {
      const double y = evaluate(SampleX(i, -10.0, 10.0));
      const double row = std::trunc(260 - (170 / 20.0) * (y + 10.0));
      if (row >= 90 && row <= 260) rows[i] = static_cast<int>(row);
    }
    benchmark::DoNotOptimize(rows);
  }
}

void SampleMuParser(benchmark::State& state) {
  mu::Parser parser;
  double x = 0.0;
  parser.DefineVar("x", &x);
  parser.SetExpr(kFormulaMuParser);
  parser.Eval();
  SampleRows(state, [&](double at) {
    x = at;
    return parser.Eval();
  });
}

void SampleCompiled(benchmark::State& state) {
  SampleRows(state, [](double x) { return std::pow(x, 3.0) - 2 * x + std::sin(x) / 3; });
}

void DrawExact(benchmark::State& state) {
  const GraphModel graph = Opened(ThreeFunctions());
  for (auto _ : state) benchmark::DoNotOptimize(BitmapFile(DrawPicture(graph)));
}

void Redraw(benchmark::State& state, double scale) {
  const GraphModel graph = Opened(ThreeFunctions());
  for (auto _ : state) {
    benchmark::DoNotOptimize(DrawGraphImage(graph, scale, QGuiApplication::font(), Qt::lightGray));
  }
}

void CommandToFrame(benchmark::State& state, double scale, GraphData data) {
  GraphModel graph = Opened(data);
  for (auto _ : state) {
    graph.ZoomIn();
    benchmark::DoNotOptimize(DrawGraphImage(graph, scale, QGuiApplication::font(), Qt::lightGray));
    state.PauseTiming();
    graph.Reset();
    state.ResumeTiming();
  }
}

void RegisterAll() {
  constexpr int kRepetitions = 9;
  const auto measure = [](const char* name, auto function) {
    benchmark::RegisterBenchmark(name, function)->Repetitions(kRepetitions)->MinTime(0.1);
  };
  measure("sample a formula",
          [](benchmark::State& s) { Sample(s, Graph({std::wstring(kFormula)})); });
  measure("sample a formula (muParser)", SampleMuParser);
  measure("sample a formula (compiled)", SampleCompiled);
  measure("sample three formulas of 150 tokens",
          [](benchmark::State& s) { Sample(s, LongestFunctions()); });
  measure("draw the file", DrawExact);
  measure("redraw at 1", [](benchmark::State& s) { Redraw(s, 1); });
  measure("redraw at 1.5", [](benchmark::State& s) { Redraw(s, 1.5); });
  measure("redraw at 4", [](benchmark::State& s) { Redraw(s, 4); });
  measure("zoom to frame at 1.5",
          [](benchmark::State& s) { CommandToFrame(s, 1.5, ThreeFunctions()); });
  measure("zoom to frame at 4, 150 tokens",
          [](benchmark::State& s) { CommandToFrame(s, 4, LongestFunctions()); });
}

void PrintRatio(const MedianReporter& reporter, const char* against) {
  const std::string name = "sample a formula";
  if (reporter.Median(name) == 0.0) return;
  std::printf("ratio %s to %s %.2f\n", name.c_str(), against,
              reporter.Median(name) / reporter.Median(name + " (" + against + ")"));
}

void PrintFrames(const MedianReporter& reporter, const char* name) {
  if (reporter.Median(name) == 0.0) return;  // filtered out
  std::printf("%s: %.2f ms, %.0f %% of a frame\n", name, reporter.Median(name) / 1e6,
              reporter.Median(name) / kFrame * 100);
}

}  // namespace

int main(int argc, char** argv) {
  // Pictures need no display.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return EXIT_FAILURE;
  RegisterAll();
  MedianReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  PrintRatio(reporter, "muParser");
  PrintRatio(reporter, "compiled");
  for (const char* name :
       {"sample three formulas of 150 tokens", "redraw at 1", "redraw at 1.5", "redraw at 4",
        "zoom to frame at 1.5", "zoom to frame at 4, 150 tokens"}) {
    PrintFrames(reporter, name);
  }
  return EXIT_SUCCESS;
}
