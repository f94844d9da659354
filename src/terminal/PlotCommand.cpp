#include <cstdlib>

#include "plotter/DrawGraph.h"
#include "plotter/PlotArea.h"
#include "terminal/BrailleCanvas.h"
#include "terminal/Commands.h"
#include "terminal/GraphFiles.h"
#include "terminal/NumberOptions.h"
#include "terminal/PlotOptions.h"
#include "terminal/Texts.h"

namespace vexa::terminal {
namespace {

constexpr Argument kArguments[] = {kFunctionsArgument};
constexpr Option kOptions[] = {
    kXOption,
    kYOption,
    kAngleOption,
    {.name = "output",
     .letter = 'o',
     .value = "FILE",
     .help = "Writes a picture instead: FILE ends with .bmp, .png or .svg",
     .kind = WordKind::File},
    {.name = "no-grid", .letter = 0, .value = "", .help = "Leaves the grid out"},
    {.name = "no-line", .letter = 0, .value = "", .help = "Draws dots without lines between them"},
    {.name = "no-coordinates", .letter = 0, .value = "", .help = "Leaves the ranges' labels out"},
};
constexpr std::string_view kMore =
    "Without -o the picture is made of characters, as wide as the terminal. The functions are "
    "red,\n"
    "green and blue.\n"
    "\n"
    "Examples:\n"
    "  vexa plot 'sin(x)*5' 'x^2/10' --x -10 10 --y -10 10 -a rad\n"
    "  vexa plot 'x^3-x' -o cubic.png\n";

/// In characters. A grid would cover the curves, and labels too.
void Show(GraphModel& graph, Console& console) {
  using namespace plot_area;
  BrailleCanvas canvas({kLeft, kTop - 1, kRight, kBottom + 1}, console.out.Columns());
  graph.ApplyOptions(graph.Ranges(),
                     {.grid = false, .line = graph.Options().line, .coordinates = true});
  const std::vector<std::wstring> labels = graph.Labels();
  graph.ApplyOptions(graph.Ranges(),
                     {.grid = false, .line = graph.Options().line, .coordinates = false});
  DrawGraph(graph, canvas);
  const bool coloured = console.out.IsTerminal() && std::getenv("NO_COLOR") == nullptr;
  console.out.Write(canvas.Picture(coloured));
  // As many labels in a line as have room.
  std::wstring line;
  for (const std::wstring& label : labels) {
    if (!line.empty() &&
        line.size() + label.size() + 2 > static_cast<std::size_t>(console.out.Columns())) {
      console.out.Write(line + L"\n");
      line.clear();
    }
    line += (line.empty() ? L"" : L"  ") + label;
  }
  console.out.Write(line + L"\n");
}

int Run(const Given& given, Console& console) {
  std::string error;
  const NumberModes modes = ModesOf(given, console.store, error);
  GraphData data{.options = {.grid = !given.Has("no-grid"),
                             .line = !given.Has("no-line"),
                             .coordinates = !given.Has("no-coordinates")},
                 .angleType = modes.angle};
  const std::wstring sentence = ReadGraph(given, console.store, data);
  if (!sentence.empty()) return console.Complain(sentence);
  GraphModel graph(std::move(data), modes.display, modes.precision);
  if (!given.Has("output")) return Show(graph, console), kDone;

  const std::string path(given.One("output"));
  const std::string bytes = GraphFileBytes(graph, path);
  if (bytes.empty()) return console.RefuseUse("the output file must end with .bmp, .png or .svg");
  const std::string failure = WriteGraphFile(path, bytes);
  if (!failure.empty()) return console.Complain(Narrow(Printable(Wide(path))) + ": " + failure);
  return kDone;
}

}  // namespace

const Command kPlotCommand{.name = "plot",
                           .summary = "Draws functions, in the terminal or into a file",
                           .arguments = kArguments,
                           .options = kOptions,
                           .more = kMore,
                           .run = Run};

}  // namespace vexa::terminal
