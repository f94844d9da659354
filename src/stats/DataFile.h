#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "stats/PackedRows.h"

namespace vexa {

/// What a data file holds.
struct DataSet {
  PackedRows rows;
  /// The sum of the rows' counts, in 32 bits.
  std::int32_t total = 0;
  /// Rows with a text for every column. Only a file without any has an incomplete row.
  std::size_t completeRows = 0;
  /// Bytes that belong to no text and are no separators of an ordinary file: a heading has them,
  /// and a file that is no data file.
  std::size_t strangeBytes = 0;
};

/// Reads a data file: runs of number characters are the rows' texts in turn, everything else
/// separates them, so that no bytes are malformed. A row's last text is its count.
class DataFileReader {
 public:
  explicit DataFileReader(std::size_t columns);

  /// Takes the next bytes of the file.
  void Feed(std::string_view bytes);
  /// Complete rows that have been read.
  std::size_t RowCount() const { return data.completeRows; }
  /// What the file holds. A text that the end of the file cuts off is dropped, a row that misses
  /// some text too, unless it is the first one. The reader is ready for another file.
  DataSet Finish();

 private:
  void EndText();
  void AppendRow();
  void StartRow();
  bool AtCount() const { return field + 1 == texts.size(); }

  DataSet data;
  /// The row that is being read: a text for every column.
  std::vector<std::string> texts;
  std::size_t field = 0;
};

/// Appends row `row` to `bytes` as a data file has it: the texts separated by tabs, "\r\n" behind.
void AppendRow(const PackedRows& rows, std::size_t row, std::string& bytes);

}  // namespace vexa
