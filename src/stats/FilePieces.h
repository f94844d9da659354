#pragma once

#include <QString>
#include <functional>
#include <string>
#include <string_view>

#include "stats/Progress.h"

namespace vexa {

/// How the reading or writing of a file ended. Unless it is done, everything is as it was.
enum class FileEnd { Done, Failed, Stopped };
struct FileOutcome {
  FileEnd end = FileEnd::Done;
  /// Why it failed.
  QString reason{};
};

/// The failure with this reason.
FileOutcome FailedFor(const QString& reason);

/// Hands the content of the file at `path` to `take` in pieces, until `take` answers with something
/// else than FileEnd::Done. What the file gains while it is read is left out.
FileOutcome ReadPieces(const QString& path, const ProgressWatcher& watcher,
                       const std::function<FileOutcome(std::string_view bytes)>& take);

/// Who may read and write a file that is made: everybody whom the system lets, or its owner only.
enum class FileAccess { Ordinary, OwnerOnly };

/// Replaces the file at `path` whole by the bytes that `give` appends, and answers the share of
/// them that is given: 1 with the last ones.
FileOutcome WritePieces(const QString& path, FileAccess access, const ProgressWatcher& watcher,
                        const std::function<double(std::string& bytes)>& give);
/// What `give` should append at least, unless it is at the end.
inline constexpr std::size_t kPieceSize = std::size_t{1} << 18;

}  // namespace vexa
