#include "stats/KeptRowsFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>

#include "files/UserFolders.h"
#include "stats/KeptRows.h"

namespace vexa {
namespace {

const QString kSuffix = QStringLiteral(".rows");
const QString kDamaged = QStringLiteral("The file is damaged");
/// With this many, somebody should look before there are more.
constexpr int kMostFiles = 1000;

}  // namespace

QString KeptRowsFiles::Path(int number) const {
  // All at once: a folder's name may have a "%1" of its own.
  return QStringLiteral("%1/unsaved-%2-var-%3%4")
      .arg(folder, QString::number(columns - 1), QString::number(number), kSuffix);
}

int KeptRowsFiles::LatestNumber() const {
  if (folder.isEmpty()) return 0;
  const QString start = QFileInfo(Path(0)).fileName().chopped(kSuffix.size() + 1);
  int latest = 0;
  for (const QString& name : QDir(folder).entryList({start + u'*' + kSuffix}, QDir::Files)) {
    const QString number = name.mid(start.size()).chopped(kSuffix.size());
    if (Path(number.toInt()).endsWith(name)) latest = std::max(latest, number.toInt());
  }
  return latest;
}

std::optional<QString> KeptRowsFiles::Latest() const {
  const int number = LatestNumber();
  return number > 0 ? std::optional(Path(number)) : std::nullopt;
}

FileOutcome KeptRowsFiles::Keep(const PackedRows& rows) const {
  const int number = LatestNumber() + 1;
  if (folder.isEmpty() || number > kMostFiles) return FailedFor(QStringLiteral("No place"));
  MakePrivateFolder(QFile::encodeName(folder).toStdString());
  KeptRowsWriter writer;
  std::size_t row = 0;
  return WritePieces(Path(number), FileAccess::OwnerOnly, Unwatched, [&](std::string& bytes) {
    if (row == 0) bytes += KeptRowsWriter::Start(columns);
    while (row < rows.Count() && bytes.size() < kPieceSize) writer.AppendRow(rows, row++, bytes);
    if (row < rows.Count()) return 0.0;
    bytes += writer.End();
    return 1.0;
  });
}

FileOutcome KeptRowsFiles::Read(const QString& path, const ProgressWatcher& watcher,
                                DataSet& data) const {
  KeptRowsReader reader(columns);
  bool damaged = false;
  const FileOutcome outcome = ReadPieces(path, watcher, [&](std::string_view bytes) {
    damaged = !reader.Feed(bytes);
    return damaged ? FailedFor(kDamaged) : FileOutcome{};
  });
  if (outcome.end != FileEnd::Done && !damaged) return outcome;
  std::optional<DataSet> rows = reader.Finish();
  if (!rows) return SetAside(path);
  data = *std::move(rows);
  return outcome;
}

FileOutcome KeptRowsFiles::SetAside(const QString& path) {
  for (int n = 1; n <= kMostFiles; ++n) {
    const QString name = QStringLiteral("%1.damaged-%2").arg(path, QString::number(n));
    // The toolkit's renaming overwrites nothing.
    if (QFile::rename(path, name)) {
      return FailedFor(kDamaged + QStringLiteral(", and was renamed to %1").arg(name));
    }
  }
  return FailedFor(kDamaged);
}

}  // namespace vexa
