#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vexa {

/// `text` as a list cell and a data file keep it: each character's low byte.
std::string NarrowCell(std::wstring_view text);

/// The number at the front of a cell's text, in the C locale; 0 when none stands there.
double CellValue(std::string_view text);
/// The same for a wide text, of which each character counts by its low byte.
double CellValue(std::wstring_view text);

/// A count cell's number without its decimals, in 32 bits: how often its row counts.
std::int32_t CellCount(std::string_view text);

}  // namespace vexa
