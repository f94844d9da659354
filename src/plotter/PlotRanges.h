#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace vexa {

/// The part of the plane that a graph shows.
struct PlotRanges {
  double xMin = -10.0;
  double xMax = 10.0;
  double yMin = -10.0;
  double yMax = 10.0;

  bool operator==(const PlotRanges&) const = default;
};

/// What a graph is drawn with.
struct PlotOptions {
  bool grid = true;
  bool line = true;
  bool coordinates = true;

  bool operator==(const PlotOptions&) const = default;
};

/// The boxes in which a user types ranges, in the order of PlotRanges.
enum class RangeBox : std::size_t { XMin, XMax, YMin, YMax };
inline constexpr std::array<std::wstring_view, 4> kRangeBoxCaptions{L"X min", L"X max", L"Y min",
                                                                    L"Y max"};
/// Their texts.
using RangeTexts = std::array<std::wstring, kRangeBoxCaptions.size()>;

/// Names of the options, in the order of PlotOptions.
inline constexpr std::array<std::wstring_view, 3> kPlotOptionCaptions{L"Grid", L"Line",
                                                                      L"Coordinates"};

/// What ranges whose minimum is not below the maximum are refused with.
inline constexpr std::wstring_view kXRangeOrder =
    L"The maximum value of X should be bigger than the minimum value of X.";
inline constexpr std::wstring_view kYRangeOrder =
    L"The maximum value of Y should be bigger than the minimum value of Y.";

/// The sentence for ranges whose minimum is not below the maximum, X first; empty: they are right.
std::wstring CheckRangeOrder(const PlotRanges& ranges);

/// The ranges that the boxes hold, or the sentence of what is wrong and the box at fault.
struct RangeReading {
  PlotRanges ranges;
  std::wstring sentence;
  std::optional<RangeBox> boxAtFault;
};

/// Reads the four boxes as numbers.
RangeReading ReadRanges(const RangeTexts& texts);
/// The same, and the minimums must lie below the maximums.
RangeReading ReadOrderedRanges(const RangeTexts& texts);

/// Texts that the boxes show for `ranges`: the shortest that read back as the same numbers.
RangeTexts TextsOf(const PlotRanges& ranges);

/// `value` with as many digits as `fits` lets it have, at least one.
std::wstring FittingText(double value, const std::function<bool(std::wstring_view text)>& fits);

}  // namespace vexa
