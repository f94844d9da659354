#include "stats/CellValue.h"

#include <charconv>

#include "engine/NumberText.h"
#include "engine/ToInt32.h"

namespace vexa {

std::string NarrowCell(std::wstring_view text) {
  std::string bytes(text.size(), '\0');
  for (std::size_t i = 0; i < text.size(); ++i) {
    bytes[i] = static_cast<char>(static_cast<std::uint32_t>(text[i]) & 0xff);
  }
  return bytes;
}

double CellValue(std::string_view text) {
  return TextToDouble(text);
}

double CellValue(std::wstring_view text) {
  return CellValue(NarrowCell(text));
}

std::int32_t CellCount(std::string_view text) {
  // Counts that this program writes are read at once.
  std::int32_t count = 0;
  const char* const end = text.data() + text.size();
  const auto whole = std::from_chars(text.data(), end, count);
  if (whole.ec == std::errc{} && whole.ptr == end) return count;
  return ToInt32(CellValue(text));
}

}  // namespace vexa
