#include "plotter/RasterCanvas.h"

#include <gtest/gtest.h>

#include "plotter/BitmapFont.h"
#include "plotter/LineBox.h"
#include "plotter/Palette16.h"

namespace vexa {
namespace {

constexpr Colour kBlack{0, 0, 0};
constexpr Colour kRed{255, 0, 0};

/// The canvas as rows of text: "#" black, "r" red, "." white.
std::string Rows(const RasterCanvas& canvas) {
  std::string rows;
  for (int row = 0; row < canvas.Height(); ++row) {
    for (int column = 0; column < canvas.Width(); ++column) {
      const std::uint8_t entry = canvas.EntryAt(column, row);
      rows += entry == 0 ? '#' : entry == 5 ? 'r' : entry == 1 ? '.' : '?';
    }
    rows += '\n';
  }
  return rows;
}

CurvePoint At(int x, int y) {
  return {{x, y}, static_cast<double>(y)};
}

TEST(Palette16, NearestEntries) {
  const std::pair<Colour, int> cases[] = {
      {{0, 0, 0}, 0},      {{255, 255, 255}, 1}, {{192, 192, 192}, 3}, {{255, 0, 0}, 5},
      {{0, 255, 0}, 9},    {{0, 130, 132}, 10},  {{0, 0, 255}, 13},    {{128, 128, 128}, 2},
      {{250, 250, 10}, 7}, {{0, 128, 0}, 8},     {{132, 0, 0}, 4},     {{255, 0, 255}, 15}};
  for (const auto& [colour, entry] : cases) EXPECT_EQ(NearestEntry(colour), entry);
  for (std::uint8_t i = 0; i < kPalette16.size(); ++i) EXPECT_EQ(NearestEntry(kPalette16[i]), i);
  EXPECT_EQ(kPalette16[8], (Colour{0, 134, 0}));
}

TEST(RasterCanvas, IsWhiteAtFirst) {
  EXPECT_EQ(Rows(RasterCanvas({2, 3, 5, 5})), "...\n...\n");
}

TEST(RasterCanvas, BoxesAreHalfOpenAndClipped) {
  RasterCanvas canvas({10, 20, 15, 24});
  canvas.Fill({11, 21, 13, 23}, kBlack);
  canvas.Fill({14, 23, 1000000, 1000000}, kRed);
  canvas.Fill({-1000000, -1000000, 11, 21}, kRed);
  EXPECT_EQ(Rows(canvas), "r....\n.##..\n.##..\n....r\n");
}

TEST(RasterCanvas, LinesDrawTheirFirstPixelAndNotTheirLast) {
  RasterCanvas canvas({0, 0, 6, 4});
  canvas.Line({1, 0}, {5, 0}, {kBlack, 1});
  canvas.Line({4, 3}, {0, 3}, {kRed, 1});
  canvas.Line({0, 2}, {0, 0}, {kRed, 1});
  canvas.Line({5, 1}, {5, 3}, {kBlack, 1});
  canvas.Line({3, 2}, {3, 2}, {kBlack, 1});
  EXPECT_EQ(Rows(canvas), ".####.\nr....#\nr....#\n.rrrr.\n");
}

TEST(RasterCanvas, SegmentsFollowTheIdealLine) {
  RasterCanvas flat({0, 0, 9, 3});
  flat.Segment(At(0, 0), At(8, 2), kBlack);
  EXPECT_EQ(Rows(flat), "##.......\n..####...\n......##.\n");
  // From one column to the next: half of the way in each.
  RasterCanvas steep({0, 0, 2, 7});
  steep.Segment(At(0, 6), At(1, 0), kBlack);
  EXPECT_EQ(Rows(steep), "..\n.#\n.#\n.#\n#.\n#.\n#.\n");
  RasterCanvas falling({0, 0, 2, 5});
  falling.Segment(At(0, 0), At(1, 5), kBlack);
  EXPECT_EQ(Rows(falling), "#.\n#.\n#.\n.#\n.#\n");
}

TEST(RasterCanvas, DotsAreOnePixel) {
  RasterCanvas canvas({0, 0, 3, 2});
  canvas.Dot({{1, 1}, 1.9}, kRed);
  canvas.Dot({{7, 1}, 1.0}, kRed);
  EXPECT_EQ(Rows(canvas), "...\n.r.\n");
}

TEST(RasterCanvas, CirclesHaveNoCorners) {
  RasterCanvas canvas({0, 0, 6, 5});
  canvas.Circle({1, 1, 5, 5}, kBlack);
  EXPECT_EQ(Rows(canvas), "......\n..##..\n.####.\n.####.\n..##..\n");
}

TEST(RasterCanvas, TextStandsBelowItsCorner) {
  RasterCanvas canvas({0, 0, 14, 12});
  canvas.Text({3, 1}, {-2, -1}, L"y1", kBlack);
  EXPECT_EQ(Rows(canvas),
            "..............\n"
            "..............\n"
            ".........#....\n"
            "........##....\n"
            ".#...#...#....\n"
            ".#...#...#....\n"
            ".#...#...#....\n"
            "..####...#....\n"
            ".....#..###...\n"
            "..###.........\n"
            "..............\n"
            "..............\n");
}

TEST(BitmapFont, EveryCharacterOfALabelHasAGlyph) {
  const bitmap_font::Glyph& other = bitmap_font::GlyphOf(L'\x2603');
  for (const wchar_t c : std::wstring_view(L"x min= y max=0123456789.,+-eE")) {
    EXPECT_EQ(bitmap_font::GlyphOf(c).character, c);
    EXPECT_NE(&bitmap_font::GlyphOf(c), &other);
  }
  EXPECT_TRUE(other.HasPixel(0, 0) && !other.HasPixel(1, 1));
}

TEST(BitmapFont, GlyphsAreOfOneSize) {
  for (wchar_t c = 0; c < 128; ++c) {
    const std::wstring_view rows = bitmap_font::GlyphOf(c).rows;
    EXPECT_TRUE(rows.empty() || (rows.size() + 1) % (bitmap_font::kGlyphWidth + 1) == 0);
    EXPECT_LE(rows.size() + 1,
              static_cast<std::size_t>(bitmap_font::kGlyphHeight * (bitmap_font::kGlyphWidth + 1)));
    for (std::size_t i = 0; i < rows.size(); ++i) {
      const bool gap = i % (bitmap_font::kGlyphWidth + 1) == bitmap_font::kGlyphWidth;
      EXPECT_EQ(rows[i] == L' ', gap);
      EXPECT_TRUE(gap || rows[i] == L'#' || rows[i] == L'.');
    }
  }
}

TEST(LineBox, HasTheFirstPixelAndNotTheLast) {
  const auto text = [](const PixelBox& box) {
    return std::to_string(box.left) + "," + std::to_string(box.top) + " " +
           std::to_string(box.right) + "," + std::to_string(box.bottom);
  };
  EXPECT_EQ(text(BoxOfLine({1, 5}, {4, 5})), "1,5 4,6");
  EXPECT_EQ(text(BoxOfLine({4, 5}, {1, 5})), "2,5 5,6");
  EXPECT_EQ(text(BoxOfLine({1, 5}, {1, 9})), "1,5 2,9");
  EXPECT_EQ(text(BoxOfLine({1, 9}, {1, 5})), "1,6 2,10");
}

}  // namespace
}  // namespace vexa
