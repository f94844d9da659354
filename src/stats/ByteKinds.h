#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace vexa {

/// What a byte of a data file is: part of a number's text, what separates texts in an ordinary
/// file, or something that is not expected there. The reader takes the last two as separators.
enum class ByteKind : std::uint8_t { Number, Separator, Strange };

/// "E" is no part of a number; meant.
inline constexpr std::string_view kNumberCharacters = "0123456789.e+-";
inline constexpr std::string_view kSeparators = "\t\r\n ,;";

inline constexpr auto kByteKinds = [] {
  std::array<ByteKind, 256> kinds{};
  kinds.fill(ByteKind::Strange);
  for (const char c : kNumberCharacters) kinds[static_cast<unsigned char>(c)] = ByteKind::Number;
  for (const char c : kSeparators) kinds[static_cast<unsigned char>(c)] = ByteKind::Separator;
  return kinds;
}();

inline ByteKind KindOf(char c) {
  return kByteKinds[static_cast<unsigned char>(c)];
}

}  // namespace vexa
