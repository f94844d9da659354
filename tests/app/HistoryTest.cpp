#include "app/History.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "display/SettingsLayout.h"
#include "support/RecordingStore.h"

namespace vexa {
namespace {

using Texts = std::vector<std::wstring>;
using test::RecordingStore;

Texts Entries(const History& history) {
  Texts entries;
  for (int i = 1; i <= history.Count(); ++i) entries.push_back(history.At(i));
  return entries;
}

TEST(History, AddsBehindTheNewest) {
  History history;
  EXPECT_TRUE(history.IsEmpty());
  history.AddHistory(L"1+1");
  history.AddHistory(L"2+2");
  EXPECT_FALSE(history.IsEmpty());
  EXPECT_EQ(Entries(history), (Texts{L"1+1", L"2+2"}));
}

TEST(History, TheSameAsTheNewestIsNotAddedAgain) {
  History history;
  for (const wchar_t* text : {L"1", L"1", L"1 ", L"1", L"1"}) history.AddHistory(text);
  EXPECT_EQ(Entries(history), (Texts{L"1", L"1 ", L"1"}));
}

TEST(History, TheEleventhDropsTheOldest) {
  History history;
  Texts expected;
  for (int i = 1; i <= 25; ++i) {
    const std::wstring text = std::to_wstring(i);
    history.AddHistory(text);
    expected.push_back(text);
    if (expected.size() > 10) expected.erase(expected.begin());
    ASSERT_EQ(Entries(history), expected);
  }
}

TEST(History, AnEntryOfItsOwnCanBeAddedAgain) {
  History history;
  for (int i = 0; i < 10; ++i) history.AddHistory(std::wstring(40, static_cast<wchar_t>(L'a' + i)));
  history.AddHistory(history.At(1));
  EXPECT_EQ(history.At(10), std::wstring(40, L'a'));
  EXPECT_EQ(history.At(1), std::wstring(40, L'b'));
}

TEST(History, Captions) {
  const std::pair<std::wstring, std::wstring> cases[] = {
      {L"1+1", L"1+1"},
      {L"12345678901234567", L"12345678901234567"},
      {L"123456789012345678", L"12345678901234..."},
      {L"1234567890123456789012345", L"12345678901234..."},
      {L"=[D]1,234.5", L"=[D]1,234.5"},
  };
  for (const auto& [entry, caption] : cases) {
    History history;
    history.AddHistory(entry);
    EXPECT_EQ(history.Caption(1), caption);
  }
}

TEST(History, ReadsTheCountThenTheNewestFirst) {
  RecordingStore store;
  Write(store, settings::kCalHistoryCount, 3);
  for (int i = 1; i <= 3; ++i) Write(store, settings::kCalHistory, i, std::to_wstring(i));
  History history;
  history.Load(store);
  EXPECT_EQ(Entries(history), (Texts{L"1", L"2", L"3"}));
  EXPECT_EQ(store.reads, (Texts{L"History/CalHistoryCount", L"History/CalHistory3",
                                L"History/CalHistory2", L"History/CalHistory1"}));
}

TEST(History, WritesTheCountThenTheOldestFirst) {
  RecordingStore store;
  History history;
  for (const wchar_t* text : {L"a", L"b", L"c"}) history.AddHistory(text);
  history.Save(store);
  EXPECT_EQ(store.writes, (Texts{L"History/CalHistoryCount", L"History/CalHistory1",
                                 L"History/CalHistory2", L"History/CalHistory3"}));
  History again;
  again.Load(store);
  EXPECT_EQ(Entries(again), Entries(history));
}

TEST(History, HostileCounts) {
  const std::pair<int, int> cases[] = {{25, 10}, {11, 10},
                                       {10, 10}, {std::numeric_limits<int>::max(), 10},
                                       {-1, 0},  {std::numeric_limits<int>::min(), 0}};
  for (const auto& [stored, count] : cases) {
    MemorySettingsStore store;
    Write(store, settings::kCalHistoryCount, stored);
    for (int i = 1; i <= 25; ++i) Write(store, settings::kCalHistory, i, std::to_wstring(i));
    History history;
    history.Load(store);
    ASSERT_EQ(history.Count(), count) << stored;
    for (int i = 1; i <= count; ++i) EXPECT_EQ(history.At(i), std::to_wstring(i));
  }
}

TEST(History, AShorterHistoryLeavesStaleEntriesBehind) {
  MemorySettingsStore store;
  History history;
  for (int i = 0; i < 5; ++i) history.AddHistory(std::to_wstring(i));
  history.Save(store);
  History shorter;
  shorter.AddHistory(L"x");
  shorter.Save(store);
  EXPECT_EQ(Read(store, settings::kCalHistory, 5), L"4");
  History again;
  again.Load(store);
  EXPECT_EQ(Entries(again), (Texts{L"x"}));
}

TEST(History, EmptyEntriesHaveACaption) {
  MemorySettingsStore store;
  Write(store, settings::kCalHistoryCount, 3);
  Write(store, settings::kCalHistory, 2, L"1+2");
  History history;
  history.Load(store);
  EXPECT_EQ(history.Caption(1), L"(empty)");
  EXPECT_EQ(history.Caption(2), L"1+2");
  EXPECT_EQ(history.Caption(3), L"(empty)");
  EXPECT_EQ(history.At(3), L"");
}

TEST(ResultEntry, TagsOfTheBases) {
  const std::pair<int, std::wstring> cases[] = {{1, L"=[D]1,234.5"}, {2, L"=[H]1,234.5"},
                                                {3, L"=[B]1,234.5"}, {4, L"=[O]1,234.5"},
                                                {0, L"=[D]1,234.5"}, {5, L"=[D]1,234.5"}};
  for (const auto& [base, entry] : cases) {
    EXPECT_EQ(ResultEntry(static_cast<BaseType>(base), L"1,234.5"), entry);
  }
}

TEST(RecallText, Table) {
  struct RecallCase {
    std::wstring entry;
    BaseType base;
    std::wstring text;
  };
  constexpr BaseType kDec = BaseType::Dec;
  constexpr BaseType kHex = BaseType::Hex;
  const std::wstring longExpression = L"1+2+3+4+5+6+7+8+9+10";
  const RecallCase cases[] = {
      {L"1+2", kHex, L"1+2"},
      {longExpression, kDec, longExpression},
      {L"M:f(1)", kDec, L"M:f(1)"},
      {L"=[H]FF", kDec, L"255"},
      {L"=[H]ff", kDec, L"255"},
      {L"=[H]FF", kHex, L"FF"},
      {L"=[H]FF", BaseType::Bin, L"11111111"},
      {L"=[H]FFFFFFFF", kDec, L"4294967295"},
      {L"=[H]F.F", kDec, L"3855"},
      {L"=[H]", kDec, L"0"},
      {L"=[B]101", kDec, L"5"},
      {L"=[B]101", BaseType::Oct, L"5"},
      {L"=[B]" + std::wstring(32, L'1'), kHex, L"FFFFFFFF"},
      {L"=[B]12", kDec, L"4"},
      {L"=[O]17", kDec, L"15"},
      {L"=[O]19", kDec, L"17"},
      {L"=[D]1,234.5", kDec, L"1234.5"},
      {L"=[D]1,234,567", kDec, L"1234567"},
      {L"=[D]-1,234.5", kHex, L"FFFFFB2E"},
      {L"=[D]1.23450e+004", kDec, L"12345"},
      {L"=[D]12.34500E+003", kDec, L"12345"},
      {L"=[D]1.00000e-013", kDec, L"1.00000e-013"},
      {L"=[X]1,234", kDec, L"1234"},
      {L"=[D]255", kHex, L"FF"},
      {L"=[D]", kDec, L"0"},
      {L"=5", kDec, L"0"},
      {L"=", kDec, L"0"},
  };
  for (const RecallCase& c : cases) {
    EXPECT_EQ(RecallText(c.entry, c.base, 5), c.text);
  }
}

TEST(RecallText, TooLargeResultsOverflow) {
  EXPECT_EQ(RecallText(L"=[H]" + std::wstring(1000, L'F'), BaseType::Dec, 5),
            L"Out of range(overflow or underflow)");
}

}  // namespace
}  // namespace vexa
