#pragma once

#include <string>
#include <string_view>

namespace vexa {

/// `value`, in a unit of size `inputFactor`, in a unit of size `outputFactor`. Divides before it
/// multiplies: the order decides the last bit, and what overflows.
double ConvertByFactors(double value, double inputFactor, double outputFactor);

/// Temperature conversion `code`, a position in the temperature table; any other code acts as the
/// last one, Kelvin to Fahrenheit.
double ConvertTemperature(double value, int code);

/// `value` in the user's output unit, of which one input unit holds `rate`.
double ConvertByRate(double value, double rate);

/// What separates both unit names in a conversion's name.
inline constexpr std::wstring_view kConversionArrow = L"->";

/// The unit names of a whole conversion. They refer to the name that was split.
struct ConversionUnits {
  std::wstring_view input;
  std::wstring_view output;
};

/// Splits a conversion's name at its first arrow, less the blank on each side of it. A name without
/// an arrow is all input unit.
ConversionUnits SplitConversionName(std::wstring_view name);

/// The name of the conversion between two units: Inch -> Centimeter.
std::wstring ConversionName(std::wstring_view inputUnit, std::wstring_view outputUnit);

}  // namespace vexa
