#include "stats/DataFileAccess.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <algorithm>
#include <new>
#include <vector>

namespace vexa {
namespace {

/// Bytes between two reports.
constexpr qint64 kPieceSize = qint64{1} << 18;

double Share(double part, double whole) {
  return whole > 0 ? part / whole : 1.0;
}

FileOutcome ReadFile(QFile& file, std::size_t mostRows, DataFileReader& reader,
                     const ProgressWatcher& watcher) {
  const qint64 length = file.size();
  std::vector<char> piece(static_cast<std::size_t>(std::min(kPieceSize, length)));
  for (qint64 done = 0; done < length;) {
    const qint64 wanted = std::min<qint64>(length - done, static_cast<qint64>(piece.size()));
    const qint64 size = file.read(piece.data(), wanted);
    if (size < 0) return FileOutcome::Failed;
    // The file has become shorter: what there was is its content.
    if (size == 0) break;
    reader.Feed({piece.data(), static_cast<std::size_t>(size)});
    if (reader.RowCount() > mostRows) return FileOutcome::Failed;
    done += size;
    const double share = Share(static_cast<double>(done), static_cast<double>(length));
    if (!watcher(share)) return FileOutcome::Stopped;
  }
  return FileOutcome::Done;
}

}  // namespace

FileOutcome LoadDataFile(const QString& path, std::size_t columns, std::size_t mostRows,
                         const ProgressWatcher& watcher, DataSet& data) try {
  // Devices and pipes have no length, and may never end.
  if (!QFileInfo(path).isFile()) return FileOutcome::Failed;
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) return FileOutcome::Failed;
  DataFileReader reader(columns);
  const FileOutcome outcome = ReadFile(file, mostRows, reader, watcher);
  if (outcome == FileOutcome::Done) data = reader.Finish();
  return outcome;
} catch (const std::bad_alloc&) {
  // Larger than the memory: as good as unreadable.
  return FileOutcome::Failed;
}

FileOutcome SaveDataFile(const QString& path, const PackedRows& rows,
                         const ProgressWatcher& watcher) try {
  const QFileInfo target(path);
  if (target.exists() && !target.isFile()) return FileOutcome::Failed;
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return FileOutcome::Failed;
  std::string bytes;
  for (std::size_t row = 0; row < rows.Count();) {
    bytes.clear();
    while (row < rows.Count() && std::ssize(bytes) < kPieceSize) AppendRow(rows, row++, bytes);
    const auto size = static_cast<qint64>(bytes.size());
    if (file.write(bytes.data(), size) != size) return FileOutcome::Failed;
    const double share = Share(static_cast<double>(row), static_cast<double>(rows.Count()));
    // What was written goes with the object; the file that was there stays.
    if (!watcher(share)) return FileOutcome::Stopped;
  }
  return file.commit() ? FileOutcome::Done : FileOutcome::Failed;
} catch (const std::bad_alloc&) {
  return FileOutcome::Failed;
}

}  // namespace vexa
