#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "stats/Progress.h"
#include "stats/Reordered.h"

namespace vexa {

/// Rows of texts, packed for millions of them: a row takes its characters, one byte for the length
/// of each short text, and a pointer. What was moved from has no rows, and can be used on.
class PackedRows {
 public:
  explicit PackedRows(std::size_t columnCount) : columns(columnCount) {}

  std::size_t Columns() const { return columns; }
  std::size_t Count() const { return rows.size(); }
  /// Valid until the row is replaced or removed, or the object is assigned to.
  std::string_view Cell(std::size_t row, std::size_t column) const;
  /// All texts of a row, one for each column.
  void Cells(std::size_t row, std::span<std::string_view> cells) const;

  /// Each takes one text for every column.
  void Append(std::span<const std::string> cells) { rows.push_back(Stored(cells)); }
  void InsertFront(std::span<const std::string> cells);
  void Replace(std::size_t row, std::span<const std::string> cells);

  void Remove(std::size_t row);
  /// The rows in an order of their own, valid while no row is added, replaced or removed.
  using Arrangement = std::vector<const char*>;
  /// The arrangement with the row that stands at order[i] at i; `order` names every row once. None:
  /// `watcher` stopped it.
  std::optional<Arrangement> Arranged(std::span<const std::size_t> order,
                                      const ProgressWatcher& watcher) const {
    return Reordered(rows, order, watcher);
  }
  void Arrange(Arrangement arrangement) { rows = std::move(arrangement); }

 private:
  struct Block {
    std::unique_ptr<char[]> bytes;
    std::size_t size;
    std::size_t used;
  };

  /// Keeps the texts and returns where: the length of each text, then its characters.
  const char* Stored(std::span<const std::string> cells);
  char* Take(std::size_t size);

  std::size_t columns;
  Arrangement rows;
  /// The texts of all rows; those of replaced and removed rows stay until the object goes.
  std::vector<Block> blocks;
};

}  // namespace vexa
