#include "plotter/SvgCanvas.h"

#include <array>
#include <charconv>
#include <initializer_list>
#include <string_view>

#include "files/Utf8.h"
#include "plotter/LineBox.h"

namespace vexa {
namespace {

/// Text size, and where its base line lies below its corner.
constexpr int kTextSize = 10;
constexpr int kBaseLine = 10;

using Parts = std::initializer_list<std::string_view>;

std::string Join(Parts parts) {
  std::string text;
  for (const std::string_view part : parts) text += part;
  return text;
}

std::string Number(int value) {
  return std::to_string(value);
}

/// The middle of a curve's point, its row to a hundredth.
std::string Place(const CurvePoint& point) {
  constexpr double kHalf = 0.5;
  constexpr int kDecimals = 2;
  std::array<char, 16> row{};
  const auto end = std::to_chars(row.data(), row.data() + row.size(), point.row + kHalf,
                                 std::chars_format::fixed, kDecimals)
                       .ptr;
  return Join({Number(point.pixel.x), ".5 ", {row.data(), end}});
}

/// Half of `doubled`, which is at least 0, exactly.
std::string Half(int doubled) {
  return Join({Number(doubled / 2), doubled % 2 == 0 ? "" : ".5"});
}

std::string Hex(Colour colour) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string text = "#";
  for (const std::uint8_t part : {colour.red, colour.green, colour.blue}) {
    text += kDigits[part / 16u];
    text += kDigits[part % 16u];
  }
  return text;
}

/// An element without content: its name, then names and values of its attributes.
std::string Element(std::string_view name, Parts attributes) {
  std::string element = Join({"<", name});
  for (const std::string_view* part = attributes.begin(); part != attributes.end(); part += 2) {
    element += Join({" ", part[0], "=\"", part[1], "\""});
  }
  return element + "/>\n";
}

std::string Rectangle(const PixelBox& box, Colour colour) {
  return Element(
      "rect", {"x", Number(box.left), "y", Number(box.top), "width", Number(box.right - box.left),
               "height", Number(box.bottom - box.top), "fill", Hex(colour)});
}

/// `text` between tags. What XML cannot hold is left out.
std::string Escaped(std::wstring_view text) {
  std::string escaped;
  for (const wchar_t c : text) {
    if (c == L'&') {
      escaped += "&amp;";
    } else if (c == L'<') {
      escaped += "&lt;";
    } else if (c == L'>') {
      escaped += "&gt;";
    } else if (c >= L' ' && IsUnicodeScalar(c)) {
      AppendUtf8(escaped, c);
    }
  }
  return escaped;
}

}  // namespace

SvgCanvas::SvgCanvas(const PixelBox& area) {
  const std::string width = Number(area.right - area.left);
  const std::string height = Number(area.bottom - area.top);
  body = Join({"<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"", width, "\" height=\"", height,
               "\" viewBox=\"", Number(area.left), " ", Number(area.top), " ", width, " ", height,
               "\">\n", Rectangle(area, {255, 255, 255})});
}

std::string SvgCanvas::Document() {
  EndPath();
  return body + "</svg>\n";
}

void SvgCanvas::AddToPath(const std::string& piece, Colour colour) {
  if (!(colour == pathColour)) EndPath();
  pathColour = colour;
  path += piece;
}

void SvgCanvas::EndPath() {
  if (path.empty()) return;
  body += Element(
      "path", {"fill", "none", "stroke-linecap", "round", "stroke", Hex(pathColour), "d", path});
  path.clear();
}

void SvgCanvas::Fill(const PixelBox& box, Colour colour) {
  EndPath();
  body += Rectangle(box, colour);
}

void SvgCanvas::Line(PixelPoint from, PixelPoint to, const LineStyle& style) {
  Fill(BoxOfLine(from, to), style.colour);
}

void SvgCanvas::Dot(const CurvePoint& point, Colour colour) {
  AddToPath(Join({"M", Place(point), "h0"}), colour);
}

void SvgCanvas::Segment(const CurvePoint& from, const CurvePoint& to, Colour colour) {
  AddToPath(Join({"M", Place(from), "L", Place(to)}), colour);
}

void SvgCanvas::Circle(const PixelBox& box, Colour colour) {
  EndPath();
  body += Element("ellipse", {"cx", Half(box.left + box.right), "cy", Half(box.top + box.bottom),
                              "rx", Half(box.right - box.left), "ry", Half(box.bottom - box.top),
                              "fill", Hex(colour)});
}

void SvgCanvas::Text(PixelPoint anchor, PixelPoint offset, std::wstring_view text, Colour colour) {
  EndPath();
  body += Join({"<text x=\"", Number(anchor.x + offset.x), "\" y=\"",
                Number(anchor.y + offset.y + kBaseLine),
                "\" font-family=\"Tahoma, sans-serif\" font-size=\"", Number(kTextSize),
                "\" fill=\"", Hex(colour), "\">", Escaped(text), "</text>\n"});
}

}  // namespace vexa
