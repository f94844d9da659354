#include "display/IniEscapes.h"

#include <charconv>
#include <cstddef>
#include <cstdint>

#include "display/Utf8.h"

namespace vexa {
namespace {

constexpr std::uint32_t kLastCharacter = 0x10FFFF;

/// Characters that are written as "\" and a letter.
struct Escape {
  wchar_t character;
  char letter;
};
constexpr Escape kEscapes[] = {{L'\n', 'n'}, {L'\r', 'r'}, {L'\t', 't'}, {L'\a', 'a'}, {L'\b', 'b'},
                               {L'\f', 'f'}, {L'\v', 'v'}, {L'"', '"'},  {L'\\', '\\'}};

/// The value of a digit in `base`, or -1.
template <typename Char>
int DigitValue(Char digit, int base) {
  int value = -1;
  if (digit >= '0' && digit <= '9') value = static_cast<int>(digit) - '0';
  if (digit >= 'a' && digit <= 'f') value = static_cast<int>(digit) - 'a' + 10;
  if (digit >= 'A' && digit <= 'F') value = static_cast<int>(digit) - 'A' + 10;
  return value < base ? value : -1;
}

/// Reads up to `longest` digits from `at` on, which moves behind them; -1 when there is none.
/// Values above all characters stay there.
std::int64_t ReadDigits(std::wstring_view text, std::size_t& at, int base, std::size_t longest) {
  std::int64_t value = -1;
  const std::size_t end = text.size() - at < longest ? text.size() : at + longest;
  for (; at < end; ++at) {
    const int digit = DigitValue(text[at], base);
    if (digit < 0) break;
    value = (value < 0 ? 0 : value) * base + digit;
    if (value > kLastCharacter) value = kLastCharacter + 1;
  }
  return value;
}

bool IsControl(wchar_t c) {
  return c < 0x20 || (c >= 0x7F && c < 0xA0);
}

/// The character of the escape whose "\" stands before `at`, which moves behind the escape.
wchar_t ReadEscape(std::wstring_view encoded, std::size_t& at) {
  if (DigitValue(encoded[at], 8) >= 0) {
    const std::int64_t value = ReadDigits(encoded, at, 8, 3);
    return static_cast<wchar_t>(value);
  }
  const wchar_t letter = encoded[at++];
  if (letter == L'x') {
    const std::int64_t value = ReadDigits(encoded, at, 16, encoded.size());
    if (value < 0) return L'x';
    return static_cast<wchar_t>(value > kLastCharacter ? 0xFFFD : value);
  }
  for (const Escape& escape : kEscapes) {
    if (static_cast<wchar_t>(escape.letter) == letter) return escape.character;
  }
  return letter;
}

}  // namespace

std::string EncodeIniName(std::wstring_view name) {
  constexpr std::string_view kHex = "0123456789ABCDEF";
  std::string encoded;
  const auto appendUnit = [&](std::uint32_t unit) {
    encoded += unit > 0xFF ? "%U" : "%";
    for (int shift = unit > 0xFF ? 12 : 4; shift >= 0; shift -= 4) {
      encoded += kHex[(unit >> shift) & 0xF];
    }
  };
  for (const wchar_t c : name) {
    const auto value = static_cast<std::uint32_t>(c);
    const bool plain = (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') ||
                       (c >= L'0' && c <= L'9') || c == L'_' || c == L'-' || c == L'.';
    if (plain) {
      encoded += static_cast<char>(c);
    } else if (value > 0xFFFF) {
      appendUnit(0xD800 + ((value - 0x10000) >> 10 & 0x3FF));
      appendUnit(0xDC00 + ((value - 0x10000) & 0x3FF));
    } else {
      appendUnit(value);
    }
  }
  return encoded;
}

std::wstring DecodeIniName(std::wstring_view encoded) {
  std::wstring name;
  for (std::size_t at = 0; at < encoded.size();) {
    if (encoded[at] == L'%') {
      const bool wide = at + 1 < encoded.size() && encoded[at + 1] == L'U';
      std::size_t behind = at + (wide ? 2 : 1);
      const std::size_t digits = wide ? 4 : 2;
      const std::size_t first = behind;
      const std::int64_t value = ReadDigits(encoded, behind, 16, digits);
      if (behind - first == digits) {
        const auto low = static_cast<std::uint32_t>(value);
        const bool isPair = low >= 0xDC00 && low <= 0xDFFF && !name.empty() &&
                            name.back() >= 0xD800 && name.back() <= 0xDBFF;
        if (isPair) {
          const auto high = static_cast<std::uint32_t>(name.back());
          name.back() = static_cast<wchar_t>(0x10000 + ((high - 0xD800) << 10) + (low - 0xDC00));
        } else {
          name += static_cast<wchar_t>(low);
        }
        at = behind;
        continue;
      }
    }
    name += encoded[at++];
  }
  return name;
}

std::string EncodeIniText(std::wstring_view text) {
  std::string encoded;
  // A text that begins with "@" doubles it: a single one marks values of other kinds.
  if (text.starts_with(L'@')) encoded += '@';
  bool afterNumber = false;
  for (const wchar_t c : text) {
    const Escape* escape = nullptr;
    for (const Escape& candidate : kEscapes) {
      if (candidate.character == c) escape = &candidate;
    }
    // A digit behind a "\x" number would be read as part of it.
    const bool asNumber =
        !escape && (IsControl(c) || !IsUnicodeScalar(c) || (afterNumber && DigitValue(c, 16) >= 0));
    afterNumber = asNumber;
    if (escape) {
      encoded += '\\';
      encoded += escape->letter;
    } else if (asNumber) {
      char digits[8];
      const auto end = std::to_chars(digits, digits + 8, static_cast<std::uint32_t>(c), 16).ptr;
      encoded += "\\x";
      encoded.append(digits, end);
    } else {
      AppendUtf8(encoded, c);
    }
  }
  const bool needsQuotes =
      text.find_first_of(L";,=\"") != text.npos || text.starts_with(L' ') || text.ends_with(L' ');
  return needsQuotes ? '"' + encoded + '"' : encoded;
}

std::optional<std::wstring> DecodeIniText(std::wstring_view encoded) {
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
  if (text.starts_with(L"@@")) text.erase(0, 1);
  return text;
}

}  // namespace vexa
