#include "stats/FilePieces.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <algorithm>
#include <cerrno>
#include <new>
#include <system_error>
#include <vector>

namespace vexa {
namespace {

FileOutcome FailedFor(int error) {
  return vexa::FailedFor(QString::fromStdString(std::system_category().message(error)));
}

/// What stands against using `path` as a file: devices and pipes have no length, and may never end.
FileOutcome Refusal(const QFileInfo& path) {
  if (path.isDir()) return FailedFor(EISDIR);
  if (path.exists() && !path.isFile()) {
    return vexa::FailedFor(QStringLiteral("Not an ordinary file"));
  }
  return {};
}

/// The toolkit does not always know why a write failed; the system does.
FileOutcome WritingFailed(const QSaveFile& file) {
  return errno != 0 ? FailedFor(errno) : vexa::FailedFor(file.errorString());
}

}  // namespace

FileOutcome FailedFor(const QString& reason) {
  return {FileEnd::Failed, reason};
}

FileOutcome ReadPieces(const QString& path, const ProgressWatcher& watcher,
                       const std::function<FileOutcome(std::string_view bytes)>& take) try {
  const FileOutcome refusal = Refusal(QFileInfo(path));
  if (refusal.end != FileEnd::Done) return refusal;
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) return FailedFor(file.errorString());
  // Files that the system makes up as they are read have no length: these are read to their end.
  const qint64 length = file.size();
  std::vector<char> piece(kPieceSize);
  for (qint64 done = 0; length == 0 || done < length;) {
    const auto room = static_cast<qint64>(piece.size());
    const qint64 size = file.read(piece.data(), length == 0 ? room : std::min(room, length - done));
    if (size < 0) return FailedFor(file.errorString());
    // The file has become shorter: what there was is its content.
    if (size == 0) break;
    const FileOutcome taken = take(std::string_view(piece.data(), static_cast<std::size_t>(size)));
    if (taken.end != FileEnd::Done) return taken;
    done += size;
    const bool toldLength = length > 0;
    const double share = toldLength ? static_cast<double>(done) / static_cast<double>(length) : 0.0;
    if (!watcher(share)) return {FileEnd::Stopped};
  }
  return {};
} catch (const std::bad_alloc&) {
  return FailedFor(ENOMEM);
}

FileOutcome WritePieces(const QString& path, FileAccess access, const ProgressWatcher& watcher,
                        const std::function<double(std::string& bytes)>& give) try {
  const FileOutcome refusal = Refusal(QFileInfo(path));
  if (refusal.end != FileEnd::Done) return refusal;
  QSaveFile file(path);
  // A buffer's last write fails unseen: the toolkit commits without it.
  if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) return FailedFor(file.errorString());
  if (access == FileAccess::OwnerOnly) file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
  std::string bytes;
  for (double given = 0.0; given < 1.0;) {
    bytes.clear();
    given = give(bytes);
    const auto size = static_cast<qint64>(bytes.size());
    errno = 0;
    if (file.write(bytes.data(), size) != size) return WritingFailed(file);
    // What was written goes with the object; the file that was there stays.
    if (!watcher(given)) return {FileEnd::Stopped};
  }
  errno = 0;
  return file.commit() ? FileOutcome{} : WritingFailed(file);
} catch (const std::bad_alloc&) {
  return FailedFor(ENOMEM);
}

}  // namespace vexa
