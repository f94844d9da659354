#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "toolkit/LineText.h"

namespace vexa {

/// What a box that should hold a number says when it does not.
inline constexpr std::wstring_view kEnterNumber = L"Please enter a number.";
/// The same for a whole number.
inline constexpr std::wstring_view kEnterInteger = L"Please enter an integer.";

/// What a box for a number holds: the largest number written out and grouped has some 400
/// characters.
inline constexpr FieldLength kNumberLength{500, L"Number exceeded length limit."};

/// The number that a box holds: the whole text, less blanks around it, must be one finite decimal
/// number (sign, digits, ".", exponent), whatever the user's locale is. Its integer part may be
/// grouped in threes, by "," as the formatter writes it or by a hard blank, and a minus may be
/// typeset. None when it is not a number.
std::optional<double> ReadNumberBox(std::wstring_view text);

/// The number that ReadNumberBox finds in `text`, as an expression holds it: without blanks and
/// grouping, with a plain minus. None when it is not a number.
std::optional<std::wstring> PlainNumber(std::wstring_view text);

/// Whether `c` may stand between the groups of a number.
bool IsGroupMark(wchar_t c);

/// Reads a whole number from `low` to `high` into `value`. Otherwise `value` stays as it is and the
/// sentence that says what is wanted is returned; empty: success.
std::wstring ReadIntegerBox(std::wstring_view text, int low, int high, int& value);

}  // namespace vexa
