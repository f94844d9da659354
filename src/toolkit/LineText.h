#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vexa {

/// How many characters a field holds, and what it says to a text that has no room.
struct FieldLength {
  std::size_t longest;
  std::wstring_view sentence;
};

/// Characters that an edit line holds. An expression has at most 150 tokens; a line this long still
/// takes any of them with room for blanks, and is laid out without a noticeable delay.
inline constexpr std::size_t kLongestLine = 10000;
inline constexpr FieldLength kLineLength{kLongestLine, L"Expression exceeded length limit."};

/// `text` for an edit line: every line break, of whatever kind, is a blank ("\r\n" is one break),
/// and what goes beyond `room` characters is left out.
std::wstring LineText(std::wstring_view text, std::size_t room = kLongestLine);

}  // namespace vexa
