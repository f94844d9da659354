#include "plotter/GridNumbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace vexa {
namespace {

/// Room for any double in the general form: sign, 17 digits, point, exponent.
constexpr std::size_t kLongestNumber = 32;
/// Digits beyond those that tell one line from the next.
constexpr int kMoreDigits = 3;
constexpr int kMostDigits = 15;
/// What is left of zero when the lines are counted in doubles, in steps.
constexpr double kNothing = 1e-9;

}  // namespace

std::array<std::wstring, kGridLines> GridNumbers(double low, double high) {
  std::array<std::wstring, kGridLines> texts;
  const double step = (high - low) / (kGridLines + 1);
  if (!std::isfinite(step) || !(step > 0)) return texts;
  const double largest = std::max(std::abs(low), std::abs(high));
  const int digits =
      std::min(static_cast<int>(std::log10(largest / step)) + kMoreDigits, kMostDigits);
  for (int k = 1; k <= kGridLines; ++k) {
    const double number = low + k * step;
    const double shown = std::abs(number) < step * kNothing ? 0.0 : number;
    std::array<char, kLongestNumber> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), shown,
                                   std::chars_format::general, digits)
                         .ptr;
    texts[static_cast<std::size_t>(k - 1)].assign(text.data(), end);
  }
  return texts;
}

}  // namespace vexa
