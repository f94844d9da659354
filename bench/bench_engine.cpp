// How fast the rules are: a calculation and a plot sample against another parser in the same run,
// the engine's worst cases and their growth, the number formatter.

#include <benchmark/benchmark.h>
#include <muParser.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "Expressions.h"
#include "Ratios.h"
#include "display/FormatResult.h"
#include "engine/CalcEngine.h"
#include "engine/ExprParser.h"

using namespace vexa;
using namespace vexa::bench;

namespace {

/// A benchmark of an expression that fails would measure how fast an error is found.
void RequireNoError(const std::wstring& errorText, std::wstring_view expression) {
  if (errorText.empty()) return;
  std::fprintf(stderr, "%ls: %ls\n", std::wstring(expression).c_str(), errorText.c_str());
  std::exit(EXIT_FAILURE);
}

/// X runs over the plotter's width, so that no evaluation can be reused.
class PlotPosition {
 public:
  double Next() { return -10.0 + 20.0 / 230.0 * (index = (index + 1) % 230); }

 private:
  int index = 0;
};

void Evaluate(benchmark::State& state, BaseType base, std::wstring_view expression) {
  CalcEngine engine;
  engine.baseMode = base;
  for (auto _ : state) {
    engine.EvaluateExpression(expression);
    benchmark::DoNotOptimize(engine.result);
  }
  RequireNoError(engine.errorText, expression);
  state.SetComplexityN(engine.tokenCount);
}

// Both parsers get the same text and keep their object; the other one's sine takes radians.

void CalculateText(benchmark::State& state) {
  Evaluate(state, BaseType::Dec, L"2+3*4-sin(30)/7");
}

void CalculateTextMuParser(benchmark::State& state) {
  mu::Parser parser;
  for (auto _ : state) {
    parser.SetExpr("2+3*4-sin(30)/7");
    benchmark::DoNotOptimize(parser.Eval());
  }
}

// Both parsers have read the formula before; a sample puts in x and evaluates.

void PlotSample(benchmark::State& state) {
  ExprParser parser;
  constexpr std::wstring_view text = L"x^3-2*x+sin(x)/3";
  parser.Validate(text);
  RequireNoError(parser.errorText, text);
  const auto formula = std::span(parser.tokens).first(static_cast<std::size_t>(parser.tokenCount));
  std::vector<std::size_t> variables;
  for (std::size_t i = 0; i < formula.size(); ++i) {
    if (formula[i].op != 'x') continue;
    formula[i].op = 0;
    variables.push_back(i);
  }
  CalcEngine engine;
  engine.angleMode = AngleType::Radians;
  PlotPosition position;
  for (auto _ : state) {
    engine.LoadTokens(formula);
    const double x = position.Next();
    for (const std::size_t variable : variables) engine.tokens[variable].value = x;
    engine.EvaluateTokens();
    benchmark::DoNotOptimize(engine.result);
  }
  RequireNoError(engine.errorText, text);
}

void PlotSampleMuParser(benchmark::State& state) {
  mu::Parser parser;
  double x = 0.0;
  parser.DefineVar("x", &x);
  parser.SetExpr("x^3-2*x+sin(x)/3");
  parser.Eval();
  PlotPosition position;
  for (auto _ : state) {
    x = position.Next();
    benchmark::DoNotOptimize(parser.Eval());
  }
}

void Format(benchmark::State& state, DisplayType display, BaseType base) {
  std::wstring error;
  double value = -1234567.890123;
  for (auto _ : state) {
    benchmark::DoNotOptimize(value);
    benchmark::DoNotOptimize(FormatResult(value, display, 5, base, error));
  }
  RequireNoError(error, L"number");
}

constexpr int kRepetitions = 9;
/// Sizes at which a worst case's growth is read off.
struct Growth {
  int half;
  int most;
};
constexpr Growth kTokens{75, 150};
constexpr Growth kNesting{15, 30};
constexpr const char* kNestedName = "nested parentheses";

void RegisterAll() {
  const auto measure = [](const char* name, auto function) {
    benchmark::RegisterBenchmark(name, function)->Repetitions(kRepetitions)->MinTime(0.1);
  };
  measure("text to value", CalculateText);
  measure("text to value (muParser)", CalculateTextMuParser);
  measure("plot sample", PlotSample);
  measure("plot sample (muParser)", PlotSampleMuParser);

  for (const ExpressionKind& kind : ExpressionKinds()) {
    const auto evaluate = [&kind](benchmark::State& state) {
      Evaluate(state, kind.base, Expression(kind, static_cast<int>(state.range(0))));
    };
    auto* family = benchmark::RegisterBenchmark(kind.name, evaluate);
    for (const int tokens : {10, 20, 40, kTokens.half, kTokens.most}) family->Arg(tokens);
    family->MinTime(0.02)->Complexity(benchmark::oNSquared);
  }
  benchmark::RegisterBenchmark("nested parentheses",
                               [](benchmark::State& state) {
                                 Evaluate(state, BaseType::Dec,
                                          NestedParentheses(static_cast<int>(state.range(0))));
                               })
      ->Arg(1)
      ->Arg(5)
      ->Arg(kNesting.half)
      ->Arg(kNesting.most)
      ->MinTime(0.02)
      ->Complexity(benchmark::oNSquared);

  const auto format = [](const char* name, DisplayType display, BaseType base) {
    benchmark::RegisterBenchmark(name, [=](benchmark::State& state) {
      Format(state, display, base);
    })->MinTime(0.05);
  };
  format("format floating point", DisplayType::FloatingPoint, BaseType::Dec);
  format("format fixed point", DisplayType::FixedPoint, BaseType::Dec);
  format("format scientific", DisplayType::Scientific, BaseType::Dec);
  format("format thousands", DisplayType::Currency, BaseType::Dec);
  format("format engineering", DisplayType::Engineering, BaseType::Dec);
  format("format hexadecimal", DisplayType::FloatingPoint, BaseType::Hex);
}

void PrintRatio(const MedianReporter& reporter, const std::string& name, double bound) {
  const double ratio = reporter.Median(name) / reporter.Median(name + " (muParser)");
  std::printf("ratio %s %.3f (bound %.2f)\n", name.c_str(), ratio, bound);
}

/// The exponent p of a time that grows as n^p from half the size to the whole.
void PrintGrowth(const MedianReporter& reporter, const std::string& name, const Growth& growth) {
  const double half = reporter.Median(name + "/" + std::to_string(growth.half));
  const double most = reporter.Median(name + "/" + std::to_string(growth.most));
  std::printf("growth %s: %.1f us at %d, exponent %.2f (bound 2)\n", name.c_str(), most / 1e3,
              growth.most, std::log2(most / half));
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return EXIT_FAILURE;
  RegisterAll();
  MedianReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  for (const ExpressionKind& kind : ExpressionKinds()) PrintGrowth(reporter, kind.name, kTokens);
  PrintGrowth(reporter, kNestedName, kNesting);
  PrintRatio(reporter, "text to value", 0.1);
  PrintRatio(reporter, "plot sample", 4.0);
  return EXIT_SUCCESS;
}
