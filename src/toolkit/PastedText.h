#pragma once

#include <string>
#include <string_view>

namespace vexa {

/// What `text`, copied anywhere, becomes in an edit line: one line in the characters that an
/// expression is made of. Typeset signs of calculation and hard blanks become the plain ones; where
/// the whole text is one grouped number, its grouping goes.
std::wstring PastedText(std::wstring_view text);

}  // namespace vexa
