#pragma once

#include <string>
#include <string_view>

#include "display/DisplayType.h"
#include "engine/CalcModes.h"

namespace vexa {

/// The text that shows `value`.
/// - `precision`: number of decimals; below 0 counts as 0, above 100 as 100.
/// - `base`: an integer base takes precedence over the display type and shows the value, truncated
///   to 32 bits, in upper case; a value outside the enum counts as decimal.
/// - A value that is infinite or not a number gives the overflow sentence, in every base, which is
///   also stored in `lastError`. Otherwise `lastError` is left alone.
std::wstring FormatResult(double value, DisplayType displayType, int precision, BaseType base,
                          std::wstring& lastError);

/// The same where an overflow is told by the text alone.
std::wstring FormatResult(double value, DisplayType displayType, int precision, BaseType base);

/// FormatResult in decimal, always grouped at thousands.
std::wstring ReducedFormatResult(double value, int precision, std::wstring& lastError);

/// Inserts "," between groups of three digits of a number text's integer part.
std::wstring GroupThousands(std::wstring_view text);

}  // namespace vexa
