#include "engine/ErrorPlace.h"

#include <gtest/gtest.h>

#include <string>

namespace vexa {
namespace {

TEST(ErrorPlace, TokensThatCannotBeRead) {
  EXPECT_EQ(ErrorPlace(L"2+#", BaseType::Dec), 2u);
  EXPECT_EQ(ErrorPlace(L" 2 + sinus(3)", BaseType::Dec), 5u);
  EXPECT_EQ(ErrorPlace(L"1+SIN", BaseType::Dec), 2u);
  EXPECT_EQ(ErrorPlace(L"2<3", BaseType::Dec), 1u);
  EXPECT_EQ(ErrorPlace(L"1+1.2.3", BaseType::Dec), 2u);
  EXPECT_EQ(ErrorPlace(L"7+8", BaseType::Oct), 2u);
  EXPECT_EQ(ErrorPlace(L"F+123456789", BaseType::Hex), 2u);
}

TEST(ErrorPlace, TokensThatDoNotFit) {
  EXPECT_EQ(ErrorPlace(L"2+*3", BaseType::Dec), 2u);
  EXPECT_EQ(ErrorPlace(L"*3", BaseType::Dec), 0u);
  EXPECT_EQ(ErrorPlace(L"3 +  2 ^", BaseType::Dec), 7u);
  EXPECT_EQ(ErrorPlace(L"1 and", BaseType::Bin), 2u);
}

TEST(ErrorPlace, FirstTokenThatHasNoRoom) {
  std::wstring expression = L"1";
  for (int i = 0; i < 75; ++i) expression += L"+1";
  // 151 tokens are read; the test for room comes before the next one.
  EXPECT_EQ(ErrorPlace(expression + L"+1", BaseType::Dec), 151u);
}

TEST(ErrorPlace, NothingWrongInOnePlace) {
  for (const wchar_t* expression : {L"", L"2+3", L"(2", L"1/0", L"2 3"}) {
    EXPECT_EQ(ErrorPlace(expression, BaseType::Dec), std::nullopt) << std::wstring(expression);
  }
}

}  // namespace
}  // namespace vexa
