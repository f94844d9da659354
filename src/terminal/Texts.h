#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vexa::terminal {

/// UTF-8 to wide characters. Where `bytes` is not UTF-8, each byte outside ASCII becomes a
/// replacement character.
std::wstring Wide(std::string_view bytes);

/// Wide characters to UTF-8; what UTF-8 cannot hold becomes a replacement character.
std::string Narrow(std::wstring_view text);
void AppendNarrow(std::string& bytes, std::wstring_view text);

/// `text` with a replacement character for every control character: what others wrote must not
/// command the terminal.
std::wstring Printable(std::wstring_view text);

/// `text` less the blanks and tabs around it.
std::wstring_view Trimmed(std::wstring_view text);

/// The whole number that `text` holds and nothing else; none: it holds none within 32 bits.
std::optional<int> WholeNumber(std::string_view text);

/// `value` in the shortest text that reads back as the same number: 0.1
std::string ExactText(double value);

}  // namespace vexa::terminal
