#include "display/CountDecimals.h"

#include <cmath>
#include <string>

#include "display/NumberPatterns.h"

namespace vexa {
namespace {

/// A value with fewer decimals than this in its general form is shown with exactly these.
constexpr int kShortDecimals = 12;
/// Decimals that are examined otherwise.
constexpr int kScannedDecimals = 13;
/// A last digit at least this far behind the one before it is noise.
constexpr int kNoiseDistance = 4;
/// A run of more nines than this is cut where it begins, so that the fixed form carries it up.
constexpr int kLongestNines = 3;

/// The digits behind the "." of a number text.
std::wstring Decimals(const std::wstring& text) {
  const std::size_t point = text.find(L'.');
  return point == std::wstring::npos ? std::wstring() : text.substr(point + 1);
}

int LastNonZero(const std::wstring& digits) {
  const std::size_t position = digits.find_last_not_of(L'0');
  return position == std::wstring::npos ? -1 : static_cast<int>(position);
}

/// What a scan of the decimals found, as positions counted from 0.
struct DecimalScan {
  int last = -1;       ///< the last digit that is not 0
  int previous = 0;    ///< the digit before it that is not 0
  int nines = 0;       ///< length of the run of nines
  int ninesStart = 0;  ///< where it began; a nine at position 0 cannot set it
  int firstZero = 0;   ///< the first 0 behind position 0; 0: none
};

DecimalScan Scan(const std::wstring& digits) {
  DecimalScan scan;
  const int count = static_cast<int>(digits.size());
  for (int i = 0; i < count; ++i) {
    const wchar_t digit = digits[static_cast<std::size_t>(i)];
    if (digit == L'0') {
      if (scan.firstZero == 0) scan.firstZero = i;
      continue;
    }
    scan.previous = scan.last == -1 ? i : scan.last;
    scan.last = i;
    if (digit == L'9') {
      ++scan.nines;
      if (scan.ninesStart == 0) scan.ninesStart = i;
    } else if (i != count - 1) {
      scan.nines = 0;
      scan.ninesStart = 0;
    }
  }
  return scan;
}

}  // namespace

int CountDecimals(double value) {
  const std::wstring general = GeneralText(value);
  if (general.find(L'.') != std::wstring::npos && general.find(L'e') == std::wstring::npos) {
    const int count = static_cast<int>(Decimals(general).size());
    if (count < kShortDecimals) return count;
  }
  DecimalScan scan = Scan(Decimals(FixedText(value, kScannedDecimals)));
  constexpr int kLastScanned = kScannedDecimals - 1;
  if (scan.last == kLastScanned && kLastScanned - scan.previous < kNoiseDistance) {
    const double rounded = RoundToDecimals(value, kScannedDecimals);
    scan.last = LastNonZero(Decimals(FixedText(rounded, kScannedDecimals - 1)));
  }
  if (scan.last - scan.previous >= kNoiseDistance) return scan.previous + 1;
  if (scan.nines > kLongestNines && scan.firstZero < scan.previous) return scan.ninesStart;
  return scan.last + 1;
}

double RoundToDecimals(double value, int n) {
  const double scaled = value * std::pow(10.0, n - 1);
  const double rounded = scaled > 0.0 ? std::floor(scaled + 0.5) : std::ceil(scaled - 0.5);
  return rounded * std::pow(10.0, 1 - n);
}

}  // namespace vexa
