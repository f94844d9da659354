#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "display/MemorySettingsStore.h"

namespace vexa::test {

/// A store in memory that notes every access as "section/entry", in order.
class RecordingStore : public MemorySettingsStore {
 public:
  int ReadSettingInt(std::wstring_view section, std::wstring_view entry,
                     int defaultValue) const override {
    reads.push_back(Note(section, entry));
    return MemorySettingsStore::ReadSettingInt(section, entry, defaultValue);
  }
  std::wstring ReadSettingString(std::wstring_view section, std::wstring_view entry,
                                 std::wstring_view defaultValue) const override {
    reads.push_back(Note(section, entry));
    return MemorySettingsStore::ReadSettingString(section, entry, defaultValue);
  }
  bool WriteSettingInt(std::wstring_view section, std::wstring_view entry, int value) override {
    writes.push_back(Note(section, entry));
    return MemorySettingsStore::WriteSettingInt(section, entry, value);
  }
  bool WriteSettingString(std::wstring_view section, std::wstring_view entry,
                          std::wstring_view text) override {
    writes.push_back(Note(section, entry));
    return MemorySettingsStore::WriteSettingString(section, entry, text);
  }

  /// Forgets what was noted, not what was stored.
  void ForgetNotes() {
    reads.clear();
    writes.clear();
  }

  mutable std::vector<std::wstring> reads;
  std::vector<std::wstring> writes;

 private:
  static std::wstring Note(std::wstring_view section, std::wstring_view entry) {
    std::wstring note(section);
    note += L'/';
    note += entry;
    return note;
  }
};

}  // namespace vexa::test
