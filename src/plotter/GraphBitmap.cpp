#include "plotter/GraphBitmap.h"

#include "plotter/DrawGraph.h"
#include "plotter/Palette16.h"
#include "plotter/PlotArea.h"

namespace vexa {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::uint32_t kFileHeaderSize = 14;
constexpr std::uint32_t kInfoHeaderSize = 40;
constexpr std::uint32_t kBytesPerPaletteEntry = 4;
constexpr std::uint32_t kPixelOffset =
    kFileHeaderSize + kInfoHeaderSize + kBytesPerPaletteEntry * kPalette16.size();
constexpr std::uint16_t kPlanes = 1;
constexpr std::uint16_t kBitsPerPixel = 4;
constexpr std::size_t kPixelsPerByte = 2;
/// Rows begin at multiples of this many bytes.
constexpr std::size_t kRowAlignment = 4;

void Append16(Bytes& bytes, std::uint16_t value) {
  bytes.push_back(static_cast<std::uint8_t>(value & 0xFF));
  bytes.push_back(static_cast<std::uint8_t>(value >> 8));
}

void Append32(Bytes& bytes, std::uint32_t value) {
  Append16(bytes, static_cast<std::uint16_t>(value & 0xFFFF));
  Append16(bytes, static_cast<std::uint16_t>(value >> 16));
}

void AppendHeaders(Bytes& bytes, std::uint32_t width, std::uint32_t height) {
  bytes.push_back('B');
  bytes.push_back('M');
  Append32(bytes, 0);  // The file's size is left zero; meant.
  Append16(bytes, 0);
  Append16(bytes, 0);
  Append32(bytes, kPixelOffset);

  Append32(bytes, kInfoHeaderSize);
  Append32(bytes, width);
  Append32(bytes, height);  // Positive: the bottom row comes first.
  Append16(bytes, kPlanes);
  Append16(bytes, kBitsPerPixel);
  Append32(bytes, 0);               // not compressed
  Append32(bytes, width * height);  // The number of pixels, not of bytes; meant.
  Append32(bytes, 0);
  Append32(bytes, 0);
  Append32(bytes, kPalette16.size());
  Append32(bytes, 0);
}

void AppendPalette(Bytes& bytes) {
  for (const Colour& colour : kPalette16) {
    bytes.insert(bytes.end(), {colour.blue, colour.green, colour.red, 0});
  }
}

void AppendRow(Bytes& bytes, const RasterCanvas& picture, int row) {
  const std::size_t start = bytes.size();
  const auto width = static_cast<std::size_t>(picture.Width());
  const std::size_t used = (width + kPixelsPerByte - 1) / kPixelsPerByte;
  bytes.resize(start + (used + kRowAlignment - 1) / kRowAlignment * kRowAlignment);
  for (std::size_t column = 0; column < width; ++column) {
    const std::uint8_t entry = picture.EntryAt(static_cast<int>(column), row);
    // The left one of two pixels is in the high half.
    const bool left = column % kPixelsPerByte == 0;
    bytes[start + column / kPixelsPerByte] |=
        static_cast<std::uint8_t>(left ? entry << kBitsPerPixel : entry);
  }
}

}  // namespace

RasterCanvas DrawPicture(const GraphModel& graph) {
  using namespace plot_area;
  RasterCanvas picture(
      {kPictureLeft, kPictureTop, kPictureLeft + kPictureWidth, kPictureTop + kPictureHeight});
  DrawGraph(graph, picture);
  return picture;
}

std::vector<std::uint8_t> BitmapFile(const RasterCanvas& picture) {
  Bytes bytes;
  AppendHeaders(bytes, static_cast<std::uint32_t>(picture.Width()),
                static_cast<std::uint32_t>(picture.Height()));
  AppendPalette(bytes);
  for (int row = picture.Height() - 1; row >= 0; --row) AppendRow(bytes, picture, row);
  return bytes;
}

}  // namespace vexa
