#include "terminal/CommandLine.h"

#include <gtest/gtest.h>

#include "terminal/Commands.h"
#include "terminal/HelpText.h"
#include "terminal/ManPage.h"

namespace vexa::terminal {
namespace {

using Words = std::vector<std::string>;

Words WordsOf(const Request& request, std::string_view name) {
  const auto words = request.given.All(name);
  return {words.begin(), words.end()};
}

TEST(CommandLine, WordsThatNameNoCommandAreExpressions) {
  const Request request = ReadCommandLine({"1+1", "-b", "hex", "-5"});
  EXPECT_EQ(request.command, &kEvalCommand);
  EXPECT_EQ(WordsOf(request, "EXPR"), (Words{"1+1", "-5"}));
  EXPECT_EQ(request.given.One("base"), "hex");
}

TEST(CommandLine, CommandsOfTwoWords) {
  const Request request = ReadCommandLine({"macro", "set", "f", "-x"});
  EXPECT_EQ(request.command, nullptr);
  EXPECT_EQ(request.status, kWrongUse);
  const Request second = ReadCommandLine({"macro", "set", "f", "--", "-x"});
  EXPECT_EQ(second.command, &kMacroSetCommand);
  EXPECT_EQ(second.given.One("FORMULA"), "-x");
}

TEST(CommandLine, OptionsOfSeveralWords) {
  const Request request =
      ReadCommandLine({"plot", "x", "--x", "-10", "-.5", "x^2", "-o", "graph.svg", "--", "-x"});
  EXPECT_EQ(request.command, &kPlotCommand) << request.text;
  EXPECT_EQ(WordsOf(request, "x"), (Words{"-10", "-.5"}));
  EXPECT_EQ(WordsOf(request, "FUNCTION"), (Words{"x", "x^2", "-x"}));
  EXPECT_FALSE(request.given.Has("y"));
}

TEST(CommandLine, ChoicesByTheirBeginnings) {
  constexpr Choice kChoices[] = {
      {"one", 1, ""}, {"once", 2, ""}, {"two", 3, ""}, {"twofold", 4, ""}};
  EXPECT_EQ(FindChoice(kChoices, "ONE"), 1);
  EXPECT_EQ(FindChoice(kChoices, "onc"), 2);
  EXPECT_EQ(FindChoice(kChoices, "two"), 3);
  EXPECT_EQ(FindChoice(kChoices, "on"), std::nullopt);
  EXPECT_EQ(FindChoice(kChoices, ""), std::nullopt);
  EXPECT_EQ(FindChoice(kChoices, "threefold"), std::nullopt);
}

TEST(HelpText, HelpIsAskedForInEveryWay) {
  for (const Words& words : {Words{"--help"}, Words{"-h"}, Words{"help"}}) {
    const Request request = ReadCommandLine(words);
    EXPECT_EQ(request.status, kDone);
    EXPECT_TRUE(request.text.starts_with("An exact scientific calculator.")) << request.text;
  }
  EXPECT_NE(ReadCommandLine({"memory", "--help"}).text.find("memory clear"), std::string::npos);
}

TEST(HelpText, LinesFitIntoATerminal) {
  for (const Command* command : Commands()) {
    const std::string help = HelpOf(*command).substr(0, HelpOf(*command).find(command->more));
    for (std::size_t start = 0; start < help.size();) {
      const std::size_t end = help.find('\n', start);
      EXPECT_LE(end - start, 79u) << help.substr(start, end - start);
      start = end + 1;
    }
  }
}

TEST(HelpText, EveryCommandSaysAllThatItTakes) {
  for (const Command* command : Commands()) {
    EXPECT_NE(Overview().find("  " + std::string(command->name) + " "), std::string::npos);
    std::string line(command->name);
    Words words;
    for (std::size_t blank; (blank = line.find(' ')) != std::string::npos;
         line.erase(0, blank + 1)) {
      words.push_back(line.substr(0, blank));
    }
    words.push_back(line);
    words.push_back("--help");
    const Request request = ReadCommandLine(words);
    EXPECT_EQ(request.status, kDone);
    EXPECT_EQ(request.text, HelpOf(*command));
    for (const Option& option : command->options) {
      EXPECT_NE(request.text.find("--" + std::string(option.name)), std::string::npos);
      EXPECT_FALSE(option.help.empty());
    }
    for (const Argument& argument : command->arguments) {
      EXPECT_NE(request.text.find(argument.name), std::string::npos);
    }
    EXPECT_NE(ManPage().find(".SS " + std::string(command->name) + "\n"), std::string::npos);
  }
}

}  // namespace
}  // namespace vexa::terminal
