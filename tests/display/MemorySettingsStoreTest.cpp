#include "display/MemorySettingsStore.h"

#include <gtest/gtest.h>

#include <limits>

namespace vexa {
namespace {

TEST(MemorySettingsStore, MissingValuesGiveTheirDefaults) {
  const MemorySettingsStore store;
  EXPECT_EQ(store.ReadSettingInt(L"Config", L"Mode", 7), 7);
  EXPECT_EQ(store.ReadSettingString(L"Grapher", L"X Min", L"-10"), L"-10");
}

TEST(MemorySettingsStore, KeepsIntegers) {
  MemorySettingsStore store;
  for (const int value :
       {0, -1, 5, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
    EXPECT_TRUE(store.WriteSettingInt(L"Config", L"Mode", value));
    EXPECT_EQ(store.ReadSettingInt(L"Config", L"Mode", 99), value);
  }
}

TEST(MemorySettingsStore, KeepsTextsAsTheyStand) {
  MemorySettingsStore store;
  const std::wstring texts[] = {L"",
                                L" blank ",
                                L"a=b;c\n\t\"\\",
                                L"\u03c0\U0001f600",
                                std::wstring(L"a\0b", 3),
                                std::wstring(1'000'000, L'x')};
  for (const std::wstring& text : texts) {
    EXPECT_TRUE(store.WriteSettingString(L"Macro0", L"Name", text));
    EXPECT_TRUE(store.ReadSettingString(L"Macro0", L"Name", L"default") == text);
  }
}

TEST(MemorySettingsStore, SectionsAndEntriesAreApart) {
  MemorySettingsStore store;
  store.WriteSettingInt(L"A", L"BC", 1);
  store.WriteSettingInt(L"AB", L"C", 2);
  EXPECT_EQ(store.ReadSettingInt(L"A", L"BC", 0), 1);
  EXPECT_EQ(store.ReadSettingInt(L"AB", L"C", 0), 2);
  EXPECT_EQ(store.ReadSettingInt(L"a", L"bc", 0), 0);
  EXPECT_EQ(store.ReadSettingInt(L"A", L"", 0), 0);
}

TEST(MemorySettingsStore, AValueOfTheOtherKindIsMissing) {
  MemorySettingsStore store;
  store.WriteSettingString(L"S", L"text", L"12");
  store.WriteSettingInt(L"S", L"number", 12);
  EXPECT_EQ(store.ReadSettingInt(L"S", L"text", 7), 7);
  EXPECT_EQ(store.ReadSettingString(L"S", L"number", L"none"), L"none");
  store.WriteSettingInt(L"S", L"text", 3);
  EXPECT_EQ(store.ReadSettingInt(L"S", L"text", 7), 3);
  EXPECT_EQ(store.ReadSettingString(L"S", L"text", L"none"), L"none");
}

TEST(MemorySettingsStore, RemembersItsKey) {
  MemorySettingsStore store;
  store.SetSettingsKey(L"Vexa Calculator");
  EXPECT_EQ(store.settingsKey, L"Vexa Calculator");
}

}  // namespace
}  // namespace vexa
