#include "plotter/DrawGraph.h"

#include "plotter/GraphColours.h"
#include "plotter/LineStyles.h"
#include "plotter/PlotArea.h"

namespace vexa {
namespace {

using namespace plot_area;

constexpr Colour kWhite{255, 255, 255};
constexpr Colour kBlack{0, 0, 0};
constexpr Colour kDataColour{0, 0, 255};

/// Cells of the grid in each direction.
constexpr int kGridCells = 10;
constexpr int kDataRadius = 2;

// Axis names beside their axes. Whether one fits on the far side is decided at half of the area's
// right and bottom positions, not in its middle; meant.
constexpr int kNameLeftOfAxis = 25;
constexpr int kNameRightOfAxis = 3;
constexpr int kNameAboveAxis = 15;
constexpr int kNameBelowAxis = 2;
constexpr int kNameMargin = 2;

// Range labels: a column of lines, at the top unless the horizontal axis runs low.
constexpr int kLabelMargin = 5;
constexpr int kLabelSpacing = 15;
constexpr int kFirstLabelBelowTop = 15;
constexpr int kFirstLabelAboveBottom = 64;
constexpr int kLowAxis = kTop + kHeight / 2 + 10;

// The last sample still lies left of the frame's right side, so no point needs to be left out.
static_assert(kLeft + static_cast<int>(kSampleCount) - 1 <= kRight - 1);

void DrawGrid(Canvas& canvas) {
  for (int k = 1; k < kGridCells; ++k) {
    const int row = kTop + k * (kHeight / kGridCells);
    canvas.Line({kLeft, row}, {kRight, row}, line_styles::kGrid);
  }
  for (int k = 1; k < kGridCells; ++k) {
    const int column = kLeft + k * (kWidth / kGridCells);
    canvas.Line({column, kTop - 1}, {column, kBottom}, line_styles::kGrid);
  }
}

void DrawAxes(const SampledGraph& samples, Canvas& canvas) {
  if (const int column = samples.axisColumn; column != 0) {
    canvas.Line({column, kTop - 1}, {column, kBottom}, line_styles::kAxis);
    const bool left = column > kRight / 2;
    canvas.Text({column, kTop}, {left ? -kNameLeftOfAxis : kNameRightOfAxis, 0}, L"x=0", kBlack);
  }
  if (const int row = samples.axisRow; row != 0) {
    canvas.Line({kLeft, row}, {kRight, row}, line_styles::kAxis);
    const bool above = row > kBottom / 2;
    canvas.Text({kLeft, row}, {kNameMargin, above ? -kNameAboveAxis : kNameBelowAxis}, L"y=0",
                kBlack);
  }
}

void DrawDataPoints(const SampledGraph& samples, Canvas& canvas) {
  for (const PixelPoint& point : samples.dataPixels) {
    canvas.Circle({point.x - kDataRadius, point.y - kDataRadius, point.x + kDataRadius,
                   point.y + kDataRadius},
                  kDataColour);
  }
}

void DrawCurve(const SampledCurve& curve, bool line, Colour colour, Canvas& canvas) {
  for (std::size_t i = 0; i < curve.size(); ++i) {
    if (curve[i].IsEmpty()) continue;
    canvas.Dot(curve[i], colour);
    if (line && i > 0 && !curve[i - 1].IsEmpty()) canvas.Segment(curve[i - 1], curve[i], colour);
  }
}

void DrawFrame(Canvas& canvas) {
  const PixelPoint corners[] = {
      {kLeft, kTop - 1}, {kRight - 1, kTop - 1}, {kRight - 1, kBottom}, {kLeft, kBottom}};
  for (std::size_t i = 0; i < std::size(corners); ++i) {
    canvas.Line(corners[i], corners[(i + 1) % std::size(corners)], line_styles::kFrame);
  }
}

void DrawLabels(const GraphModel& graph, Canvas& canvas) {
  const bool atBottom = graph.Samples().axisRow > kLowAxis;
  int row = atBottom ? -kFirstLabelAboveBottom : kFirstLabelBelowTop;
  for (const std::wstring& label : graph.Labels()) {
    canvas.Text({kLeft, atBottom ? kBottom : kTop}, {kLabelMargin, row}, label, kBlack);
    row += kLabelSpacing;
  }
}

}  // namespace

void DrawGraph(const GraphModel& graph, Canvas& canvas) {
  const SampledGraph& samples = graph.Samples();
  canvas.Fill({kLeft, kTop - 1, kRight, kBottom + 1}, kWhite);
  if (graph.Options().grid) DrawGrid(canvas);
  DrawAxes(samples, canvas);
  DrawDataPoints(samples, canvas);
  for (std::size_t i = 0; i < samples.curves.size(); ++i) {
    DrawCurve(samples.curves[i], graph.Options().line, kCurveColours[i], canvas);
  }
  DrawFrame(canvas);
  DrawLabels(graph, canvas);
}

}  // namespace vexa
