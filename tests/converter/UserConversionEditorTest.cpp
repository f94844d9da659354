// The editor of the user's conversions: its two states, and Save's checks in their order.

#include "converter/UserConversionEditor.h"

#include <gtest/gtest.h>

#include "converter/RecordingStore.h"
#include "support/Vectors.h"

namespace vexa {
namespace {

using test::Narrow;
using test::RecordingStore;
using test::StoreWithConversions;
using Lines = std::vector<std::wstring>;

void ExpectBoxes(const ConversionBoxes& boxes, std::wstring_view first, std::wstring_view second,
                 std::wstring_view rate) {
  EXPECT_EQ(boxes.firstName, first);
  EXPECT_EQ(boxes.secondName, second);
  EXPECT_EQ(boxes.rate, rate);
}

TEST(ListEditorView, ByStateAndCount) {
  const struct {
    bool editing;
    int count;
    std::wstring_view label;
    bool newShown;
    bool editShown;
  } cases[] = {
      {false, 0, L"List(0/60)", true, false},   {false, 1, L"List(1/60)", true, true},
      {false, 59, L"List(59/60)", true, true},  {false, 60, L"List(60/60)", false, true},
      {true, 0, L"List(0/60)", false, false},   {true, 5, L"List(5/60)", false, false},
      {true, 60, L"List(60/60)", false, false},
  };
  for (const auto& c : cases) {
    const ListEditorView view = ViewOfListEditor(c.editing, c.count, 60);
    EXPECT_EQ(view.listLabel, c.label);
    EXPECT_EQ(view.listEnabled, !c.editing);
    EXPECT_EQ(view.fieldsEnabled, c.editing);
    EXPECT_EQ(view.closeShown, !c.editing);
    EXPECT_EQ(view.newShown, c.newShown) << Narrow(c.label);
    EXPECT_EQ(view.editShown, c.editShown) << Narrow(c.label);
    EXPECT_EQ(view.deleteShown, c.editShown) << Narrow(c.label);
    EXPECT_EQ(view.saveShown, c.editing);
    EXPECT_EQ(view.cancelShown, c.editing);
    EXPECT_EQ(view.memoryShown, c.editing);
  }
}

TEST(UserConversionEditor, OpensInTheViewStateWithTheFirstSelected) {
  RecordingStore store = StoreWithConversions(2);
  UserConversionEditor editor(store);
  EXPECT_EQ(editor.View().listLabel, L"List(2/60)");
  EXPECT_TRUE(editor.View().closeShown);
  EXPECT_EQ(editor.Selected(), 0);
  ExpectBoxes(editor.ShownBoxes(), L"A0", L"B0", L"1.5");
  EXPECT_TRUE(store.writes.empty());
}

TEST(UserConversionEditor, OpensEmptyWithNothingSelected) {
  RecordingStore store;
  UserConversionEditor editor(store);
  EXPECT_EQ(editor.Selected(), -1);
  ExpectBoxes(editor.ShownBoxes(), L"", L"", L"");
}

TEST(UserConversionEditor, SelectingShowsTheConversion) {
  RecordingStore store = StoreWithConversions(2);
  UserConversionEditor editor(store);
  editor.Select(1);
  EXPECT_EQ(editor.Selected(), 1);
  ExpectBoxes(editor.ShownBoxes(), L"A1", L"B1", L"2.5");
  EXPECT_FALSE(editor.View().fieldsEnabled);
  for (const int outside : {2, -1, -100, 60}) {
    editor.Select(outside);
    EXPECT_EQ(editor.Selected(), -1) << outside;
    ExpectBoxes(editor.ShownBoxes(), L"", L"", L"");
  }
}

TEST(UserConversionEditor, NewEmptiesTheBoxes) {
  RecordingStore store = StoreWithConversions(2);
  UserConversionEditor editor(store);
  editor.Select(0);
  editor.New();
  ExpectBoxes(editor.ShownBoxes(), L"", L"", L"0");
  EXPECT_TRUE(editor.View().saveShown);
}

TEST(UserConversionEditor, EditNeedsASelection) {
  RecordingStore store = StoreWithConversions(2);
  UserConversionEditor editor(store);
  editor.Select(-1);
  editor.Edit();
  EXPECT_FALSE(editor.View().saveShown);
  editor.Select(1);
  editor.Edit();
  ExpectBoxes(editor.ShownBoxes(), L"A1", L"B1", L"2.5");
  EXPECT_TRUE(editor.View().saveShown);
}

TEST(UserConversionEditor, CancelRestoresTheSelectedConversion) {
  RecordingStore store = StoreWithConversions(2);
  UserConversionEditor editor(store);
  editor.Select(1);
  editor.New();
  editor.Cancel();
  EXPECT_FALSE(editor.View().saveShown);
  EXPECT_EQ(editor.Selected(), 1);
  ExpectBoxes(editor.ShownBoxes(), L"A1", L"B1", L"2.5");
  EXPECT_TRUE(store.writes.empty());
}

TEST(UserConversionEditor, SavesANewConversion) {
  RecordingStore store;
  UserConversionEditor editor(store);
  editor.New();
  const ListEditor::Refusal outcome = editor.Save({L"  Inch ", L"Centi meter  ", L" 2.540"});
  EXPECT_EQ(outcome.sentence, L"");
  EXPECT_EQ(store.writes,
            (Lines{L"UserDefine_Convert_0/ConvType=Inch -> Centi meter",
                   L"UserDefine_Convert_0/Rate= 2.540", L"Converter/UserDefine_TotalNumber=1"}));
  EXPECT_EQ(editor.Selected(), 0);
  EXPECT_TRUE(editor.View().closeShown);
  EXPECT_EQ(editor.View().listLabel, L"List(1/60)");
  ExpectBoxes(editor.ShownBoxes(), L"Inch", L"Centi meter", L" 2.540");
}

TEST(UserConversionEditor, NewGoesBehindTheOthersWhateverIsSelected) {
  RecordingStore store = StoreWithConversions(3);
  UserConversionEditor editor(store);
  editor.Select(0);
  editor.New();
  EXPECT_EQ(editor.Save({L"x", L"y", L"-1e-3"}).sentence, L"");
  EXPECT_EQ(editor.Selected(), 3);
  EXPECT_EQ(editor.Conversions().At(3).name, L"x -> y");
  EXPECT_EQ(editor.Conversions().At(0).name, L"A0 -> B0");
}

TEST(UserConversionEditor, SavesAnEditedConversionInPlace) {
  RecordingStore store = StoreWithConversions(3);
  UserConversionEditor editor(store);
  editor.Select(1);
  editor.Edit();
  EXPECT_EQ(editor.Save({L"A1", L"B1", L"7"}).sentence, L"") << "its own name is no duplicate";
  EXPECT_EQ(store.writes,
            (Lines{L"UserDefine_Convert_1/ConvType=A1 -> B1", L"UserDefine_Convert_1/Rate=7"}));
  EXPECT_EQ(editor.Selected(), 1);
  ExpectBoxes(editor.ShownBoxes(), L"A1", L"B1", L"7");
  EXPECT_EQ(editor.View().listLabel, L"List(3/60)");
}

/// Each row breaks the rule of its sentence and all later ones that it can, so a check that comes
/// too early or too late gives another sentence.
TEST(UserConversionEditor, RefusalsInOrder) {
  const struct {
    ConversionBoxes typed;
    std::wstring_view sentence;
    int focus;
  } cases[] = {
      {{L" ", L"", L"one"}, L"Please enter a number.", UserConversionEditor::Rate},
      {{L"a", L"b", L""}, L"Please enter a number.", UserConversionEditor::Rate},
      {{L"a", L"b", L"1e999"}, L"Please enter a number.", UserConversionEditor::Rate},
      {{L"a", L"b", L"12abc"}, L"Please enter a number.", UserConversionEditor::Rate},
      {{L"   ", L"", L"0"}, L"Please, Input a unit name", UserConversionEditor::FirstName},
      {{L"", L"a->b", L"0"}, L"Please, Input a unit name", UserConversionEditor::FirstName},
      {{L"a->b", L"  ", L"0"}, L"Please, Input a unit name", UserConversionEditor::SecondName},
      {{L"a->b", L"->", L"0"}, L"Invalid unit name.", UserConversionEditor::FirstName},
      {{L"a", L"->b", L"0"}, L"Invalid unit name.", UserConversionEditor::SecondName},
      {{L" A0 ", L" B0", L"0"}, L"A0 -> B0 exists already.", UserConversionEditor::FirstName},
      {{L"a", L"b", L"0"}, L"Invalid convert rate", UserConversionEditor::Rate},
      {{L"a", L"b", L"-0.00e5"}, L"Invalid convert rate", UserConversionEditor::Rate},
      {{L"a", L"b", L"1e-400"}, L"Invalid convert rate", UserConversionEditor::Rate},
  };
  for (const bool edited : {false, true}) {
    RecordingStore store = StoreWithConversions(2);
    UserConversionEditor editor(store);
    editor.Select(1);
    edited ? editor.Edit() : editor.New();
    const ConversionBoxes before = editor.ShownBoxes();
    for (const auto& c : cases) {
      const ListEditor::Refusal outcome = editor.Save(c.typed);
      EXPECT_EQ(outcome.sentence, c.sentence) << Narrow(c.typed.firstName);
      EXPECT_EQ(outcome.field, c.focus) << Narrow(c.sentence);
      EXPECT_TRUE(editor.View().saveShown);
      ExpectBoxes(editor.ShownBoxes(), before.firstName, before.secondName, before.rate);
    }
    EXPECT_TRUE(store.writes.empty());
    EXPECT_EQ(editor.Conversions().Count(), 2);
  }
}

TEST(UserConversionEditor, TabsAreNotStripped) {
  RecordingStore store;
  UserConversionEditor editor(store);
  editor.New();
  EXPECT_EQ(editor.Save({L"\t", L"b", L"1"}).sentence, L"");
  EXPECT_EQ(editor.Conversions().At(0).name, L"\t -> b");
}

TEST(UserConversionEditor, AFullListRefusesNewAndEditedConversions) {
  for (const bool edited : {false, true}) {
    RecordingStore store = StoreWithConversions(60);
    UserConversionEditor editor(store);
    editor.Select(3);
    edited ? editor.Edit() : editor.New();
    const ListEditor::Refusal outcome = editor.Save({L"", L"", L"no number"});
    EXPECT_EQ(outcome.sentence, L"Maximum of user-define unit convert is 60");
    EXPECT_EQ(outcome.field, ListEditor::kNoField);
    EXPECT_TRUE(store.writes.empty());
  }
}

TEST(UserConversionEditor, TheSixtiethConversionFits) {
  RecordingStore store = StoreWithConversions(59);
  UserConversionEditor editor(store);
  editor.New();
  EXPECT_EQ(editor.Save({L"x", L"y", L"1"}).sentence, L"");
  EXPECT_EQ(store.writes.front(), L"UserDefine_Convert_59/ConvType=x -> y");
  EXPECT_FALSE(editor.View().newShown);
}

TEST(UserConversionEditor, AGroupedRateIsReadBackWhole) {
  RecordingStore store;
  UserConversionEditor editor(store);
  editor.New();
  EXPECT_EQ(editor.Save({L"a", L"b", L"1,234,567.5"}).sentence, L"");
  EXPECT_EQ(ReadRate(editor.Conversions().At(0).rateText), 1234567.5);
  editor.New();
  EXPECT_EQ(editor.Save({L"c", L"d", L"\u22121\u2009234e\u22123"}).sentence, L"");
  EXPECT_EQ(editor.Conversions().At(1).rateText, L"-1234e-3");
}

TEST(UserConversionEditor, DeleteSelectsWhatTakesItsPlace) {
  RecordingStore store = StoreWithConversions(5);
  UserConversionEditor editor(store);
  editor.Select(-1);
  editor.Delete();
  EXPECT_TRUE(store.writes.empty()) << "nothing is selected";
  editor.Select(2);
  editor.Delete();
  EXPECT_EQ(store.writes.back(), L"Converter/UserDefine_TotalNumber=4");
  EXPECT_EQ(editor.Selected(), 2);
  ExpectBoxes(editor.ShownBoxes(), L"A3", L"B3", L"4.5");
  editor.Select(3);
  editor.Delete();
  EXPECT_EQ(editor.Selected(), 2);
  ExpectBoxes(editor.ShownBoxes(), L"A3", L"B3", L"4.5");
  EXPECT_EQ(editor.View().listLabel, L"List(3/60)");
}

TEST(UserConversionEditor, DeletingTheLastOneLeavesNothing) {
  RecordingStore store = StoreWithConversions(1);
  UserConversionEditor editor(store);
  editor.Select(0);
  editor.Delete();
  EXPECT_EQ(editor.Selected(), -1);
  ExpectBoxes(editor.ShownBoxes(), L"", L"", L"");
  EXPECT_FALSE(editor.View().deleteShown);
}

TEST(UserConversionEditor, ANameWithoutArrowCanBeRepaired) {
  RecordingStore store;
  Write(store, settings::kConversionName, 0, L"Inch");
  Write(store, settings::kConversionRate, 0, L"2.54");
  Write(store, settings::kConversionCount, 1);
  UserConversionEditor editor(store);
  editor.Select(0);
  ExpectBoxes(editor.ShownBoxes(), L"Inch", L"", L"2.54");
  editor.Edit();
  EXPECT_EQ(editor.Save({L"Inch", L"Centimeter", L"2.54"}).sentence, L"");
  EXPECT_EQ(editor.Conversions().At(0).name, L"Inch -> Centimeter");
}

TEST(UserConversionEditor, DeleteQuestion) {
  RecordingStore store;
  EXPECT_EQ(UserConversionEditor(store).DeleteQuestion(),
            L"Are you sure you want to delete the selected unit convert?");
}

}  // namespace
}  // namespace vexa
