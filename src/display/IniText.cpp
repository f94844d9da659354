#include "display/IniText.h"

#include <algorithm>
#include <charconv>

#include "display/IniEscapes.h"
#include "display/Utf8.h"

namespace vexa {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::wstring_view kBlanks = L" \t\r";

std::wstring_view Trimmed(std::wstring_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

/// Takes one line into `values`; `section` is the section it stands in. False: damaged.
bool ParseLine(std::wstring_view line, std::wstring& section, IniValues& values) {
  line = Trimmed(line);
  if (line.empty() || line.front() == L';' || line.front() == L'#') return true;
  if (line.front() == L'[') {
    if (line.back() != L']') return false;
    section = DecodeIniName(Trimmed(line.substr(1, line.size() - 2)));
    return true;
  }
  const std::size_t equals = line.find(L'=');
  if (equals == line.npos) return false;
  const std::wstring entry = DecodeIniName(Trimmed(line.substr(0, equals)));
  std::optional<std::wstring> text = DecodeIniText(Trimmed(line.substr(equals + 1)));
  if (!text) return false;
  values[{section, entry}] = *std::move(text);
  return true;
}

}  // namespace

std::optional<IniValues> ParseIni(std::string_view bytes) {
  if (bytes.find('\0') != bytes.npos) return {};
  if (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
  IniValues values;
  std::wstring section;
  while (!bytes.empty()) {
    const std::size_t end = std::min(bytes.find('\n'), bytes.size());
    const std::optional<std::wstring> line = DecodeUtf8(bytes.substr(0, end));
    if (!line || !ParseLine(*line, section, values)) return {};
    bytes.remove_prefix(std::min(end + 1, bytes.size()));
  }
  return values;
}

std::string FormatIni(const IniValues& values) {
  std::string bytes;
  std::wstring_view section;
  for (const auto& [name, text] : values) {
    if (name.first != section) {
      section = name.first;
      if (!bytes.empty()) bytes += '\n';
      bytes += '[' + EncodeIniName(section) + "]\n";
    }
    bytes += EncodeIniName(name.second) + '=' + EncodeIniText(text) + '\n';
  }
  return bytes;
}

std::optional<int> ParseIniInteger(std::wstring_view text) {
  text = Trimmed(text);
  std::string digits;
  for (const wchar_t c : text) {
    if (c > 0x7F || c < 0) return {};
    digits += static_cast<char>(c);
  }
  if (digits.starts_with('+') && !digits.starts_with("+-")) digits.erase(0, 1);
  int value = 0;
  const char* const end = digits.data() + digits.size();
  const auto [behind, error] = std::from_chars(digits.data(), end, value);
  if (error != std::errc() || behind != end || digits.empty()) return {};
  return value;
}

}  // namespace vexa
