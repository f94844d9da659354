// How fast the plotter is: sampling a formula against another parser and against the formula
// compiled into the program; and from a command to the painted frame.

#include <muParser.h>

#include <QGuiApplication>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "Ratios.h"
#include "plotter/GraphBitmap.h"
#include "plotter/GraphFunction.h"
#include "plotter/GraphImage.h"
#include "plotter/SampleGraph.h"

using namespace vexa;
using namespace vexa::bench;

namespace {

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

constexpr std::size_t kMostTokens = 150;

/// `first`, then `next` as often as an expression of 150 tokens has room for it. In `next`, "#" is
/// the number of its place.
std::wstring Longest(std::wstring text, const std::wstring& next, std::size_t tokens,
                     std::size_t firstTokens) {
  int place = 2;
  for (std::size_t count = firstTokens; count + tokens <= kMostTokens; count += tokens) {
    std::wstring piece = next;
    if (const auto at = piece.find(L'#'); at != piece.npos) {
      piece.replace(at, 1, std::to_wstring(place++));
    }
    text += piece;
  }
  return text;
}

/// A sum, a product of sines, powers.
GraphData LongestFunctions() {
  return Graph({Longest(L"x", L"+x", 2, 1), Longest(L"sin(x)", L"*sin(x)", 5, 4),
                Longest(L"x", L"-x^2", 4, 1)});
}

/// The same, with nothing in it that was computed before.
GraphData LongestDistinctFunctions() {
  return Graph({Longest(L"x", L"+x/#", 4, 1), Longest(L"sin(x)", L"*sin(x/#)", 7, 4),
                Longest(L"x", L"-x^#", 4, 1)});
}

Work Sample(const GraphData& data) {
  return [=](std::size_t times) {
    for (; times > 0; --times) Use(SampleGraph(data, data.ranges));
  };
}

// The same rows, found by the other parser and by compiled code.

template <typename Evaluate>
Work SampleRows(Evaluate evaluate) {
  return [=](std::size_t times) {
    for (; times > 0; --times) {
      std::array<int, kSampleCount> rows{};
      for (std::size_t i = 0; i < kSampleCount; ++i) {
        const double y = evaluate(SampleX(i, -10.0, 10.0));
        const double row = std::trunc(260 - (170 / 20.0) * (y + 10.0));
        if (row >= 90 && row <= 260) rows[i] = static_cast<int>(row);
      }
      Use(rows);
    }
  };
}

struct OtherParser {
  mu::Parser parser;
  double x = 0.0;
};

Work SampleMuParser(const char* formula) {
  const auto other = std::make_shared<OtherParser>();
  other->parser.DefineVar("x", &other->x);
  other->parser.SetExpr(formula);
  other->parser.Eval();
  return SampleRows([=](double x) {
    other->x = x;
    return other->parser.Eval();
  });
}

void MeasureSampling(Ratios& ratios) {
  const Work ours = Sample(Graph({L"x^3-2*x+sin(x)/3"}));
  ratios.Ratio("sample x^3-2*x+sin(x)/3", ours, "muParser", SampleMuParser("x^3-2*x+sin(x)/3"),
               1.3);
  ratios.Ratio("sample x^3-2*x+sin(x)/3 as compiled", ours, "compiled",
               SampleRows([](double x) { return std::pow(x, 3.0) - 2 * x + std::sin(x) / 3; }),
               1.1);
  const Work polynomial = Sample(Graph({L"x*x*x-2*x+1"}));
  ratios.Ratio("sample x*x*x-2*x+1", polynomial, "muParser", SampleMuParser("x*x*x-2*x+1"), 1.0);
  ratios.Ratio("sample x*x*x-2*x+1 as compiled", polynomial, "compiled",
               SampleRows([](double x) { return x * x * x - 2 * x + 1; }));
  ratios.Time("sample three formulas of 150 tokens", Sample(LongestFunctions()), 0.15e6);
  ratios.Time("sample three of 150 tokens, all distinct", Sample(LongestDistinctFunctions()));
}

Work Redraw(double scale) {
  const auto graph = std::make_shared<GraphModel>(Opened(ThreeFunctions()));
  return [=](std::size_t times) {
    for (; times > 0; --times) {
      Use(DrawGraphImage(*graph, scale, QGuiApplication::font(), Qt::lightGray));
    }
  };
}

Work CommandToFrame(double scale, const GraphData& data) {
  const auto graph = std::make_shared<GraphModel>(Opened(data));
  return [=, right = false](std::size_t times) mutable {
    for (; times > 0; --times) {
      right ? graph->MoveRight() : graph->MoveLeft();
      right = !right;
      Use(DrawGraphImage(*graph, scale, QGuiApplication::font(), Qt::lightGray));
    }
  };
}

void MeasureFrames(Ratios& ratios) {
  const auto graph = std::make_shared<GraphModel>(Opened(ThreeFunctions()));
  ratios.Time(
      "draw the file",
      [=](std::size_t times) {
        for (; times > 0; --times) Use(BitmapFile(DrawPicture(*graph)));
      },
      kFrame);
  ratios.Time("redraw at 1", Redraw(1), kFrame);
  ratios.Time("redraw at 1.5", Redraw(1.5), kFrame);
  ratios.Time("redraw at 4", Redraw(4), kFrame);
  ratios.Time("move to frame at 1.5", CommandToFrame(1.5, ThreeFunctions()), kFrame);
  ratios.Time("move to frame at 4, 150 tokens", CommandToFrame(4, LongestFunctions()), kFrame);
}

}  // namespace

int main(int argc, char** argv) {
  // Pictures need no display.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication application(argc, argv);
  Ratios ratios(argv[1]);
  MeasureSampling(ratios);
  MeasureFrames(ratios);
  return ratios.Finish();
}
