#pragma once

#include <span>
#include <string_view>

#include "engine/CalcModes.h"
#include "toolkit/KeypadState.h"

namespace vexa {

/// The calculator's keys. Keys that take each other's place share a cell.
std::span<const Key> CalculatorKeys();

/// A base as the menu of bases offers it.
struct BaseChoice {
  BaseType base;
  std::wstring_view name;
};

/// The menu's title and its entries, from top to bottom.
inline constexpr std::wstring_view kBaseMenuTitle = L"MODE";
inline constexpr BaseChoice kBaseMenu[] = {{BaseType::Bin, L"Binary"},
                                           {BaseType::Oct, L"Octal"},
                                           {BaseType::Dec, L"Decimal"},
                                           {BaseType::Hex, L"Hexadecimal"}};

}  // namespace vexa
