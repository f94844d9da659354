#include "terminal/Completion.h"

#include <algorithm>

#include "engine/AsciiCase.h"
#include "engine/Functions.h"
#include "macros/MacroTable.h"
#include "terminal/CalculatorLines.h"
#include "terminal/Commands.h"
#include "terminal/Texts.h"
#include "terminal/UnitSearch.h"

namespace vexa::terminal {
namespace {

constexpr std::string_view kConvert = ":convert ";
constexpr std::string_view kBetweenUnits = " to ";

bool BeginsWith(std::string_view text, std::string_view beginning) {
  return ToLowerAscii(Wide(text.substr(0, beginning.size()))) == ToLowerAscii(Wide(beginning));
}

std::string LongName(const Option& option) {
  return std::string("--").append(option.name);
}

/// Keeps what begins with `beginning`, in any case, in the given order.
void Add(Completions& completions, std::string text, std::string_view beginning) {
  if (BeginsWith(text, beginning)) completions.texts.push_back(std::move(text));
}

void AddMacros(Completions& completions, SettingsStore& store, std::string_view beginning,
               std::string_view before, std::string_view behind) {
  MacroTable macros(store);
  macros.LoadMacroTable();
  for (int i = 0; i < macros.Count(); ++i) {
    Add(completions,
        std::string(before) + Narrow(Printable(macros.At(i).name)) + std::string(behind),
        beginning);
  }
}

void AddUnits(Completions& completions, SettingsStore& store, std::string_view beginning) {
  for (const std::wstring& name : UnitNames(store)) {
    Add(completions, Narrow(Printable(name)), beginning);
  }
}

void AddOptions(Completions& completions, const Command& command, std::string_view beginning) {
  for (const Option& option : command.options) {
    Add(completions, LongName(option), beginning);
  }
  Add(completions, "--help", beginning);
}

void AddChoices(Completions& completions, std::span<const Choice> choices,
                std::string_view beginning) {
  for (const Choice& choice : choices) Add(completions, std::string(choice.name), beginning);
}

void AddKind(Completions& completions, WordKind kind, SettingsStore& store,
             std::string_view beginning) {
  if (kind == WordKind::Unit) AddUnits(completions, store, beginning);
  if (kind == WordKind::Macro) AddMacros(completions, store, beginning, "", "");
  if (kind == WordKind::File) completions.texts.emplace_back("<file>");
}

const Option* FindOption(const Command& command, std::string_view word) {
  for (const Option& option : command.options) {
    if (word == LongName(option)) return &option;
    if (word.size() == 2 && word[0] == '-' && word[1] == option.letter) return &option;
  }
  return nullptr;
}

/// The words behind a command's name, the last one half-written.
Completions CompleteCommand(const Command& command, std::span<const std::string> words,
                            SettingsStore& store) {
  Completions completions;
  std::size_t argument = 0;
  for (std::size_t i = 0; i + 1 < words.size(); ++i) {
    const Option* const option = FindOption(command, words[i]);
    if (!option) {
      ++argument;
      continue;
    }
    const auto values =
        option->value.empty() ? std::size_t{0} : static_cast<std::size_t>(option->values);
    if (i + values + 1 >= words.size()) {
      AddChoices(completions, option->choices, words.back());
      AddKind(completions, option->kind, store, words.back());
      return completions;
    }
    i += values;
  }
  if (words.back().starts_with('-')) {
    AddOptions(completions, command, words.back());
  } else if (!command.arguments.empty()) {
    const Argument& next = command.arguments[std::min(argument, command.arguments.size() - 1)];
    AddChoices(completions, next.choices, words.back());
    AddKind(completions, next.kind, store, words.back());
  }
  return completions;
}

}  // namespace

Completions CompleteLine(std::string_view text, SettingsStore& store) {
  Completions completions;
  if (text.starts_with(kConvert)) {
    const std::size_t between = text.find(kBetweenUnits);
    const std::size_t value = text.find(' ', kConvert.size());
    if (value == std::string_view::npos) return completions;
    completions.start =
        between == std::string_view::npos ? value + 1 : between + kBetweenUnits.size();
    AddUnits(completions, store, text.substr(completions.start));
    return completions;
  }
  if (text.starts_with(':') && text.find(' ') == std::string_view::npos) {
    for (const std::string_view name : LineCommandNames()) {
      Add(completions, std::string(":").append(name).append(" "), text);
    }
    return completions;
  }
  const auto isWordCharacter = [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == ':' || (c & 0x80) != 0;
  };
  completions.start = text.size();
  while (completions.start > 0 && isWordCharacter(text[completions.start - 1])) --completions.start;
  const std::string_view word = text.substr(completions.start);
  if (word.empty()) return completions;
  for (const Keyword& keyword : kKeywords) Add(completions, Narrow(keyword.name) + "(", word);
  Add(completions, "pi", word);
  AddMacros(completions, store, word, Narrow(kMacroCallMark), "(");
  return completions;
}

Completions CompleteWords(const std::vector<std::string>& words, SettingsStore& store) {
  Completions completions;
  if (words.empty()) return completions;
  const std::string& first = words.front();
  if (words.size() == 1) {
    for (const Command* command : Commands()) {
      std::string name(command->name.substr(0, command->name.find(' ')));
      if (std::ranges::find(completions.texts, name) == completions.texts.end()) {
        Add(completions, std::move(name), first);
      }
    }
    Add(completions, "--help", first);
    Add(completions, "--version", first);
    return completions;
  }
  if (const Command* command = FindCommand(first)) {
    return CompleteCommand(*command, std::span(words).subspan(1), store);
  }
  if (words.size() == 2) {
    for (const Command* command : Commands()) {
      if (!command->name.starts_with(first + " ")) continue;
      Add(completions, std::string(command->name.substr(first.size() + 1)), words[1]);
    }
    return completions;
  }
  const Command* const command = FindCommand(first + " " + words[1]);
  return command ? CompleteCommand(*command, std::span(words).subspan(2), store) : completions;
}

std::string CommonBeginning(const std::vector<std::string>& texts) {
  if (texts.empty()) return {};
  std::string common = texts.front();
  for (const std::string& text : texts) {
    const auto differ = std::ranges::mismatch(common, text).in1;
    common.erase(differ, common.end());
  }
  return common;
}

}  // namespace vexa::terminal
