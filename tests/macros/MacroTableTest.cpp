#include "macros/MacroTable.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "display/SettingsLayout.h"
#include "support/RecordingStore.h"

namespace vexa {
namespace {

using Texts = std::vector<std::wstring>;
using test::RecordingStore;

std::wstring Stored(const SettingsStore& store, int index, const wchar_t* entry) {
  return store.ReadSettingString(settings::Indexed(L"Macro", index), entry, L"(missing)");
}

/// A table with macros a, b, c of the types in order.
MacroTable ThreeMacros(SettingsStore& store) {
  MacroTable table(store);
  table.AddMacro(L"a", L"TYPE1 : F(X)", L"x+1");
  table.AddMacro(L"b", L"TYPE2 : F(X,Y)", L"x+y");
  table.AddMacro(L"c", L"TYPE3 : F(X,Y,Z)", L"x+y+z");
  return table;
}

TEST(MacroTypes, StoredTexts) {
  const std::pair<std::wstring_view, FormulaType> cases[] = {
      {L"TYPE1 : F(X)", FormulaType::X},       {L"TYPE2 : F(X,Y)", FormulaType::XY},
      {L"TYPE3 : F(X,Y,Z)", FormulaType::XYZ}, {L"", FormulaType::XYZ},
      {L"type1 : f(x)", FormulaType::XYZ},     {L"TYPE1 : F(X) ", FormulaType::XYZ},
      {L"something else", FormulaType::XYZ},
  };
  for (const auto& [text, type] : cases) EXPECT_EQ(MacroTypeOf(text).formulaType, type);
}

TEST(MacroTypes, ListSuffixes) {
  const std::pair<std::wstring, std::wstring> cases[] = {
      {L"TYPE1 : F(X)", L"area(X)"},
      {L"TYPE2 : F(X,Y)", L"area(X,Y)"},
      {L"TYPE3 : F(X,Y,Z)", L"area(X,Y,Z)"},
      {L"something else", L"area(X,Y,Z)"},
  };
  for (const auto& [type, line] : cases) EXPECT_EQ(MacroLine({L"area", type}), line);
}

TEST(MacroTable, AnEmptyStoreHasNoMacros) {
  MemorySettingsStore store;
  MacroTable table(store);
  table.LoadMacroTable();
  EXPECT_EQ(table.Count(), 0);
  EXPECT_FALSE(table.Find(L"").has_value());
  EXPECT_EQ(table.ReadFormula(0), L"");
}

TEST(MacroTable, AddWritesTheMacroThenTheCount) {
  RecordingStore store;
  MacroTable table(store);
  table.AddMacro(L"area", L"TYPE2 : F(X,Y)", L"x*y");
  EXPECT_EQ(store.writes,
            (Texts{L"Macro0/Name", L"Macro0/Type", L"Macro0/Formula", L"MacroInfo/TotalNumber"}));
  EXPECT_EQ(table.Count(), 1);
  EXPECT_EQ(table.At(0).name, L"area");
  EXPECT_EQ(table.At(0).type, L"TYPE2 : F(X,Y)");
  EXPECT_EQ(table.ReadFormula(0), L"x*y");
  EXPECT_EQ(Read(store, settings::kMacroCount), 1);
}

TEST(MacroTable, LoadReadsTheCountThenNamesAndTypes) {
  RecordingStore store;
  ThreeMacros(store);
  store.ForgetNotes();
  MacroTable table(store);
  table.LoadMacroTable();
  EXPECT_EQ(store.reads, (Texts{L"MacroInfo/TotalNumber", L"Macro0/Name", L"Macro0/Type",
                                L"Macro1/Name", L"Macro1/Type", L"Macro2/Name", L"Macro2/Type"}));
  ASSERT_EQ(table.Count(), 3);
  EXPECT_EQ(table.At(2).name, L"c");
  EXPECT_EQ(table.At(2).type, L"TYPE3 : F(X,Y,Z)");
  EXPECT_EQ(table.ReadFormula(1), L"x+y");
  table.LoadMacroTable();
  EXPECT_EQ(table.Count(), 3);
}

TEST(MacroTable, HostileCounts) {
  const std::pair<int, int> cases[] = {
      {60, 60}, {61, 60}, {2147483647, 60}, {-1, 0}, {-2147483647 - 1, 0}};
  for (const auto& [stored, count] : cases) {
    MemorySettingsStore store;
    Write(store, settings::kMacroCount, stored);
    MacroTable table(store);
    table.LoadMacroTable();
    EXPECT_EQ(table.Count(), count) << stored;
  }
}

TEST(MacroTable, MissingSectionsReadAsEmpty) {
  MemorySettingsStore store;
  Write(store, settings::kMacroCount, 2);
  MacroTable table(store);
  table.LoadMacroTable();
  ASSERT_EQ(table.Count(), 2);
  EXPECT_EQ(table.At(1).name, L"");
  EXPECT_EQ(table.At(1).type, L"");
  EXPECT_EQ(table.ReadFormula(1), L"");
  EXPECT_EQ(table.Find(L""), 0);
}

TEST(MacroTable, ReplaceRewritesOneMacro) {
  RecordingStore store;
  MacroTable table = ThreeMacros(store);
  store.ForgetNotes();
  table.ReplaceMacro(1, L"B", L"TYPE1 : F(X)", L"x!");
  EXPECT_EQ(store.writes, (Texts{L"Macro1/Name", L"Macro1/Type", L"Macro1/Formula"}));
  EXPECT_EQ(table.Count(), 3);
  EXPECT_EQ(table.At(1).name, L"B");
  EXPECT_EQ(table.At(1).type, L"TYPE1 : F(X)");
  EXPECT_EQ(table.ReadFormula(1), L"x!");
  EXPECT_EQ(table.ReadFormula(0), L"x+1");
  EXPECT_EQ(table.ReadFormula(2), L"x+y+z");
}

struct StoredMacro {
  const wchar_t* name;
  const wchar_t* type;
  const wchar_t* formula;
};

void ExpectStored(const SettingsStore& store, int index, const StoredMacro& macro) {
  EXPECT_EQ(Stored(store, index, L"Name"), macro.name) << index;
  EXPECT_EQ(Stored(store, index, L"Type"), macro.type) << index;
  EXPECT_EQ(Stored(store, index, L"Formula"), macro.formula) << index;
}

TEST(MacroTable, DeleteMovesTheOthersDownAndEmptiesTheLastSection) {
  const StoredMacro a{L"a", L"TYPE1 : F(X)", L"x+1"};
  const StoredMacro b{L"b", L"TYPE2 : F(X,Y)", L"x+y"};
  const StoredMacro c{L"c", L"TYPE3 : F(X,Y,Z)", L"x+y+z"};
  const StoredMacro empty{L"", L"", L""};
  const std::vector<StoredMacro> left[] = {{b, c, empty}, {a, c, empty}, {a, b, empty}};
  for (int deleted = 0; deleted < 3; ++deleted) {
    SCOPED_TRACE(deleted);
    MemorySettingsStore store;
    MacroTable table = ThreeMacros(store);
    table.DeleteMacro(deleted);
    EXPECT_EQ(table.Count(), 2);
    EXPECT_EQ(Read(store, settings::kMacroCount), 2);
    for (int i = 0; i < 3; ++i) ExpectStored(store, i, left[deleted][static_cast<std::size_t>(i)]);
    for (int i = 0; i < 2; ++i) EXPECT_EQ(table.At(i).name, Stored(store, i, L"Name"));
  }
}

TEST(MacroTable, DeletingAllLeavesEmptySections) {
  RecordingStore store;
  MacroTable table = ThreeMacros(store);
  for (int i = 0; i < 3; ++i) table.DeleteMacro(0);
  EXPECT_EQ(table.Count(), 0);
  EXPECT_EQ(Read(store, settings::kMacroCount), 0);
  for (int i = 0; i < 3; ++i) ExpectStored(store, i, {L"", L"", L""});
  EXPECT_EQ(store.writes.back(), L"MacroInfo/TotalNumber");
}

TEST(MacroTable, FindIsExactAndTakesTheFirst) {
  MemorySettingsStore store;
  MacroTable table(store);
  for (const wchar_t* name : {L"area", L"Area", L"area", L"\u00e9t\u00e9"}) {
    table.AddMacro(name, L"TYPE1 : F(X)", L"x");
  }
  EXPECT_EQ(table.Find(L"area"), 0);
  EXPECT_EQ(table.Find(L"Area"), 1);
  EXPECT_EQ(table.Find(L"\u00e9t\u00e9"), 3);
  for (const wchar_t* name : {L"AREA", L"area ", L" area", L"are", L"", L"\u00c9t\u00e9"}) {
    EXPECT_FALSE(table.Find(name).has_value());
  }
}

}  // namespace
}  // namespace vexa
