#include "files/Utf8.h"

#include <cstddef>
#include <cstdint>

namespace vexa {
namespace {

static_assert(sizeof(wchar_t) == 4, "one wide character holds every Unicode character");

/// The forms of a character by length: what the first byte looks like and the least value that may
/// be written this long.
struct Utf8Form {
  unsigned char mask;
  unsigned char mark;
  int following;
  std::uint32_t least;
};
constexpr Utf8Form kForms[] = {
    {0x80, 0x00, 0, 0x0},
    {0xE0, 0xC0, 1, 0x80},
    {0xF0, 0xE0, 2, 0x800},
    {0xF8, 0xF0, 3, 0x10000},
};
constexpr unsigned char kFollowingMask = 0xC0;
constexpr unsigned char kFollowingMark = 0x80;

const Utf8Form* FormOf(unsigned char first) {
  for (const Utf8Form& form : kForms) {
    if ((first & form.mask) == form.mark) return &form;
  }
  return nullptr;
}

}  // namespace

bool IsUnicodeScalar(wchar_t character) {
  const auto value = static_cast<std::uint32_t>(character);
  return value <= 0x10FFFF && (value < 0xD800 || value > 0xDFFF);
}

std::optional<std::wstring> DecodeUtf8(std::string_view bytes) {
  std::wstring text;
  text.reserve(bytes.size());
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    const auto first = static_cast<unsigned char>(bytes[at]);
    const Utf8Form* form = FormOf(first);
    if (!form || bytes.size() - at <= static_cast<std::size_t>(form->following)) return {};
    std::uint32_t value = first & static_cast<unsigned char>(~form->mask);
    for (int n = 0; n < form->following; ++n) {
      const auto next = static_cast<unsigned char>(bytes[++at]);
      if ((next & kFollowingMask) != kFollowingMark) return {};
      value = (value << 6) | static_cast<std::uint32_t>(next & ~kFollowingMask);
    }
    const auto character = static_cast<wchar_t>(value);
    if (value < form->least || !IsUnicodeScalar(character)) return {};
    text += character;
  }
  return text;
}

void AppendUtf8(std::string& bytes, wchar_t character) {
  const auto value = static_cast<std::uint32_t>(character);
  int following = 3;
  while (following > 0 && value < kForms[following].least) --following;
  bytes += static_cast<char>(kForms[following].mark | (value >> (6 * following)));
  while (following-- > 0) {
    bytes += static_cast<char>(kFollowingMark | ((value >> (6 * following)) & 0x3F));
  }
}

}  // namespace vexa
