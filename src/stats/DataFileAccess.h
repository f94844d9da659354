#pragma once

#include <QString>

#include "stats/DataFile.h"
#include "stats/FilePieces.h"

namespace vexa {

/// Reads the data file at `path` into `data`. A file with more than `mostRows` rows is refused; the
/// rows of a large one are counted before it is read.
FileOutcome LoadDataFile(const QString& path, std::size_t columns, std::size_t mostRows,
                         const ProgressWatcher& watcher, DataSet& data);

/// Writes `rows` to the file at `path`. The file is replaced whole.
FileOutcome SaveDataFile(const QString& path, const PackedRows& rows,
                         const ProgressWatcher& watcher);

}  // namespace vexa
