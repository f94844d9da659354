#pragma once

#include <string>

namespace vexa {

/// `value` with `decimals` decimals (0 to 100) and no exponent, "." whatever the user's locale is.
std::wstring FixedText(double value, int decimals);

/// `value` as mantissa with `decimals` decimals (0 to 100), a letter "e", a sign and at least three
/// exponent digits: 1.23457e+013.
std::wstring ExponentText(double value, int decimals);

/// `value` with 15 significant digits in the shorter of both forms, trailing zeros dropped.
std::wstring GeneralText(double value);

}  // namespace vexa
