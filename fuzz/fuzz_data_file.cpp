// Any bytes as a data file of one or two variables: read whole or in pieces it is the same, what is
// saved loads the same, and its rows can be sorted, computed with and fitted.

#include <cmath>

#include "FuzzInput.h"
#include "stats/DataList.h"
#include "stats/Regression.h"
#include "stats/SummaryStatistics.h"

using namespace vexa;
using namespace vexa::fuzz;

namespace {

DataSet Read(std::size_t columns, std::string_view bytes, std::size_t pieceSize) {
  DataFileReader reader(columns);
  for (std::size_t at = 0; at < bytes.size(); at += pieceSize) {
    reader.Feed(bytes.substr(at, pieceSize));
  }
  return reader.Finish();
}

std::string Saved(const PackedRows& rows) {
  std::string bytes;
  for (std::size_t row = 0; row < rows.Count(); ++row) AppendRow(rows, row, bytes);
  return bytes;
}

void CheckSorted(DataList& list, std::size_t column) {
  const std::int32_t total = list.Total();
  Promise(list.Sort(column), "nobody stops the sort");
  const bool ascending = list.sortMark->direction == SortDirection::Ascending;
  for (std::size_t row = 1; row < list.RowCount(); ++row) {
    const double before = list.Value(row - 1, column);
    const double after = list.Value(row, column);
    Promise(ascending ? before <= after : before >= after, "rows are in order");
  }
  Promise(list.Total() == total, "a sort keeps the rows");
}

void CheckFits(const DataList& list) {
  Regression regression(list);
  for (const RegressionCurve& name : kRegressionModels) {
    regression.ChooseModel(name.model);
    const Coefficients first = regression.Fitted();
    regression.Invalidate();
    const Coefficients again = regression.Fitted();
    Promise(SameValue(first.a, again.a) || std::isnan(first.a), "a fit is the same every time");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(data, data + size);
  for (const std::size_t columns : {std::size(kOneVarColumns), std::size(kTwoVarColumns)}) {
    DataSet whole = Read(columns, bytes, bytes.size() + 1);
    const DataSet pieces = Read(columns, bytes, 3);
    const std::string saved = Saved(whole.rows);
    Promise(saved == Saved(pieces.rows) && whole.total == pieces.total,
            "pieces hold what the whole holds");
    Promise(whole.rows.Count() ==
                std::max<std::size_t>(whole.completeRows, whole.rows.Count() > 0 ? 1 : 0),
            "only a first row is incomplete");
    const DataSet loaded = Read(columns, saved, saved.size() + 1);
    Promise(loaded.total == whole.total && loaded.completeRows == whole.completeRows,
            "what is saved loads the same");

    DataList list(columns == std::size(kOneVarColumns) ? std::span<const ListColumn>(kOneVarColumns)
                                                       : kTwoVarColumns);
    list.Load(std::move(whole));
    for (std::size_t column = 0; column < columns; ++column) CheckSorted(list, column);
    PopulationDeviation(list, 0);
    if (columns == std::size(kTwoVarColumns)) CheckFits(list);
    while (list.RowCount() > 0) list.Delete(list.RowCount() / 2);
    Promise(list.Total() == 0, "without rows nothing is counted");
  }
  return 0;
}
