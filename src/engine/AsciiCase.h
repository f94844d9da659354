#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace vexa {

/// `c` in lower case; characters outside ASCII stay as they are, whatever the user's locale.
constexpr wchar_t ToLowerAscii(wchar_t c) {
  return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c;
}

/// Puts `text` in lower case, ASCII only, into `lower`.
inline void ToLowerAscii(std::wstring_view text, std::wstring& lower) {
  lower.resize(text.size());
  std::transform(text.begin(), text.end(), lower.begin(),
                 [](wchar_t c) { return ToLowerAscii(c); });
}

/// `text` in lower case, ASCII only.
inline std::wstring ToLowerAscii(std::wstring_view text) {
  std::wstring lower;
  ToLowerAscii(text, lower);
  return lower;
}

}  // namespace vexa
