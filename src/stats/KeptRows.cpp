#include "stats/KeptRows.h"

#include <utility>
#include <vector>

#include "stats/CellValue.h"
#include "stats/WrappedSum.h"

namespace vexa {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr char kCellEnd = '\t';
/// What the last line starts with; no row does.
constexpr std::string_view kEnd = "end ";

/// The checksum of what `checksum` is the checksum of and `bytes` behind it (Adler's).
std::uint32_t Checked(std::uint32_t checksum, std::string_view bytes) {
  constexpr std::uint32_t kModulus = 65521;
  std::uint32_t sum = checksum & 0xFFFFU;
  std::uint32_t sumOfSums = checksum >> 16U;
  for (const char c : bytes) {
    sum = (sum + static_cast<unsigned char>(c) + 1U) % kModulus;
    sumOfSums = (sumOfSums + sum) % kModulus;
  }
  return sumOfSums << 16U | sum;
}

std::string EndLine(std::size_t rowCount, std::uint32_t checksum) {
  return std::string(kEnd) + std::to_string(rowCount) + ' ' + std::to_string(checksum) +
         std::string(kLineEnd);
}

}  // namespace

std::string KeptRowsWriter::Start(std::size_t columns) {
  return "Vexa Calculator, kept rows, columns: " + std::to_string(columns) + std::string(kLineEnd);
}

void KeptRowsWriter::AppendRow(const PackedRows& rows, std::size_t row, std::string& bytes) {
  const std::size_t start = bytes.size();
  vexa::AppendRow(rows, row, bytes);
  checksum = Checked(checksum, std::string_view(bytes).substr(start));
  ++rowCount;
}

std::string KeptRowsWriter::End() const {
  return EndLine(rowCount, checksum);
}

KeptRowsReader::KeptRowsReader(std::size_t columnCount)
    : columns(columnCount), data{PackedRows(columnCount)} {}

bool KeptRowsReader::Feed(std::string_view bytes) {
  while (!bytes.empty()) {
    const std::size_t end = bytes.find('\n');
    const std::size_t taken = end == std::string_view::npos ? bytes.size() : end + 1;
    line += bytes.substr(0, taken);
    bytes.remove_prefix(taken);
    if (!line.ends_with('\n')) continue;
    if (!TakeLine(line)) return false;
    line.clear();
  }
  return true;
}

bool KeptRowsReader::TakeLine(std::string_view text) {
  if (part == Part::Start) {
    part = Part::Rows;
    return text == KeptRowsWriter::Start(columns);
  }
  if (part == Part::End) return false;
  if (text.starts_with(kEnd)) {
    part = Part::End;
    return text == EndLine(data.rows.Count(), checksum);
  }
  checksum = Checked(checksum, text);
  return TakeRow(text);
}

bool KeptRowsReader::TakeRow(std::string_view text) {
  if (!text.ends_with(kLineEnd)) return false;
  text.remove_suffix(kLineEnd.size());
  std::vector<std::string> cells{{}};
  for (const char c : text) {
    if (c == kCellEnd) {
      cells.emplace_back();
    } else {
      cells.back() += c;
    }
  }
  if (cells.size() != columns) return false;
  data.total = WrappedSum(data.total, CellCount(cells.back()));
  data.rows.Append(cells);
  ++data.completeRows;
  return true;
}

std::optional<DataSet> KeptRowsReader::Finish() {
  if (part != Part::End || !line.empty()) return std::nullopt;
  return std::move(data);
}

}  // namespace vexa
