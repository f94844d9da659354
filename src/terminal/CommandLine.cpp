#include "terminal/CommandLine.h"

#include <CLI/CLI.hpp>

#include "Version.h"
#include "terminal/Commands.h"
#include "terminal/HelpText.h"

namespace vexa::terminal {
namespace {

/// Stands before a word that begins with "-" and is no option, so that the parser takes it as it
/// is.
constexpr char kPlainWord = '\x01';

constexpr std::string_view kUnknownOption =
    "there is an option that the command does not have; an expression that begins with a minus and "
    "a "
    "letter stands behind --";

bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// -5+3, -(2) and -.5 are expressions; -p and --json are options, and "-" is the standard input.
bool IsExpressionWithSign(std::string_view word) {
  return word.size() > 1 && word[0] == '-' && word[1] != '-' && !IsLetter(word[1]);
}

/// Marks the words that are no options whatever they look like, all those behind "--" among them.
/// The parser would take a "--" behind an option's value for that option's end.
void Mark(std::vector<std::string>& words) {
  const auto end = std::ranges::find(words, "--");
  for (auto word = words.begin(); word != words.end(); ++word) {
    if (word > end || (word < end && IsExpressionWithSign(*word))) {
      word->insert(word->begin(), kPlainWord);
    }
  }
  if (end != words.end()) words.erase(end);
}

std::vector<std::string> Unmarked(std::vector<std::string> words) {
  for (std::string& word : words) {
    if (word.starts_with(kPlainWord)) word.erase(0, 1);
  }
  return words;
}

std::string NamesOf(const Option& option) {
  std::string names = std::string("--").append(option.name);
  if (option.letter != 0) names = std::string{'-', option.letter, ','} + names;
  return names;
}

/// The sentence for a word that is none of the choices; empty: it is one.
std::string CheckChoice(std::span<const Choice> choices, const std::string& word) {
  if (choices.empty() || FindChoice(choices, word)) return {};
  std::string sentence = "\"" + word + "\" is not one of";
  for (const Choice& choice : choices) sentence.append(" ").append(choice.name);
  return sentence;
}

/// A command's parser, and where it puts the words.
class CommandParser {
 public:
  explicit CommandParser(const Command& described) : command(described) {
    parser.set_help_flag("-h,--help");
    parser.add_option("words", plainWords)->expected(0, kAnyNumber);
    words.resize(command.options.size());
    auto place = words.begin();
    for (const Option& option : command.options) {
      if (option.value.empty()) {
        parser.add_flag(NamesOf(option));
      } else {
        parser.add_option(NamesOf(option), *place)
            ->expected(option.values)
            ->allow_extra_args(false);
      }
      ++place;
    }
  }

  /// Reads the words behind the command's name into `given` and returns what is wrong with them.
  std::string Parse(std::vector<std::string> line, Given& given) {
    Mark(line);
    std::ranges::reverse(line);
    parser.parse(line);
    auto place = words.begin();
    for (const Option& option : command.options) {
      const std::string name = std::string("--").append(option.name);
      for (const std::string& word : *place) {
        if (std::string error = CheckChoice(option.choices, word); !error.empty()) {
          return name + ": " + error;
        }
      }
      if (parser.count(name) > 0) given.Add(option.name, Unmarked(*place));
      ++place;
    }
    return Distribute(Unmarked(plainWords), given);
  }

 private:
  /// Hands the words that belong to no option to the arguments, in order.
  std::string Distribute(const std::vector<std::string>& all, Given& given) const {
    auto next = all.begin();
    for (const Argument& argument : command.arguments) {
      const auto end = argument.most > all.end() - next ? all.end() : next + argument.most;
      if (end - next < argument.least) return std::string(argument.name) + " is missing";
      for (auto word = next; word != end; ++word) {
        if (std::string error = CheckChoice(argument.choices, *word); !error.empty()) {
          return std::string(argument.name) + ": " + error;
        }
      }
      if (next != end) given.Add(argument.name, {next, end});
      next = end;
    }
    return next == all.end() ? std::string() : "\"" + *next + "\" is one word too many";
  }

  const Command& command;
  CLI::App parser;
  std::vector<std::string> plainWords;
  std::vector<std::vector<std::string>> words;
};

Request WrongUse(std::string_view sentence, std::string_view command) {
  std::string hint = "vexa --help";
  if (!command.empty()) hint = std::string("vexa ").append(command).append(" --help");
  return {
      .text = std::string("vexa: ").append(sentence).append("\nSee: ").append(hint).append("\n"),
      .status = kWrongUse};
}

/// Takes the command's name from the front of `words`; words that begin with none are for "eval".
const Command* TakeCommand(std::vector<std::string>& words) {
  for (std::size_t count = 2; count > 0; --count) {
    if (words.size() < count) continue;
    const std::string name = count == 2 ? words[0] + " " + words[1] : words[0];
    const Command* const command = FindCommand(name);
    if (!command) continue;
    words.erase(words.begin(), words.begin() + static_cast<std::ptrdiff_t>(count));
    return command;
  }
  return &kEvalCommand;
}

}  // namespace

std::optional<int> FindChoice(std::span<const Choice> choices, std::string_view word) {
  const auto lower = [](char c) { return IsLetter(c) ? static_cast<char>(c | 0x20) : c; };
  std::optional<int> found;
  for (const Choice& choice : choices) {
    if (word.empty() || word.size() > choice.name.size()) continue;
    if (!std::equal(word.begin(), word.end(), choice.name.begin(),
                    [&](char a, char b) { return lower(a) == lower(b); })) {
      continue;
    }
    if (word.size() == choice.name.size()) return choice.code;
    if (found) return std::nullopt;
    found = choice.code;
  }
  return found;
}

Request ReadCommandLine(std::vector<std::string> words) {
  if (words.empty()) return {.command = &kEvalCommand};
  const std::string first = words[0];
  // No expression is the word "help".
  if (first == "--help" || first == "-h" || (first == "help" && words.size() == 1)) {
    return {.text = Overview()};
  }
  if (first == "--version") return {.text = std::string("vexa ") + kVersion + "\n"};
  if (IsCommandGroup(first)) {
    const bool asksForHelp = words.size() > 1 && (words[1] == "--help" || words[1] == "-h");
    if (asksForHelp) return {.text = GroupOverview(first)};
    if (words.size() < 2 || !FindCommand(first + " " + words[1])) {
      return WrongUse("\"" + first + "\" needs one of its commands", first);
    }
  }
  const Command* const command = TakeCommand(words);
  CommandParser parser(*command);
  try {
    Given given;
    const std::string error = parser.Parse(std::move(words), given);
    if (!error.empty()) return WrongUse(error, command->name);
    return {.command = command, .given = std::move(given)};
  } catch (const CLI::CallForHelp&) {
    return {.text = HelpOf(*command)};
  } catch (const CLI::ExtrasError&) {
    return WrongUse(kUnknownOption, command->name);
  } catch (const CLI::ParseError& error) {
    return WrongUse(error.what(), command->name);
  }
}

}  // namespace vexa::terminal
