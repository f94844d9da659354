#pragma once

#include <string_view>

namespace vexa {

/// The number at the front of `text` by the C library's rule for text-to-double conversion in the
/// C locale, whatever the user's locale is: leading blanks skipped, longest valid prefix taken
/// (decimal, hexadecimal with "0x", "inf", "nan"). Nothing valid gives 0.0, too large infinity.
double TextToDouble(std::string_view text);

/// The same for a wide text; a character outside ASCII ends the number.
double TextToDouble(std::wstring_view text);

}  // namespace vexa
