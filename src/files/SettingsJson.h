#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "files/SettingsValues.h"

namespace vexa {

/// Reads the JSON text of a settings file: an object of sections, each an object of entries, each
/// an integer or a text. Other numbers, true and false are taken as their texts, null as no entry.
/// Nothing when the file is damaged: no such text, invalid UTF-8, or more than kMostSettings
/// entries. A file of blanks alone is an empty one.
std::optional<SettingsValues> ParseSettings(std::string_view bytes);

/// The text that ParseSettings reads back exactly. What is no Unicode character, half of a
/// surrogate pair for instance, is written as U+FFFD.
std::string FormatSettings(const SettingsValues& values);

}  // namespace vexa
