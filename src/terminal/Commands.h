#pragma once

#include <span>

#include "terminal/Command.h"

namespace vexa::terminal {

// One in each file of the same name.
extern const Command kEvalCommand;
extern const Command kConvertCommand;
extern const Command kPlotCommand;
extern const Command kTableCommand;
extern const Command kStatsCommand;
extern const Command kRegressCommand;
extern const Command kMacroListCommand;
extern const Command kMacroShowCommand;
extern const Command kMacroSetCommand;
extern const Command kMacroDeleteCommand;
extern const Command kMemoryListCommand;
extern const Command kMemoryGetCommand;
extern const Command kMemorySetCommand;
extern const Command kMemoryClearCommand;
extern const Command kCompletionCommand;
extern const Command kManCommand;

/// All of them in the order of the help.
std::span<const Command* const> Commands();

/// The command with this name; null: there is none.
const Command* FindCommand(std::string_view name);
/// Whether `word` is the first of two words that name commands.
bool IsCommandGroup(std::string_view word);

}  // namespace vexa::terminal
