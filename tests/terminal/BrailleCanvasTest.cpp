#include "terminal/BrailleCanvas.h"

#include <gtest/gtest.h>

#include "plotter/GraphColours.h"
#include "terminal/Texts.h"

namespace vexa::terminal {
namespace {

constexpr Colour kBlack{0, 0, 0};
constexpr LineStyle kLine{kBlack, 1.0};

TEST(BrailleCanvas, DotsOfACharacter) {
  BrailleCanvas canvas({0, 0, 4, 4}, 80);
  canvas.Line({0, 0}, {0, 3}, kLine);
  canvas.Dot({{3, 3}, 3.0}, kBlack);
  EXPECT_EQ(canvas.Picture(false), L"\u2847\u2880\n");
}

TEST(BrailleCanvas, FitsItsColumnsAndNeverGrows) {
  BrailleCanvas narrow({0, 0, 200, 100}, 10);
  narrow.Line({0, 0}, {199, 0}, kLine);
  EXPECT_EQ(narrow.Picture(false).find(L'\n'), 10u);
  BrailleCanvas wide({0, 0, 200, 100}, 500);
  wide.Line({0, 0}, {199, 0}, kLine);
  EXPECT_EQ(wide.Picture(false).find(L'\n'), 100u);
}

TEST(BrailleCanvas, CurvesHaveColours) {
  BrailleCanvas canvas({0, 0, 2, 4}, 80);
  canvas.Dot({{0, 0}, 0.0}, kCurveColours[1]);
  EXPECT_EQ(canvas.Picture(true), L"\x1b[32m\u2801\x1b[0m\n");
  EXPECT_EQ(canvas.Picture(false), L"\u2801\n");
}

TEST(BrailleCanvas, NothingIsDrawnOutside) {
  BrailleCanvas canvas({10, 10, 12, 14}, 80);
  canvas.Line({0, 0}, {9, 9}, kLine);
  canvas.Segment({{-1000, 0}, -1e9}, {{-1000, 0}, 1e9}, kBlack);
  canvas.Text({0, 500}, {0, 0}, L"far", kBlack);
  EXPECT_EQ(canvas.Picture(false), L"\n");
}

}  // namespace
}  // namespace vexa::terminal
