#include "terminal/PlotOptions.h"

#include "macros/MacroTable.h"
#include "plotter/GraphFunction.h"
#include "plotter/PlotFunctions.h"
#include "terminal/Texts.h"

namespace vexa::terminal {
namespace {

/// Puts an option's two words into the texts of two boxes.
void TakeRange(const Given& given, const Option& option, std::wstring* boxes) {
  for (const std::string& word : given.All(option.name)) *boxes++ = Wide(word);
}

}  // namespace

std::wstring ReadGraph(const Given& given, SettingsStore& store, GraphData& graph) {
  RangeTexts texts = PlotFunctions(store).StoredRanges();
  TakeRange(given, kXOption, &texts[0]);
  TakeRange(given, kYOption, &texts[2]);
  const RangeReading reading = ReadOrderedRanges(texts);
  if (!reading.sentence.empty()) return reading.sentence;
  graph.ranges = reading.ranges;

  MacroTable macros(store);
  macros.LoadMacroTable();
  for (const std::string& word : given.All(kFunctionsArgument.name)) {
    std::wstring text = Wide(word);
    std::erase(text, L' ');
    GraphFunction function;
    const std::wstring error = ParseGraphFunction(graph.functions.size(), text, macros, function);
    if (!error.empty()) return FunctionRefusal(text, error);
    graph.functions.push_back(std::move(function));
  }
  return {};
}

}  // namespace vexa::terminal
