#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "converter/UnitConverter.h"
#include "display/SettingsStore.h"

namespace vexa::terminal {

/// A conversion as words ask for it.
struct ConversionRequest {
  std::wstring value;
  std::wstring from;
  std::wstring to;
};

/// Reads a line: value, unit and unit separated by tabs, or "12.5 Kilometers to Miles". False: it
/// is neither.
bool ReadConversionLine(std::wstring_view line, ConversionRequest& request);

/// What a conversion gives, or why it gives nothing.
struct ConversionAnswer {
  std::wstring shown{};
  std::wstring error{};
  double value = 0.0;
  /// The names of the units that were meant.
  std::wstring from{};
  std::wstring to{};
};

/// Converts between units that are named whole or by their beginnings, in any case. The user's
/// conversions come before the built-in units of the same names.
class UnitSearch {
 public:
  /// `settingsStore` must outlive the object.
  explicit UnitSearch(SettingsStore& settingsStore);

  ConversionAnswer Convert(const ConversionRequest& request);

 private:
  struct Pair {
    ConverterPositions positions;
    std::wstring_view from;
    std::wstring_view to;
    /// How well both names fit.
    int fit;
  };
  std::vector<Pair> Find(std::wstring_view from, std::wstring_view to) const;
  std::wstring Refusal(const std::vector<Pair>& pairs, const ConversionRequest& request) const;

  SettingsStore& store;
  UserConversions userConversions;
  UnitConverter converter;
};

/// Every name of a unit, of whatever category, the user's included, in the order of the lists.
std::vector<std::wstring> UnitNames(SettingsStore& store);

}  // namespace vexa::terminal
