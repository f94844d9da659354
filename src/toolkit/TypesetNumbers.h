#pragma once

#include <string_view>

namespace vexa {

/// The blanks that web pages and spreadsheets put around and into numbers: those that never end a
/// line and those that are narrower than a letter's.
inline constexpr std::wstring_view kHardBlanks = L"\u00a0\u2007\u2008\u2009\u200a\u202f";

/// The minus sign of typesetting.
inline constexpr wchar_t kTypesetMinus = L'\u2212';

}  // namespace vexa
