#include "plotter/GraphFunction.h"

#include <array>

#include "display/ShortenedText.h"
#include "engine/ExprParser.h"
#include "macros/InlineMacros.h"

namespace vexa {
namespace {

/// The second label's small "x" is meant.
constexpr std::array<std::wstring_view, kMaxGraphFunctions> kLabels{L"R:F1(X)=", L"G:F2(x)=",
                                                                    L"B:F3(X)="};

constexpr ShorteningRule kRefusedText{.longest = 7, .kept = 5};
/// Beyond what any window is wide enough for.
constexpr ShorteningRule kListedText{.longest = 500, .kept = 497};

}  // namespace

std::wstring GraphLabel(std::size_t position, std::wstring_view text) {
  return std::wstring(kLabels[position]) + std::wstring(text);
}

std::wstring ListText(std::wstring_view text) {
  return Shortened(text, kListedText);
}

std::wstring FunctionRefusal(std::wstring_view text, std::wstring_view engineSentence) {
  return Shortened(text, kRefusedText) + L" : " + std::wstring(engineSentence);
}

std::wstring ParseGraphFunction(std::size_t position, std::wstring_view text,
                                GraphFunction& function) {
  ExprParser parser;
  parser.Validate(text);
  if (!parser.errorText.empty()) return parser.errorText;
  function.label = GraphLabel(position, text);
  function.program = FormulaProgram(parser.Records());
  return {};
}

std::wstring ParseGraphFunction(std::size_t position, std::wstring_view text,
                                const MacroTable& macros, GraphFunction& function) {
  std::wstring error;
  const std::wstring formula = InlineMacros(text, macros, error);
  if (!error.empty()) return error;
  error = ParseGraphFunction(position, formula, function);
  function.label = GraphLabel(position, text);
  return error;
}

}  // namespace vexa
