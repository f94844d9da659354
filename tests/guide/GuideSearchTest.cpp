#include "guide/GuideSearch.h"

#include <gtest/gtest.h>

namespace vexa {
namespace {

const std::vector<GuideText> kTexts{
    {"one", "One", "# One\n\nThe sine of an **angle**\n\n## Angles\n\n| `sin` | Sine |\n"},
    {"two", "Two", "no heading, a sine\nand another line"},
};

TEST(GuideSearch, FindsLinesWithTheirHeadingWhateverTheCase) {
  const auto matches = SearchGuide(kTexts, "SINE");
  ASSERT_EQ(matches.size(), 3u);
  EXPECT_EQ(matches[0].page, "one");
  EXPECT_EQ(matches[0].heading, "One");
  EXPECT_EQ(matches[0].line, "The sine of an angle");
  EXPECT_EQ(matches[1].heading, "Angles");
  EXPECT_EQ(matches[1].line, "sin Sine ");
  EXPECT_EQ(matches[2].page, "two");
  EXPECT_EQ(matches[2].heading, "Two");
}

TEST(GuideSearch, EveryWordHasToBeThere) {
  EXPECT_EQ(SearchGuide(kTexts, "angle sine").size(), 1u);
  EXPECT_EQ(SearchGuide(kTexts, "angle cosine").size(), 0u);
}

TEST(GuideSearch, NoWordFindsNothing) {
  EXPECT_TRUE(SearchGuide(kTexts, "").empty());
  EXPECT_TRUE(SearchGuide(kTexts, "   ").empty());
}

TEST(GuideSearch, StopsAtTheMost) {
  EXPECT_EQ(SearchGuide(kTexts, "e", 2).size(), 2u);
}

TEST(GuideSearch, MatchesAreLinks) {
  const std::string page = MatchesPage(SearchGuide(kTexts, "angles"), "angles");
  EXPECT_EQ(page, "- [Angles](one.md): Angles\n");
}

TEST(GuideSearch, NothingFoundIsSaid) {
  EXPECT_EQ(MatchesPage({}, "`x`"), "Nothing in the guide holds \"x\".\n");
}

}  // namespace
}  // namespace vexa
