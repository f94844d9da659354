#include "app/CalculatorKeypad.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "support/ExpectedKeys.h"
#include "support/Vectors.h"

namespace vexa {
namespace {

using enum BaseType;
using test::Captions;
using test::ExpectedDisabled;
using test::ExpectedShown;
using test::kBases;
using test::Narrow;

constexpr int kRows = 8;
constexpr int kColumns = 6;

KeypadState State(BaseType base, bool shifted) {
  return {AngleType::Degrees, false, base, shifted};
}

Captions Shown(const KeypadState& state) {
  Captions captions;
  for (const Key& key : CalculatorKeys()) {
    if (IsKeyShown(key, state)) captions.insert(key.caption);
  }
  return captions;
}

Captions Disabled(const KeypadState& state) {
  Captions captions;
  for (const Key& key : CalculatorKeys()) {
    if (IsKeyShown(key, state) && !IsKeyEnabled(key, state)) captions.insert(key.caption);
  }
  return captions;
}

TEST(CalculatorKeypad, ShownKeysByBaseAndLayer) {
  for (const BaseType base : kBases) {
    for (const bool shifted : {false, true}) {
      EXPECT_EQ(Shown(State(base, shifted)), ExpectedShown(base, shifted))
          << "base " << static_cast<int>(base) << " shifted " << shifted;
    }
  }
}

TEST(CalculatorKeypad, DisabledKeysByBaseAndLayer) {
  for (const BaseType base : kBases) {
    for (const bool shifted : {false, true}) {
      EXPECT_EQ(Disabled(State(base, shifted)), ExpectedDisabled(base, shifted))
          << "base " << static_cast<int>(base) << " shifted " << shifted;
    }
  }
}

TEST(CalculatorKeypad, EveryCellShowsExactlyOneKey) {
  for (const BaseType base : kBases) {
    for (const bool shifted : {false, true}) {
      std::map<std::pair<int, int>, int> taken;
      for (const Key& key : CalculatorKeys()) {
        if (!IsKeyShown(key, State(base, shifted))) continue;
        for (int n = 0; n < key.columnSpan; ++n) ++taken[{key.row, key.column + n}];
      }
      EXPECT_EQ(taken.size(), static_cast<std::size_t>(kRows * kColumns));
      for (const auto& [cell, keys] : taken) {
        EXPECT_EQ(keys, 1) << "row " << cell.first << " column " << cell.second;
      }
    }
  }
}

TEST(CalculatorKeypad, CaptionsAreUniqueBesidesTheShiftPair) {
  std::map<std::wstring_view, int> captions;
  for (const Key& key : CalculatorKeys()) ++captions[key.caption];
  for (const auto& [caption, count] : captions) {
    EXPECT_EQ(count, caption == L"Shift" ? 2 : 1) << Narrow(caption);
  }
}

TEST(CalculatorKeypad, AngleKeysShareAPlace) {
  for (const AngleType angle :
       {AngleType::Degrees, AngleType::Radians, static_cast<AngleType>(7)}) {
    const KeypadState state{angle, false, Dec, false};
    const bool degrees = angle == AngleType::Degrees;
    EXPECT_EQ(Shown(state).contains(L"DEG"), degrees);
    EXPECT_EQ(Shown(state).contains(L"RAD"), !degrees);
  }
}

TEST(CalculatorKeypad, OnlyPbDependsOnTheHistory) {
  const KeypadState state{AngleType::Degrees, true, Dec, false};
  EXPECT_EQ(Disabled(state), Captions{L"PB"});
}

TEST(CalculatorKeypad, OnlyDeletingKeysRepeat) {
  for (const Key& key : CalculatorKeys()) {
    EXPECT_EQ(key.autoRepeat, key.caption == L"BS" || key.caption == L"DEL") << Narrow(key.caption);
  }
}

TEST(CalculatorKeypad, FunctionsAndCommandsSayWhatTheyDo) {
  for (const Key& key : CalculatorKeys()) {
    const bool explainsItself = key.caption.find_first_not_of(L"0123456789") == std::wstring::npos;
    EXPECT_EQ(key.help.empty(), explainsItself) << Narrow(key.caption);
  }
}

TEST(CalculatorKeypad, BaseMenu) {
  EXPECT_EQ(kBaseMenuTitle, L"MODE");
  const std::pair<BaseType, std::wstring_view> expected[] = {
      {Bin, L"Binary"}, {Oct, L"Octal"}, {Dec, L"Decimal"}, {Hex, L"Hexadecimal"}};
  ASSERT_EQ(std::size(kBaseMenu), std::size(expected));
  for (std::size_t i = 0; i < std::size(expected); ++i) {
    EXPECT_EQ(kBaseMenu[i].base, expected[i].first);
    EXPECT_EQ(kBaseMenu[i].name, expected[i].second);
  }
}

}  // namespace
}  // namespace vexa
