#pragma once

#include <cstddef>
#include <string_view>

/// The font of exact pictures: what range labels and axis names are made of. Any other character
/// shows as a hollow box.
namespace vexa::bitmap_font {

inline constexpr int kGlyphWidth = 5;
/// Seven rows above the base line, two below.
inline constexpr int kGlyphHeight = 9;
/// From one character to the next.
inline constexpr int kAdvance = 6;
/// Free rows above a line of text, as a line's height has them.
inline constexpr int kSpaceAbove = 2;

/// A character and its rows from top to bottom, "#" where a pixel is; rows that are left out at the
/// end are free.
struct Glyph {
  wchar_t character;
  std::wstring_view rows;

  constexpr bool HasPixel(int column, int row) const {
    const auto place = static_cast<std::size_t>(row * (kGlyphWidth + 1) + column);
    return place < rows.size() && rows[place] == L'#';
  }
};

const Glyph& GlyphOf(wchar_t character);

}  // namespace vexa::bitmap_font
