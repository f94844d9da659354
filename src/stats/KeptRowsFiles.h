#pragma once

#include <QString>
#include <optional>
#include <utility>

#include "stats/DataFile.h"
#include "stats/FilePieces.h"

namespace vexa {

/// The files of rows that were kept aside, for one kind of data, in a folder of the user's own.
/// None is ever overwritten.
class KeptRowsFiles {
 public:
  /// An empty `filesFolder`: nothing is kept.
  KeptRowsFiles(QString filesFolder, std::size_t columnCount)
      : folder(std::move(filesFolder)), columns(columnCount) {}

  /// The file that was kept last; none: there is none.
  std::optional<QString> Latest() const;
  /// Keeps `rows` in a new file.
  FileOutcome Keep(const PackedRows& rows) const;
  /// Reads the file at `path` into `data`. The file stays; one that is damaged gets another name,
  /// so that it is not offered again.
  FileOutcome Read(const QString& path, const ProgressWatcher& watcher, DataSet& data) const;

 private:
  /// The number of the file that was kept last; 0: there is none.
  int LatestNumber() const;
  QString Path(int number) const;
  static FileOutcome SetAside(const QString& path);

  QString folder;
  std::size_t columns;
};

}  // namespace vexa
