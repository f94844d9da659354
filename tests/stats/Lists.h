#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "stats/DataList.h"

/// Lists for the tests, made from texts as a file would give them, whatever the texts are.
namespace vexa::test {

using Rows = std::vector<std::vector<std::string>>;

/// Rows and their total as a loaded file has them.
DataSet DataOf(std::size_t columns, const Rows& rows);
/// A list that holds `rows`: two texts a row for one variable, three for two.
DataList ListOf(const Rows& rows);
/// The texts of all rows.
Rows RowsOf(const PackedRows& rows);
/// Values and counts as pairs of one variable: {{"2", "3"}, {"4", "1"}}
inline Rows RowsOf(const DataList& list) {
  return RowsOf(list.Rows());
}

/// A file with these rows.
std::string BytesOf(const PackedRows& rows);
/// What a file with these bytes holds, fed in pieces of `pieceSize` bytes.
DataSet ReadBytes(std::size_t columns, std::string_view bytes, std::size_t pieceSize = 4096);

}  // namespace vexa::test
