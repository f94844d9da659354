#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "display/SettingsLayout.h"
#include "display/ShortenedText.h"

namespace vexa {

/// How many texts a history holds, where they are stored, and how menus shorten them.
struct HistoryKind {
  int capacity;
  settings::IntSetting count;
  /// Entries are numbered from 1, the oldest.
  settings::IndexedTextSetting entry;
  ShorteningRule caption;
};

/// The texts that were entered last, oldest first.
class TextHistory {
 public:
  explicit TextHistory(const HistoryKind& historyKind) : kind(historyKind) {}

  /// Appends `text`, unless the newest entry equals it; drops the oldest entry when full.
  void AddHistory(std::wstring_view text);
  int Count() const { return static_cast<int>(entries.size()); }
  bool IsEmpty() const { return entries.empty(); }
  /// Entry `index`, 1 (oldest) to Count().
  const std::wstring& At(int index) const { return entries[static_cast<std::size_t>(index - 1)]; }
  /// Entry `index` as a menu shows it; an empty one, which only a store can bring, has a name.
  std::wstring Caption(int index) const {
    return At(index).empty() ? L"(empty)" : Shortened(At(index), kind.caption);
  }

  /// Reads the stored entries; a stored count outside 0 to the capacity is clamped.
  void Load(const SettingsStore& store);
  /// Writes the count, then the entries.
  void Save(SettingsStore& store) const;

 private:
  HistoryKind kind;
  std::vector<std::wstring> entries;
};

}  // namespace vexa
