#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace vexa::terminal {

/// Reads an open file line by line in little memory, however long a line is.
class LineReader {
 public:
  /// Bytes of a line that are read; what stands behind them is skipped.
  static constexpr std::size_t kLongestLine = std::size_t{1} << 16;

  /// `beforeWaiting` is called each time before more bytes are awaited.
  explicit LineReader(
      int fileDescriptor, std::function<void()> beforeWaiting = [] {});

  /// Reads the next line, which may lack its end at the end of the file. False: there is none.
  bool Next();

  /// The line without its end, "\n" or "\r\n"; valid until the next one is read.
  std::string_view Line() const { return line; }
  /// Whether the line is longer than what Line() has of it.
  bool IsTooLong() const { return tooLong; }
  /// Lines that were read, the current one included.
  std::size_t Number() const { return number; }
  /// Why the file could not be read to its end, in the system's words; empty: it could.
  std::string Failure() const;

 private:
  std::size_t LengthToLineEnd(std::size_t known) const;
  bool TakeLongLine();
  bool Fill();

  int file;
  std::function<void()> wait;
  std::string buffer;
  std::string longLine;
  std::size_t start = 0;
  std::size_t end = 0;
  bool atEnd = false;
  int error = 0;
  std::string_view line;
  bool tooLong = false;
  std::size_t number = 0;
};

}  // namespace vexa::terminal
