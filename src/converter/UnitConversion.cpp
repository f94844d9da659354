#include "converter/UnitConversion.h"

#include <algorithm>
#include <array>

namespace vexa {
namespace {

constexpr double kKelvinOfZeroCelsius = 273.15;

// Both scales meet at -40. Going through that point, not through the freezing point, decides the
// rounding of the results.
double CelsiusToFahrenheit(double x) {
  return ((x + 40) * 1.8) - 40;
}
double CelsiusToKelvin(double x) {
  return x + kKelvinOfZeroCelsius;
}
double FahrenheitToCelsius(double x) {
  return ((x + 40) * 0.5555555555555556) - 40;
}
double FahrenheitToKelvin(double x) {
  return CelsiusToKelvin(FahrenheitToCelsius(x));
}
double KelvinToCelsius(double x) {
  return x - kKelvinOfZeroCelsius;
}
double KelvinToFahrenheit(double x) {
  return CelsiusToFahrenheit(KelvinToCelsius(x));
}

/// In the order of the temperature table.
constexpr std::array<double (*)(double), 6> kTemperatureFormulas{
    CelsiusToFahrenheit, CelsiusToKelvin, FahrenheitToCelsius,
    FahrenheitToKelvin,  KelvinToCelsius, KelvinToFahrenheit,
};

}  // namespace

double ConvertByFactors(double value, double inputFactor, double outputFactor) {
  return (value / outputFactor) * inputFactor;
}

double ConvertTemperature(double value, int code) {
  // A negative code is a huge index, so it acts as the last code too.
  const std::size_t index =
      std::min(static_cast<std::size_t>(code), kTemperatureFormulas.size() - 1);
  return kTemperatureFormulas[index](value);
}

double ConvertByRate(double value, double rate) {
  return rate * value;
}

ConversionUnits SplitConversionName(std::wstring_view name) {
  const std::size_t arrow = name.find(kConversionArrow);
  if (arrow == std::wstring_view::npos) return {name, {}};
  const std::size_t inputEnd = arrow == 0 ? 0 : arrow - 1;
  const std::size_t outputStart = std::min(arrow + kConversionArrow.size() + 1, name.size());
  return {name.substr(0, inputEnd), name.substr(outputStart)};
}

std::wstring ConversionName(std::wstring_view inputUnit, std::wstring_view outputUnit) {
  std::wstring name(inputUnit);
  name += L' ';
  name += kConversionArrow;
  name += L' ';
  name += outputUnit;
  return name;
}

}  // namespace vexa
