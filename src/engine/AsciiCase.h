#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace vexa {

/// `c` in lower case; characters outside ASCII stay as they are, whatever the user's locale.
constexpr wchar_t ToLowerAscii(wchar_t c) {
  return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c;
}

/// `text` in lower case, ASCII only.
inline std::wstring ToLowerAscii(std::wstring_view text) {
  std::wstring lower(text.size(), L'\0');
  std::transform(text.begin(), text.end(), lower.begin(),
                 [](wchar_t c) { return ToLowerAscii(c); });
  return lower;
}

}  // namespace vexa
