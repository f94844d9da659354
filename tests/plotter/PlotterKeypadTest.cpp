#include "plotter/PlotterKeypad.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "support/Vectors.h"

namespace vexa {
namespace {

/// What a key makes of "12x34", caret behind "x", and with "x" selected; "|" marks the caret.
struct KeyCase {
  const wchar_t* caption;
  const wchar_t* withoutSelection;
  const wchar_t* withSelection;
};
constexpr KeyCase kKeyCases[] = {
    {L"0", L"12x0|34", L"120|34"},
    {L"1", L"12x1|34", L"121|34"},
    {L"2", L"12x2|34", L"122|34"},
    {L"3", L"12x3|34", L"123|34"},
    {L"4", L"12x4|34", L"124|34"},
    {L"5", L"12x5|34", L"125|34"},
    {L"6", L"12x6|34", L"126|34"},
    {L"7", L"12x7|34", L"127|34"},
    {L"8", L"12x8|34", L"128|34"},
    {L"9", L"12x9|34", L"129|34"},
    {L"00", L"12x00|34", L"1200|34"},
    {L".", L"12x.|34", L"12.|34"},
    {L"(", L"12x(|34", L"12(|34"},
    {L")", L"12x)|34", L"12)|34"},
    {L"Exp", L"12xE|34", L"12E|34"},
    {L"Pi", L"12xPi|34", L"12Pi|34"},
    {L"X-Var", L"12xx|34", L"12x|34"},
    {L"+", L"12x+|34", L"12(x)+|34"},
    {L"-", L"12x-|34", L"12(x)-|34"},
    {L"*", L"12x*|34", L"12(x)*|34"},
    {L"/", L"12x/|34", L"12(x)/|34"},
    {L"X^2", L"12x^2|34", L"12(x)^2|34"},
    {L"Y^X", L"12x^|34", L"12(x)^|34"},
    {L"X!", L"12x!|34", L"12(x)!|34"},
    {L"%", L"12x%|34", L"12(x)%|34"},
    {L"nPr", L"12xP|34", L"12(x)P|34"},
    {L"nCr", L"12xC|34", L"12(x)C|34"},
    {L"<<", L"12x<<|34", L"12(x)<<|34"},
    {L">>", L"12x>>|34", L"12(x)>>|34"},
    {L"1/X", L"12x1/|34", L"121/(x)|34"},
    {L"10^X", L"12x10^|34", L"1210^(x)|34"},
    {L"(...)", L"12x(|)34", L"12(x)|34"},
    {L"SIN", L"12xsin(|)34", L"12sin(x)|34"},
    {L"COS", L"12xcos(|)34", L"12cos(x)|34"},
    {L"TAN", L"12xtan(|)34", L"12tan(x)|34"},
    {L"ASIN", L"12xasin(|)34", L"12asin(x)|34"},
    {L"ACOS", L"12xacos(|)34", L"12acos(x)|34"},
    {L"ATAN", L"12xatan(|)34", L"12atan(x)|34"},
    {L"SINH", L"12xsinh(|)34", L"12sinh(x)|34"},
    {L"COSH", L"12xcosh(|)34", L"12cosh(x)|34"},
    {L"TANH", L"12xtanh(|)34", L"12tanh(x)|34"},
    {L"LOG", L"12xlog(|)34", L"12log(x)|34"},
    {L"LN", L"12xln(|)34", L"12ln(x)|34"},
    {L"SQRT", L"12xsqrt(|)34", L"12sqrt(x)|34"},
    {L"e^X", L"12xexp(|)34", L"12exp(x)|34"},
    {L"ABS()", L"12xabs(|)34", L"12abs(x)|34"},
    {L"INT()", L"12xint(|)34", L"12int(x)|34"},
    {L"FRAC", L"12xfrac(|)34", L"12frac(x)|34"},
    {L"XthR", L"12x^(1/|)34", L"12(x)^(1/|)34"},
};
constexpr const wchar_t* kCommandKeys[] = {L"BS",  L"DEL", L"CLR", L"PB",   L"DEG",
                                           L"RAD", L"Mac", L"M",   L"Plot", L"Shift"};

std::wstring Marked(const EditText& edit) {
  return std::wstring(edit.text).insert(edit.selectionEnd, L"|");
}

TEST(PlotterKeypad, KeysInsertTheirTexts) {
  std::map<std::wstring_view, const Key*> keys;
  for (const Key& key : PlotterKeys()) keys[key.caption] = &key;
  for (const KeyCase& expected : kKeyCases) {
    ASSERT_TRUE(keys.contains(expected.caption)) << test::Narrow(expected.caption);
    const KeyText& inserts = keys[expected.caption]->inserts;
    const EditText caret{L"12x34", 3, 3};
    const EditText selected{L"12x34", 2, 3};
    EXPECT_EQ(Marked(Apply(caret, TypeKey(caret, inserts))), expected.withoutSelection);
    EXPECT_EQ(Marked(Apply(selected, TypeKey(selected, inserts))), expected.withSelection);
  }
}

TEST(PlotterKeypad, EveryKeyIsKnown) {
  std::set<std::wstring_view> known;
  for (const KeyCase& key : kKeyCases) known.insert(key.caption);
  for (const wchar_t* command : kCommandKeys) known.insert(command);
  std::set<std::wstring_view> shown;
  for (const Key& key : PlotterKeys()) {
    shown.insert(key.caption);
    EXPECT_EQ(key.inserts.IsEmpty(),
              std::ranges::find(kCommandKeys, key.caption) != std::end(kCommandKeys))
        << test::Narrow(key.caption);
  }
  EXPECT_EQ(shown, known);
}

TEST(PlotterKeypad, EveryCellShowsOneKeyOnEachLayer) {
  for (const AngleType angle : {AngleType::Degrees, AngleType::Radians}) {
    for (const bool shifted : {false, true}) {
      std::set<std::pair<int, int>> taken;
      for (const Key& key : PlotterKeys()) {
        if (!IsKeyShown(key, {angle, true, BaseType::Dec, shifted})) continue;
        for (int n = 0; n < key.columnSpan; ++n) {
          EXPECT_TRUE(taken.insert({key.row, key.column + n}).second) << test::Narrow(key.caption);
        }
      }
      EXPECT_EQ(taken.size(), 8u * 6u);
    }
  }
}

TEST(PlotterKeypad, ShiftSwapsThePairs) {
  const std::pair<const wchar_t*, const wchar_t*> pairs[] = {
      {L"SIN", L"ASIN"},    {L"COS", L"ACOS"},  {L"TAN", L"ATAN"}, {L"LOG", L"10^X"},
      {L"LN", L"e^X"},      {L"SQRT", L"XthR"}, {L"X^2", L"1/X"},  {L"nCr", L"nPr"},
      {L"ABS()", L"INT()"}, {L"Pi", L"X!"},     {L"%", L"FRAC"},   {L"TANH", L"<<"},
      {L"Y^X", L">>"}};
  const auto cellOf = [](std::wstring_view caption, bool shifted) {
    for (const Key& key : PlotterKeys()) {
      if (key.caption == caption &&
          IsKeyShown(key, {AngleType::Degrees, true, BaseType::Dec, shifted}))
        return std::pair(key.row, key.column);
    }
    return std::pair(-1, -1);
  };
  for (const auto& [unshifted, shifted] : pairs) {
    EXPECT_EQ(cellOf(unshifted, true), std::pair(-1, -1));
    EXPECT_EQ(cellOf(shifted, false), std::pair(-1, -1));
    EXPECT_EQ(cellOf(unshifted, false), cellOf(shifted, true));
    EXPECT_NE(cellOf(unshifted, false), std::pair(-1, -1));
  }
}

TEST(PlotterKeypad, PbIsInertWithoutHistory) {
  for (const Key& key : PlotterKeys()) {
    EXPECT_EQ(IsKeyEnabled(key, {AngleType::Degrees, true, BaseType::Dec, false}),
              key.caption != L"PB");
    EXPECT_TRUE(IsKeyEnabled(key, {AngleType::Degrees, false, BaseType::Dec, false}));
  }
}

TEST(PlotterKeypad, KeysStandInReadingOrder) {
  const Key* before = nullptr;
  for (const Key& key : PlotterKeys()) {
    if (before) {
      EXPECT_LE(std::pair(before->row, before->column), std::pair(key.row, key.column));
    }
    before = &key;
  }
}

}  // namespace
}  // namespace vexa
