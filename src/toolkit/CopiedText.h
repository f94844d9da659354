#pragma once

#include <string>
#include <string_view>

namespace vexa {

/// What copying `selected`, a part of the result `shown`, takes away: of a number an expression's
/// part, without grouping; any other text as it stands.
std::wstring CopiedText(std::wstring_view shown, std::wstring_view selected);

}  // namespace vexa
