#include "app/CommandLine.h"

#include "Version.h"

namespace vexa {
namespace {

constexpr std::string_view kModeOption = "--mode=";

std::string ModeWords() {
  std::string words;
  for (const ModeName& mode : kModes) {
    if (!words.empty()) words += ", ";
    words += mode.word;
  }
  return words;
}

std::string Help() {
  return "Usage: vexa-calculator [OPTION]\n"
         "A scientific calculator with a function plotter, statistics and a unit converter.\n"
         "\n"
         "  --mode=MODE  show this mode: " +
         ModeWords() +
         "\n"
         "  --help       print this help\n"
         "  --version    print the version\n"
         "\n"
         "Only one copy runs: a second start brings it to the front, in the mode asked for.\n";
}

std::string Version() {
  return std::string("Vexa Calculator ") + kVersion + "\n";
}

}  // namespace

std::optional<Mode> ModeOfWord(std::string_view word) {
  for (const ModeName& mode : kModes) {
    if (mode.word == word) return mode.mode;
  }
  return std::nullopt;
}

CommandLine ReadCommandLine(std::span<const std::string_view> arguments) {
  CommandLine line;
  for (const std::string_view argument : arguments) {
    if (argument == "--help") {
      line.answer = Help();
    } else if (argument == "--version") {
      line.answer = Version();
    } else if (argument.starts_with(kModeOption)) {
      const std::string_view word = argument.substr(kModeOption.size());
      line.mode = ModeOfWord(word);
      if (!line.mode) {
        line.error =
            "There is no mode \"" + std::string(word) + "\"; the modes are " + ModeWords() + ".\n";
      }
    } else if (argument.starts_with("--")) {
      line.error = "Unknown option " + std::string(argument) + "; see vexa-calculator --help.\n";
    } else {
      // A toolkit's option and its value.
      continue;
    }
    if (!line.answer.empty() || !line.error.empty()) break;
  }
  return line;
}

}  // namespace vexa
