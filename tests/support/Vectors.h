#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vexa::test {

/// The path of tests/vectors/`name`.
std::string VectorPath(const std::string& name);

/// The rows of tests/vectors/`name`, a tab-separated file, without its header line. Escapes are
/// undone.
std::vector<std::vector<std::string>> ReadTable(const std::string& name);

/// UTF-8 to wide characters.
std::wstring Wide(std::string_view utf8);
/// Wide characters to UTF-8, for messages.
std::string Narrow(std::wstring_view text);

/// C99 hexadecimal text, "inf", "-inf" or "nan".
double HexDouble(std::string_view text);
int Integer(std::string_view text);

/// Distance in units in the last place; 0 for equal bits and for two NaNs.
std::uint64_t UlpDistance(double a, double b);

}  // namespace vexa::test
