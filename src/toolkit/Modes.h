#pragma once

#include <array>
#include <string_view>

namespace vexa {

/// The program's modes, with the stored codes.
enum class Mode : int {
  ScientificCalculator = 1,
  FunctionPlotter = 2,
  OneVarStatistics = 3,
  TwoVarStatistics = 4,
};

/// A mode, its name in menus and its word on the command line.
struct ModeName {
  Mode mode;
  std::wstring_view name;
  std::string_view word;
};

/// The modes in the order of the "Mode" menu.
inline constexpr std::array<ModeName, 4> kModes{{
    {Mode::ScientificCalculator, L"Scientific Calculator", "calculator"},
    {Mode::FunctionPlotter, L"Function Plotter", "plotter"},
    {Mode::OneVarStatistics, L"1-Var Statistics", "1-var"},
    {Mode::TwoVarStatistics, L"2-Var Statistics", "2-var"},
}};

/// The mode whose screen a stored code shows: any code outside the enum counts as the last mode.
constexpr Mode ModeOfCode(int code) {
  for (const ModeName& mode : kModes) {
    if (static_cast<int>(mode.mode) == code) return mode.mode;
  }
  return Mode::TwoVarStatistics;
}

/// The place of `mode` in kModes.
constexpr std::size_t IndexOf(Mode mode) {
  return static_cast<std::size_t>(mode) - 1;
}

}  // namespace vexa
