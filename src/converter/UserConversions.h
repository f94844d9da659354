#pragma once

#include <string>
#include <string_view>

#include "converter/UnitTables.h"
#include "display/SettingsStore.h"
#include "toolkit/NamedRecords.h"

namespace vexa {

/// Conversions that the user can keep: all of one category's entries.
inline constexpr int kMaxUserConversions = kMaxUnits;

/// A conversion that the user has defined.
struct UserConversion {
  /// Both unit names: Inch -> Centimeter.
  std::wstring name;
  /// Output units in one input unit, as typed.
  std::wstring rateText;
};

/// The rate that a stored text means: each character is narrowed to its low byte, then the number
/// at the front counts. No number is 0, one that is too large is infinity.
double ReadRate(std::wstring_view rateText);

/// The stored conversions, in order. Every change is written to the store at once.
class UserConversions : public NamedRecords<UserConversion> {
 public:
  /// Works on `settingsStore`, which must outlive the list. Empty until Load.
  explicit UserConversions(SettingsStore& settingsStore) : store(settingsStore) {}

  /// Reads the list; a count outside 0 to kMaxUserConversions is clamped.
  void Load();
  /// Appends a conversion. The caller has made sure that Count() is below kMaxUserConversions.
  void Add(const UserConversion& conversion);
  /// Rewrites conversion `index` in place.
  void Replace(int index, const UserConversion& conversion);
  /// Removes conversion `index`; the ones behind it move up, and all sections are rewritten so that
  /// their numbers stay equal to the positions.
  void Delete(int index);

 private:
  void WriteConversion(int index);
  void WriteCount();

  SettingsStore& store;
};

}  // namespace vexa
