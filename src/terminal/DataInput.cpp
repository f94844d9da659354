#include "terminal/DataInput.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <optional>

#include "terminal/CommandLine.h"
#include "terminal/Texts.h"

namespace vexa::terminal {
namespace {

constexpr std::size_t kPieceSize = std::size_t{1} << 18;
constexpr std::string_view kLineEnd = "\n";
constexpr std::string_view kDigits = "0123456789";
/// No line of names is longer.
constexpr std::size_t kLongestHeading = std::size_t{1} << 16;
/// Counts each row of a file without counts once.
constexpr std::string_view kCountedOnce = "\t1\n";

bool HasCount(RowKind kind) {
  return kind == kXCount || kind == kXYCount;
}
bool HasY(RowKind kind) {
  return kind == kXY || kind == kXYCount;
}

/// What the first line with numbers says. An "e" in a heading is no number.
RowKind KindOf(std::string_view bytes, bool pairsWanted) {
  std::size_t numbers = 0;
  for (bool inside = false; const char c : bytes) {
    const bool digit = kDigits.find(c) != std::string_view::npos;
    const bool part =
        digit || (inside && std::string_view(".e+-").find(c) != std::string_view::npos);
    numbers += part && !inside;
    inside = part;
    if (c == '\n' && numbers > 0) break;
  }
  if (numbers >= 3) return kXYCount;
  if (numbers == 2) return pairsWanted ? kXY : kXCount;
  return kX;
}

/// Feeds a reader with the lines that have digits, with a count behind each line that has none; or
/// with all of a file that is said to be as the desktop program writes it.
class RowFeeder {
 public:
  RowFeeder(RowKind kind, bool isSaid)
      : reader(HasY(kind) ? 3 : 2), counted(HasCount(kind)), asItIs(counted && isSaid) {}

  void Feed(std::string_view bytes) {
    if (asItIs) return reader.Feed(bytes);
    while (!bytes.empty()) {
      const std::size_t end = std::min(bytes.find('\n'), bytes.size());
      FeedPart(bytes.substr(0, end));
      if (end == bytes.size()) return;
      EndLine();
      bytes.remove_prefix(end + 1);
    }
  }
  DataSet Finish() {
    // Here, other than in the desktop program's files, the last line needs no end.
    if (!asItIs) EndLine();
    return reader.Finish();
  }

 private:
  void FeedPart(std::string_view part) {
    const bool hasDigit = part.find_first_of(kDigits) != part.npos;
    if (blank && !hasDigit && heading.size() + part.size() <= kLongestHeading) {
      heading += part;
      return;
    }
    if (blank) reader.Feed(heading);
    blank = false;
    reader.Feed(part);
  }
  void EndLine() {
    if (!blank) reader.Feed(counted ? kLineEnd : kCountedOnce);
    blank = true;
    heading.clear();
  }

  DataFileReader reader;
  bool counted;
  bool asItIs;
  /// Whether the line has no digit so far: then it is a heading's, and this is it.
  bool blank = true;
  std::string heading;
};

}  // namespace

DataInput ReadData(const Given& given, const std::string& path, bool pairsWanted) {
  DataInput input{.data = {PackedRows(0)}};
  const bool standard = path == "-";
  const std::string name = standard ? "standard input" : Narrow(Printable(Wide(path)));
  const int file = standard ? 0 : open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (file < 0) {
    input.error = name + ": " + std::strerror(errno);
    return input;
  }
  std::optional<RowKind> kind;
  const bool isSaid = given.Has(kRowsOption.name);
  if (isSaid) {
    kind = static_cast<RowKind>(*FindChoice(kRowChoices, given.One(kRowsOption.name)));
  }
  std::optional<RowFeeder> feeder;
  std::string piece(kPieceSize, '\0');
  for (;;) {
    const ssize_t size = read(file, piece.data(), piece.size());
    if (size < 0 && errno == EINTR) continue;
    if (size < 0) input.error = name + ": " + std::strerror(errno);
    if (size <= 0) break;
    const std::string_view bytes(piece.data(), static_cast<std::size_t>(size));
    if (!kind) kind = KindOf(bytes, pairsWanted);
    if (!feeder) feeder.emplace(*kind, isSaid);
    feeder->Feed(bytes);
  }
  if (!standard) close(file);
  if (!input.error.empty()) return input;
  if (!feeder) feeder.emplace(kind.value_or(pairsWanted ? kXY : kX), isSaid);
  input.data = feeder->Finish();
  input.pairs = HasY(kind.value_or(pairsWanted ? kXY : kX));
  return input;
}

}  // namespace vexa::terminal
