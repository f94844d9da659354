// How fast the rules are: a calculation against another parser, the engine's worst cases and their
// growth, the number formatter.

#include <muParser.h>

#include <cstdio>
#include <cstdlib>
#include <memory>

#include "Allocations.h"
#include "Expressions.h"
#include "Ratios.h"
#include "display/FormatResult.h"
#include "engine/CalcEngine.h"

using namespace vexa;
using namespace vexa::bench;

namespace {

/// A benchmark of an expression that fails would measure how fast an error is found.
void RequireNoError(const std::wstring& errorText, std::wstring_view expression) {
  if (errorText.empty()) return;
  std::fprintf(stderr, "%ls: %ls\n", std::wstring(expression).c_str(), errorText.c_str());
  std::exit(EXIT_FAILURE);
}

/// Evaluates the expression with an engine that is kept.
Work Evaluation(BaseType base, const std::wstring& expression) {
  const auto engine = std::make_shared<CalcEngine>();
  engine->baseMode = base;
  engine->EvaluateExpression(expression);
  RequireNoError(engine->errorText, expression);
  return [=](std::size_t times) {
    for (; times > 0; --times) {
      engine->EvaluateExpression(expression);
      Use(engine->result);
    }
  };
}

// Both parsers get the same text and keep their object; the other one's sine takes radians.

Work EvaluationMuParser(const std::string& expression) {
  const auto parser = std::make_shared<mu::Parser>();
  return [=](std::size_t times) {
    for (; times > 0; --times) {
      parser->SetExpr(expression);
      Use(parser->Eval());
    }
  };
}

double AllocationsOf(const Work& work) {
  constexpr std::size_t kTimes = 1000;
  const std::size_t before = Allocations();
  work(kTimes);
  return static_cast<double>(Allocations() - before) / kTimes;
}

void MeasureText(Ratios& ratios) {
  const Work ours = Evaluation(BaseType::Dec, L"2+3*4-sin(30)/7");
  ratios.Ratio("text to value", ours, "muParser", EvaluationMuParser("2+3*4-sin(30)/7"), 0.045);
  ratios.Figure("allocations of text to value", AllocationsOf(ours), "", 0.0);
}

/// No more than four times the time for twice the size.
constexpr double kQuadratic = 4.0;

void MeasureGrowth(Ratios& ratios) {
  for (const ExpressionKind& kind : ExpressionKinds()) {
    ratios.Ratio(std::string(kind.name) + ", 150 tokens",
                 Evaluation(kind.base, Expression(kind, 150)), "75 tokens",
                 Evaluation(kind.base, Expression(kind, 75)), kQuadratic);
  }
  ratios.Ratio("30 nested parentheses", Evaluation(BaseType::Dec, NestedParentheses(30)), "15",
               Evaluation(BaseType::Dec, NestedParentheses(15)), kQuadratic);
}

void MeasureFormat(Ratios& ratios, const char* name, DisplayType display, BaseType base) {
  ratios.Time(std::string("format ") + name, [=](std::size_t times) {
    std::wstring error;
    double value = -1234567.890123;
    for (; times > 0; --times) {
      Use(value);
      Use(FormatResult(value, display, 5, base, error));
    }
    RequireNoError(error, L"number");
  });
}

}  // namespace

int main(int, char** argv) {
  Ratios ratios(argv[1]);
  MeasureText(ratios);
  MeasureGrowth(ratios);
  MeasureFormat(ratios, "floating point", DisplayType::FloatingPoint, BaseType::Dec);
  MeasureFormat(ratios, "fixed point", DisplayType::FixedPoint, BaseType::Dec);
  MeasureFormat(ratios, "scientific", DisplayType::Scientific, BaseType::Dec);
  MeasureFormat(ratios, "thousands", DisplayType::Currency, BaseType::Dec);
  MeasureFormat(ratios, "engineering", DisplayType::Engineering, BaseType::Dec);
  MeasureFormat(ratios, "hexadecimal", DisplayType::FloatingPoint, BaseType::Hex);
  return ratios.Finish();
}
