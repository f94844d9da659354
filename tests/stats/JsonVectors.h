#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <string>
#include <vector>

#include "stats/Lists.h"

/// Reading of the tables of expected results that are kept as JSON, a line for each case.
namespace vexa::test {

/// The cases of tests/vectors/`name`; none when it cannot be read.
std::vector<QJsonObject> ReadCases(const std::string& name);

/// An array of rows of texts.
Rows RowsIn(const QJsonValue& value);
/// A text of single bytes.
std::string Bytes(const QJsonValue& value);
/// A double in hexadecimal text.
double Double(const QJsonValue& value);

}  // namespace vexa::test
