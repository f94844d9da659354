#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vexa {

/// What a box that should hold a number says when it does not.
inline constexpr std::wstring_view kEnterNumber = L"Please enter a number.";
/// The same for a whole number.
inline constexpr std::wstring_view kEnterInteger = L"Please enter an integer.";

/// The number that a box holds: the whole text, less blanks around it, must be one finite decimal
/// number (sign, digits, ".", exponent), whatever the user's locale is. Its integer part may be
/// grouped by "," in threes, as the formatter writes it. None when it is not a number.
std::optional<double> ReadNumberBox(std::wstring_view text);

/// Reads a whole number from `low` to `high` into `value`. Otherwise `value` stays as it is and the
/// sentence that says what is wanted is returned; empty: success.
std::wstring ReadIntegerBox(std::wstring_view text, int low, int high, int& value);

}  // namespace vexa
