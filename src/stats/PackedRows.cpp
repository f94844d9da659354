#include "stats/PackedRows.h"

#include <algorithm>
#include <utility>

namespace vexa {
namespace {

constexpr std::size_t kBlockSize = std::size_t{1} << 18;

// A length is written in groups of seven bits, the lowest first; the top bit says that more follow.
constexpr unsigned kGroupBits = 7;
constexpr std::size_t kGroupMask = 0x7f;
constexpr std::size_t kMoreFollow = 0x80;

std::size_t LengthSize(std::size_t length) {
  std::size_t size = 1;
  while (length >>= kGroupBits) ++size;
  return size;
}

char* WriteLength(char* to, std::size_t length) {
  for (; length > kGroupMask; length >>= kGroupBits) {
    *to++ = static_cast<char>((length & kGroupMask) | kMoreFollow);
  }
  *to++ = static_cast<char>(length);
  return to;
}

/// The text at `from`, which moves behind it.
std::string_view TakeText(const char*& from) {
  std::size_t length = 0;
  for (unsigned shift = 0;; shift += kGroupBits) {
    const auto group = static_cast<unsigned char>(*from++);
    length |= (group & kGroupMask) << shift;
    if ((group & kMoreFollow) == 0) break;
  }
  const std::string_view text(from, length);
  from += length;
  return text;
}

}  // namespace

std::string_view PackedRows::Cell(std::size_t row, std::size_t column) const {
  const char* at = rows[row];
  for (; column > 0; --column) TakeText(at);
  return TakeText(at);
}

void PackedRows::Cells(std::size_t row, std::span<std::string_view> cells) const {
  const char* at = rows[row];
  for (std::string_view& cell : cells) cell = TakeText(at);
}

void PackedRows::InsertFront(std::span<const std::string> cells) {
  rows.insert(rows.begin(), Stored(cells));
}

void PackedRows::Replace(std::size_t row, std::span<const std::string> cells) {
  rows[row] = Stored(cells);
}

void PackedRows::Remove(std::size_t row) {
  rows.erase(rows.begin() + static_cast<std::ptrdiff_t>(row));
}

const char* PackedRows::Stored(std::span<const std::string> cells) {
  std::size_t size = 0;
  for (const std::string& cell : cells) size += LengthSize(cell.size()) + cell.size();
  char* const stored = Take(size);
  char* to = stored;
  for (const std::string& cell : cells) {
    to = WriteLength(to, cell.size());
    to = std::copy(cell.begin(), cell.end(), to);
  }
  return stored;
}

char* PackedRows::Take(std::size_t size) {
  if (blocks.empty() || size > blocks.back().size - blocks.back().used) {
    const std::size_t blockSize = std::max(size, kBlockSize);
    blocks.push_back({std::make_unique_for_overwrite<char[]>(blockSize), blockSize, 0});
  }
  Block& block = blocks.back();
  return block.bytes.get() + std::exchange(block.used, block.used + size);
}

}  // namespace vexa
