#include "app/CalculatorKeypad.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

namespace vexa {
namespace {

const CalculatorKeypadState kStates[] = {
    {AngleType::Degrees, true},
    {AngleType::Degrees, false},
    {AngleType::Radians, true},
    {static_cast<AngleType>(7), false},
};

std::string Narrow(std::wstring_view text) {
  return {text.begin(), text.end()};
}

TEST(CalculatorKeypad, CaptionsAreUnique) {
  std::set<std::wstring_view> captions;
  for (const Key& key : CalculatorKeys()) {
    EXPECT_TRUE(captions.insert(key.caption).second) << Narrow(key.caption);
  }
}

TEST(CalculatorKeypad, EveryCellShowsAtMostOneKey) {
  constexpr int kRows = 8;
  constexpr int kColumns = 6;
  for (const CalculatorKeypadState& state : kStates) {
    std::set<std::pair<int, int>> taken{{0, 0}};  // the base's name
    for (const Key& key : CalculatorKeys()) {
      ASSERT_TRUE(key.row >= 0 && key.row < kRows) << Narrow(key.caption);
      ASSERT_TRUE(key.column >= 0 && key.columnSpan >= 1 && key.column + key.columnSpan <= kColumns)
          << Narrow(key.caption);
      if (!IsKeyShown(key, state)) continue;
      for (int n = 0; n < key.columnSpan; ++n) {
        EXPECT_TRUE(taken.insert({key.row, key.column + n}).second) << Narrow(key.caption);
      }
    }
  }
}

TEST(CalculatorKeypad, AngleKeysShareAPlace) {
  for (const CalculatorKeypadState& state : kStates) {
    const bool degrees = state.angleType == AngleType::Degrees;
    for (const Key& key : CalculatorKeys()) {
      const bool expected = key.caption == L"DEG"   ? degrees
                            : key.caption == L"RAD" ? !degrees
                                                    : true;
      EXPECT_EQ(IsKeyShown(key, state), expected) << Narrow(key.caption);
    }
  }
}

TEST(CalculatorKeypad, OnlyPbDependsOnTheHistory) {
  for (const CalculatorKeypadState& state : kStates) {
    for (const Key& key : CalculatorKeys()) {
      const bool expected = key.caption != L"PB" || !state.historyIsEmpty;
      EXPECT_EQ(IsKeyEnabled(key, state), expected) << Narrow(key.caption);
    }
  }
}

TEST(CalculatorKeypad, HasEveryKeyOfAPlainCalculation) {
  std::set<std::wstring_view> captions;
  for (const Key& key : CalculatorKeys()) captions.insert(key.caption);
  for (const std::wstring_view caption :
       {L"0", L"1",   L"2", L"3",  L"4",   L"5",   L"6",  L"7",   L"8",
        L"9", L"00",  L".", L"+",  L"-",   L"*",   L"/",  L"(",   L")",
        L"%", L"Exp", L"=", L"BS", L"DEL", L"CLR", L"PB", L"DEG", L"RAD"}) {
    EXPECT_TRUE(captions.contains(caption)) << Narrow(caption);
  }
}

TEST(CalculatorKeypad, OnlyDeletingKeysRepeat) {
  for (const Key& key : CalculatorKeys()) {
    EXPECT_EQ(key.autoRepeat, key.caption == L"BS" || key.caption == L"DEL") << Narrow(key.caption);
  }
}

TEST(CalculatorKeypad, BaseNames) {
  EXPECT_EQ(BaseName(BaseType::Dec), L"DEC");
  EXPECT_EQ(BaseName(BaseType::Hex), L"HEX");
  EXPECT_EQ(BaseName(BaseType::Bin), L"BIN");
  EXPECT_EQ(BaseName(BaseType::Oct), L"OCT");
  EXPECT_EQ(BaseName(static_cast<BaseType>(9)), L"DEC");
}

}  // namespace
}  // namespace vexa
