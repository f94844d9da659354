#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "display/DisplayType.h"
#include "plotter/GraphData.h"
#include "plotter/PenDrag.h"
#include "plotter/SampleGraph.h"

namespace vexa {

/// Why a command that changes the ranges is refused.
inline constexpr std::wstring_view kEmptyXRange = L"Can not draw graph(X min = X max)";
inline constexpr std::wstring_view kEmptyYRange = L"Can not draw graph(Y min = Y max)";

/// A line of the read-out list: a function's name and its value, or that it has none.
struct ReadOut {
  std::wstring name;
  std::optional<double> value;
};

/// A traced point: the function that it lies on, and its exact place in pixels of the view.
struct TraceMark {
  std::size_t function;
  double column;
  double row;
};

/// A graph that is looked at: the shown ranges and their commands, what a pen reads off.
///
/// Commands return the sentence of a refusal, empty after a success; a refused command leaves
/// ranges, previous ranges and labels as they were.
class GraphModel {
 public:
  /// Shows `graph` at its home ranges, numbers written with this display type and precision.
  GraphModel(GraphData graph, DisplayType type, int decimals);

  // Commands on the ranges.
  /// Zooms about the values at `point`, which stay where they are: in for `steps` above 0, out
  /// below. One that follows on another belongs to it: Undo takes back both.
  std::wstring ZoomAt(PixelPoint point, int steps);
  std::wstring ZoomIn();
  std::wstring ZoomOut();
  std::wstring MoveLeft();
  std::wstring MoveRight();
  std::wstring MoveUp();
  std::wstring MoveDown();
  /// Back to the home ranges.
  std::wstring Reset();
  /// Back to the ranges before the last zoom or move; a second one changes nothing.
  std::wstring Undo();
  /// Takes ranges whose minimum lies below the maximum, and options.
  void ApplyOptions(const PlotRanges& wanted, const PlotOptions& chosen);

  // The pen, in pixels of the view.
  /// A tap: reads the values at the point off the graph, and starts a drag.
  std::wstring PenDown(PixelPoint point);
  void PenMove(PixelPoint point);
  /// The end of a drag: shows the dragged box, unless it is too small.
  std::wstring PenUp(PixelPoint point);
  /// Every command does this first; so does what opens a list or a box over the graph.
  void RemoveRubberBand() { drag.Hide(); }

  // Reading values.
  /// Evaluates the functions at the number in `xBox`.
  std::wstring Cal();
  void ToggleTrace();
  /// Selects an entry of one of the two lists; while trace is on the other one follows.
  void SelectFunction(int index);
  void SelectReadOut(int index);
  /// A line of the read-out list.
  std::wstring ReadOutLine(std::size_t index) const;

  /// The functions' points at the value of X that was evaluated last, as far as they are shown;
  /// none while trace is off.
  std::vector<TraceMark> TraceMarks() const;
  /// A line of the function list. It says so when nothing of the function is shown.
  std::wstring FunctionLine(std::size_t index) const;

  /// Changes how numbers are written, in labels and read-outs.
  void SetDisplay(DisplayType type, int decimals);

  const std::vector<GraphFunction>& Functions() const { return data.functions; }
  AngleType Angle() const { return data.angleType; }
  const PlotRanges& Ranges() const { return ranges; }
  const PlotOptions& Options() const { return options; }
  const SampledGraph& Samples() const { return samples; }
  /// The four range labels; none when coordinates are off.
  const std::vector<std::wstring>& Labels() const { return labels; }
  const std::vector<ReadOut>& ReadOuts() const { return readOuts; }
  const PenDrag& Drag() const { return drag; }
  bool IsAtHome() const { return atHome; }
  bool IsTracing() const { return trace; }
  int SelectedFunction() const { return selectedFunction; }
  int SelectedReadOut() const { return selectedReadOut; }
  DisplayType Display() const { return displayType; }
  int Precision() const { return precision; }
  /// The text of the last error; empty: the last command succeeded.
  const std::wstring& LastError() const { return lastError; }

  /// The text of the "X =" box.
  std::wstring xBox = L"0";

 private:
  /// How far each bound moves, in units of kMoveShare of its range's width.
  struct BoundMoves {
    int xMin, xMax, yMin, yMax;
  };
  void BeginCommand();
  /// What is special about a command on the ranges.
  struct ChangeKind {
    /// It belongs to the last command: the ranges before that one are still those to return to.
    bool goesOn = false;
    /// It goes by its formula also where that leads to infinity.
    bool mayBeInfinite = false;
  };
  std::wstring Change(const BoundMoves& moves, const ChangeKind& kind);
  /// Changes to `wanted` and remembers the ranges before.
  std::wstring ChangeTo(const PlotRanges& wanted, const ChangeKind& kind);
  /// Shows `wanted`, or returns why not.
  std::wstring Show(const PlotRanges& wanted);
  void Sample();
  std::vector<std::wstring> LabelsOf(const PlotRanges& shown);
  std::wstring Format(double value);

  GraphData data;
  PlotRanges ranges;
  PlotRanges previous;
  PlotOptions options;
  bool atHome = true;
  /// The last command was ZoomAt, and zoomed.
  bool zoomedAt = false;
  SampledGraph samples;
  std::vector<std::wstring> labels;

  PenDrag drag;
  bool trace = true;
  /// The value of X at which the read-outs are the functions' values; no number: they are not.
  double evaluatedX = 0.0;
  std::vector<ReadOut> readOuts;
  int selectedFunction = 0;
  int selectedReadOut = 0;

  DisplayType displayType;
  int precision;
  std::wstring lastError;
};

/// A command of the graph view's menu.
struct GraphCommand {
  std::wstring_view caption;
  std::wstring (GraphModel::*run)();
};

/// The commands in the order of the menu.
inline constexpr GraphCommand kGraphCommands[] = {
    {L"Zoom In", &GraphModel::ZoomIn},       {L"Zoom Out", &GraphModel::ZoomOut},
    {L"Reset", &GraphModel::Reset},          {L"Move Left", &GraphModel::MoveLeft},
    {L"Move Right", &GraphModel::MoveRight}, {L"Move Up", &GraphModel::MoveUp},
    {L"Move Down", &GraphModel::MoveDown},   {L"Undo", &GraphModel::Undo},
};

}  // namespace vexa
