#include "terminal/Commands.h"

#include <algorithm>
#include <array>

namespace vexa::terminal {
namespace {

constexpr std::array kCommands{
    &kEvalCommand,      &kConvertCommand,     &kPlotCommand,       &kTableCommand,
    &kStatsCommand,     &kRegressCommand,     &kMacroListCommand,  &kMacroShowCommand,
    &kMacroSetCommand,  &kMacroDeleteCommand, &kMemoryListCommand, &kMemoryGetCommand,
    &kMemorySetCommand, &kMemoryClearCommand, &kCompletionCommand, &kManCommand,
};

}  // namespace

std::span<const Command* const> Commands() {
  return kCommands;
}

const Command* FindCommand(std::string_view name) {
  const auto found = std::ranges::find(kCommands, name, &Command::name);
  return found == kCommands.end() ? nullptr : *found;
}

bool IsCommandGroup(std::string_view word) {
  return std::ranges::any_of(kCommands, [&](const Command* command) {
    return command->name.size() > word.size() && command->name.starts_with(word) &&
           command->name[word.size()] == ' ';
  });
}

}  // namespace vexa::terminal
