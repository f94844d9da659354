#include "toolkit/TypedSearch.h"

#include <gtest/gtest.h>

#include "support/Vectors.h"

namespace vexa {
namespace {

using test::Narrow;

const std::vector<std::wstring> kEntries{
    L"01. Area",   L"Cubic Feet/Hour", L"Cubic Feet/Minute", L"Feet",
    L"Kilometers", L"Light years",     L"Pounds, dry (US)",  L"\u00c5ngstrom",
};

TEST(TypedSearch, BeginningsBeforeLaterWords) {
  const struct {
    std::wstring_view typed;
    int current;
    int found;
  } cases[] = {
      {L"fe", -1, 3},          {L"FE", 0, 3},       {L"are", 0, 0},      {L"area", 5, 0},
      {L"01", 3, 0},           {L"year", 0, 5},     {L"us", 0, 6},       {L"dry (u", 0, 6},
      {L"min", 0, 2},          {L"cubic fe", 0, 1}, {L"cubic fe", 2, 2}, {L"cubic feet/m", 1, 2},
      {L"eet", 0, -1},         {L"zz", 3, -1},      {L"", 3, -1},        {L"\u00c5n", 0, 7},
      {L"Kilometersx", 0, -1},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(FindTyped(kEntries, c.typed, c.current), c.found) << Narrow(c.typed);
  }
}

TEST(TypedSearch, OneCharacterStepsThroughAllThatMatch) {
  EXPECT_EQ(FindTyped(kEntries, L"c", -1), 1);
  EXPECT_EQ(FindTyped(kEntries, L"c", 1), 2);
  EXPECT_EQ(FindTyped(kEntries, L"cc", 1), 2);
  EXPECT_EQ(FindTyped(kEntries, L"ccc", 2), 1);
  EXPECT_EQ(FindTyped(kEntries, L"k", 4), 4);
}

TEST(TypedSearch, HostileListsAndPositions) {
  EXPECT_EQ(FindTyped({}, L"a", -1), -1);
  EXPECT_EQ(FindTyped({L"", L" ", L"."}, L"a", 2), -1);
  EXPECT_EQ(FindTyped({L"", L" ", L"."}, L".", 2), 2);
  EXPECT_EQ(FindTyped(kEntries, L"fe", 100), 3);
}

}  // namespace
}  // namespace vexa
