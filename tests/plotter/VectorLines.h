#pragma once

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <string>
#include <vector>

#include "plotter/GraphFunction.h"
#include "support/Vectors.h"

namespace vexa::test {

/// The objects of tests/vectors/`name`, one for each line.
inline std::vector<QJsonObject> ReadJsonLines(const char* name) {
  std::vector<QJsonObject> lines;
  QFile file(QString::fromStdString(VectorPath(name)));
  if (!file.open(QIODevice::ReadOnly)) return lines;
  while (!file.atEnd()) lines.push_back(QJsonDocument::fromJson(file.readLine()).object());
  return lines;
}

inline std::wstring Text(const QJsonValue& value) {
  return value.toString().toStdWString();
}

inline double Number(const QJsonValue& value) {
  return HexDouble(value.toString().toStdString());
}

inline PlotRanges Ranges(const QJsonValue& value) {
  return {Number(value[0]), Number(value[1]), Number(value[2]), Number(value[3])};
}

/// What a vector's functions, ranges, angle type and data points make up. A function that is no
/// formula of X has no records.
inline GraphData Graph(const QJsonObject& vector) {
  GraphData graph;
  graph.ranges = Ranges(vector["ranges"]);
  graph.angleType = static_cast<AngleType>(vector["angle"].toInt());
  for (const QJsonValue text : vector["functions"].toArray()) {
    GraphFunction function;
    ParseGraphFunction(graph.functions.size(), Text(text), function);
    graph.functions.push_back(function);
  }
  for (const QJsonValue point : vector["data_points"].toArray()) {
    graph.dataPoints.push_back({Number(point[0]), Number(point[1])});
  }
  return graph;
}

}  // namespace vexa::test
