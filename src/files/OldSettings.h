#pragma once

#include <optional>
#include <string_view>

#include "files/SettingsValues.h"

namespace vexa {

/// Reads the INI text that earlier versions kept the settings in: UTF-8, "[section]" lines,
/// "entry=text" lines, comment lines that begin with ";" or "#". All values are texts. Nothing when
/// the file is damaged: a NUL byte, invalid UTF-8, a quote that does not close, a line that is none
/// of these, or more than kMostSettings entries.
std::optional<SettingsValues> ParseOldSettings(std::string_view bytes);

}  // namespace vexa
