#pragma once

#include <QString>

#include "stats/DataFile.h"
#include "stats/Progress.h"

namespace vexa {

/// How the reading or writing of a file ended. Unless it is Done, everything is as it was.
enum class FileOutcome { Done, Failed, Stopped };

/// Reads the data file at `path` into `data`. What the file gains while it is read is left out. A
/// file with more than `mostRows` rows is as good as unreadable.
FileOutcome LoadDataFile(const QString& path, std::size_t columns, std::size_t mostRows,
                         const ProgressWatcher& watcher, DataSet& data);

/// Writes `rows` to the file at `path`. The file is replaced whole.
FileOutcome SaveDataFile(const QString& path, const PackedRows& rows,
                         const ProgressWatcher& watcher);

}  // namespace vexa
