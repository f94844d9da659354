#include "plotter/GraphBitmap.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "plotter/Graphs.h"
#include "plotter/Palette16.h"
#include "plotter/SvgCanvas.h"

namespace vexa {
namespace {

using test::Graph;
using test::Opened;

std::uint32_t Little(const std::vector<std::uint8_t>& bytes, std::size_t at, std::size_t size) {
  std::uint32_t value = 0;
  for (std::size_t i = size; i > 0; --i) value = value << 8 | bytes[at + i - 1];
  return value;
}

/// A field of the file: offset, size, value.
struct Field {
  std::size_t offset;
  std::size_t size;
  std::uint32_t value;
};

TEST(GraphBitmap, HeadersAreAsSaid) {
  const std::vector<std::uint8_t> bytes = BitmapFile(DrawPicture(Opened(Graph({L"x"}))));
  ASSERT_EQ(bytes.size(), 21238u);
  const Field fields[] = {
      {0, 1, 'B'},    {1, 1, 'M'},  {2, 4, 0},    {6, 2, 0},   {8, 2, 0},  {10, 4, 118},
      {14, 4, 40},    {18, 4, 234}, {22, 4, 176}, {26, 2, 1},  {28, 2, 4}, {30, 4, 0},
      {34, 4, 41184}, {38, 4, 0},   {42, 4, 0},   {46, 4, 16}, {50, 4, 0},
  };
  for (const Field& field : fields) {
    EXPECT_EQ(Little(bytes, field.offset, field.size), field.value) << field.offset;
  }
}

TEST(GraphBitmap, ThePaletteIsBlueGreenRed) {
  const std::vector<std::uint8_t> bytes = BitmapFile(DrawPicture(Opened(Graph({L"x"}))));
  const int expected[16][3] = {{0, 0, 0},   {255, 255, 255}, {132, 132, 132}, {198, 198, 198},
                               {132, 0, 0}, {255, 0, 0},     {132, 132, 0},   {255, 255, 0},
                               {0, 134, 0}, {0, 255, 0},     {0, 132, 132},   {0, 255, 255},
                               {0, 0, 132}, {0, 0, 255},     {132, 0, 132},   {255, 0, 255}};
  for (std::size_t i = 0; i < 16; ++i) {
    EXPECT_EQ(bytes[54 + 4 * i], expected[i][2]);
    EXPECT_EQ(bytes[54 + 4 * i + 1], expected[i][1]);
    EXPECT_EQ(bytes[54 + 4 * i + 2], expected[i][0]);
    EXPECT_EQ(bytes[54 + 4 * i + 3], 0);
  }
}

TEST(GraphBitmap, RowsStandBottomUpTheLeftPixelInTheHighHalf) {
  RasterCanvas picture({0, 0, 5, 3});
  picture.Fill({0, 0, 1, 1}, {255, 0, 0});  // upper left
  picture.Fill({4, 2, 5, 3}, {0, 255, 0});  // lower right
  const std::vector<std::uint8_t> bytes = BitmapFile(picture);
  ASSERT_EQ(bytes.size(), 118u + 3 * 4);
  const std::vector<std::uint8_t> pixels(bytes.begin() + 118, bytes.end());
  EXPECT_EQ(pixels, (std::vector<std::uint8_t>{0x11, 0x11, 0x90, 0x00,  //
                                               0x11, 0x11, 0x10, 0x00,  //
                                               0x51, 0x11, 0x10, 0x00}));
}

TEST(GraphBitmap, ThePictureTakesInFrameAndMargin) {
  const RasterCanvas picture = DrawPicture(Opened(Graph({L"x"})));
  EXPECT_EQ(picture.Width(), 234);
  EXPECT_EQ(picture.Height(), 176);
  // Margin, then the black frame: two columns and two rows, three rows below where no row 261 is.
  EXPECT_EQ(picture.EntryAt(1, 50), 1);
  EXPECT_EQ(picture.EntryAt(2, 50), 0);
  EXPECT_EQ(picture.EntryAt(231, 50), 0);
  EXPECT_EQ(picture.EntryAt(232, 50), 1);
  EXPECT_EQ(picture.EntryAt(50, 1), 1);
  EXPECT_EQ(picture.EntryAt(50, 2), 0);
  EXPECT_EQ(picture.EntryAt(50, 173), 0);
  EXPECT_EQ(picture.EntryAt(50, 174), 1);
}

TEST(GraphBitmap, ColoursAreTheNearestEntries) {
  // Each curve at its value in column 100, off the grid: entry and row of the picture.
  const RasterCanvas picture = DrawPicture(Opened(Graph({L"x*0+5.5", L"x*0+3.5", L"x*0-3.5"})));
  EXPECT_EQ(picture.EntryAt(100, 128 - 87), 5);
  EXPECT_EQ(picture.EntryAt(100, 145 - 87), 9);
  EXPECT_EQ(picture.EntryAt(100, 204 - 87), 13);
  EXPECT_EQ(picture.EntryAt(100, 175 - 87), 10);  // the axis
  EXPECT_EQ(picture.EntryAt(100, 192 - 87), 3);   // the grid
}

TEST(SvgCanvas, WritesWhatIsDrawn) {
  SvgCanvas canvas({2, 87, 236, 263});
  canvas.Line({4, 100}, {10, 100}, {{192, 192, 192}, 1});
  canvas.Segment({{4, 100}, 100.25}, {{5, 98}, 98.5}, {255, 0, 0});
  canvas.Dot({{6, 97}, 97.0}, {255, 0, 0});
  canvas.Circle({1, 2, 5, 6}, {0, 0, 255});
  canvas.Text({9, 105}, {0, 0}, L"<&> \x416\x1", {0, 0, 0});
  EXPECT_EQ(canvas.Document(),
            "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"234\" height=\"176\" "
            "viewBox=\"2 87 234 176\">\n"
            "<rect x=\"2\" y=\"87\" width=\"234\" height=\"176\" fill=\"#ffffff\"/>\n"
            "<rect x=\"4\" y=\"100\" width=\"6\" height=\"1\" fill=\"#c0c0c0\"/>\n"
            "<path fill=\"none\" stroke-linecap=\"round\" stroke=\"#ff0000\" "
            "d=\"M4.5 100.75L5.5 99.00M6.5 97.50h0\"/>\n"
            "<ellipse cx=\"3\" cy=\"4\" rx=\"2\" ry=\"2\" fill=\"#0000ff\"/>\n"
            "<text x=\"9\" y=\"115\" font-family=\"Tahoma, sans-serif\" font-size=\"10\" "
            "fill=\"#000000\">&lt;&amp;&gt; \xD0\x96</text>\n"
            "</svg>\n");
}

}  // namespace
}  // namespace vexa
