#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <variant>

namespace vexa {

/// The section and the entry of a setting.
using SettingName = std::pair<std::wstring, std::wstring>;
using SettingValue = std::variant<int, std::wstring>;
using SettingsValues = std::map<SettingName, SettingValue>;

/// What no settings file of this program's comes near: a file above it, in bytes or entries, is
/// somebody else's, and is neither read nor written.
inline constexpr std::size_t kLargestSettingsFile = std::size_t{16} << 20;
inline constexpr std::size_t kMostSettings = 20000;

}  // namespace vexa
