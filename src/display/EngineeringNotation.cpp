#include "display/EngineeringNotation.h"

#include <cmath>
#include <cstdlib>

#include "display/NumberPatterns.h"
#include "engine/NumberText.h"

namespace vexa {
namespace {

constexpr int kMantissaDecimals = 15;
constexpr std::size_t kExponentDigits = 3;

/// A decimal exponent, and by how many places the mantissa moves for the next lower multiple of 3.
struct Scale {
  int exponent;
  int shift;
};

/// For magnitudes of 1 and more the exponent is the logarithm's, below that the printed one. Just
/// below a power of ten the logarithm and the printed mantissa disagree; meant.
Scale ScaleOf(double value, int printedExponent) {
  const double magnitude = std::fabs(value);
  if (magnitude >= 1.0) {
    const int exponent = static_cast<int>(std::log10(magnitude));
    return {exponent, exponent % 3};
  }
  const int remainder = printedExponent % 3;
  return {printedExponent, remainder == 0 ? 0 : remainder + 3};
}

std::wstring SignedExponent(int exponent) {
  std::wstring digits = std::to_wstring(std::abs(exponent));
  if (digits.size() < kExponentDigits) digits.insert(0, kExponentDigits - digits.size(), L'0');
  return (exponent < 0 ? L"-" : L"+") + digits;
}

}  // namespace

std::wstring EngineeringText(double value, int precision) {
  if (value == 0.0) return ExponentText(value, precision);
  const std::wstring printed = ExponentText(value, kMantissaDecimals);
  const std::size_t mark = printed.find(L'e');
  const int printedExponent = static_cast<int>(TextToDouble(printed.substr(mark + 1)));
  const Scale scale = ScaleOf(value, printedExponent);
  const double mantissa = TextToDouble(printed.substr(0, mark)) * std::pow(10.0, scale.shift);
  return FixedText(mantissa, precision) + L"E" + SignedExponent(scale.exponent - scale.shift);
}

}  // namespace vexa
