#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "display/SettingsStore.h"
#include "engine/CalcModes.h"

namespace vexa {

/// The last expressions and results of the calculator, oldest first. A result entry is "=", a base
/// tag such as "[D]", and the text as it was shown; every other entry is an expression as typed.
class History {
 public:
  static constexpr int kCapacity = 10;

  /// Appends `text`, unless the newest entry equals it; drops the oldest entry when full.
  void AddHistory(std::wstring_view text);
  int Count() const { return static_cast<int>(entries.size()); }
  bool IsEmpty() const { return entries.empty(); }
  /// Entry `index`, 1 (oldest) to Count().
  const std::wstring& At(int index) const { return entries[static_cast<std::size_t>(index - 1)]; }
  /// Entry `index` as a menu shows it: shortened when longer than 17 characters.
  std::wstring Caption(int index) const;

  /// Reads the stored entries; a stored count outside 0 to kCapacity is clamped.
  void Load(const SettingsStore& store);
  /// Writes the count, then the entries.
  void Save(SettingsStore& store) const;

 private:
  std::vector<std::wstring> entries;
};

/// The entry that records a result shown as `displayText` in `base`, e.g. =[H]FF.
std::wstring ResultEntry(BaseType base, std::wstring_view displayText);

/// What recalling `entry` inserts while `base` is current: an expression as it stands, a result's
/// value converted to `base`, without thousands separators.
std::wstring RecallText(std::wstring_view entry, BaseType base, int precision,
                        std::wstring& lastError);

}  // namespace vexa
