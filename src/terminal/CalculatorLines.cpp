#include "terminal/CalculatorLines.h"

#include <algorithm>

#include "display/DisplayFormatting.h"
#include "engine/EngineErrors.h"
#include "engine/ErrorPlace.h"
#include "terminal/CommandLine.h"
#include "terminal/Texts.h"
#include "terminal/UnitSearch.h"

namespace vexa::terminal {
namespace {

constexpr std::string_view kHelp = "help";
constexpr std::string_view kConvert = "convert";

/// A command that sets one of the modes.
struct LineCommand {
  std::string_view name;
  /// Sets what the word says and returns what is wrong with it.
  std::wstring (*set)(std::string_view word, NumberModes& modes);
};

template <const Option& option, auto mode>
std::wstring SetChoice(std::string_view word, NumberModes& modes) {
  const auto code = FindChoice(option.choices, word);
  if (!code) {
    std::wstring sentence = L":" + Wide(option.name) + L" needs one of";
    for (const Choice& choice : option.choices) sentence += L" " + Wide(choice.name);
    return sentence;
  }
  modes.*mode = static_cast<std::remove_reference_t<decltype(modes.*mode)>>(*code);
  return {};
}

std::wstring SetPrecision(std::string_view word, NumberModes& modes) {
  int places = 0;
  std::wstring sentence = ReadDecimalPlaces(Wide(word), places);
  if (sentence.empty()) modes.precision = places;
  return sentence;
}

constexpr LineCommand kCommands[] = {
    {kBaseOption.name, SetChoice<kBaseOption, &NumberModes::base>},
    {kAngleOption.name, SetChoice<kAngleOption, &NumberModes::angle>},
    {kDisplayOption.name, SetChoice<kDisplayOption, &NumberModes::display>},
    {kPrecisionOption.name, SetPrecision},
};

}  // namespace

std::wstring_view LineCommandsHelp() {
  return L"An expression and Enter shows its value. Besides:\n"
         L"  :base dec|hex|bin|oct    base of the numbers\n"
         L"  :angle deg|rad           unit of the angles\n"
         L"  :display float|fixed|sci|eng|currency\n"
         L"  :precision N             decimal places, 0 to 12\n"
         L"  :convert 12.5 Kilometers to Miles\n"
         L"  :help                    this text";
}

std::vector<std::string_view> LineCommandNames() {
  std::vector<std::string_view> names{kHelp, kConvert};
  for (const LineCommand& command : kCommands) names.push_back(command.name);
  return names;
}

CalculatorLines::CalculatorLines(SettingsStore& settingsStore, const NumberModes& firstModes)
    : store(settingsStore), macros(settingsStore), modes(firstModes) {
  macros.LoadMacroTable();
}

LineAnswer CalculatorLines::Evaluate(std::wstring_view expression) {
  const LineOutcome outcome = evaluator.Evaluate(expression, macros, modes.angle, modes.base);
  switch (outcome) {
    case LineOutcome::Value:
      return ShowAnswer();
    case LineOutcome::Empty:
      return {.error = std::wstring(LineEvaluator::kNullExpression)};
    case LineOutcome::MacroError:
      return {.error = evaluator.error};
    case LineOutcome::EngineError:
      break;
  }
  LineAnswer answer{.error = evaluator.error};
  // Where a call stands, the engine has read another text.
  if (expression.find(kMacroCallMark) == std::wstring_view::npos) {
    answer.place = ErrorPlace(expression, modes.base);
  }
  return answer;
}

LineAnswer CalculatorLines::Take(std::wstring_view line) {
  return Trimmed(line).starts_with(L':') ? RunCommand(Trimmed(line)) : Evaluate(line);
}

LineAnswer CalculatorLines::RunCommand(std::wstring_view line) {
  const std::size_t nameEnd = std::min(line.find(L' '), line.size());
  const std::string name = Narrow(line.substr(1, nameEnd - 1));
  const std::wstring_view words = Trimmed(line.substr(nameEnd));
  if (name == kConvert) return Convert(words);
  if (name == kHelp) return {.shown = std::wstring(LineCommandsHelp())};
  const auto command = std::ranges::find(kCommands, name, &LineCommand::name);
  // The sentence with which an expression that begins so would be refused.
  if (command == std::ranges::end(kCommands)) return Evaluate(line);
  const std::wstring error = command->set(Narrow(words), modes);
  if (!error.empty()) return {.error = error};
  return ShowAnswer();
}

LineAnswer CalculatorLines::Convert(std::wstring_view line) {
  ConversionRequest request;
  if (!ReadConversionLine(line, request)) {
    return {.error = L":convert needs a value and units: 12.5 Kilometers to Miles"};
  }
  ConversionAnswer answer = UnitSearch(store).Convert(request);
  return {.shown = answer.shown, .error = answer.error, .value = answer.value};
}

LineAnswer CalculatorLines::ShowAnswer() const {
  LineAnswer answer{.shown = Formatted(evaluator.value, modes), .value = evaluator.value};
  if (answer.shown == kOutOfRangeText) answer.error.swap(answer.shown);
  return answer;
}

}  // namespace vexa::terminal
