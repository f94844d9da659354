#include "app/CommandLine.h"

#include <gtest/gtest.h>

#include <vector>

#include "Version.h"

namespace vexa {
namespace {

CommandLine Read(const std::vector<std::string_view>& arguments) {
  return ReadCommandLine(arguments);
}

TEST(CommandLine, WithoutArgumentsTheProgramStarts) {
  const CommandLine line = Read({});
  EXPECT_FALSE(line.mode);
  EXPECT_EQ(line.answer, "");
  EXPECT_EQ(line.error, "");
}

TEST(CommandLine, EveryModeHasAWord) {
  for (const ModeName& mode : kModes) {
    const std::string argument = "--mode=" + std::string(mode.word);
    const CommandLine line = Read({argument});
    EXPECT_EQ(line.mode, mode.mode) << argument;
    EXPECT_EQ(line.error, "");
  }
}

TEST(CommandLine, AnUnknownModeIsNamedWithTheModesThatExist) {
  const CommandLine line = Read({"--mode=graph"});
  EXPECT_FALSE(line.mode);
  EXPECT_EQ(line.error,
            "There is no mode \"graph\"; the modes are calculator, plotter, 1-var, 2-var.\n");
  EXPECT_NE(Read({"--mode="}).error, "");
}

TEST(CommandLine, HelpNamesEveryModeAndOption) {
  const std::string help = Read({"--help"}).answer;
  for (const ModeName& mode : kModes) EXPECT_NE(help.find(mode.word), std::string::npos);
  for (const char* option : {"--mode=", "--help", "--version"}) {
    EXPECT_NE(help.find(option), std::string::npos) << option;
  }
}

TEST(CommandLine, VersionIsTheBuildsOwn) {
  EXPECT_EQ(Read({"--version"}).answer, std::string("Vexa Calculator ") + kVersion + "\n");
}

TEST(CommandLine, AnUnknownOptionIsRefused) {
  for (const std::string_view option : {"--modes=plotter", "--Help", "--", "--mode"}) {
    EXPECT_EQ(Read({option}).error,
              "Unknown option " + std::string(option) + "; see vexa-calculator --help.\n");
  }
}

TEST(CommandLine, TheFirstAnswerCounts) {
  EXPECT_EQ(Read({"--nonsense", "--help"}).answer, "");
  EXPECT_EQ(Read({"--help", "--nonsense"}).error, "");
}

TEST(CommandLine, TheToolkitsOwnOptionsAreLeftToIt) {
  const CommandLine line = Read({"-style", "fusion", "--mode=plotter"});
  EXPECT_EQ(line.mode, Mode::FunctionPlotter);
  EXPECT_EQ(line.error, "");
}

}  // namespace
}  // namespace vexa
