#pragma once

#include <map>
#include <set>
#include <string_view>

#include "engine/CalcModes.h"

/// The calculator's keys by what each base and layer does to them, written down apart from the key
/// table.
namespace vexa::test {

using Captions = std::set<std::wstring_view>;
using Covering = std::map<std::wstring_view, std::wstring_view>;

inline constexpr BaseType kBases[] = {BaseType::Dec, BaseType::Hex, BaseType::Bin, BaseType::Oct};

/// Stands in a set when the lists contradict each other, so that no comparison holds.
inline constexpr std::wstring_view kContradiction = L"the lists contradict each other";

// clang-format off
inline const Captions kOnBothLayers{
    L"BS", L"DEL", L"CLR", L"PB", L"DEG", L"Shift", L"Mac", L"SINH", L"COSH", L"Cnv", L"MEM",
    L"(...)", L"Exp", L"00", L"0", L"1", L"2", L"3", L"4", L"5", L"6", L"7", L"8", L"9", L".",
    L"(", L")", L"+", L"-", L"*", L"/", L"="};
inline const Covering kLayers{
    {L"SIN", L"ASIN"}, {L"COS", L"ACOS"}, {L"TAN", L"ATAN"}, {L"LOG", L"10^X"}, {L"LN", L"e^X"},
    {L"SQRT", L"XthR"}, {L"X^2", L"1/X"}, {L"nCr", L"nPr"}, {L"ABS()", L"INT()"}, {L"Pi", L"X!"},
    {L"%", L"FRAC"}, {L"TANH", L"<<"}, {L"Y^X", L">>"}};
inline const Covering kCoveredUnshifted{
    {L"TANH", L"<<"}, {L"Y^X", L">>"}, {L"%", L"NOT"}, {L"Pi", L"AND"}, {L"nCr", L"OR"},
    {L"LOG", L"XOR"}, {L"LN", L"XNOR"}};
inline const Covering kCoveredShifted{
    {L"FRAC", L"NOT"}, {L"X!", L"AND"}, {L"nPr", L"OR"}, {L"10^X", L"XOR"}, {L"e^X", L"XNOR"}};
inline const Covering kHexUnshifted{
    {L"SQRT", L"A"}, {L"X^2", L"B"}, {L"SINH", L"C"}, {L"COSH", L"D"}, {L"SIN", L"E"},
    {L"COS", L"F"}};
inline const Covering kHexShifted{
    {L"XthR", L"A"}, {L"1/X", L"B"}, {L"SINH", L"C"}, {L"COSH", L"D"}, {L"ASIN", L"E"},
    {L"ACOS", L"F"}};
inline const Captions kDisabledInIntegerBases{
    L"Mac", L"Cnv", L"SINH", L"COSH", L".", L"Exp", L"Shift"};
inline const Captions kDisabledUnshifted{L"ABS()", L"SIN", L"COS", L"TAN", L"SQRT", L"X^2"};
inline const Captions kDisabledShifted{L"INT()", L"ASIN", L"ACOS", L"ATAN", L"1/X", L"XthR"};
inline const std::map<BaseType, Captions> kDigitsNotAllowed{
    {BaseType::Dec, {}},
    {BaseType::Hex, {}},
    {BaseType::Oct, {L"8", L"9"}},
    {BaseType::Bin, {L"2", L"3", L"4", L"5", L"6", L"7", L"8", L"9"}}};
inline const std::map<BaseType, std::wstring_view> kBaseNames{
    {BaseType::Dec, L"DEC"}, {BaseType::Hex, L"HEX"}, {BaseType::Bin, L"BIN"},
    {BaseType::Oct, L"OCT"}};
// clang-format on

inline void Cover(Captions& shown, const Covering& places) {
  for (const auto& [covered, covering] : places) {
    shown.insert(shown.erase(covered) == 1 ? covering : kContradiction);
  }
}

/// The keys that are shown, with angles in degrees.
inline Captions ExpectedShown(BaseType base, bool shifted) {
  Captions shown = kOnBothLayers;
  shown.insert(kBaseNames.at(base));
  for (const auto& [unshiftedKey, shiftedKey] : kLayers) {
    shown.insert(shifted ? shiftedKey : unshiftedKey);
  }
  if (base == BaseType::Dec) return shown;
  Cover(shown, shifted ? kCoveredShifted : kCoveredUnshifted);
  if (base == BaseType::Hex) Cover(shown, shifted ? kHexShifted : kHexUnshifted);
  return shown;
}

/// Of these, the keys that are inert, with something in the history.
inline Captions ExpectedDisabled(BaseType base, bool shifted) {
  if (base == BaseType::Dec) return {};
  Captions disabled = kDisabledInIntegerBases;
  disabled.merge(Captions(shifted ? kDisabledShifted : kDisabledUnshifted));
  disabled.merge(Captions(kDigitsNotAllowed.at(base)));
  const Captions shown = ExpectedShown(base, shifted);
  std::erase_if(disabled, [&](std::wstring_view caption) { return !shown.contains(caption); });
  return disabled;
}

}  // namespace vexa::test
