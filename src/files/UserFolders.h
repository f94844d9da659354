#pragma once

#include <filesystem>
#include <string>
#include <system_error>

namespace vexa {

/// The value of an environment variable, or nothing.
std::string Environment(const char* name);

/// The folder for the settings of this user's programs: $XDG_CONFIG_HOME, else .config in $HOME,
/// else in the home folder of the user's account. Names that are not absolute do not count. Empty
/// when there is none.
std::filesystem::path UserSettingsFolder();

/// True when nobody but this user can put anything into `folder`.
bool IsPrivateFolder(const std::filesystem::path& folder);

/// Creates `folder` and what is missing above it, for this user alone; one of this user's that is
/// open to others is closed to them.
std::error_code MakePrivateFolder(const std::filesystem::path& folder);

}  // namespace vexa
