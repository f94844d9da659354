#include "terminal/BrailleCanvas.h"

#include <algorithm>
#include <cmath>

#include "plotter/GraphColours.h"

namespace vexa::terminal {
namespace {

constexpr int kDotsAcross = 2;
constexpr int kDotsDown = 4;
constexpr wchar_t kEmptyBraille = 0x2800;
/// The bit of each dot of a character, by row and column.
constexpr std::uint8_t kDotBits[kDotsDown][kDotsAcross] = {
    {0x01, 0x08}, {0x02, 0x10}, {0x04, 0x20}, {0x40, 0x80}};

constexpr const wchar_t* kTerminalColours[kMaxGraphFunctions] = {L"\x1b[31m", L"\x1b[32m",
                                                                 L"\x1b[34m"};
constexpr const wchar_t* kPlain = L"\x1b[0m";

/// The terminal's colour for one of a curve; null for all else.
const wchar_t* TerminalColour(Colour colour) {
  for (std::size_t i = 0; i < kMaxGraphFunctions; ++i) {
    if (kCurveColours[i] == colour) return kTerminalColours[i];
  }
  return nullptr;
}

}  // namespace

BrailleCanvas::BrailleCanvas(const PixelBox& shown, int widest) : area(shown) {
  const int width = area.right - area.left;
  const int height = area.bottom - area.top;
  columns = std::clamp(widest, 1, (width + kDotsAcross - 1) / kDotsAcross);
  scale = std::min(1.0, static_cast<double>(columns * kDotsAcross) / width);
  rows = static_cast<int>(std::ceil(height * scale / kDotsDown));
  cells.resize(static_cast<std::size_t>(columns * rows));
}

std::wstring BrailleCanvas::Picture(bool coloured) const {
  std::wstring picture;
  for (int row = 0; row < rows; ++row) {
    const wchar_t* current = nullptr;
    for (int column = 0; column < columns; ++column) {
      const Cell& cell = cells[static_cast<std::size_t>(row * columns + column)];
      if (coloured && cell.colour != current) {
        current = cell.colour;
        picture += current ? current : kPlain;
      }
      picture += cell.dots != 0     ? static_cast<wchar_t>(kEmptyBraille + cell.dots)
                 : cell.letter != 0 ? cell.letter
                                    : L' ';
    }
    if (current) picture += kPlain;
    if (!coloured) picture.erase(picture.find_last_not_of(L' ') + 1);
    picture += L'\n';
  }
  return picture;
}

void BrailleCanvas::Line(PixelPoint from, PixelPoint to, const LineStyle& style) {
  Draw(from.x, from.y, to.x, to.y, style.colour);
}

void BrailleCanvas::Dot(const CurvePoint& point, Colour colour) {
  Draw(point.pixel.x, point.row, point.pixel.x, point.row, colour);
}

void BrailleCanvas::Segment(const CurvePoint& from, const CurvePoint& to, Colour colour) {
  Draw(from.pixel.x, from.row, to.pixel.x, to.row, colour);
}

void BrailleCanvas::Circle(const PixelBox& box, Colour colour) {
  Draw((box.left + box.right) / 2.0, (box.top + box.bottom) / 2.0, (box.left + box.right) / 2.0,
       (box.top + box.bottom) / 2.0, colour);
}

/// Beside the character of the anchor, on the side of the offset: a character is larger than any
/// offset.
void BrailleCanvas::Text(PixelPoint anchor, PixelPoint offset, std::wstring_view text, Colour) {
  int row = static_cast<int>((anchor.y - area.top) * scale) / kDotsDown;
  int column = static_cast<int>((anchor.x - area.left) * scale) / kDotsAcross;
  row += (offset.y > 0) - (offset.y < 0);
  column += offset.x < 0 ? -static_cast<int>(text.size()) : 1;
  if (row < 0 || row >= rows) return;
  for (const wchar_t letter : text) {
    if (column >= 0 && column < columns) {
      cells[static_cast<std::size_t>(row * columns + column)].letter = letter;
    }
    ++column;
  }
}

/// A line between two places of the view, a dot for each step along its longer side.
void BrailleCanvas::Draw(double fromX, double fromY, double toX, double toY, Colour colour) {
  // What lies far outside is as good as just outside.
  const auto dot = [&](double place, int first, int dots) {
    return std::clamp((place - first) * scale, -1.0, static_cast<double>(dots));
  };
  const double startX = dot(fromX, area.left, columns * kDotsAcross);
  const double startY = dot(fromY, area.top, rows * kDotsDown);
  const double acrossX = dot(toX, area.left, columns * kDotsAcross) - startX;
  const double acrossY = dot(toY, area.top, rows * kDotsDown) - startY;
  const int steps = std::max(1, static_cast<int>(std::max(std::abs(acrossX), std::abs(acrossY))));
  for (int i = 0; i <= steps; ++i) {
    const double share = static_cast<double>(i) / steps;
    Set(static_cast<int>(std::floor(startX + acrossX * share)),
        static_cast<int>(std::floor(startY + acrossY * share)), colour);
  }
}

void BrailleCanvas::Set(int x, int y, Colour colour) {
  if (x < 0 || y < 0 || x >= columns * kDotsAcross || y >= rows * kDotsDown) return;
  Cell& cell = cells[static_cast<std::size_t>(y / kDotsDown * columns + x / kDotsAcross)];
  cell.dots |= kDotBits[y % kDotsDown][x % kDotsAcross];
  cell.colour = TerminalColour(colour);
}

}  // namespace vexa::terminal
