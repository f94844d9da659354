#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "stats/DataFile.h"

namespace vexa {

// The file of rows that are kept aside until they are wanted again: a line that says what it is,
// the rows as a data file has them, and a line with their number and a checksum. Unlike a data file
// it is read strictly, so that no part of a file is taken for the whole.

/// Writes such a file, piece by piece.
class KeptRowsWriter {
 public:
  /// What goes before the rows.
  static std::string Start(std::size_t columns);
  /// Appends row `row` to `bytes`.
  void AppendRow(const PackedRows& rows, std::size_t row, std::string& bytes);
  /// What goes behind the rows.
  std::string End() const;

 private:
  std::size_t rowCount = 0;
  std::uint32_t checksum = 0;
};

/// Reads such a file, piece by piece.
class KeptRowsReader {
 public:
  explicit KeptRowsReader(std::size_t columnCount);

  /// Takes the next bytes of the file. False: it is damaged.
  bool Feed(std::string_view bytes);
  /// The rows; none: the file is damaged, or was not whole.
  std::optional<DataSet> Finish();

 private:
  bool TakeLine(std::string_view text);
  bool TakeRow(std::string_view text);

  enum class Part { Start, Rows, End };
  Part part = Part::Start;
  std::size_t columns;
  std::string line;
  std::uint32_t checksum = 0;
  DataSet data;
};

}  // namespace vexa
