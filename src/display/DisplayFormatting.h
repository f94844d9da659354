#pragma once

#include <array>
#include <string>
#include <string_view>

#include "display/DisplayType.h"

namespace vexa {

/// A way of showing numbers as the user chooses it.
struct DisplayChoice {
  DisplayType type;
  std::wstring_view caption;
};

/// The choices in the order in which they are offered. Engineering stands above Currency but keeps
/// its number; meant.
inline constexpr std::array<DisplayChoice, 5> kDisplayChoices{{
    {DisplayType::FloatingPoint, L"Floating Point"},
    {DisplayType::FixedPoint, L"Fixed Point"},
    {DisplayType::Scientific, L"Scientific Notation"},
    {DisplayType::Engineering, L"Engineering Notation"},
    {DisplayType::Currency, L"Currency-Punctuated at thousands"},
}};

/// The decimal places that may be chosen, and the number that stands in after a bad entry.
inline constexpr int kFewestDecimalPlaces = 0;
inline constexpr int kMostDecimalPlaces = 12;
inline constexpr int kFallbackDecimalPlaces = 7;

/// Whether numbers shown as `type` have a number of decimal places that the user chooses.
bool HasDecimalPlaces(DisplayType type);

/// Reads a number of decimal places. When `text` is none, returns the sentence that says so, and
/// `decimalPlaces` becomes the fallback.
std::wstring ReadDecimalPlaces(std::wstring_view text, int& decimalPlaces);

}  // namespace vexa
