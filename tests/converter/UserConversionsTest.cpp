// The stored list of the user's conversions: what is read, and every write.

#include "converter/UserConversions.h"

#include <gtest/gtest.h>

#include <limits>

#include "converter/RecordingStore.h"
#include "support/Vectors.h"

namespace vexa {
namespace {

using test::Narrow;
using test::RecordingStore;
using test::StoreWithConversions;
using Lines = std::vector<std::wstring>;

TEST(UserConversions, AFreshStoreHasNone) {
  RecordingStore store;
  UserConversions list(store);
  EXPECT_EQ(list.Count(), 0);
  list.Load();
  EXPECT_EQ(list.Count(), 0);
  EXPECT_TRUE(store.writes.empty());
}

TEST(UserConversions, LoadsInOrder) {
  RecordingStore store = StoreWithConversions(3);
  UserConversions list(store);
  list.Load();
  ASSERT_EQ(list.Count(), 3);
  EXPECT_EQ(list.At(0).name, L"A0 -> B0");
  EXPECT_EQ(list.At(2).name, L"A2 -> B2");
  EXPECT_EQ(list.At(2).rateText, L"3.5");
  list.Load();
  EXPECT_EQ(list.Count(), 3) << "loading again starts from scratch";
}

TEST(UserConversions, StoredCountIsClamped) {
  const struct {
    int stored;
    int count;
  } cases[] = {{-1, 0},     {std::numeric_limits<int>::min(), 0}, {60, 60}, {61, 60},
               {10000, 60}, {std::numeric_limits<int>::max(), 60}};
  for (const auto& c : cases) {
    RecordingStore store;
    Write(store, settings::kConversionCount, c.stored);
    UserConversions list(store);
    list.Load();
    EXPECT_EQ(list.Count(), c.count) << c.stored;
  }
}

TEST(UserConversions, MissingSectionsHaveNoNameAndRateZero) {
  RecordingStore store;
  Write(store, settings::kConversionCount, 1);
  UserConversions list(store);
  list.Load();
  ASSERT_EQ(list.Count(), 1);
  EXPECT_EQ(list.At(0).name, L"");
  EXPECT_EQ(list.At(0).rateText, L"0");
}

TEST(UserConversions, AddWritesItsSectionAndTheCount) {
  RecordingStore store = StoreWithConversions(1);
  UserConversions list(store);
  list.Load();
  list.Add({L"Inch -> Centimeter", L"2.540"});
  EXPECT_EQ(store.writes,
            (Lines{L"UserDefine_Convert_1/ConvType=Inch -> Centimeter",
                   L"UserDefine_Convert_1/Rate=2.540", L"Converter/UserDefine_TotalNumber=2"}));
  EXPECT_EQ(list.At(1).name, L"Inch -> Centimeter");
}

TEST(UserConversions, ANegativeStoredCountStartsAtZero) {
  RecordingStore store;
  Write(store, settings::kConversionCount, -7);
  UserConversions list(store);
  list.Load();
  store.writes.clear();
  list.Add({L"a -> b", L"1"});
  EXPECT_EQ(store.writes.front(), L"UserDefine_Convert_0/ConvType=a -> b");
  EXPECT_EQ(store.writes.back(), L"Converter/UserDefine_TotalNumber=1");
}

TEST(UserConversions, ReplaceWritesOnlyItsSection) {
  RecordingStore store = StoreWithConversions(3);
  UserConversions list(store);
  list.Load();
  list.Replace(1, {L"x -> y", L"-9"});
  EXPECT_EQ(store.writes,
            (Lines{L"UserDefine_Convert_1/ConvType=x -> y", L"UserDefine_Convert_1/Rate=-9"}));
  EXPECT_EQ(list.At(1).rateText, L"-9");
}

TEST(UserConversions, DeleteRenumbersTheRest) {
  RecordingStore store = StoreWithConversions(5);
  UserConversions list(store);
  list.Load();
  list.Delete(2);
  EXPECT_EQ(store.writes,
            (Lines{L"UserDefine_Convert_0/ConvType=A0 -> B0", L"UserDefine_Convert_0/Rate=1.5",
                   L"UserDefine_Convert_1/ConvType=A1 -> B1", L"UserDefine_Convert_1/Rate=2.5",
                   L"UserDefine_Convert_2/ConvType=A3 -> B3", L"UserDefine_Convert_2/Rate=4.5",
                   L"UserDefine_Convert_3/ConvType=A4 -> B4", L"UserDefine_Convert_3/Rate=5.5",
                   L"Converter/UserDefine_TotalNumber=4"}));
  UserConversions again(store);
  again.Load();
  ASSERT_EQ(again.Count(), 4);
  EXPECT_EQ(again.At(3).name, L"A4 -> B4");
}

TEST(UserConversions, DeletingTheOnlyOneWritesTheCount) {
  RecordingStore store = StoreWithConversions(1);
  UserConversions list(store);
  list.Load();
  list.Delete(0);
  EXPECT_EQ(store.writes, (Lines{L"Converter/UserDefine_TotalNumber=0"}));
}

TEST(UserConversions, HasOtherSkipsThePositionItself) {
  RecordingStore store = StoreWithConversions(2);
  UserConversions list(store);
  list.Load();
  EXPECT_TRUE(list.HasOther(-1, L"A1 -> B1"));
  EXPECT_TRUE(list.HasOther(0, L"A1 -> B1"));
  EXPECT_FALSE(list.HasOther(1, L"A1 -> B1"));
  EXPECT_FALSE(list.HasOther(-1, L"a1 -> b1"));
}

TEST(UserConversions, Rates) {
  const double infinity = std::numeric_limits<double>::infinity();
  const struct {
    std::wstring_view text;
    double rate;
  } cases[] = {
      {L"2.54", 2.54},
      {L"  -0.5", -0.5},
      {L".25", 0.25},
      {L"1e3", 1000.0},
      {L"12abc", 12.0},
      {L"abc", 0.0},
      {L"", 0.0},
      {L"1e999", infinity},
      {L"-1e999", -infinity},
      {L"1,5", 1.0},
      // Narrowed to low bytes: U+0131 is "1", U+0235 is "5", U+0100 ends the text.
      {L"\u0131\u0235", 15.0},
      {L"7\u01007", 7.0},
      {L"3\u2009", 3.0},
  };
  for (const auto& c : cases) EXPECT_EQ(ReadRate(c.text), c.rate) << Narrow(c.text);
}

}  // namespace
}  // namespace vexa
