#include "terminal/GraphFiles.h"

#include <png.h>
#include <sys/stat.h>

#include <array>
#include <cerrno>
#include <cstring>

#include "engine/AsciiCase.h"
#include "files/ReplaceFile.h"
#include "plotter/DrawGraph.h"
#include "plotter/GraphBitmap.h"
#include "plotter/Palette16.h"
#include "plotter/PlotArea.h"
#include "plotter/SvgCanvas.h"
#include "terminal/Texts.h"

namespace vexa::terminal {
namespace {

using namespace plot_area;

/// Pixels of a PNG picture for each pixel of the view, in each direction.
constexpr int kPngScale = 4;

/// Who may do what with a file.
constexpr mode_t kAccess = 0777;
constexpr mode_t kNewFile = 0666;

std::string BmpBytes(const GraphModel& graph) {
  const std::vector<std::uint8_t> bytes = BitmapFile(DrawPicture(graph));
  return {bytes.begin(), bytes.end()};
}

std::string SvgBytes(const GraphModel& graph) {
  SvgCanvas canvas(
      {kPictureLeft, kPictureTop, kPictureLeft + kPictureWidth, kPictureTop + kPictureHeight});
  DrawGraph(graph, canvas);
  return canvas.Document();
}

std::string PngBytes(const GraphModel& graph) {
  const RasterCanvas picture = DrawPicture(graph);
  const int width = picture.Width() * kPngScale;
  const int height = picture.Height() * kPngScale;
  std::vector<std::uint8_t> pixels;
  pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  for (int row = 0; row < height; ++row) {
    for (int column = 0; column < width; ++column) {
      pixels.push_back(picture.EntryAt(column / kPngScale, row / kPngScale));
    }
  }
  std::array<std::uint8_t, kPalette16.size() * 3> palette;
  auto entry = palette.begin();
  for (const Colour& colour : kPalette16) {
    for (const std::uint8_t part : {colour.red, colour.green, colour.blue}) *entry++ = part;
  }
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  image.width = static_cast<png_uint_32>(width);
  image.height = static_cast<png_uint_32>(height);
  image.format = PNG_FORMAT_RGB_COLORMAP;
  image.colormap_entries = kPalette16.size();
  png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(image);
  std::string bytes(size, '\0');
  const int written =
      png_image_write_to_memory(&image, bytes.data(), &size, 0, pixels.data(), 0, palette.data());
  bytes.resize(written != 0 ? size : 0);
  return bytes;
}

struct GraphKind {
  std::wstring_view suffix;
  std::string (*write)(const GraphModel&);
};
constexpr GraphKind kKinds[] = {{L".bmp", BmpBytes}, {L".png", PngBytes}, {L".svg", SvgBytes}};

}  // namespace

std::string GraphFileBytes(const GraphModel& graph, std::string_view path) {
  const std::wstring name = ToLowerAscii(Wide(path));
  for (const GraphKind& kind : kKinds) {
    if (name.ends_with(kind.suffix)) return kind.write(graph);
  }
  return {};
}

std::string WriteGraphFile(const std::string& path, std::string_view bytes) {
  struct stat old {};
  const bool exists = stat(path.c_str(), &old) == 0;
  if (const std::error_code error = ReplaceFile(path, bytes)) return error.message();
  const mode_t masked = umask(0);
  umask(masked);
  const mode_t mode = exists ? old.st_mode & kAccess : kNewFile & ~masked;
  if (chmod(path.c_str(), mode) != 0) return std::strerror(errno);
  return {};
}

}  // namespace vexa::terminal
