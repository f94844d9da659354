// The "MEM" menu with and without a result.

#include "macros/MemoryMenu.h"

#include <gtest/gtest.h>

namespace vexa {
namespace {

struct Line {
  std::wstring_view caption;
  int command;
};

void ExpectLines(const std::vector<PopupCommand>& items, const std::vector<Line>& expected) {
  ASSERT_EQ(items.size(), expected.size());
  for (std::size_t i = 0; i < items.size(); ++i) {
    EXPECT_EQ(items[i].caption, expected[i].caption);
    EXPECT_EQ(items[i].command, expected[i].command);
  }
}

TEST(MemoryMenu, AllLinesWithAResult) {
  ExpectLines(MemoryMenuCommands(true), {{L"Memory +", 7},
                                         {L"Memory -", 6},
                                         {L"Memory Recall", 5},
                                         {L"Memory Clear", 4},
                                         {L"", 3},
                                         {L"ReCall MemVar", 2},
                                         {L"Store MemVar", 1}});
}

TEST(MemoryMenu, WithoutAResultNothingThatUsesIt) {
  ExpectLines(MemoryMenuCommands(false),
              {{L"Memory Recall", 5}, {L"Memory Clear", 4}, {L"", 3}, {L"ReCall MemVar", 2}});
}

}  // namespace
}  // namespace vexa
