#include "app/CalculatorKeypad.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

#include "support/Vectors.h"

namespace vexa {
namespace {

using enum BaseType;
using test::Narrow;
using Captions = std::set<std::wstring_view>;

constexpr BaseType kBases[] = {Dec, Hex, Bin, Oct};
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

void Cover(Captions& shown, const std::map<std::wstring_view, std::wstring_view>& places) {
  for (const auto& [covered, covering] : places) {
    ASSERT_EQ(shown.erase(covered), 1u) << Narrow(covered);
    shown.insert(covering);
  }
}

// The keys by what each state does to them, written down apart from the key table.
const Captions kOnBothLayers{L"BS", L"DEL", L"CLR", L"PB",    L"DEG", L"Shift", L"Mac", L"SINH",
                             L"COSH", L"Cnv", L"MEM", L"(...)", L"Exp", L"00", L"0", L"1",
                             L"2",  L"3",   L"4",   L"5",     L"6",   L"7",     L"8",   L"9",
                             L".",  L"(",   L")",   L"+",     L"-",   L"*",     L"/",   L"="};
const std::map<std::wstring_view, std::wstring_view> kLayers{
    {L"SIN", L"ASIN"}, {L"COS", L"ACOS"},    {L"TAN", L"ATAN"}, {L"LOG", L"10^X"},
    {L"LN", L"e^X"},   {L"SQRT", L"XthR"},   {L"X^2", L"1/X"},  {L"nCr", L"nPr"},
    {L"ABS()", L"INT()"}, {L"Pi", L"X!"},    {L"%", L"FRAC"},   {L"TANH", L"<<"},
    {L"Y^X", L">>"}};
const std::map<std::wstring_view, std::wstring_view> kCoveredUnshifted{
    {L"TANH", L"<<"}, {L"Y^X", L">>"}, {L"%", L"NOT"},  {L"Pi", L"AND"},
    {L"nCr", L"OR"},  {L"LOG", L"XOR"}, {L"LN", L"XNOR"}};
const std::map<std::wstring_view, std::wstring_view> kCoveredShifted{
    {L"FRAC", L"NOT"}, {L"X!", L"AND"}, {L"nPr", L"OR"}, {L"10^X", L"XOR"}, {L"e^X", L"XNOR"}};
const std::map<std::wstring_view, std::wstring_view> kHexUnshifted{
    {L"SQRT", L"A"}, {L"X^2", L"B"}, {L"SINH", L"C"}, {L"COSH", L"D"}, {L"SIN", L"E"}, {L"COS", L"F"}};
const std::map<std::wstring_view, std::wstring_view> kHexShifted{
    {L"XthR", L"A"}, {L"1/X", L"B"}, {L"SINH", L"C"}, {L"COSH", L"D"}, {L"ASIN", L"E"}, {L"ACOS", L"F"}};
const Captions kDisabledInIntegerBases{L"Mac", L"Cnv", L"SINH", L"COSH", L".", L"Exp", L"Shift"};
const Captions kDisabledUnshifted{L"ABS()", L"SIN", L"COS", L"TAN", L"SQRT", L"X^2"};
const Captions kDisabledShifted{L"INT()", L"ASIN", L"ACOS", L"ATAN", L"1/X", L"XthR"};
const std::map<BaseType, Captions> kDigitsNotAllowed{
    {Dec, {}},
    {Hex, {}},
    {Oct, {L"8", L"9"}},
    {Bin, {L"2", L"3", L"4", L"5", L"6", L"7", L"8", L"9"}}};
const std::map<BaseType, std::wstring_view> kBaseNames{
    {Dec, L"DEC"}, {Hex, L"HEX"}, {Bin, L"BIN"}, {Oct, L"OCT"}};

Captions ExpectedShown(BaseType base, bool shifted) {
  Captions shown = kOnBothLayers;
  shown.insert(kBaseNames.at(base));
  for (const auto& [unshiftedKey, shiftedKey] : kLayers) {
    shown.insert(shifted ? shiftedKey : unshiftedKey);
  }
  if (base == Dec) return shown;
  Cover(shown, shifted ? kCoveredShifted : kCoveredUnshifted);
  if (base == Hex) Cover(shown, shifted ? kHexShifted : kHexUnshifted);
  return shown;
}

Captions ExpectedDisabled(BaseType base, bool shifted) {
  if (base == Dec) return {};
  Captions disabled = kDisabledInIntegerBases;
  const Captions& layer = shifted ? kDisabledShifted : kDisabledUnshifted;
  disabled.insert(layer.begin(), layer.end());
  const Captions& digits = kDigitsNotAllowed.at(base);
  disabled.insert(digits.begin(), digits.end());
  const Captions shown = ExpectedShown(base, shifted);
  std::erase_if(disabled, [&](std::wstring_view caption) { return !shown.contains(caption); });
  return disabled;
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
  for (const AngleType angle : {AngleType::Degrees, AngleType::Radians, static_cast<AngleType>(7)}) {
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
