#pragma once

#include <cstddef>
#include <string_view>

#include "engine/TokenList.h"

namespace vexa {

/// Number readers of the dialects: each reads the number at the front of the lower-case `text` into
/// `token` and returns its length; 0 when no number stands there or an error was reported.

/// Digits, ".", and an exponent behind "e". Prefixes that are numbers count: 5e is 5.
std::size_t ReadDecimalNumber(std::wstring_view text, Token& token, TokenList& errors);
std::size_t ReadHexNumber(std::wstring_view text, Token& token, TokenList& errors);
std::size_t ReadBinaryNumber(std::wstring_view text, Token& token, TokenList& errors);
std::size_t ReadOctalNumber(std::wstring_view text, Token& token, TokenList& errors);

}  // namespace vexa
