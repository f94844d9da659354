#include "stats/JsonVectors.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include "support/Vectors.h"

namespace vexa::test {

std::vector<QJsonObject> ReadCases(const std::string& name) {
  std::vector<QJsonObject> cases;
  QFile file(QString::fromStdString(VectorPath(name)));
  if (!file.open(QIODevice::ReadOnly)) return cases;
  while (!file.atEnd()) cases.push_back(QJsonDocument::fromJson(file.readLine()).object());
  return cases;
}

Rows RowsIn(const QJsonValue& value) {
  Rows rows;
  for (const QJsonValue row : value.toArray()) {
    rows.emplace_back();
    for (const QJsonValue cell : row.toArray()) rows.back().push_back(Bytes(cell));
  }
  return rows;
}

std::string Bytes(const QJsonValue& value) {
  return value.toString().toLatin1().toStdString();
}

double Double(const QJsonValue& value) {
  return HexDouble(value.toString().toStdString());
}

}  // namespace vexa::test
