#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vexa {

/// A section or entry name as it stands in an INI file: all but ASCII letters, digits, "_", "-" and
/// "." is "%" and two hexadecimal digits, or "%U" and four.
std::string EncodeIniName(std::wstring_view name);
/// The name that EncodeIniName wrote; a "%" that begins no number stands for itself.
std::wstring DecodeIniName(std::wstring_view encoded);

/// A text as it stands behind "=" in an INI file, UTF-8: control characters and what UTF-8 cannot
/// hold as escapes, quoted where a reader could take a character for punctuation.
std::string EncodeIniText(std::wstring_view text);
/// The text that EncodeIniText wrote, or nothing when a quote does not close.
std::optional<std::wstring> DecodeIniText(std::wstring_view encoded);

}  // namespace vexa
