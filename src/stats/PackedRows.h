#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vexa {

/// Rows of texts, packed for millions of them: a row takes its characters, one byte for the length
/// of each short text, and a pointer.
class PackedRows {
 public:
  explicit PackedRows(std::size_t columnCount) : columns(columnCount) {}

  std::size_t Columns() const { return columns; }
  std::size_t Count() const { return rows.size(); }
  /// Valid until the row is replaced or removed, or the object is assigned to.
  std::string_view Cell(std::size_t row, std::size_t column) const;

  /// Each takes one text for every column.
  void Append(std::span<const std::string> cells) { rows.push_back(Stored(cells)); }
  void InsertFront(std::span<const std::string> cells);
  void Replace(std::size_t row, std::span<const std::string> cells);

  void Remove(std::size_t row);
  /// The rows in an order of their own, valid while no row is added, replaced or removed.
  using Arrangement = std::vector<const char*>;
  /// The arrangement with the row that stands at order[i] at i; `order` names every row once.
  Arrangement Arranged(std::span<const std::size_t> order) const;
  void Arrange(Arrangement arrangement) { rows = std::move(arrangement); }

 private:
  /// Keeps the texts and returns where: the length of each text, then its characters.
  const char* Stored(std::span<const std::string> cells);
  char* Reserve(std::size_t size);

  std::size_t columns;
  Arrangement rows;
  /// The texts of all rows; those of replaced and removed rows stay until the object goes.
  std::vector<std::unique_ptr<char[]>> blocks;
  char* free = nullptr;
  std::size_t room = 0;
};

}  // namespace vexa
