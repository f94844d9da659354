#include "terminal/LineReader.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

namespace vexa::terminal {

LineReader::LineReader(int fileDescriptor, std::function<void()> beforeWaiting)
    : file(fileDescriptor), wait(std::move(beforeWaiting)), buffer(2 * kLongestLine, '\0') {}

bool LineReader::Next() {
  tooLong = false;
  std::size_t length = LengthToLineEnd(0);
  while (start + length == end && length <= kLongestLine && Fill()) {
    length = LengthToLineEnd(length);
  }
  if (length > kLongestLine) return TakeLongLine();
  if (length == 0 && start == end) return false;
  line = std::string_view(buffer).substr(start, length);
  start = std::min(start + length + 1, end);
  if (line.ends_with('\r')) line.remove_suffix(1);
  ++number;
  return true;
}

/// Characters of what was read that stand before the line's end, or before the end of what was
/// read; the first `known` of them are known not to be its end.
std::size_t LineReader::LengthToLineEnd(std::size_t known) const {
  const char* const from = buffer.data() + start;
  const void* const found = std::memchr(from + known, '\n', end - start - known);
  return found ? static_cast<std::size_t>(static_cast<const char*>(found) - from) : end - start;
}

/// Keeps the beginning of the line and reads over the rest.
bool LineReader::TakeLongLine() {
  longLine = buffer.substr(start, kLongestLine);
  line = longLine;
  tooLong = true;
  ++number;
  std::size_t rest = LengthToLineEnd(0);
  while (start + rest == end) {
    start = end;
    if (!Fill()) return true;
    rest = LengthToLineEnd(0);
  }
  start += rest + 1;
  return true;
}

/// Moves what is left to the front and reads more behind it; false: there is no more.
bool LineReader::Fill() {
  if (atEnd) return false;
  std::memmove(buffer.data(), buffer.data() + start, end - start);
  end -= start;
  start = 0;
  wait();
  ssize_t size = 0;
  do {
    size = read(file, buffer.data() + end, buffer.size() - end);
  } while (size < 0 && errno == EINTR);
  if (size < 0) error = errno;
  atEnd = size <= 0;
  if (!atEnd) end += static_cast<std::size_t>(size);
  return !atEnd;
}

std::string LineReader::Failure() const {
  return error == 0 ? std::string() : std::strerror(error);
}

}  // namespace vexa::terminal
