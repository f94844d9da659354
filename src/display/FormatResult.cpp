#include "display/FormatResult.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "display/CountDecimals.h"
#include "display/EngineeringNotation.h"
#include "display/NumberPatterns.h"
#include "engine/EngineErrors.h"
#include "engine/ToInt32.h"

namespace vexa {
namespace {

constexpr int kMostDecimals = 100;
/// Magnitudes whose decimal logarithm lies outside +-kExponentLimit are shown with an exponent.
constexpr double kExponentLimit = 12.0;

bool IsLarge(double value) {
  return std::fabs(value) >= 1.0;
}

std::wstring IntegerText(double value, int radix) {
  char buffer[32];
  const auto bits = static_cast<std::uint32_t>(ToInt32(value));
  const auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, bits, radix);
  std::wstring text(buffer, end);
  for (wchar_t& c : text) {
    if (c >= L'a') c = static_cast<wchar_t>(c - L'a' + L'A');
  }
  return text;
}

/// As many decimals as the value needs; an exponent for very large and very small values.
std::wstring FloatingText(double value, int precision) {
  if (value == 0.0) return L"0";
  const double logarithm = std::log10(std::fabs(value));
  const bool needsExponent =
      IsLarge(value) ? logarithm > kExponentLimit : logarithm < -kExponentLimit;
  return needsExponent ? ExponentText(value, precision) : FixedText(value, CountDecimals(value));
}

/// Small values never get an exponent here, however small; meant.
std::wstring FixedPointText(double value, int precision) {
  const bool needsExponent = IsLarge(value) && std::log10(std::fabs(value)) > kExponentLimit;
  return needsExponent ? ExponentText(value, precision) : FixedText(value, precision);
}

std::wstring CurrencyText(double value, int precision) {
  const std::wstring text = FloatingText(value, precision);
  const bool hasExponent = text.find(L'e') != std::wstring::npos;
  return IsLarge(value) && !hasExponent ? GroupThousands(text) : text;
}

std::wstring DecimalText(double value, DisplayType displayType, int precision) {
  switch (displayType) {
    case DisplayType::FloatingPoint:
      return FloatingText(value, precision);
    case DisplayType::FixedPoint:
      return FixedPointText(value, precision);
    case DisplayType::Scientific:
      return ExponentText(value, precision);
    case DisplayType::Currency:
      return CurrencyText(value, precision);
    case DisplayType::Engineering:
      break;
  }
  return EngineeringText(value, precision);
}

}  // namespace

std::wstring FormatResult(double value, DisplayType displayType, int precision, BaseType base,
                          std::wstring& lastError) {
  if (!std::isfinite(value)) {
    lastError = kOutOfRangeText;
    return lastError;
  }
  switch (base) {
    case BaseType::Hex:
      return IntegerText(value, 16);
    case BaseType::Bin:
      return IntegerText(value, 2);
    case BaseType::Oct:
      return IntegerText(value, 8);
    case BaseType::Dec:
      break;
  }
  // Zero has no sign on display.
  const double shown = value == 0.0 ? 0.0 : value;
  return DecimalText(shown, displayType, std::clamp(precision, 0, kMostDecimals));
}

std::wstring FormatResult(double value, DisplayType displayType, int precision, BaseType base) {
  std::wstring untold;
  return FormatResult(value, displayType, precision, base, untold);
}

std::wstring ReducedFormatResult(double value, int precision, std::wstring& lastError) {
  return FormatResult(value, DisplayType::Currency, precision, BaseType::Dec, lastError);
}

std::wstring GroupThousands(std::wstring_view text) {
  std::wstring grouped;
  if (text.starts_with(L'-')) {
    grouped = L"-";
    text.remove_prefix(1);
  }
  const std::size_t digits = std::min(text.find(L'.'), text.size());
  for (std::size_t i = 0; i < digits; ++i) {
    grouped += text[i];
    if (i + 1 < digits && (digits - i) % 3 == 1) grouped += L',';
  }
  grouped += text.substr(digits);
  return grouped;
}

}  // namespace vexa
