#include "plotter/GraphModel.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "display/FormatResult.h"
#include "engine/EngineErrors.h"
#include "plotter/GraphFunction.h"
#include "plotter/GraphMapping.h"
#include "plotter/PlotArea.h"
#include "toolkit/NumberBox.h"

namespace vexa {
namespace {

constexpr double kMoveShare = 0.2;
/// What a step of ZoomAt leaves of a range's width: as much as Zoom In and Zoom Out do.
constexpr double kZoomInShare = 1 - 2 * kMoveShare;
constexpr double kZoomOutShare = 1 + 2 * kMoveShare;

constexpr std::wstring_view kFunctionLetters = L"RGB";
constexpr std::wstring_view kNoValue = L"Out of range";
constexpr std::wstring_view kNothingShown = L" (no value in this range)";

/// A bound moved by `moves` steps. A bound that does not move stays as it is: a step may be
/// infinite.
double Moved(double bound, int moves, double step) {
  return moves == 0 ? bound : bound + moves * step;
}

std::wstring_view EmptyRange(const PlotRanges& ranges) {
  if (ranges.xMin == ranges.xMax) return kEmptyXRange;
  if (ranges.yMin == ranges.yMax) return kEmptyYRange;
  return {};
}

bool IsFinite(const PlotRanges& ranges) {
  return std::isfinite(ranges.xMin) && std::isfinite(ranges.xMax) && std::isfinite(ranges.yMin) &&
         std::isfinite(ranges.yMax);
}

}  // namespace

GraphModel::GraphModel(GraphData graph, DisplayType type, int decimals)
    : data(std::move(graph)),
      ranges(data.ranges),
      previous(data.ranges),
      options(data.options),
      displayType(type),
      precision(decimals) {
  if (data.functions.size() > kMaxGraphFunctions) data.functions.resize(kMaxGraphFunctions);
  if (options.coordinates) labels = LabelsOf(ranges);
  Sample();
  Cal();
}

std::wstring GraphModel::ZoomIn() {
  // Even of a width that is infinite; meant.
  return Change({1, -1, 1, -1}, {.mayBeInfinite = true});
}
std::wstring GraphModel::ZoomOut() {
  return Change({-1, 1, -1, 1}, {});
}
std::wstring GraphModel::MoveLeft() {
  return Change({-1, -1, 0, 0}, {});
}
std::wstring GraphModel::MoveRight() {
  return Change({1, 1, 0, 0}, {});
}
std::wstring GraphModel::MoveUp() {
  return Change({0, 0, 1, 1}, {});
}
std::wstring GraphModel::MoveDown() {
  return Change({0, 0, -1, -1}, {});
}

void GraphModel::BeginCommand() {
  RemoveRubberBand();
  zoomedAt = false;
  lastError.clear();
}

std::wstring GraphModel::Change(const BoundMoves& moves, const ChangeKind& kind) {
  BeginCommand();
  const double xStep = (ranges.xMax - ranges.xMin) * kMoveShare;
  const double yStep = (ranges.yMax - ranges.yMin) * kMoveShare;
  return ChangeTo({Moved(ranges.xMin, moves.xMin, xStep), Moved(ranges.xMax, moves.xMax, xStep),
                   Moved(ranges.yMin, moves.yMin, yStep), Moved(ranges.yMax, moves.yMax, yStep)},
                  kind);
}

std::wstring GraphModel::ZoomAt(PixelPoint point, int steps) {
  const bool goesOn = zoomedAt;
  BeginCommand();
  // There is no place between bounds that Zoom In made infinite.
  if (!IsFinite(ranges)) return lastError = kOutOfRangeText;
  const double x = std::clamp(graph_mapping::XAt(point.x, ranges), ranges.xMin, ranges.xMax);
  const double y = std::clamp(graph_mapping::YAt(point.y, ranges), ranges.yMin, ranges.yMax);
  const double share = std::pow(steps > 0 ? kZoomInShare : kZoomOutShare, std::abs(steps));
  std::wstring sentence = ChangeTo({x - (x - ranges.xMin) * share, x + (ranges.xMax - x) * share,
                                    y - (y - ranges.yMin) * share, y + (ranges.yMax - y) * share},
                                   {.goesOn = goesOn});
  zoomedAt = goesOn || sentence.empty();
  return sentence;
}

std::wstring GraphModel::ChangeTo(const PlotRanges& wanted, const ChangeKind& kind) {
  if (const std::wstring_view refusal = EmptyRange(wanted); !refusal.empty()) {
    return std::wstring(refusal);
  }
  // Labels would say so, but they may be off.
  if (!kind.mayBeInfinite && !IsFinite(wanted)) return lastError = kOutOfRangeText;
  const PlotRanges before = ranges;
  std::wstring sentence = Show(wanted);
  if (!sentence.empty()) return sentence;
  if (!kind.goesOn) previous = before;
  atHome = false;
  return {};
}

std::wstring GraphModel::Show(const PlotRanges& wanted) {
  if (options.coordinates) {
    std::vector<std::wstring> texts = LabelsOf(wanted);
    if (!lastError.empty()) return lastError;
    labels = std::move(texts);
  }
  ranges = wanted;
  Sample();
  return {};
}

std::wstring GraphModel::Reset() {
  BeginCommand();
  if (atHome) return {};
  std::wstring sentence = Show(data.ranges);
  atHome = sentence.empty();
  return sentence;
}

std::wstring GraphModel::Undo() {
  BeginCommand();
  return atHome ? std::wstring() : Show(previous);
}

void GraphModel::ApplyOptions(const PlotRanges& wanted, const PlotOptions& chosen) {
  BeginCommand();
  atHome = false;
  previous = ranges;
  ranges = wanted;
  options = chosen;
  labels = options.coordinates ? LabelsOf(ranges) : std::vector<std::wstring>();
  Sample();
}

void GraphModel::Sample() {
  samples = SampleGraph(data, ranges);
  lastError.clear();
}

std::vector<std::wstring> GraphModel::LabelsOf(const PlotRanges& shown) {
  return {L"x min=" + Format(shown.xMin), L"x max=" + Format(shown.xMax),
          L"y min=" + Format(shown.yMin), L"y max=" + Format(shown.yMax)};
}

std::wstring GraphModel::Format(double value) {
  return FormatResult(value, displayType, precision, BaseType::Dec, lastError);
}

std::wstring GraphModel::PenDown(PixelPoint point) {
  BeginCommand();
  drag.Begin(point);
  if (!graph_mapping::IsInside(point)) return {};
  xBox = Format(graph_mapping::XAt(point.x, ranges));
  if (trace) return Cal();
  readOuts = {{L"y = ", graph_mapping::YAt(point.y, ranges)}};
  evaluatedX = std::nan("");
  selectedReadOut = 0;
  return {};
}

void GraphModel::PenMove(PixelPoint point) {
  drag.MoveTo(point);
}

std::wstring GraphModel::PenUp(PixelPoint point) {
  drag.MoveTo(point);
  BeginCommand();
  if (!drag.IsBox() || !graph_mapping::IsInside(point)) return {};
  const auto [xMin, xMax] = std::minmax(
      {graph_mapping::XAt(drag.Start().x, ranges), graph_mapping::XAt(point.x, ranges)});
  const auto [yMin, yMax] = std::minmax(
      {graph_mapping::YAt(drag.Start().y, ranges), graph_mapping::YAt(point.y, ranges)});
  return ChangeTo({xMin, xMax, yMin, yMax}, {});
}

std::wstring GraphModel::Cal() {
  BeginCommand();
  if (xBox == L"-0") xBox = L"0";
  const std::optional<double> x = ReadNumberBox(xBox);
  if (!x) return std::wstring(kEnterNumber);
  evaluatedX = *x;
  readOuts.clear();
  FormulaValues outcome;
  for (std::size_t i = 0; i < data.functions.size(); ++i) {
    data.functions[i].program.Evaluate({&*x, 1}, data.angleType, outcome);
    ReadOut& readOut = readOuts.emplace_back();
    readOut.name = kFunctionLetters[i] + (L":F" + std::to_wstring(i + 1) + L"(X) = ");
    if (!outcome.errors[0]) readOut.value = outcome.values[0];
  }
  selectedReadOut = selectedFunction;
  return {};
}

std::vector<TraceMark> GraphModel::TraceMarks() const {
  using namespace plot_area;
  std::vector<TraceMark> marks;
  if (!trace) return marks;
  const double column = graph_mapping::ExactColumn(evaluatedX, ranges);
  if (!(column >= kLeft && column <= kRight - 1)) return marks;
  for (std::size_t i = 0; i < std::min(readOuts.size(), data.functions.size()); ++i) {
    if (!readOuts[i].value) continue;
    const double row = graph_mapping::ExactRow(*readOuts[i].value, ranges);
    if (row >= kTop && row <= kBottom) marks.push_back({i, column, row});
  }
  return marks;
}

std::wstring GraphModel::FunctionLine(std::size_t index) const {
  const SampledCurve& curve = samples.curves[index];
  const bool isShown = !std::ranges::all_of(curve, &CurvePoint::IsEmpty);
  return ListText(data.functions[index].label) + (isShown ? L"" : std::wstring(kNothingShown));
}

void GraphModel::ToggleTrace() {
  BeginCommand();
  trace = !trace;
}

void GraphModel::SelectFunction(int index) {
  selectedFunction = index;
  if (trace && index < static_cast<int>(readOuts.size())) selectedReadOut = index;
}

void GraphModel::SelectReadOut(int index) {
  selectedReadOut = index;
  if (trace && index < static_cast<int>(data.functions.size())) selectedFunction = index;
}

std::wstring GraphModel::ReadOutLine(std::size_t index) const {
  const ReadOut& readOut = readOuts[index];
  if (!readOut.value) return readOut.name + std::wstring(kNoValue);
  // A value beyond what can be written reads as the formatter's own sentence.
  std::wstring overflow;
  return readOut.name +
         FormatResult(*readOut.value, displayType, precision, BaseType::Dec, overflow);
}

void GraphModel::SetDisplay(DisplayType type, int decimals) {
  BeginCommand();
  displayType = type;
  precision = decimals;
  if (options.coordinates) labels = LabelsOf(ranges);
}

}  // namespace vexa
