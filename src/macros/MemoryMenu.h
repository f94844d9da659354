#pragma once

#include <array>
#include <string_view>

namespace vexa {

/// The commands of a "MEM" menu, with their numbers.
enum class MemoryCommand : int {
  StoreVariable = 1,
  RecallVariable = 2,
  Separator = 3,
  Clear = 4,
  Recall = 5,
  Subtract = 6,
  Add = 7,
};

/// An item of a "MEM" menu.
struct MemoryMenuItem {
  MemoryCommand command;
  std::wstring_view caption;
  /// Shown only while there is a result to work with.
  bool needsResult;
};

/// Every "MEM" menu, from top to bottom. "ReCall MemVar" is written so on purpose.
inline constexpr std::array<MemoryMenuItem, 7> kMemoryMenu{{
    {MemoryCommand::Add, L"Memory +", true},
    {MemoryCommand::Subtract, L"Memory -", true},
    {MemoryCommand::Recall, L"Memory Recall", false},
    {MemoryCommand::Clear, L"Memory Clear", false},
    {MemoryCommand::Separator, L"", false},
    {MemoryCommand::RecallVariable, L"ReCall MemVar", false},
    {MemoryCommand::StoreVariable, L"Store MemVar", true},
}};

}  // namespace vexa
