#include "stats/Lists.h"

#include "stats/CellValue.h"
#include "stats/WrappedSum.h"

namespace vexa::test {

DataSet DataOf(std::size_t columns, const Rows& rows) {
  DataSet data{PackedRows(columns)};
  for (const auto& row : rows) {
    data.rows.Append(row);
    data.total = WrappedSum(data.total, CellCount(row.back()));
  }
  data.completeRows = rows.size();
  return data;
}

DataList ListOf(const Rows& rows) {
  const bool twoVar = !rows.empty() && rows.front().size() == std::size(kTwoVarColumns);
  DataList list = twoVar ? DataList(kTwoVarColumns) : DataList(kOneVarColumns);
  list.Load(DataOf(list.Columns().size(), rows));
  return list;
}

Rows RowsOf(const PackedRows& packed) {
  Rows rows;
  for (std::size_t row = 0; row < packed.Count(); ++row) {
    rows.emplace_back();
    for (std::size_t column = 0; column < packed.Columns(); ++column) {
      rows.back().emplace_back(packed.Cell(row, column));
    }
  }
  return rows;
}

std::string BytesOf(const PackedRows& rows) {
  std::string bytes;
  for (std::size_t row = 0; row < rows.Count(); ++row) AppendRow(rows, row, bytes);
  return bytes;
}

DataSet ReadBytes(std::size_t columns, std::string_view bytes, std::size_t pieceSize) {
  DataFileReader reader(columns);
  while (!bytes.empty()) {
    reader.Feed(bytes.substr(0, pieceSize));
    bytes.remove_prefix(std::min(pieceSize, bytes.size()));
  }
  return reader.Finish();
}

}  // namespace vexa::test
