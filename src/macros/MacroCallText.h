#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace vexa {

inline constexpr std::wstring_view kMacroNameError = L"Macro Name error";
inline constexpr std::wstring_view kMacroArgumentError = L"Macro argument error";
inline constexpr std::wstring_view kMacroFormulaError = L"Macro formula is invalid";

/// A macro call without its mark: name, the text between its parentheses, and its length.
struct MacroCallText {
  std::wstring_view name;
  std::wstring_view arguments;
  std::size_t commas = 0;
  std::size_t length = 0;
};

/// Whether a call may stand right behind `text`: at the start, behind an operator or behind "(".
bool MayPrecedeCall(std::wstring_view text);

/// The call at the front of `text`, which begins behind the mark; none when its parentheses never
/// close, or when something else than an operator or ")" comes right behind it.
std::optional<MacroCallText> ReadMacroCall(std::wstring_view text);

}  // namespace vexa
