#include "stats/DataFile.h"

#include <algorithm>
#include <utility>

#include "stats/ByteKinds.h"
#include "stats/CellValue.h"
#include "stats/WrappedSum.h"

namespace vexa {
namespace {

/// Characters of a count that are read.
constexpr std::size_t kCountCharacters = 30;

bool IsNumberCharacter(char c) {
  return KindOf(c) == ByteKind::Number;
}

bool IsStrange(char c) {
  return KindOf(c) == ByteKind::Strange;
}

}  // namespace

DataFileReader::DataFileReader(std::size_t columns) : data{PackedRows(columns)}, texts(columns) {}

void DataFileReader::Feed(std::string_view bytes) {
  const auto end = bytes.end();
  for (auto at = bytes.begin(); at != end;) {
    const auto textEnd = std::find_if_not(at, end, IsNumberCharacter);
    texts[field].append(at, textEnd);
    // Of a count no more is kept than is read, however long it is.
    if (AtCount() && texts[field].size() > kCountCharacters) texts[field].resize(kCountCharacters);
    if (textEnd == end) return;
    if (!texts[field].empty()) EndText();
    at = std::find_if(textEnd, end, IsNumberCharacter);
    data.strangeBytes += static_cast<std::size_t>(std::count_if(textEnd, at, IsStrange));
  }
}

void DataFileReader::EndText() {
  if (!AtCount()) {
    ++field;
    return;
  }
  const std::int32_t count = CellCount(texts[field]);
  data.total = WrappedSum(data.total, count);
  texts[field] = std::to_string(count);
  ++data.completeRows;
  AppendRow();
}

void DataFileReader::AppendRow() {
  data.rows.Append(texts);
  StartRow();
}

void DataFileReader::StartRow() {
  for (std::string& text : texts) text.clear();
  field = 0;
}

DataSet DataFileReader::Finish() {
  texts[field].clear();
  // An incomplete first row is kept; meant.
  if (field > 0 && data.completeRows == 0) AppendRow();
  StartRow();
  return std::exchange(data, DataSet{PackedRows(texts.size())});
}

void AppendRow(const PackedRows& rows, std::size_t row, std::string& bytes) {
  for (std::size_t column = 0; column < rows.Columns(); ++column) {
    if (column > 0) bytes += '\t';
    bytes += rows.Cell(row, column);
  }
  bytes += "\r\n";
}

}  // namespace vexa
