#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <system_error>

namespace vexa {

/// Reads a whole file of at most `longest` bytes. What is no ordinary file is refused, and never
/// waited for.
std::error_code ReadFile(const std::filesystem::path& file, std::size_t longest,
                         std::string& bytes);

}  // namespace vexa
