#include "plotter/DrawGraph.h"

#include "plotter/GraphColours.h"
#include "plotter/PlotArea.h"

namespace vexa {
namespace {

using namespace plot_area;

constexpr Colour kWhite{255, 255, 255};
constexpr Colour kBlack{0, 0, 0};
constexpr Colour kGridColour{192, 192, 192};
constexpr Colour kAxisColour{0, 130, 132};
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
constexpr int kFirstLabelAtTop = kTop + 15;
constexpr int kFirstLabelAtBottom = kBottom - 64;
constexpr int kLowAxis = kTop + kHeight / 2 + 10;

// The last sample still lies left of the frame's right side, so no point needs to be left out.
static_assert(kLeft + static_cast<int>(kSampleCount) - 1 <= kRight - 1);

void DrawGrid(Canvas& canvas) {
  for (int k = 1; k < kGridCells; ++k) {
    const int row = kTop + k * (kHeight / kGridCells);
    canvas.Line({kLeft, row}, {kRight, row}, kGridColour);
  }
  for (int k = 1; k < kGridCells; ++k) {
    const int column = kLeft + k * (kWidth / kGridCells);
    canvas.Line({column, kTop - 1}, {column, kBottom}, kGridColour);
  }
}

void DrawAxes(const SampledGraph& samples, Canvas& canvas) {
  if (const int column = samples.axisColumn; column != 0) {
    canvas.Line({column, kTop - 1}, {column, kBottom}, kAxisColour);
    const bool left = column > kRight / 2;
    canvas.Text({column + (left ? -kNameLeftOfAxis : kNameRightOfAxis), kTop}, L"x=0", kBlack);
  }
  if (const int row = samples.axisRow; row != 0) {
    canvas.Line({kLeft, row}, {kRight, row}, kAxisColour);
    const bool above = row > kBottom / 2;
    canvas.Text({kLeft + kNameMargin, row + (above ? -kNameAboveAxis : kNameBelowAxis)}, L"y=0",
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
    canvas.Line(corners[i], corners[(i + 1) % std::size(corners)], kBlack);
  }
}

void DrawLabels(const GraphModel& graph, Canvas& canvas) {
  int row = graph.Samples().axisRow > kLowAxis ? kFirstLabelAtBottom : kFirstLabelAtTop;
  for (const std::wstring& label : graph.Labels()) {
    canvas.Text({kLeft + kLabelMargin, row}, label, kBlack);
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
