#include "terminal/HelpText.h"

#include <algorithm>

#include "terminal/Commands.h"

namespace vexa::terminal {
namespace {

constexpr std::size_t kColumn = 28;
constexpr std::size_t kWidth = 79;

/// `text` in lines of at most kWidth characters, each behind `indent` blanks; the first one goes on
/// where `line` ends.
std::string Wrapped(std::string line, std::string_view text, std::size_t indent) {
  std::string lines;
  if (!line.empty() && line.size() >= indent) {
    lines = line + "\n";
    line.clear();
  }
  line.resize(indent, ' ');
  bool first = true;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(' '), text.size());
    if (!first && line.size() + 1 + end > kWidth) {
      lines += line + "\n";
      line.assign(indent, ' ');
      first = true;
    }
    if (!first) line += ' ';
    line += text.substr(0, end);
    first = false;
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines + line + "\n";
}

std::string ChoicesOf(std::span<const Choice> choices) {
  std::string text;
  for (const Choice& choice : choices) {
    if (!text.empty()) text += ", ";
    text += choice.name;
    if (!choice.help.empty()) text.append(" (").append(choice.help).append(")");
  }
  return text.empty() ? text : ": " + text;
}

std::string Indented(std::string_view text) {
  return std::string("  ").append(text);
}

std::string CommandLines(std::string_view group) {
  std::string text;
  for (const Command* command : Commands()) {
    if (!command->name.starts_with(group)) continue;
    text += Wrapped(Indented(command->name), command->summary, kColumn);
  }
  return text;
}

}  // namespace

std::string NamesAndValue(const Option& option) {
  std::string names = option.letter == 0 ? "    " : std::string{'-', option.letter, ',', ' '};
  names.append("--").append(option.name);
  if (!option.value.empty()) names.append(" ").append(option.value);
  return names;
}

std::string UsageOf(const Command& command) {
  std::string usage("vexa ");
  usage += command.name;
  if (!command.options.empty()) usage += " [OPTIONS]";
  for (const Argument& argument : command.arguments) {
    std::string name(argument.name);
    if (argument.most > 1) name += "...";
    usage.append(argument.least == 0 ? " [" : " ").append(name);
    if (argument.least == 0) usage += ']';
  }
  return usage;
}

std::string Overview() {
  std::string text = Wrapped("", kDescription, 0);
  text += "\nUsage: vexa EXPR...\n       vexa COMMAND [OPTIONS] ...\n\nCommands:\n";
  text += CommandLines("");
  text += "\n\"vexa COMMAND --help\" explains a command.\n\nExamples:\n";
  text += kOverviewExamples;
  return text;
}

std::string GroupOverview(std::string_view group) {
  return std::string("Usage: vexa ")
      .append(group)
      .append(" COMMAND ...\n\nCommands:\n")
      .append(CommandLines(group));
}

std::string HelpOf(const Command& command) {
  std::string text = std::string(command.summary) + ".\n\nUsage: " + UsageOf(command) + "\n";
  if (!command.arguments.empty()) text += "\n";
  for (const Argument& argument : command.arguments) {
    text += Wrapped(Indented(argument.name),
                    std::string(argument.help) + ChoicesOf(argument.choices), kColumn);
  }
  text += "\nOptions:\n";
  for (const Option& option : command.options) {
    text += Wrapped(Indented(NamesAndValue(option)),
                    std::string(option.help) + ChoicesOf(option.choices), kColumn);
  }
  text += Wrapped("  -h, --help", "Shows this text", kColumn);
  if (!command.more.empty()) text.append("\n").append(command.more);
  return text;
}

}  // namespace vexa::terminal
