#include "plotter/PlotRanges.h"

#include <charconv>

#include "toolkit/NumberBox.h"

namespace vexa {
namespace {

/// Room for any double's shortest text: sign, 17 digits, point, exponent.
constexpr std::size_t kLongestNumber = 32;

/// The bounds in the order of the boxes.
constexpr std::array<double PlotRanges::*, kRangeBoxCaptions.size()> kBounds{
    &PlotRanges::xMin, &PlotRanges::xMax, &PlotRanges::yMin, &PlotRanges::yMax};

/// The digits that tell every double from its neighbours.
constexpr int kMostDigits = 17;

/// `value` in the C library's general form with so many digits; none: the shortest exact text.
template <typename... Digits>
std::wstring NumberText(double value, Digits... digits) {
  std::array<char, kLongestNumber> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value, digits...).ptr;
  return {text.data(), end};
}

}  // namespace

std::wstring CheckRangeOrder(const PlotRanges& ranges) {
  if (ranges.xMin >= ranges.xMax) return std::wstring(kXRangeOrder);
  if (ranges.yMin >= ranges.yMax) return std::wstring(kYRangeOrder);
  return {};
}

RangeReading ReadRanges(const RangeTexts& texts) {
  RangeReading reading;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const std::optional<double> value = ReadNumberBox(texts[i]);
    if (!value) {
      reading.sentence = kEnterNumber;
      reading.boxAtFault = static_cast<RangeBox>(i);
      return reading;
    }
    reading.ranges.*kBounds[i] = *value;
  }
  return reading;
}

RangeReading ReadOrderedRanges(const RangeTexts& texts) {
  RangeReading reading = ReadRanges(texts);
  if (!reading.sentence.empty()) return reading;
  reading.sentence = CheckRangeOrder(reading.ranges);
  if (reading.sentence == kXRangeOrder) reading.boxAtFault = RangeBox::XMin;
  if (reading.sentence == kYRangeOrder) reading.boxAtFault = RangeBox::YMin;
  return reading;
}

RangeTexts TextsOf(const PlotRanges& ranges) {
  RangeTexts texts;
  for (std::size_t i = 0; i < texts.size(); ++i) texts[i] = NumberText(ranges.*kBounds[i]);
  return texts;
}

std::wstring FittingText(double value, const std::function<bool(std::wstring_view text)>& fits) {
  std::wstring text = NumberText(value);
  for (int digits = kMostDigits - 1; digits > 0 && !fits(text); --digits) {
    text = NumberText(value, std::chars_format::general, digits);
  }
  return text;
}

}  // namespace vexa
