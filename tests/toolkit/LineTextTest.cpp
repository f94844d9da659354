#include "toolkit/LineText.h"

#include <gtest/gtest.h>

namespace vexa {
namespace {

TEST(LineText, EveryLineBreakIsABlank) {
  EXPECT_EQ(LineText(L"1\n2\r3\r\n4\n\n5"), L"1 2 3 4  5");
  EXPECT_EQ(LineText(L"\v\f\x85\x2028\x2029\xFDD0\xFDD1"), std::wstring(7, L' '));
  EXPECT_EQ(LineText(L"1\r"), L"1 ");
}

TEST(LineText, AllElseStays) {
  const std::wstring text = L"a\tb \x1F600 &;\"";
  EXPECT_EQ(LineText(text), text);
  EXPECT_EQ(LineText(L""), L"");
}

TEST(LineText, StopsWhereTheRoomEnds) {
  EXPECT_EQ(LineText(L"1234", 3), L"123");
  EXPECT_EQ(LineText(L"1\r\n23", 3), L"1 2");
  EXPECT_EQ(LineText(L"1", 0), L"");
  EXPECT_EQ(LineText(std::wstring(1000000, L'1')).size(), kLongestLine);
}

}  // namespace
}  // namespace vexa
