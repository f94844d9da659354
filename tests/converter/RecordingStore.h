#pragma once

#include <string>
#include <vector>

#include "display/MemorySettingsStore.h"
#include "display/SettingsLayout.h"

namespace vexa::test {

/// A store that notes every write as "section/entry=value", in order.
class RecordingStore : public MemorySettingsStore {
 public:
  bool WriteSettingInt(std::wstring_view section, std::wstring_view entry, int value) override {
    Note(section, entry, std::to_wstring(value));
    return MemorySettingsStore::WriteSettingInt(section, entry, value);
  }
  bool WriteSettingString(std::wstring_view section, std::wstring_view entry,
                          std::wstring_view text) override {
    Note(section, entry, text);
    return MemorySettingsStore::WriteSettingString(section, entry, text);
  }

  std::vector<std::wstring> writes;

 private:
  void Note(std::wstring_view section, std::wstring_view entry, std::wstring_view value) {
    std::wstring line(section);
    line.append(L"/").append(entry).append(L"=").append(value);
    writes.push_back(line);
  }
};

/// A store with conversions A0 -> B0, A1 -> B1 ... at rates 1.5, 2.5 ...; its notes are empty.
inline RecordingStore StoreWithConversions(int count) {
  RecordingStore store;
  for (int i = 0; i < count; ++i) {
    const std::wstring n = std::to_wstring(i);
    Write(store, settings::kConversionName, i, L"A" + n + L" -> B" + n);
    Write(store, settings::kConversionRate, i, std::to_wstring(i + 1) + L".5");
  }
  Write(store, settings::kConversionCount, count);
  store.writes.clear();
  return store;
}

}  // namespace vexa::test
