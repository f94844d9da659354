#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vexa {

/// The characters of well-formed UTF-8, or nothing: no overlong forms, no surrogates, nothing above
/// U+10FFFF.
std::optional<std::wstring> DecodeUtf8(std::string_view bytes);

/// Appends the UTF-8 form of `character`, a Unicode scalar value.
void AppendUtf8(std::string& bytes, wchar_t character);

/// True for what UTF-8 can hold: U+0000 to U+10FFFF without the surrogates.
bool IsUnicodeScalar(wchar_t character);

}  // namespace vexa
