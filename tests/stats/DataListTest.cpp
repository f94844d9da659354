// The data list: rows, total, what is unsaved, which controls can be used, sorting.

#include "stats/DataList.h"

#include <gtest/gtest.h>

#include "stats/Lists.h"

namespace vexa {
namespace {

using test::DataOf;
using test::ListOf;
using test::Rows;
using test::RowsOf;

using Values = std::vector<std::wstring>;

DataList OneVarList(int rows = 0) {
  DataList list(kOneVarColumns);
  for (int n = 1; n <= rows; ++n) list.Add(Values{std::to_wstring(n)}, 1);
  return list;
}

TEST(DataList, StartsEmpty) {
  const DataList list = OneVarList();
  EXPECT_EQ(list.RowCount(), 0u);
  EXPECT_EQ(list.Total(), 0);
  EXPECT_FALSE(list.Modified());
  EXPECT_FALSE(list.EditedRow());
  EXPECT_FALSE(list.sortMark);
  const ListControls& controls = list.Controls();
  EXPECT_TRUE(controls.list && controls.load);
  EXPECT_FALSE(controls.edit || controls.remove || controls.clear || controls.save ||
               controls.statistics || controls.correlation);
}

TEST(DataList, Columns) {
  EXPECT_EQ(kOneVarColumns[0].caption, L"X");
  EXPECT_EQ(kOneVarColumns[0].width, 117);
  EXPECT_EQ(kOneVarColumns[1].caption, L"Count");
  EXPECT_EQ(kOneVarColumns[1].width, 45);
  EXPECT_EQ(kTwoVarColumns[0].width, 85);
  EXPECT_EQ(kTwoVarColumns[1].caption, L"Y");
  EXPECT_EQ(kTwoVarColumns[1].width, 85);
  EXPECT_EQ(kTwoVarColumns[2].caption, L"Cnt");
  EXPECT_EQ(kTwoVarColumns[2].width, 40);
}

TEST(DataList, AddInsertsAtTheTop) {
  DataList list = OneVarList();
  list.Add(Values{L"5"}, 1);
  list.Add(Values{L"7"}, 3);
  EXPECT_EQ(RowsOf(list), (Rows{{"7", "3"}, {"5", "1"}}));
  EXPECT_EQ(list.Total(), 4);
  EXPECT_TRUE(list.Modified());
}

TEST(DataList, ControlsAfterAdd) {
  DataList list = OneVarList(1);
  EXPECT_TRUE(list.Controls().clear && list.Controls().save);
  EXPECT_FALSE(list.Controls().statistics);
  list.Add(Values{L"2"}, 1);
  EXPECT_TRUE(list.Controls().statistics && list.Controls().correlation);
  list.ModelChosen(false);
  list.Add(Values{L"3"}, 1);
  EXPECT_FALSE(list.Controls().correlation) << "a third row switches nothing";
}

TEST(DataList, OnlyTheFirstAndTheSecondRowSwitchControlsWhenAdded) {
  DataList list(kOneVarColumns);
  // An incomplete row counts for nothing when it is loaded, and is a row when others are added.
  DataSet incomplete{PackedRows(2)};
  incomplete.rows.Append(std::vector<std::string>{"5", ""});
  list.Load(std::move(incomplete));
  list.Add(Values{L"6"}, 1);
  EXPECT_TRUE(list.Controls().statistics);
  EXPECT_FALSE(list.Controls().clear);
  EXPECT_FALSE(list.Controls().save);
}

TEST(DataList, OnlyTheLastButOneRowSwitchesTheStatisticsWhenDeleted) {
  DataList list = ListOf({{"1", "1"}, {"2", "1"}});
  DataSet incomplete{PackedRows(2)};
  incomplete.rows.Append(std::vector<std::string>{"5", ""});
  list.Load(std::move(incomplete));
  list.Delete(0);
  EXPECT_TRUE(list.Controls().statistics);
}

TEST(DataList, SelectionEnablesEditAndDelete) {
  DataList list = OneVarList(2);
  list.SelectionChanged(true);
  EXPECT_TRUE(list.Controls().edit && list.Controls().remove);
  list.SelectionChanged(false);
  EXPECT_FALSE(list.Controls().edit || list.Controls().remove);
}

TEST(DataList, EditDisablesTheListAndItsButtons) {
  DataList list = OneVarList(2);
  list.SelectionChanged(true);
  list.Edit(1);
  EXPECT_EQ(list.EditedRow(), 1u);
  const ListControls& controls = list.Controls();
  EXPECT_FALSE(controls.list || controls.edit || controls.remove || controls.clear ||
               controls.save || controls.load);
  EXPECT_TRUE(controls.statistics) << "the statistics stay as they are";
}

TEST(DataList, OkRewritesTheRow) {
  DataList list = ListOf({{"1", "3"}, {"2", "3"}});
  list.Edit(1);
  list.Ok(Values{L"20"}, 1);
  EXPECT_EQ(RowsOf(list), (Rows{{"1", "3"}, {"20", "1"}}));
  EXPECT_EQ(list.Total(), 4) << "from 3 to 1 lowers it by 2";
  EXPECT_TRUE(list.Modified());
  EXPECT_FALSE(list.EditedRow());
  const ListControls& controls = list.Controls();
  EXPECT_TRUE(controls.list && controls.edit && controls.remove && controls.clear &&
              controls.save && controls.load);
}

TEST(DataList, OkLeavesTheTextOfAnUnchangedCount) {
  DataList list = ListOf({{"1", "2.9"}, {"2", "1"}});
  list.Edit(0);
  list.Ok(Values{L"1"}, 2);
  EXPECT_EQ(RowsOf(list), (Rows{{"1", "2.9"}, {"2", "1"}}));
  EXPECT_EQ(list.Total(), 3);
}

TEST(DataList, CancelTouchesNothing) {
  DataList list = ListOf({{"1", "3"}, {"2", "3"}});
  list.Edit(0);
  list.Cancel();
  EXPECT_EQ(RowsOf(list), (Rows{{"1", "3"}, {"2", "3"}}));
  EXPECT_EQ(list.Total(), 6);
  EXPECT_FALSE(list.Modified());
  EXPECT_FALSE(list.EditedRow());
  EXPECT_TRUE(list.Controls().list && list.Controls().edit && list.Controls().save);
}

TEST(DataList, DeleteSubtractsTheCount) {
  DataList list = ListOf({{"1", "3"}, {"2", "5"}, {"3", ""}});
  list.Delete(0);
  EXPECT_EQ(list.Total(), 5);
  EXPECT_TRUE(list.Modified());
  list.Delete(1);
  EXPECT_EQ(list.Total(), 5) << "a count that is no number is 0";
  EXPECT_EQ(RowsOf(list), (Rows{{"2", "5"}}));
}

TEST(DataList, ControlsAfterDelete) {
  DataList list = OneVarList(3);
  list.Delete(0);
  EXPECT_TRUE(list.Controls().statistics);
  list.Delete(0);
  EXPECT_FALSE(list.Controls().statistics || list.Controls().correlation);
  EXPECT_TRUE(list.Controls().clear && list.Controls().save);
  list.Delete(0);
  EXPECT_FALSE(list.Controls().clear || list.Controls().save);
  EXPECT_EQ(list.Total(), 0);
}

TEST(DataList, ClearCountsAsUnchanged) {
  DataList list = OneVarList(3);
  list.SelectionChanged(true);
  list.Clear();
  EXPECT_EQ(list.RowCount(), 0u);
  EXPECT_EQ(list.Total(), 0);
  EXPECT_FALSE(list.Modified());
  EXPECT_FALSE(list.AsksToSave());
  const ListControls& controls = list.Controls();
  EXPECT_FALSE(controls.edit || controls.remove || controls.clear || controls.save ||
               controls.statistics || controls.correlation);
  EXPECT_TRUE(controls.list && controls.load);
}

TEST(DataList, AsksToSaveMoreThanOneUnsavedObservation) {
  DataList list = OneVarList(1);
  EXPECT_FALSE(list.AsksToSave()) << "a single row with count 1";
  list.Add(Values{L"2"}, 1);
  EXPECT_TRUE(list.AsksToSave());
  list.Saved();
  EXPECT_FALSE(list.AsksToSave());
  list.Delete(0);
  list.Add(Values{L"2"}, -5);
  EXPECT_FALSE(list.AsksToSave()) << "a total below 2";
}

TEST(DataList, CountsWrapInThirtyTwoBits) {
  DataList list = OneVarList();
  list.Add(Values{L"1"}, 2147483647);
  list.Add(Values{L"2"}, 1);
  EXPECT_EQ(list.Total(), -2147483648);
  list.Delete(0);
  EXPECT_EQ(list.Total(), 2147483647);
  list.Edit(0);
  list.Ok(Values{L"1"}, -2147483648);
  EXPECT_EQ(list.Total(), -2147483648);
}

TEST(DataList, SortComparesNumbers) {
  DataList list = ListOf({{"10", "1"}, {"9", "2"}, {"abc", "3"}, {"-1e3", "4"}});
  ASSERT_TRUE(list.Sort(0));
  EXPECT_EQ(RowsOf(list), (Rows{{"-1e3", "4"}, {"abc", "3"}, {"9", "2"}, {"10", "1"}}));
}

TEST(DataList, OneDirectionServesAllColumns) {
  DataList list = ListOf({{"1", "5", "1"}, {"2", "4", "1"}, {"3", "6", "1"}});
  list.Sort(1);
  EXPECT_EQ(RowsOf(list), (Rows{{"2", "4", "1"}, {"1", "5", "1"}, {"3", "6", "1"}}));
  EXPECT_EQ(list.sortMark->column, 1u);
  EXPECT_EQ(list.sortMark->direction, SortDirection::Ascending);
  list.Sort(0);
  EXPECT_EQ(RowsOf(list), (Rows{{"3", "6", "1"}, {"2", "4", "1"}, {"1", "5", "1"}}));
  EXPECT_EQ(list.sortMark->column, 0u);
  EXPECT_EQ(list.sortMark->direction, SortDirection::Descending);
}

TEST(DataList, SortingAnEmptyListChangesTheDirection) {
  DataList list = OneVarList();
  list.Sort(0);
  list.Add(Values{L"2"}, 1);
  list.Add(Values{L"1"}, 1);
  list.Sort(0);
  EXPECT_EQ(RowsOf(list), (Rows{{"2", "1"}, {"1", "1"}}));
}

TEST(DataList, SortLeavesWhatIsUnsavedAsItIs) {
  DataList list = ListOf({{"2", "1"}, {"1", "1"}});
  list.Sort(0);
  EXPECT_FALSE(list.Modified());
}

TEST(DataList, StoppedSortLeavesEverythingAsItWas) {
  Rows rows;
  for (int n = 0; n < 200000; ++n) rows.push_back({std::to_string((n * 7919) % 200000), "1"});
  DataList list = ListOf(rows);
  for (const int stopAt : {1, 3, 5}) {
    int reports = 0;
    EXPECT_FALSE(list.Sort(0, [&](double) { return ++reports < stopAt; }));
    EXPECT_EQ(reports, stopAt);
    EXPECT_EQ(RowsOf(list), rows);
    EXPECT_FALSE(list.sortMark);
  }
  ASSERT_TRUE(list.Sort(0));
  EXPECT_EQ(list.sortMark->direction, SortDirection::Ascending)
      << "the next one is still the first";
  EXPECT_EQ(list.Cell(0, 0), "0");
}

TEST(DataList, ChangedRowsLoseTheSortMark) {
  DataList list = ListOf({{"2", "1"}, {"1", "1"}});
  list.Sort(0);
  list.Delete(0);
  EXPECT_TRUE(list.sortMark) << "what is left is sorted still";
  list.Add(Values{L"9"}, 1);
  EXPECT_FALSE(list.sortMark);
  list.Sort(0);
  list.Edit(0);
  list.Ok(Values{L"9"}, 1);
  EXPECT_FALSE(list.sortMark);
  list.Sort(0);
  list.Load(DataOf(2, {{"1", "1"}}));
  EXPECT_FALSE(list.sortMark);
  list.Sort(0);
  list.Clear();
  EXPECT_FALSE(list.sortMark);
}

TEST(DataList, LoadTakesThePlaceOfAllRows) {
  DataList list = OneVarList(3);
  list.Load(DataOf(2, {{"8", "2"}, {"9", "1"}}));
  EXPECT_EQ(RowsOf(list), (Rows{{"8", "2"}, {"9", "1"}}));
  EXPECT_EQ(list.Total(), 3);
  EXPECT_FALSE(list.Modified());
}

TEST(DataList, ControlsAfterLoadByCompleteRows) {
  DataList list = OneVarList();
  DataSet incomplete = DataOf(2, {{"5", ""}});
  incomplete.completeRows = 0;
  list.Load(std::move(incomplete));
  EXPECT_FALSE(list.Controls().clear || list.Controls().save || list.Controls().statistics);
  list.Load(DataOf(2, {{"5", "1"}}));
  EXPECT_TRUE(list.Controls().clear && list.Controls().save);
  EXPECT_FALSE(list.Controls().statistics);
  list.Load(DataOf(2, {{"5", "1"}, {"6", "1"}}));
  EXPECT_TRUE(list.Controls().statistics && list.Controls().correlation);
}

TEST(DataList, LoadingEnablesTheCorrelationWhateverTheModel) {
  DataList list = ListOf({{"1", "1"}, {"2", "1"}});
  list.ModelChosen(false);
  list.Load(DataOf(2, {{"1", "1"}, {"2", "1"}}));
  EXPECT_TRUE(list.Controls().correlation);
}

TEST(DataList, LoadingAnEmptyFileLeavesTheControls) {
  DataList list = OneVarList(2);
  list.Load(DataOf(2, {}));
  EXPECT_EQ(list.RowCount(), 0u);
  EXPECT_TRUE(list.Controls().clear && list.Controls().save && list.Controls().statistics);
}

TEST(DataList, Sentences) {
  EXPECT_EQ(DataList::kNothingSelected, L"No items were selected!");
  EXPECT_EQ(DataList::kDeleteQuestion, L"Are you sure you want to delete the selected data?");
  EXPECT_EQ(DataList::kClearQuestion, L"Are you sure you want to delete all data?");
  EXPECT_EQ(DataList::kSaveQuestion, L"Do you want to save changes to Data?");
}

}  // namespace
}  // namespace vexa
