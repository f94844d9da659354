#include "macros/MemoryVariables.h"

#include <gtest/gtest.h>

#include <limits>

#include "display/MemorySettingsStore.h"
#include "display/SettingsLayout.h"

namespace vexa {
namespace {

std::wstring FormulaText(const MemoryVariables& variables, int index) {
  std::wstring text;
  EXPECT_EQ(variables.FormulaText(index, text), L"");
  return text;
}

TEST(MemoryVariables, FreshStoreListsZeros) {
  MemorySettingsStore store;
  const MemoryVariables variables(store);
  EXPECT_EQ(variables.Line(0), L"Mem01 = 0");
  EXPECT_EQ(variables.Line(8), L"Mem09 = 0");
  EXPECT_EQ(variables.Line(9), L"Mem10 = 0");
  EXPECT_EQ(variables.Line(19), L"Mem20 = 0");
}

TEST(MemoryVariables, StoreWritesTheSlotAtOnce) {
  MemorySettingsStore store;
  MemoryVariables variables(store);
  variables.Store(0, L"2.5");
  variables.Store(19, L"1.00000e+020");
  EXPECT_EQ(store.ReadSettingString(L"MemoryVar", L"Var0", L""), L"2.5");
  EXPECT_EQ(store.ReadSettingString(L"MemoryVar", L"Var19", L""), L"1.00000e+020");
  EXPECT_EQ(variables.Line(0), L"Mem01 = 2.5");
  EXPECT_EQ(variables.Value(19), 1e20);
}

TEST(MemoryVariables, TextThatIsNoNumberIsZero) {
  MemorySettingsStore store;
  MemoryVariables variables(store);
  for (const std::wstring_view text : {L"hello", L"", L"inf", L"-infinity", L"nan", L"-nan(5)"}) {
    variables.Store(3, text);
    EXPECT_EQ(variables.Value(3), 0.0);
    EXPECT_EQ(variables.Line(3), L"Mem04 = " + std::wstring(text));
  }
}

TEST(MemoryVariables, TooLargeNumbersAreInfinite) {
  MemorySettingsStore store;
  MemoryVariables variables(store);
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const std::pair<const wchar_t*, double> cases[] = {
      {L"1e400", kInfinity}, {L"1.798e+308", kInfinity}, {L"-1e999", -kInfinity}, {L"1e-400", 0.0}};
  for (const auto& [text, value] : cases) {
    variables.Store(3, text);
    EXPECT_EQ(variables.Value(3), value);
  }
}

TEST(MemoryVariables, TypesetNumbersAreRead) {
  MemorySettingsStore store;
  MemoryVariables variables(store);
  variables.Store(3, L"\u22121\u2009234.5");
  EXPECT_EQ(variables.Value(3), -1234.5);
  EXPECT_EQ(FormulaText(variables, 3), L"-1234.5");
}

TEST(MemoryVariables, TheNumberAtTheFrontCounts) {
  MemorySettingsStore store;
  MemoryVariables variables(store);
  variables.Store(3, L" -2.5 apples");
  EXPECT_EQ(variables.Value(3), -2.5);
}

TEST(MemoryVariables, GroupedTextIsReadWhole) {
  MemorySettingsStore store;
  MemoryVariables variables(store);
  variables.Store(0, L"-1,500,000.25");
  EXPECT_EQ(variables.Value(0), -1500000.25);
}

TEST(MemoryVariables, FormulasGetNumbersWithoutSeparators) {
  MemorySettingsStore store;
  MemoryVariables variables(store);
  const std::pair<const wchar_t*, const wchar_t*> cases[] = {{L"2.5", L"2.5"},
                                                             {L"1.00000e+020", L"1.00000e+020"},
                                                             {L"-1,500,000.25", L"-1500000.25"},
                                                             {L"hello", L"0"},
                                                             {L"", L"0"},
                                                             {L"1,2", L"0"},
                                                             {L"1 apple", L"0"},
                                                             {L"1e-999", L"1e-999"},
                                                             {L" 12\t", L"12"}};
  for (const auto& [stored, text] : cases) {
    variables.Store(3, stored);
    EXPECT_EQ(FormulaText(variables, 3), text);
  }
}

TEST(MemoryVariables, FormulasGetNoNumberThatIsTooLarge) {
  MemorySettingsStore store;
  MemoryVariables variables(store);
  for (const std::wstring_view stored : {L"1e999", L"-1e400", L"1.798e+308", L" 1e999 "}) {
    variables.Store(3, stored);
    std::wstring text = L"as it was";
    EXPECT_EQ(variables.FormulaText(3, text), L"Out of range(overflow or underflow)");
    EXPECT_EQ(text, L"as it was");
  }
}

TEST(MemoryVariables, ClearAllWritesEverySlot) {
  MemorySettingsStore store;
  MemoryVariables variables(store);
  for (int i = 0; i < MemoryVariables::kCount; ++i) variables.Store(i, L"7");
  variables.ClearAll();
  for (int i = 0; i < MemoryVariables::kCount; ++i) {
    EXPECT_EQ(Read(store, settings::kMemoryVariable, i), L"0");
  }
}

TEST(MemoryVariables, Sentences) {
  EXPECT_EQ(MemoryVariables::kSelectMessage, L"Please select a memory variable");
  EXPECT_EQ(MemoryVariables::kClearQuestion, L"Are you sure you want to clear all variable?");
}

}  // namespace
}  // namespace vexa
