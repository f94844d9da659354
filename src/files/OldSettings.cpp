#include "files/OldSettings.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "files/Utf8.h"

namespace vexa {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::wstring_view kBlanks = L" \t\r";

/// Characters that stand as "\" and a letter.
struct Escape {
  wchar_t letter;
  wchar_t character;
};
constexpr Escape kEscapes[] = {{L'n', L'\n'}, {L'r', L'\r'}, {L't', L'\t'}, {L'a', L'\a'},
                               {L'b', L'\b'}, {L'f', L'\f'}, {L'v', L'\v'}};

std::wstring_view Trimmed(std::wstring_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

int HexDigit(wchar_t c) {
  constexpr std::wstring_view kDigits = L"0123456789abcdef";
  const wchar_t lower = c >= L'A' && c <= L'F' ? static_cast<wchar_t>(c - L'A' + L'a') : c;
  const std::size_t at = kDigits.find(lower);
  return at == kDigits.npos ? -1 : static_cast<int>(at);
}

/// Reads up to `longest` hexadecimal digits from `at` on, which moves behind them. What is no
/// character is U+FFFD.
wchar_t ReadHex(std::wstring_view text, std::size_t& at, std::size_t longest) {
  std::uint64_t value = 0;
  for (std::size_t n = 0; n < longest && at < text.size() && HexDigit(text[at]) >= 0; ++n) {
    value = std::min<std::uint64_t>(value * 16 + static_cast<unsigned>(HexDigit(text[at++])), ~0U);
  }
  const auto character = static_cast<wchar_t>(value);
  return IsUnicodeScalar(character) ? character : L'\xFFFD';
}

/// A name: "%" and two hexadecimal digits, or "%U" and four, stand for a character.
std::wstring DecodeName(std::wstring_view encoded) {
  std::wstring name;
  for (std::size_t at = 0; at < encoded.size();) {
    const bool wide = encoded.substr(at).starts_with(L"%U");
    const std::size_t first = at + (wide ? 2 : 1);
    const std::size_t digits = wide ? 4 : 2;
    std::size_t behind = first;
    const wchar_t character = ReadHex(encoded, behind, digits);
    const bool isNumber = encoded[at] == L'%' && behind - first == digits;
    name += isNumber ? character : encoded[at];
    at = isNumber ? behind : at + 1;
  }
  return name;
}

/// The character of the escape whose "\" stands before `at`, which moves behind the escape.
wchar_t ReadEscape(std::wstring_view encoded, std::size_t& at) {
  const wchar_t letter = encoded[at++];
  if (letter == L'x') return ReadHex(encoded, at, encoded.size());
  const auto* const escape = std::ranges::find(kEscapes, letter, &Escape::letter);
  return escape == std::end(kEscapes) ? letter : escape->character;
}

/// A text, or nothing when a quote does not close.
std::optional<std::wstring> DecodeText(std::wstring_view encoded) {
  std::wstring text;
  bool quoted = false;
  for (std::size_t at = 0; at < encoded.size();) {
    const wchar_t c = encoded[at++];
    if (c == L'"') {
      quoted = !quoted;
    } else if (c != L'\\') {
      text += c;
    } else if (at < encoded.size()) {
      text += ReadEscape(encoded, at);
    }
  }
  if (quoted) return {};
  // A single "@" marks values of other kinds.
  if (text.starts_with(L"@@")) text.erase(0, 1);
  return text;
}

/// Takes one line into `values`; `section` is the section it stands in. False: damaged.
bool ParseLine(std::wstring_view line, std::wstring& section, SettingsValues& values) {
  line = Trimmed(line);
  if (line.empty() || line.front() == L';' || line.front() == L'#') return true;
  if (line.front() == L'[') {
    if (line.back() != L']') return false;
    section = DecodeName(Trimmed(line.substr(1, line.size() - 2)));
    return true;
  }
  const std::size_t equals = line.find(L'=');
  if (equals == line.npos) return false;
  const std::wstring entry = DecodeName(Trimmed(line.substr(0, equals)));
  std::optional<std::wstring> text = DecodeText(Trimmed(line.substr(equals + 1)));
  if (!text) return false;
  values[{section, entry}] = *std::move(text);
  return values.size() <= kMostSettings;
}

}  // namespace

std::optional<SettingsValues> ParseOldSettings(std::string_view bytes) {
  if (bytes.find('\0') != bytes.npos) return {};
  if (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
  SettingsValues values;
  std::wstring section;
  while (!bytes.empty()) {
    const std::size_t end = std::min(bytes.find('\n'), bytes.size());
    const std::optional<std::wstring> line = DecodeUtf8(bytes.substr(0, end));
    if (!line || !ParseLine(*line, section, values)) return {};
    bytes.remove_prefix(std::min(end + 1, bytes.size()));
  }
  return values;
}

}  // namespace vexa
