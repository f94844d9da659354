#include "terminal/Texts.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "files/Utf8.h"

namespace vexa::terminal {
namespace {

constexpr wchar_t kReplacement = L'\uFFFD';
constexpr std::wstring_view kBlanks = L" \t";
/// Room for any double's shortest text.
constexpr std::size_t kLongestNumber = 32;

bool IsControl(wchar_t c) {
  return (c >= 0 && c < 0x20) || (c >= 0x7f && c < 0xa0);
}

bool IsAscii(char c) {
  return static_cast<unsigned char>(c) < 0x80;
}

}  // namespace

std::wstring Wide(std::string_view bytes) {
  if (std::ranges::all_of(bytes, IsAscii)) return {bytes.begin(), bytes.end()};
  if (auto text = DecodeUtf8(bytes)) return *std::move(text);
  std::wstring text;
  for (const char byte : bytes) text += IsAscii(byte) ? static_cast<wchar_t>(byte) : kReplacement;
  return text;
}

void AppendNarrow(std::string& bytes, std::wstring_view text) {
  for (const wchar_t c : text) {
    if (c >= 0 && c < 0x80) {
      bytes += static_cast<char>(c);
    } else {
      AppendUtf8(bytes, IsUnicodeScalar(c) ? c : kReplacement);
    }
  }
}

std::string Narrow(std::wstring_view text) {
  std::string bytes;
  AppendNarrow(bytes, text);
  return bytes;
}

std::wstring Printable(std::wstring_view text) {
  std::wstring printable(text);
  std::ranges::replace_if(printable, IsControl, kReplacement);
  return printable;
}

std::wstring_view Trimmed(std::wstring_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  text.remove_suffix(text.size() - (text.find_last_not_of(kBlanks) + 1));
  return text;
}

std::optional<int> WholeNumber(std::string_view text) {
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
  return number;
}

std::string ExactText(double value) {
  std::array<char, kLongestNumber> text;
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
  return {text.data(), end};
}

}  // namespace vexa::terminal
