#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

namespace vexa {

/// Gives `file` the content `bytes`, for this user alone, through a temporary file beside it:
/// whatever interrupts this, the file holds the old or the new content. A link is followed, also
/// one to a file that does not exist yet.
std::error_code ReplaceFile(const std::filesystem::path& file, std::string_view bytes);

/// Removes temporary files that ReplaceFile left when it was killed. Only while no other program
/// can be replacing `file`.
void RemoveLeftFiles(const std::filesystem::path& file);

/// Renames `file` to a free name beside it, which `kept` tells: settings.json becomes
/// settings.LABEL-1.json.
std::error_code MoveAside(const std::filesystem::path& file, std::string_view label,
                          std::filesystem::path& kept);

}  // namespace vexa
