#pragma once

#include <string>

#include "stats/DataFile.h"
#include "terminal/Command.h"

namespace vexa::terminal {

/// What the numbers of a row are.
enum RowKind : int { kX, kXCount, kXY, kXYCount };

inline constexpr Choice kRowChoices[] = {
    {"x", kX, ""},
    {"xn", kXCount, "X and its count, as 1-Var Statistics saves"},
    {"xy", kXY, ""},
    {"xyn", kXYCount, "X, Y and count, as 2-Var Statistics saves"},
};
inline constexpr Option kRowsOption{.name = "rows",
                                    .letter = 'r',
                                    .value = "KIND",
                                    .help =
                                        "What the numbers of a line are; left out: as many as its "
                                        "first line has tell",
                                    .choices = kRowChoices};

/// Rows from a file.
struct DataInput {
  DataSet data;
  /// Whether rows have a Y.
  bool pairs = false;
  /// What is wrong; empty: success.
  std::string error{};
};

/// Reads the file at `path`, "-" is the standard input. Where `pairsWanted`, two numbers of a line
/// are X and Y.
DataInput ReadData(const Given& given, const std::string& path, bool pairsWanted);

}  // namespace vexa::terminal
