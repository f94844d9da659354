#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace vexa {

/// The texts of a settings file by (section, entry).
using IniValues = std::map<std::pair<std::wstring, std::wstring>, std::wstring>;

/// Reads the INI text of a settings file: UTF-8, "[section]" lines, "entry=text" lines, and comment
/// lines that begin with ";" or "#". An unquoted text is taken as it stands, commas included.
/// Nothing when the file is damaged: a NUL byte, invalid UTF-8, a quote that does not close, or a
/// line that is none of these.
std::optional<IniValues> ParseIni(std::string_view bytes);

/// The INI text that ParseIni reads back exactly, whatever Unicode characters the texts hold.
std::string FormatIni(const IniValues& values);

/// The integer that `text` holds: blanks around it, a sign and decimal digits within 32 bits.
std::optional<int> ParseIniInteger(std::wstring_view text);

}  // namespace vexa
