#include "terminal/ManPage.h"

#include "Version.h"
#include "terminal/Commands.h"
#include "terminal/HelpText.h"

namespace vexa::terminal {
namespace {

/// `text` as it is to be seen: no character commands troff.
std::string Escaped(std::string_view text) {
  std::string escaped;
  for (bool lineStart = true; const char c : text) {
    if (lineStart && (c == '.' || c == '\'')) escaped += "\\&";
    if (c == '\\') {
      escaped += "\\e";
    } else if (c == '-') {
      escaped += "\\-";
    } else if (c == '\'') {
      escaped += "\\(aq";
    } else {
      escaped += c;
    }
    lineStart = c == '\n';
  }
  return escaped;
}

std::string Tagged(std::string_view tag, std::string_view text) {
  return ".TP\n.B " + Escaped(tag) + "\n" + Escaped(text) + "\n";
}

std::string AsItStands(std::string_view text) {
  return ".nf\n" + Escaped(text) + (text.ends_with('\n') ? "" : "\n") + ".fi\n";
}

std::string Section(const Command& command) {
  std::string text = ".SS " + Escaped(command.name) + "\n" + Escaped(command.summary) +
                     ".\n.PP\n.B " + Escaped(UsageOf(command)) + "\n";
  for (const Argument& argument : command.arguments) text += Tagged(argument.name, argument.help);
  for (const Option& option : command.options) {
    std::string help(option.help);
    for (const Choice& choice : option.choices) {
      help.append(&choice == option.choices.data() ? ": " : ", ").append(choice.name);
    }
    text += Tagged(NamesAndValue(option), help);
  }
  if (!command.more.empty()) text += ".PP\n" + AsItStands(command.more);
  return text;
}

}  // namespace

std::string ManPage() {
  std::string page = std::string(".TH VEXA 1 \"\" \"Vexa Calculator ") + kVersion +
                     "\"\n.SH NAME\n" + Escaped("vexa - an exact calculator") +
                     "\n.SH SYNOPSIS\n.B vexa\n.I EXPR...\n" +
                     ".br\n.B vexa\n.I COMMAND\n[OPTIONS] ...\n.SH DESCRIPTION\n" +
                     Escaped(kDescription) + "\n.SH COMMANDS\n";
  for (const Command* command : Commands()) page += Section(*command);
  page += ".SH EXIT STATUS\n" + Tagged("0", "Everything was done.") +
          Tagged("1", "An expression, a file or a name was refused.") +
          Tagged("2", "The command line makes no sense.");
  return page + ".SH EXAMPLES\n" + AsItStands(kOverviewExamples);
}

}  // namespace vexa::terminal
