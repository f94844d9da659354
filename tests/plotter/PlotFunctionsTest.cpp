#include "plotter/PlotFunctions.h"

#include <gtest/gtest.h>

#include "display/MemorySettingsStore.h"
#include "display/SettingsLayout.h"
#include "macros/MacroTable.h"
#include "support/FormulaValue.h"

namespace vexa {
namespace {

const RangeTexts kTexts{L"-10", L"10", L"-10", L"10"};

/// A plotter on a store that outlives it.
class PlotFunctionsTest : public testing::Test {
 protected:
  void Store(std::initializer_list<const wchar_t*> functions, int count) {
    int i = 0;
    for (const wchar_t* text : functions) Write(store, settings::kFunction, i++, text);
    Write(store, settings::kFunctionCount, count);
  }
  PlotFunctions Opened() { return PlotFunctions(store); }
  static PlotterOutcome Plot(PlotFunctions& plotter, std::wstring_view field,
                             const RangeTexts& texts = kTexts) {
    GraphData graph;
    return plotter.Plot(field, texts, {}, graph);
  }

  MemorySettingsStore store;
};

TEST_F(PlotFunctionsTest, AFreshStoreHasNoFunctions) {
  const PlotFunctions plotter = Opened();
  EXPECT_EQ(plotter.Count(), 0);
  EXPECT_EQ(plotter.Selected(), -1);
  EXPECT_TRUE(plotter.CanAdd());
  EXPECT_FALSE(plotter.CanDelete());
  EXPECT_TRUE(plotter.History().IsEmpty());
  EXPECT_EQ(plotter.StoredRanges(), kTexts);
  EXPECT_EQ(plotter.Angle(), AngleType::Degrees);
}

TEST_F(PlotFunctionsTest, TheAngleTypeIsReadAndToggled) {
  for (const int stored : {2, 0, 7, -1}) {
    Write(store, settings::kAngleType, stored);
    EXPECT_EQ(Opened().Angle(), AngleType::Radians) << stored;
  }
  Write(store, settings::kAngleType, 1);
  PlotFunctions plotter = Opened();
  EXPECT_EQ(plotter.Angle(), AngleType::Degrees);
  plotter.ToggleAngle();
  EXPECT_EQ(plotter.Angle(), AngleType::Radians);
  plotter.Save(kTexts);
  EXPECT_EQ(Read(store, settings::kAngleType), 1);
  plotter.ToggleAngle();
  EXPECT_EQ(plotter.Angle(), AngleType::Degrees);
}

TEST_F(PlotFunctionsTest, StoredFunctionsAreListed) {
  Store({L"x", L"y+", L"", L"beyond"}, 3);
  const PlotFunctions plotter = Opened();
  ASSERT_EQ(plotter.Count(), 3);
  EXPECT_EQ(plotter.At(0), L"x");
  EXPECT_EQ(plotter.At(1), L"y+");
  EXPECT_EQ(plotter.At(2), L"");
  EXPECT_EQ(plotter.Selected(), 0);
  EXPECT_FALSE(plotter.CanAdd());
  EXPECT_TRUE(plotter.CanDelete());
}

TEST_F(PlotFunctionsTest, StoredCountsOfAnySizeAreTaken) {
  Store({L"x", L"x+1", L"x+2", L"x+3"}, 2147483647);
  Write(store, settings::kGrapHistoryCount, 2147483647);
  EXPECT_EQ(Opened().Count(), 3);
  EXPECT_EQ(Opened().History().Count(), 5);
  Store({}, -2147483647 - 1);
  Write(store, settings::kGrapHistoryCount, -1);
  EXPECT_EQ(Opened().Count(), 0);
  EXPECT_EQ(Opened().Selected(), -1);
  EXPECT_EQ(Opened().History().Count(), 0);
}

TEST_F(PlotFunctionsTest, AddAppendsSelectsAndClearsTheField) {
  PlotFunctions plotter = Opened();
  const PlotterOutcome outcome = plotter.Add(L" x ^ 2 + 1 ");
  EXPECT_EQ(outcome.sentence, L"");
  EXPECT_EQ(outcome.fieldText, L"");
  ASSERT_EQ(plotter.Count(), 1);
  EXPECT_EQ(plotter.At(0), L"x^2+1");
  EXPECT_EQ(plotter.Selected(), 0);
  EXPECT_TRUE(plotter.CanAdd());
  EXPECT_TRUE(plotter.CanDelete());
  plotter.Add(L"x");
  EXPECT_EQ(plotter.Selected(), 1);
  plotter.Add(L"-x");
  EXPECT_EQ(plotter.Selected(), 2);
  EXPECT_FALSE(plotter.CanAdd());
}

TEST_F(PlotFunctionsTest, AddRefusesAnEmptyText) {
  PlotFunctions plotter = Opened();
  for (const wchar_t* text : {L"", L" ", L"    "}) {
    const PlotterOutcome outcome = plotter.Add(text);
    EXPECT_EQ(outcome.sentence, L"Equation is null.");
    EXPECT_FALSE(outcome.fieldText);
  }
  EXPECT_TRUE(plotter.History().IsEmpty());
  EXPECT_EQ(plotter.Count(), 0);
}

TEST_F(PlotFunctionsTest, AddRefusesAFourthFunctionAfterRecordingIt) {
  Store({L"x", L"x+1", L"x+2"}, 3);
  PlotFunctions plotter = Opened();
  EXPECT_EQ(plotter.Add(L"x+3").sentence, L"Maximum of graph equation is 3");
  ASSERT_EQ(plotter.History().Count(), 1);
  EXPECT_EQ(plotter.History().At(1), L"x+3");
  // Before anything else about the text is looked at.
  EXPECT_EQ(plotter.Add(L"x").sentence, L"Maximum of graph equation is 3");
  EXPECT_EQ(plotter.Add(L"y").sentence, L"Maximum of graph equation is 3");
  EXPECT_EQ(plotter.Count(), 3);
}

TEST_F(PlotFunctionsTest, AddShowsTheEnginesSentence) {
  const std::pair<const wchar_t*, const wchar_t*> cases[] = {
      {L"2+3", L"Argument error : Missing variable X"},
      {L"y+1", L"Can not use variable Y"},
      {L"x+z", L"Can not use variable Z"},
      {L"(x", L"Not matched '(' and ')'."},
      {L"2x", L"Expression error."},
  };
  PlotFunctions plotter = Opened();
  int recorded = 0;
  for (const auto& [text, sentence] : cases) {
    const PlotterOutcome outcome = plotter.Add(text);
    EXPECT_EQ(outcome.sentence, sentence);
    EXPECT_FALSE(outcome.fieldText);
    EXPECT_EQ(plotter.History().At(++recorded), text);
  }
  EXPECT_EQ(plotter.Count(), 0);
}

TEST_F(PlotFunctionsTest, FunctionsMayCallMacros) {
  MacroTable(store).AddMacro(L"sq", L"TYPE1 : F(X)", L"x^2");
  PlotFunctions plotter = Opened();
  EXPECT_EQ(plotter.Add(L"M:sq( x )+1").sentence, L"");
  EXPECT_EQ(plotter.At(0), L"M:sq(x)+1");
  EXPECT_EQ(plotter.Add(L"M:sq(2)").sentence, L"Argument error : Missing variable X");
  EXPECT_EQ(plotter.Add(L"M:cube(x)").sentence, L"Macro Name error");
  GraphData graph;
  EXPECT_EQ(plotter.Plot(L"", kTexts, {}, graph).sentence, L"");
  EXPECT_EQ(graph.functions[0].label, L"R:F1(X)=M:sq(x)+1");
  EXPECT_EQ(test::ValueAt(graph.functions[0].program, 3), 10.0);
  // The macro is gone when the function is plotted again.
  MacroTable macros(store);
  macros.LoadMacroTable();
  macros.DeleteMacro(0);
  EXPECT_EQ(Plot(plotter, L"").sentence, L"M:sq(... : Macro Name error");
}

TEST_F(PlotFunctionsTest, AddRefusesTheSameTextAgain) {
  PlotFunctions plotter = Opened();
  plotter.Add(L"x");
  EXPECT_EQ(plotter.Add(L" x ").sentence, L"x is added already.");
  EXPECT_EQ(plotter.History().Count(), 1);
  // The case counts.
  EXPECT_EQ(plotter.Add(L"X").sentence, L"");
  EXPECT_EQ(plotter.Count(), 2);
}

TEST_F(PlotFunctionsTest, ALongTextIsShortenedWhenItIsRefused) {
  PlotFunctions plotter = Opened();
  plotter.Add(L"x+1234567890+1234");  // 17 characters
  EXPECT_EQ(plotter.Add(L"x+1234567890+1234").sentence, L"x+1234567890+1234 is added already.");
  plotter.Add(L"x+1234567890+12345");
  EXPECT_EQ(plotter.Add(L"x+1234567890+12345").sentence, L"x+1234567890+1... is added already.");
}

TEST_F(PlotFunctionsTest, TheHistoryKeepsTheLastFive) {
  PlotFunctions plotter = Opened();
  for (const wchar_t* text : {L"1", L"2", L"2", L"3", L"4", L"5", L"1", L"1"}) plotter.Add(text);
  const TextHistory& history = plotter.History();
  ASSERT_EQ(history.Count(), 5);
  const wchar_t* const expected[] = {L"2", L"3", L"4", L"5", L"1"};
  for (int i = 1; i <= 5; ++i) EXPECT_EQ(history.At(i), expected[i - 1]);
}

TEST_F(PlotFunctionsTest, HistoryMenusShortenBeyondThirteenCharacters) {
  PlotFunctions plotter = Opened();
  plotter.Add(L"x+12345678901");
  plotter.Add(L"x+123456789012");
  EXPECT_EQ(plotter.History().Caption(1), L"x+12345678901");
  EXPECT_EQ(plotter.History().Caption(2), L"x+12345678...");
  EXPECT_EQ(plotter.History().At(2), L"x+123456789012");
}

struct Deletion {
  int selected;
  int selectedAfter;
  const wchar_t* left;
};

TEST_F(PlotFunctionsTest, DeleteSelectsTheFunctionBefore) {
  const Deletion deletions[] = {{0, 0, L"bc"}, {1, 0, L"ac"}, {2, 1, L"ab"}};
  for (const Deletion& deletion : deletions) {
    Store({L"a", L"b", L"c"}, 3);
    PlotFunctions plotter = Opened();
    plotter.Select(deletion.selected);
    plotter.DeleteSelected();
    EXPECT_EQ(plotter.At(0) + plotter.At(1), deletion.left);
    EXPECT_EQ(plotter.Selected(), deletion.selectedAfter);
    EXPECT_TRUE(plotter.CanAdd());
    EXPECT_TRUE(plotter.CanDelete());
  }
}

TEST_F(PlotFunctionsTest, DeletingTheLastFunctionSelectsNothing) {
  Store({L"x"}, 1);
  PlotFunctions plotter = Opened();
  plotter.DeleteSelected();
  EXPECT_EQ(plotter.Count(), 0);
  EXPECT_EQ(plotter.Selected(), -1);
  EXPECT_FALSE(plotter.CanDelete());
  plotter.DeleteSelected();
  EXPECT_EQ(plotter.Count(), 0);
}

TEST_F(PlotFunctionsTest, PlotReadsTheBoxesFirst) {
  PlotFunctions plotter = Opened();
  const PlotterOutcome outcome = Plot(plotter, L"", {L"1", L"x", L"1", L"1"});
  EXPECT_EQ(outcome.sentence, L"Please enter a number.");
}

TEST_F(PlotFunctionsTest, ATextThatPlotLeavesOutIsNoticed) {
  PlotFunctions plotter = Opened();
  EXPECT_EQ(plotter.FieldNotice(L"x^2"), L"") << "Plot adds it to an empty list";
  for (const wchar_t* text : {L"x", L"x+1", L"x+2"}) {
    plotter.Add(text);
    EXPECT_EQ(plotter.FieldNotice(L""), L"");
    EXPECT_EQ(plotter.FieldNotice(L" "), L"");
    EXPECT_EQ(plotter.FieldNotice(text), L"");
  }
  EXPECT_EQ(plotter.FieldNotice(L"x + 1"), L"") << "blanks do not count";
  EXPECT_EQ(plotter.FieldNotice(L"x^2"), L"The field's text is not in the list, which is full.");
  plotter.DeleteSelected();
  EXPECT_EQ(plotter.FieldNotice(L"x^2"), L"The field's text is not in the list: A adds it.");
}

TEST_F(PlotFunctionsTest, PlotNeedsAFunction) {
  PlotFunctions plotter = Opened();
  EXPECT_EQ(Plot(plotter, L"", {L"1", L"1", L"1", L"1"}).sentence,
            L"Please, Add a graph equation.");
  EXPECT_EQ(Plot(plotter, L"  ").sentence, L"Equation is null.");
}

TEST_F(PlotFunctionsTest, PlotAddsTheFieldWhenTheListIsEmpty) {
  PlotFunctions plotter = Opened();
  GraphData graph;
  const PlotterOutcome outcome = plotter.Plot(L"x + 1", kTexts, {}, graph);
  EXPECT_EQ(outcome.sentence, L"");
  EXPECT_EQ(outcome.fieldText, L"");
  ASSERT_EQ(graph.functions.size(), 1u);
  EXPECT_EQ(graph.functions[0].label, L"R:F1(X)=x+1");
  EXPECT_EQ(plotter.Count(), 1);
  // Only then: the field's text is left alone.
  EXPECT_FALSE(Plot(plotter, L"x+2").fieldText);
  EXPECT_EQ(plotter.Count(), 1);
}

TEST_F(PlotFunctionsTest, PlotStopsWhenTheFieldIsRefused) {
  PlotFunctions plotter = Opened();
  const PlotterOutcome outcome = Plot(plotter, L"y", {L"1", L"1", L"1", L"1"});
  EXPECT_EQ(outcome.sentence, L"Can not use variable Y");
  EXPECT_FALSE(outcome.fieldText);
}

TEST_F(PlotFunctionsTest, PlotChecksTheRangesXFirst) {
  PlotFunctions plotter = Opened();
  const PlotterOutcome outcome = Plot(plotter, L"x", {L"1", L"1", L"1", L"1"});
  EXPECT_EQ(outcome.sentence,
            L"The maximum value of X should be bigger than the minimum value of X.");
  // The function was added before.
  EXPECT_EQ(outcome.fieldText, L"");
  EXPECT_EQ(plotter.Count(), 1);
  EXPECT_EQ(Plot(plotter, L"", {L"1", L"2", L"1", L"1"}).sentence,
            L"The maximum value of Y should be bigger than the minimum value of Y.");
}

TEST_F(PlotFunctionsTest, PlotShowsTheFirstFunctionThatFails) {
  const std::tuple<const wchar_t*, const wchar_t*> cases[] = {
      {L"y", L"y : Can not use variable Y"},
      {L"", L" : Expression is null."},
      {L"1234567", L"1234567 : Argument error : Missing variable X"},
      {L"12345678", L"12345... : Argument error : Missing variable X"},
  };
  for (const auto& [text, sentence] : cases) {
    Store({L"x", text, L"z"}, 3);
    PlotFunctions plotter = Opened();
    const PlotterOutcome outcome = Plot(plotter, L"typed");
    EXPECT_EQ(outcome.sentence, sentence);
    EXPECT_EQ(outcome.fieldText, text);
    EXPECT_EQ(plotter.Selected(), 1);
  }
}

TEST_F(PlotFunctionsTest, PlotHandsOverEverything) {
  Store({L"x", L"X^2", L"sin(x)"}, 3);
  Write(store, settings::kAngleType, 2);
  PlotFunctions plotter = Opened();
  GraphData graph;
  const PlotOptions options{.grid = false, .line = true, .coordinates = false};
  EXPECT_EQ(plotter.Plot(L"", {L"-1", L"2", L"-3", L"4"}, options, graph).sentence, L"");
  ASSERT_EQ(graph.functions.size(), 3u);
  EXPECT_EQ(graph.functions[0].label, L"R:F1(X)=x");
  EXPECT_EQ(graph.functions[1].label, L"G:F2(x)=X^2");
  EXPECT_EQ(graph.functions[2].label, L"B:F3(X)=sin(x)");
  EXPECT_EQ(test::ValueAt(graph.functions[0].program, 3), 3.0);
  EXPECT_EQ(test::ValueAt(graph.functions[1].program, 3), 9.0);
  EXPECT_EQ(test::ValueAt(graph.functions[2].program, 30), 0.49999999999999994);
  EXPECT_EQ(graph.ranges, (PlotRanges{-1, 2, -3, 4}));
  EXPECT_EQ(graph.options, options);
  EXPECT_EQ(graph.angleType, AngleType::Radians);
  EXPECT_TRUE(graph.dataPoints.empty());
}

TEST_F(PlotFunctionsTest, SaveAndReopen) {
  {
    PlotFunctions plotter = Opened();
    for (const wchar_t* text : {L"x", L"y", L"x+1"}) plotter.Add(text);
    plotter.Save({L"-1", L"1e3", L" 0 ", L"1,000"});
  }
  EXPECT_EQ(store.ReadSettingInt(L"Grapher", L"Grapher FunTotalNumber", -1), 2);
  EXPECT_EQ(store.ReadSettingString(L"Grapher", L"Fun0", L"-"), L"x");
  EXPECT_EQ(store.ReadSettingString(L"Grapher", L"Fun1", L"-"), L"x+1");
  EXPECT_EQ(store.ReadSettingString(L"Grapher", L"X Min", L"-"), L"-1");
  EXPECT_EQ(store.ReadSettingString(L"Grapher", L"X Max", L"-"), L"1e3");
  EXPECT_EQ(store.ReadSettingString(L"Grapher", L"Y Min", L"-"), L" 0 ");
  EXPECT_EQ(store.ReadSettingString(L"Grapher", L"Y Max", L"-"), L"1,000");
  EXPECT_EQ(store.ReadSettingInt(L"History", L"GrapHistoryCount", -1), 3);
  EXPECT_EQ(store.ReadSettingString(L"History", L"GrapHistory1", L"-"), L"x");
  EXPECT_EQ(store.ReadSettingString(L"History", L"GrapHistory3", L"-"), L"x+1");
  const PlotFunctions reopened = Opened();
  EXPECT_EQ(reopened.Count(), 2);
  EXPECT_EQ(reopened.StoredRanges()[1], L"1e3");
  ASSERT_EQ(reopened.History().Count(), 3);
  EXPECT_EQ(reopened.History().At(2), L"y");
}

TEST_F(PlotFunctionsTest, NothingIsSavedWhenABoxIsNoNumber) {
  Store({L"x"}, 1);
  for (std::size_t box = 0; box < 4; ++box) {
    PlotFunctions plotter = Opened();
    plotter.Add(L"x+1");
    RangeTexts texts{L"1", L"2", L"3", L"4"};
    texts[box] = L"?";
    plotter.Save(texts);
    EXPECT_EQ(Read(store, settings::kFunctionCount), 1);
    EXPECT_EQ(Read(store, settings::kGrapHistoryCount), 0);
    EXPECT_EQ(Read(store, settings::kXMin), L"-10");
  }
}

TEST_F(PlotFunctionsTest, RangesInTheWrongOrderAreSavedAsTyped) {
  Opened().Save({L"5", L"1", L"5", L"1"});
  EXPECT_EQ(Opened().StoredRanges(), (RangeTexts{L"5", L"1", L"5", L"1"}));
}

}  // namespace
}  // namespace vexa
