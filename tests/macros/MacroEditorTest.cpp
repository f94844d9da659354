#include "macros/MacroEditor.h"

#include <gtest/gtest.h>

#include "display/MemorySettingsStore.h"
#include "display/SettingsLayout.h"

namespace vexa {
namespace {

using Fields = MacroEditor::Fields;

class MacroEditorTest : public testing::Test {
 protected:
  void StoreMacros(int count) {
    for (int i = 0; i < count; ++i) {
      Write(store, settings::kMacroName, i, L"m" + std::to_wstring(i));
      Write(store, settings::kMacroType, i,
            kMacroTypes[static_cast<std::size_t>(i % 3)].storedText);
      Write(store, settings::kMacroFormula, i, kFormulas[i % 3]);
    }
    Write(store, settings::kMacroCount, count);
  }

  std::wstring StoredName(int index) const { return Read(store, settings::kMacroName, index); }
  std::wstring StoredFormula(int index) const {
    return Read(store, settings::kMacroFormula, index);
  }
  int StoredCount() const { return Read(store, settings::kMacroCount); }

  static constexpr const wchar_t* kFormulas[] = {L"x+1", L"x*y", L"x+y+z"};
  MemorySettingsStore store;
};

TEST_F(MacroEditorTest, EmptyTableShowsNewAndCloseOnly) {
  const MacroEditor editor(store);
  const ListEditorView controls = editor.View();
  EXPECT_TRUE(controls.listEnabled);
  EXPECT_TRUE(controls.closeShown);
  EXPECT_TRUE(controls.newShown);
  EXPECT_FALSE(controls.fieldsEnabled);
  EXPECT_FALSE(controls.editShown);
  EXPECT_FALSE(controls.deleteShown);
  EXPECT_FALSE(controls.saveShown);
  EXPECT_FALSE(controls.cancelShown);
  EXPECT_FALSE(controls.memoryShown);
  EXPECT_EQ(editor.Selected(), -1);
  EXPECT_EQ(editor.View().listLabel, L"List(0/60)");
  EXPECT_TRUE(editor.ShownFields().name.empty());
}

TEST_F(MacroEditorTest, EditingShowsSaveCancelAndMem) {
  StoreMacros(2);
  MacroEditor editor(store);
  EXPECT_TRUE(editor.View().editShown);
  EXPECT_TRUE(editor.View().deleteShown);
  editor.Edit();
  const ListEditorView controls = editor.View();
  EXPECT_FALSE(controls.listEnabled);
  EXPECT_FALSE(controls.closeShown);
  EXPECT_FALSE(controls.newShown);
  EXPECT_FALSE(controls.editShown);
  EXPECT_FALSE(controls.deleteShown);
  EXPECT_TRUE(controls.fieldsEnabled);
  EXPECT_TRUE(controls.saveShown);
  EXPECT_TRUE(controls.cancelShown);
  EXPECT_TRUE(controls.memoryShown);
}

TEST_F(MacroEditorTest, FullTable) {
  StoreMacros(60);
  MacroEditor editor(store);
  EXPECT_EQ(editor.View().listLabel, L"List(60/60)");
  EXPECT_FALSE(editor.View().newShown);
  editor.Edit();
  // The maximum is checked before anything else, an empty name included.
  const MacroEditor::Refusal refusal = editor.Save({});
  EXPECT_EQ(refusal.sentence, L"Maximum of macro is 60");
  EXPECT_TRUE(editor.IsEditing());
}

TEST_F(MacroEditorTest, HostileCountIsCapped) {
  for (const int count : {2147483647, -1, -2147483647 - 1}) {
    Write(store, settings::kMacroCount, count);
    const MacroEditor editor(store);
    EXPECT_EQ(editor.Macros().Count(), count > 0 ? 60 : 0);
  }
}

TEST_F(MacroEditorTest, ChecksInOrder) {
  struct Case {
    Fields fields;
    std::wstring sentence;
    int field;
  };
  // With "x+" before it, as long as a formula may be.
  const std::wstring longest(148, L'1');
  const Case cases[] = {
      {{L"", -1, L""}, L"Macro Name is NULL", MacroEditor::Name},
      {{L"   ", -1, L""}, L"Macro Name is NULL", MacroEditor::Name},
      {{L"f(x)", -1, L""}, L"Can not use '(',')',':' in Macro Name.", MacroEditor::Name},
      {{L"a:b", 0, L"x"}, L"Can not use '(',')',':' in Macro Name.", MacroEditor::Name},
      {{L")", 0, L"x"}, L"Can not use '(',')',':' in Macro Name.", MacroEditor::Name},
      {{L"m1", -1, L""}, L"m1 exists already.", MacroEditor::Name},
      {{L" m0 ", 0, L"x"}, L"m0 exists already.", MacroEditor::Name},
      {{L"new", -1, L""}, L"Argument Type is NULL", MacroEditor::Type},
      {{L"new", 0, L""}, L"Macro Expression is NULL", MacroEditor::Formula},
      {{L"new", 0, L"  "}, L"Macro Expression is NULL", MacroEditor::Formula},
      {{L"new", 0, L"x+1" + longest},
       L"Macro Expression exceeded length limit.",
       MacroEditor::Formula},
      {{L"new", 0, L"x+" + longest}, L"number exceeded length limit.", MacroEditor::Formula},
      {{L"new", 0, L"x+y"}, L"Can not use variable Y", MacroEditor::Formula},
      {{L"new", 1, L"x+z"}, L"Can not use variable Z", MacroEditor::Formula},
      {{L"new", 0, L"2+3"}, L"Argument error : Missing variable X", MacroEditor::Formula},
      {{L"new", 1, L"x*2"}, L"Argument error : Missing variable Y", MacroEditor::Formula},
      {{L"new", 2, L"x*y"}, L"Argument error : Missing variable Z", MacroEditor::Formula},
      {{L"new", 0, L"x+#"}, L"# is not supported.", MacroEditor::Formula},
      {{L"new", 0, L"sin x"}, L"Expression error.", MacroEditor::Formula},
  };
  StoreMacros(3);
  for (const Case& c : cases) {
    MacroEditor editor(store);
    editor.New();
    const MacroEditor::Refusal refusal = editor.Save(c.fields);
    EXPECT_EQ(refusal.sentence, c.sentence);
    EXPECT_EQ(refusal.field, c.field);
    EXPECT_TRUE(editor.IsEditing());
    EXPECT_EQ(StoredCount(), 3);
  }
}

TEST_F(MacroEditorTest, NewMacroIsStoredTrimmedAndSelected) {
  StoreMacros(2);
  MacroEditor editor(store);
  editor.New();
  EXPECT_TRUE(editor.ShownFields().name.empty());
  EXPECT_EQ(editor.ShownFields().type, -1);
  EXPECT_TRUE(editor.Save({L"  area ", 1, L" x*y "}).sentence.empty());
  EXPECT_FALSE(editor.IsEditing());
  EXPECT_EQ(editor.Selected(), 2);
  EXPECT_EQ(StoredCount(), 3);
  EXPECT_EQ(StoredName(2), L"area");
  EXPECT_EQ(Read(store, settings::kMacroType, 2), L"TYPE2 : F(X,Y)");
  EXPECT_EQ(StoredFormula(2), L"x*y");
  EXPECT_EQ(MacroLine(editor.Macros().At(2)), L"area(X,Y)");
  EXPECT_EQ(editor.View().listLabel, L"List(3/60)");
}

TEST_F(MacroEditorTest, NamesDifferByCase) {
  MacroEditor editor(store);
  editor.New();
  EXPECT_TRUE(editor.Save({L"Area", 0, L"x"}).sentence.empty());
  editor.New();
  EXPECT_TRUE(editor.Save({L"area", 0, L"x"}).sentence.empty());
  EXPECT_EQ(StoredCount(), 2);
}

TEST_F(MacroEditorTest, EditRewritesInPlaceAndMayKeepItsName) {
  StoreMacros(3);
  MacroEditor editor(store);
  editor.Select(1);
  editor.Edit();
  EXPECT_EQ(editor.ShownFields().name, L"m1");
  EXPECT_EQ(editor.ShownFields().type, 1);
  EXPECT_EQ(editor.ShownFields().formula, L"x*y");
  EXPECT_TRUE(editor.Save({L"m1", 0, L"x^2"}).sentence.empty());
  EXPECT_EQ(editor.Selected(), 1);
  EXPECT_EQ(StoredFormula(1), L"x^2");
  EXPECT_EQ(StoredCount(), 3);
}

TEST_F(MacroEditorTest, EditNeedsASelection) {
  StoreMacros(1);
  MacroEditor editor(store);
  editor.Select(-1);
  editor.Edit();
  EXPECT_FALSE(editor.IsEditing());
}

TEST_F(MacroEditorTest, CancelShowsTheEditedMacroAgain) {
  StoreMacros(2);
  MacroEditor editor(store);
  editor.Select(1);
  editor.Edit();
  editor.Cancel();
  EXPECT_FALSE(editor.IsEditing());
  EXPECT_EQ(editor.ShownFields().name, L"m1");
  editor.New();
  editor.Cancel();
  EXPECT_EQ(editor.ShownFields().name, L"m1");
}

TEST_F(MacroEditorTest, DeleteMovesTheOthersDown) {
  StoreMacros(3);
  MacroEditor editor(store);
  editor.Delete();
  EXPECT_EQ(StoredCount(), 2);
  EXPECT_EQ(StoredName(0), L"m1");
  EXPECT_EQ(StoredFormula(0), L"x*y");
  EXPECT_EQ(StoredName(1), L"m2");
  EXPECT_EQ(StoredFormula(1), L"x+y+z");
  EXPECT_EQ(StoredName(2), L"");
  EXPECT_EQ(Read(store, settings::kMacroType, 2), L"");
  EXPECT_EQ(StoredFormula(2), L"");
  EXPECT_EQ(editor.Selected(), 0);
  EXPECT_EQ(editor.ShownFields().name, L"m1");
  editor.Select(1);
  editor.Delete();
  EXPECT_EQ(editor.Selected(), 0);
  editor.Delete();
  EXPECT_EQ(editor.Selected(), -1);
  EXPECT_TRUE(editor.ShownFields().name.empty());
  editor.Delete();
  EXPECT_EQ(StoredCount(), 0);
}

TEST_F(MacroEditorTest, ForeignTypeCountsAsThreeArguments) {
  Write(store, settings::kMacroName, 0, L"odd");
  Write(store, settings::kMacroType, 0, L"something else");
  Write(store, settings::kMacroCount, 1);
  const MacroEditor editor(store);
  EXPECT_EQ(editor.ShownFields().type, 2);
  EXPECT_EQ(MacroLine(editor.Macros().At(0)), L"odd(X,Y,Z)");
}

}  // namespace
}  // namespace vexa
