// The statistics screens without a window: edits, results, memory, how numbers are shown.

#include "stats/Statistics.h"

#include <gtest/gtest.h>

#include "display/MemorySettingsStore.h"
#include "display/SettingsLayout.h"
#include "stats/Lists.h"

namespace vexa {
namespace {

using test::Rows;
using test::RowsOf;

constexpr std::wstring_view kOverflow = L"Out of range(overflow or underflow)";

class StatisticsTest : public testing::Test {
 protected:
  void Add(const EntryTexts& texts) { EXPECT_EQ(statistics.Add(texts).sentence, L""); }
  std::wstring Result(std::wstring_view caption, const EntryTexts& texts = {L"0", L"0", L"1"}) {
    EXPECT_EQ(statistics.ShowResult(caption, texts)->sentence, L"");
    return statistics.resultLine;
  }

  MemorySettingsStore store;
  Statistics statistics{store, kTwoVarColumns};
};

TEST_F(StatisticsTest, ReadsHowNumbersAreShown) {
  EXPECT_EQ(statistics.displayType, DisplayType::Currency);
  EXPECT_EQ(statistics.precision, 5);
  Write(store, settings::kDisplayType, 2);
  Write(store, settings::kPrecision, 3);
  const Statistics other(store, kOneVarColumns);
  EXPECT_EQ(other.displayType, DisplayType::Scientific);
  EXPECT_EQ(other.precision, 3);
}

TEST_F(StatisticsTest, CellsKeepAsManyDecimalsAsTheirValuesNeed) {
  statistics.SetDisplay(DisplayType::FixedPoint, 2);
  Add({L"0.123456", L"1e-20", L"2"});
  Add({L" 1234567 ", L"1,234.5", L"-3"});
  EXPECT_EQ(RowsOf(statistics.List()),
            (Rows{{"1234567", "1234.5", "-3"}, {"0.123456", "1.00e-020", "2"}}));
  EXPECT_EQ(statistics.List().Total(), -1);
}

TEST_F(StatisticsTest, SaysWhatIsWrongWithAnEdit) {
  const struct {
    EntryTexts texts;
    std::wstring_view sentence;
    std::size_t field;
  } cases[] = {
      {{L"abc", L"2", L"1"}, L"Please enter a number.", 0},
      {{L"", L"2", L"1"}, L"Please enter a number.", 0},
      {{L"1", L"1e999", L"x"}, L"Please enter a number.", 1},
      {{L"1", L"2", L"1.5"}, L"Please enter an integer.", 2},
      {{L"1", L"2", L""}, L"Please enter an integer.", 2},
      {{L"1", L"2", L"2147483648"},
       L"Please enter an integer between -2147483648 and 2147483647.",
       2},
  };
  for (const auto& c : cases) {
    const EntryFault fault = statistics.Add(c.texts);
    EXPECT_EQ(fault.sentence, c.sentence);
    EXPECT_EQ(fault.field, c.field);
  }
  EXPECT_EQ(statistics.List().RowCount(), 0u);
  Add({L"1", L"2", L"2147483647"});
  EXPECT_EQ(statistics.List().Total(), 2147483647);
}

TEST_F(StatisticsTest, EditsARow) {
  Add({L"1", L"2", L"3"});
  Add({L"4", L"5", L"6"});
  EXPECT_EQ(statistics.Edit(1), (EntryTexts{L"1", L"2", L"3"}));
  EXPECT_EQ(statistics.Ok({L"1", L"?", L"3"}).field, 1u);
  EXPECT_EQ(statistics.List().EditedRow(), 1u) << "what cannot be read leaves editing on";
  EXPECT_EQ(statistics.Ok({L"1.5", L"2.5", L"1"}).sentence, L"");
  EXPECT_FALSE(statistics.List().EditedRow());
  EXPECT_EQ(RowsOf(statistics.List()), (Rows{{"4", "5", "6"}, {"1.5", "2.5", "1"}}));
  EXPECT_EQ(statistics.List().Total(), 7);
}

TEST_F(StatisticsTest, EditsTakeWhatTheyCanHoldOfACell) {
  statistics.Load(test::DataOf(3, {{std::string(100000, '7'), "2", "1"}}));
  EXPECT_EQ(statistics.Edit(0), (EntryTexts{std::wstring(32767, L'7'), L"2", L"1"}));
}

TEST_F(StatisticsTest, ShowsEveryStatistic) {
  Add({L"1", L"10", L"2"});
  Add({L"3", L"1000", L"1"});
  const struct {
    std::wstring_view caption;
    std::wstring_view text;
  } cases[] = {
      {L"ΣX", L"5"},
      {L"ΣY", L"1,020"},
      {L"ΣX^2", L"11"},
      {L"ΣY^2", L"1,000,200"},
      {L"ΣXY", L"3,020"},
      {L"Mean of X", L"1.666666666667"},
      {L"Mean of Y", L"340"},
      {L"Arithmetic Mean of X", L"1.666666666667"},
      {L"σ(n-1) of X", L"1.154700538379"},
      {L"σ(n) of X", L"0.942809041582"},
      {L"σ(n-1) of Y", L"571.57676649773"},
      {L"σ(n) of Y", L"466.690475583121"},
  };
  for (const auto& c : cases) EXPECT_EQ(Result(c.caption), c.text);
}

TEST_F(StatisticsTest, ShowsTheRegression) {
  Add({L"1", L"2", L"1"});
  Add({L"2", L"4", L"1"});
  Add({L"3", L"6", L"1"});
  EXPECT_EQ(Result(L"A"), L"2");
  EXPECT_EQ(Result(L"B"), L"0");
  EXPECT_EQ(Result(L"r"), L"1");
  EXPECT_EQ(Result(L"Y'", {L"4", L"0", L"1"}), L"8");
  EXPECT_EQ(Result(L"X'", {L"0", L"10", L"1"}), L"5");
  EXPECT_EQ(statistics.lastResult, 5.0);

  statistics.ChooseModel(RegressionModel::Quadratic);
  EXPECT_FALSE(statistics.List().Controls().correlation);
  Add({L"4", L"9", L"1"});
  EXPECT_EQ(Result(L"A"), L"0.25");
  EXPECT_EQ(Result(L"B"), L"1.05");
  EXPECT_EQ(Result(L"C"), L"0.75");
  EXPECT_EQ(Result(L"X1'", {L"0", L"4", L"1"}), L"2.072529209005");
  EXPECT_EQ(Result(L"X2'", {L"0", L"4", L"1"}), L"-6.272529209005");
}

TEST_F(StatisticsTest, PredictionsReadBothEdits) {
  Add({L"1", L"2", L"1"});
  Add({L"2", L"4", L"1"});
  EXPECT_EQ(statistics.ShowResult(L"Y'", {L"1", L"-", L"1"})->sentence, L"Please enter a number.");
  EXPECT_EQ(statistics.ShowResult(L"Y'", {L"1", L"-", L"1"})->field, 1u);
  EXPECT_EQ(statistics.ShowResult(L"X'", {L"", L"1", L"1"})->field, 0u);
  EXPECT_EQ(statistics.resultLine, L"") << "the key does nothing then";
  EXPECT_EQ(Result(L"Y'", {L"1", L"0", L"no count"}), L"2") << "the count is not read";
}

TEST_F(StatisticsTest, EveryChangeOfTheRowsFitsAgain) {
  Add({L"1", L"2", L"1"});
  Add({L"2", L"4", L"1"});
  EXPECT_EQ(Result(L"A"), L"2");
  Add({L"3", L"9", L"1"});
  EXPECT_EQ(Result(L"A"), L"3.5") << "after Add";
  statistics.Edit(0);
  statistics.Ok({L"3", L"6", L"1"});
  EXPECT_EQ(Result(L"A"), L"2") << "after Ok";
  statistics.Delete(0);
  statistics.Delete(0);
  EXPECT_EQ(Result(L"A"), kOverflow) << "after Delete";
  statistics.Load(test::DataOf(3, {{"0", "0", "1"}, {"1", "7", "1"}}));
  EXPECT_EQ(Result(L"A"), L"7") << "after Load";
  statistics.Clear();
  EXPECT_EQ(Result(L"A"), kOverflow) << "after Clear";
}

TEST_F(StatisticsTest, WithoutAModelTheLastResultIsShownAgain) {
  Add({L"1", L"2", L"1"});
  Add({L"2", L"4", L"1"});
  Result(L"ΣX");
  statistics.ChooseModel(static_cast<RegressionModel>(0));
  for (const auto caption : {L"r", L"A", L"B", L"C", L"Y'", L"X'", L"X1'", L"X2'"}) {
    EXPECT_EQ(Result(caption), L"3");
  }
  GraphData graph;
  EXPECT_EQ(statistics.PreparePlot(graph), L" : Expression is null.");
}

TEST_F(StatisticsTest, AStoppedResultLeavesWhatIsShown) {
  Add({L"1", L"2", L"1"});
  Add({L"2", L"4", L"1"});
  Result(L"ΣX");
  Add({L"3", L"6", L"1"});
  const auto stop = [](double) { return false; };
  for (const auto caption : {L"ΣX", L"σ(n) of Y", L"r", L"A", L"Y'"}) {
    EXPECT_FALSE(statistics.ShowResult(caption, {L"0", L"0", L"1"}, stop));
    EXPECT_EQ(statistics.resultLine, L"3");
    EXPECT_EQ(statistics.lastResult, 3.0);
  }
  EXPECT_EQ(statistics.ShowResult(L"Y'", {L"?", L"0", L"1"}, stop)->field, 0u)
      << "an edit that cannot be read is said at once";
  EXPECT_EQ(Result(L"ΣX"), L"6");
}

TEST_F(StatisticsTest, SaysWhenAResultIsLessThanItSeems) {
  for (const auto y : {L"1", L"2", L"4"}) Add({L"5.1", y, L"1"});
  Result(L"σ(n-1) of X");
  EXPECT_EQ(statistics.Doubt(), ResultDoubt::DigitsLost);
  Result(L"σ(n) of X");
  EXPECT_EQ(statistics.Doubt(), ResultDoubt::DigitsLost);
  for (const auto caption : {L"σ(n-1) of Y", L"σ(n) of Y", L"ΣX", L"Mean of X", L"A"}) {
    Result(caption);
    EXPECT_EQ(statistics.Doubt(), ResultDoubt::None);
  }
  Add({L"6", L"8", L"2"});
  statistics.ChooseModel(RegressionModel::Exponential);
  for (const auto caption : {L"A", L"B", L"Y'", L"X'"}) {
    Result(caption);
    EXPECT_EQ(statistics.Doubt(), ResultDoubt::CountsHalved);
  }
  Result(L"ΣXY");
  EXPECT_EQ(statistics.Doubt(), ResultDoubt::None);
  Result(L"A");
  statistics.ChooseModel(RegressionModel::Linear);
  EXPECT_EQ(statistics.Doubt(), ResultDoubt::CountsHalved) << "what is shown is as it was";
  Result(L"A");
  EXPECT_EQ(statistics.Doubt(), ResultDoubt::None);
}

TEST_F(StatisticsTest, OverflowIsTheLastErrorUntilTheNextNumber) {
  Add({L"1", L"2", L"1"});
  Add({L"9", L"2", L"0"});
  EXPECT_EQ(Result(L"σ(n-1) of X"), kOverflow);
  EXPECT_EQ(statistics.lastError, kOverflow);
  ASSERT_EQ(statistics.MemoryCommands().size(), 1u);
  EXPECT_EQ(statistics.MemoryCommands()[0].caption, L"ReCall MemVar");
  EXPECT_EQ(Result(L"ΣX"), L"1");
  ASSERT_EQ(statistics.MemoryCommands().size(), 2u);
  EXPECT_EQ(statistics.MemoryCommands()[0].caption, L"ReCall MemVar");
  EXPECT_EQ(statistics.MemoryCommands()[1].caption, L"Store MemVar");
}

TEST_F(StatisticsTest, MemoryTextsHaveNoThousandsSeparators) {
  EXPECT_EQ(statistics.MemoryVariableText(), L"0") << "before the first result";
  Add({L"1234.5", L"2", L"1"});
  Add({L"0", L"2", L"1"});
  EXPECT_EQ(Result(L"ΣX"), L"1,234.5");
  EXPECT_EQ(statistics.MemoryVariableText(), L"1234.5");
}

TEST_F(StatisticsTest, RecallsTheNumberAtTheFrontOfAVariablesText) {
  const std::pair<const wchar_t*, const wchar_t*> cases[] = {{L"-98765.25", L"-98765.25"},
                                                             {L"", L"0"},
                                                             {L"abc", L"0"},
                                                             {L"1,234.5", L"1"},
                                                             {L" 12 apples", L"12"}};
  for (const auto& [stored, recalled] : cases) {
    EXPECT_EQ(statistics.RecallText(stored), recalled);
    EXPECT_EQ(statistics.lastError, L"");
  }
  EXPECT_EQ(statistics.RecallText(L"1e999"), L"Out of range(overflow or underflow)");
  EXPECT_EQ(statistics.lastError, L"Out of range(overflow or underflow)");
}

TEST_F(StatisticsTest, ChangedDisplayShowsTheLastResultSoAndIsStored) {
  statistics.SetDisplay(DisplayType::FixedPoint, 1);
  EXPECT_EQ(statistics.resultLine, L"") << "there is none yet";
  Add({L"1234.5", L"2", L"1"});
  Add({L"0", L"2", L"1"});
  Result(L"ΣX");
  statistics.SetDisplay(DisplayType::Scientific, 3);
  EXPECT_EQ(statistics.resultLine, L"1.234e+003");
  EXPECT_EQ(Read(store, settings::kDisplayType), 2);
  EXPECT_EQ(Read(store, settings::kPrecision), 3);
}

TEST_F(StatisticsTest, ClearLeavesTheResultLine) {
  Add({L"1", L"2", L"1"});
  Add({L"2", L"2", L"1"});
  Result(L"ΣX");
  statistics.Clear();
  EXPECT_EQ(statistics.resultLine, L"3");
}

TEST_F(StatisticsTest, KeysThatComputeNothingAreLeftAlone) {
  EXPECT_EQ(statistics.ShowResult(L"MEM", {L"0", L"0", L"1"})->sentence, L"");
  EXPECT_EQ(statistics.resultLine, L"");
}

}  // namespace
}  // namespace vexa
