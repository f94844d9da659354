#include "stats/DataFileAccess.h"

#include <QFileInfo>

#include "stats/RowCounter.h"

namespace vexa {
namespace {

/// The least that a cell takes in a file: a character and what ends it.
constexpr std::size_t kLeastCell = 2;

FileOutcome TooManyRows(std::size_t mostRows) {
  return FailedFor(QStringLiteral("More rows than the list can hold, which are %1").arg(mostRows));
}

/// Takes the file's pieces with `reader` while it has no more than `mostRows` rows.
template <typename Reader>
FileOutcome ReadRows(const QString& path, std::size_t mostRows, const ProgressWatcher& watcher,
                     Reader& reader) {
  return ReadPieces(path, watcher, [&](std::string_view bytes) {
    reader.Feed(bytes);
    return reader.RowCount() > mostRows ? TooManyRows(mostRows) : FileOutcome{};
  });
}

}  // namespace

FileOutcome LoadDataFile(const QString& path, std::size_t columns, std::size_t mostRows,
                         const ProgressWatcher& watcher, DataSet& data) {
  const auto length = static_cast<std::size_t>(QFileInfo(path).size());
  if (length / (kLeastCell * columns) > mostRows) {
    RowCounter counter(columns);
    const auto notBegun = [&](double) { return watcher(0.0); };
    FileOutcome counted = ReadRows(path, mostRows, notBegun, counter);
    if (counted.end != FileEnd::Done) return counted;
  }
  DataFileReader reader(columns);
  FileOutcome outcome = ReadRows(path, mostRows, watcher, reader);
  if (outcome.end == FileEnd::Done) data = reader.Finish();
  return outcome;
}

FileOutcome SaveDataFile(const QString& path, const PackedRows& rows,
                         const ProgressWatcher& watcher) {
  std::size_t row = 0;
  return WritePieces(path, FileAccess::Ordinary, watcher, [&](std::string& bytes) {
    while (row < rows.Count() && bytes.size() < kPieceSize) AppendRow(rows, row++, bytes);
    return row < rows.Count() ? static_cast<double>(row) / static_cast<double>(rows.Count()) : 1.0;
  });
}

}  // namespace vexa
