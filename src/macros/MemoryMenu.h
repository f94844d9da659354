#pragma once

#include <string_view>
#include <vector>

#include "toolkit/PopupCommand.h"

namespace vexa {

/// Commands of the "MEM" menu, with their numbers.
enum class MemoryCommand : int {
  StoreVariable = 1,
  RecallVariable = 2,
  Separator = 3,
  Clear = 4,
  Recall = 5,
  Minus = 6,
  Plus = 7,
};

/// A line of the "MEM" menu.
struct MemoryMenuItem {
  std::wstring_view caption;
  MemoryCommand command;
  /// Shown only while there is a result to work with.
  bool needsResult;
};

/// The "MEM" menu of the calculator and of the unit converter, from top to bottom.
inline constexpr MemoryMenuItem kMemoryMenu[] = {
    {L"Memory +", MemoryCommand::Plus, true},
    {L"Memory -", MemoryCommand::Minus, true},
    {L"Memory Recall", MemoryCommand::Recall, false},
    {L"Memory Clear", MemoryCommand::Clear, false},
    {L"", MemoryCommand::Separator, false},
    {L"ReCall MemVar", MemoryCommand::RecallVariable, false},
    {L"Store MemVar", MemoryCommand::StoreVariable, true},
};

/// The commands to show: all of them, or those that work without a result.
inline std::vector<PopupCommand> MemoryMenuCommands(bool hasResult) {
  std::vector<PopupCommand> commands;
  for (const MemoryMenuItem& item : kMemoryMenu) {
    if (hasResult || !item.needsResult) {
      commands.push_back({static_cast<int>(item.command), std::wstring(item.caption)});
    }
  }
  return commands;
}

/// The commands of the screens that have memory variables and no memory register.
inline std::vector<PopupCommand> VariableMenuCommands(bool hasResult) {
  std::vector<PopupCommand> commands = MemoryMenuCommands(hasResult);
  std::erase_if(commands, [](const PopupCommand& command) {
    const auto code = static_cast<MemoryCommand>(command.command);
    return code != MemoryCommand::RecallVariable && code != MemoryCommand::StoreVariable;
  });
  return commands;
}

}  // namespace vexa
