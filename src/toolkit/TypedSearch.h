#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vexa {

/// The entry that `typed` means in a list whose current entry is `current` (-1: none): one that
/// begins with it, else one of whose words begins with it; no matter whether in capitals. The
/// search starts at the current entry and goes around the list; a single character, also when it
/// is typed again and again, starts behind it and so steps through all that match. -1: no entry.
int FindTyped(const std::vector<std::wstring>& entries, std::wstring_view typed, int current);

}  // namespace vexa
