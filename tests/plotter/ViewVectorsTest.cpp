// Whole sessions with a graph against expected results: zoom, move, reset, undo, box zoom, tap,
// trace, Cal, options.

#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "plotter/GraphModel.h"
#include "plotter/VectorLines.h"

namespace vexa {
namespace {

using namespace test;

PixelPoint Point(const QJsonValue& command, int index) {
  return {command[index].toInt(), command[index + 1].toInt()};
}

std::wstring RunOptions(GraphModel& graph, const QJsonValue& command) {
  RangeTexts texts;
  for (int i = 0; i < 4; ++i) texts[static_cast<std::size_t>(i)] = Text(command[i + 1]);
  const RangeReading reading = ReadOrderedRanges(texts);
  if (!reading.sentence.empty()) return reading.sentence;
  graph.ApplyOptions(reading.ranges,
                     {command[5].toBool(), command[6].toBool(), command[7].toBool()});
  return {};
}

/// Runs a command and returns the sentences that it shows.
QStringList RunCommand(GraphModel& graph, const QJsonValue& command) {
  std::vector<std::wstring> sentences;
  const auto press = [&](PixelPoint from, PixelPoint to) {
    sentences.push_back(graph.PenDown(from));
    sentences.push_back(graph.PenUp(to));
  };
  const auto show = [&](auto run) {
    return [&sentences, &graph, run](const QJsonValue&) { sentences.push_back((graph.*run)()); };
  };
  const std::map<QString, std::function<void(const QJsonValue&)>> commands{
      {"zoom_in", show(&GraphModel::ZoomIn)},
      {"zoom_out", show(&GraphModel::ZoomOut)},
      {"move_left", show(&GraphModel::MoveLeft)},
      {"move_right", show(&GraphModel::MoveRight)},
      {"move_up", show(&GraphModel::MoveUp)},
      {"move_down", show(&GraphModel::MoveDown)},
      {"reset", show(&GraphModel::Reset)},
      {"undo", show(&GraphModel::Undo)},
      {"trace", [&](const QJsonValue&) { graph.ToggleTrace(); }},
      {"options", [&](const QJsonValue& c) { sentences.push_back(RunOptions(graph, c)); }},
      {"tap", [&](const QJsonValue& c) { press(Point(c, 1), Point(c, 1)); }},
      {"box", [&](const QJsonValue& c) { press(Point(c, 1), Point(c, 3)); }},
      {"cal",
       [&](const QJsonValue& c) {
         graph.xBox = Text(c[1]);
         sentences.push_back(graph.Cal());
       }},
  };
  commands.at(command[0].toString())(command);
  QStringList shown;
  for (const std::wstring& sentence : sentences) {
    if (!sentence.empty()) shown << QString::fromStdWString(sentence);
  }
  return shown;
}

QStringList Strings(const QJsonValue& value) {
  QStringList strings;
  for (const QJsonValue text : value.toArray()) strings << text.toString();
  return strings;
}

void CheckState(const GraphModel& graph, const QStringList& messages, const QJsonValue& expected) {
  const PlotRanges ranges = Ranges(expected["ranges"]);
  EXPECT_EQ(graph.Ranges().xMin, ranges.xMin);
  EXPECT_EQ(graph.Ranges().xMax, ranges.xMax);
  EXPECT_EQ(graph.Ranges().yMin, ranges.yMin);
  EXPECT_EQ(graph.Ranges().yMax, ranges.yMax);
  EXPECT_EQ(graph.IsAtHome(), expected["at_home"].toBool());
  EXPECT_EQ(graph.IsTracing(), expected["trace"].toBool());
  EXPECT_EQ(messages.join("|").toStdString(),
            Strings(expected["messages"]).join("|").toStdString());
  EXPECT_EQ(graph.xBox, Text(expected["x_box"]));
  QStringList labels;
  for (const std::wstring& label : graph.Labels()) labels << QString::fromStdWString(label);
  EXPECT_EQ(labels.join("|").toStdString(), Strings(expected["labels"]).join("|").toStdString());
  QStringList readOuts;
  for (std::size_t i = 0; i < graph.ReadOuts().size(); ++i) {
    readOuts << QString::fromStdWString(graph.ReadOutLine(i));
  }
  EXPECT_EQ(readOuts.join("|").toStdString(), Strings(expected["readout"]).join("|").toStdString());
}

TEST(ViewVectors, Sessions) {
  const std::vector<QJsonObject> vectors = ReadJsonLines("view.jsonl");
  ASSERT_EQ(vectors.size(), 73u);
  int steps = 0;
  for (const QJsonObject& vector : vectors) {
    SCOPED_TRACE("session " + std::to_string(vector["id"].toInt()));
    GraphData data = Graph(vector);
    data.options.coordinates = vector["coordinates"].toBool();
    GraphModel graph(data, static_cast<DisplayType>(vector["display_type"].toInt()),
                     vector["precision"].toInt());
    CheckState(graph, {}, vector["start"]);
    for (const QJsonValue step : vector["steps"].toArray()) {
      SCOPED_TRACE("step " + std::to_string(steps) + ", " + step[0][0].toString().toStdString());
      const QStringList messages = RunCommand(graph, step[0]);
      CheckState(graph, messages, step[1]);
      ++steps;
    }
  }
  EXPECT_EQ(steps, 733);
}

}  // namespace
}  // namespace vexa
