#pragma once

#include <map>
#include <string>
#include <utility>
#include <variant>

#include "display/SettingsStore.h"

namespace vexa {

/// A store that lives as long as the object: for tests and for a session without a file.
class MemorySettingsStore : public SettingsStore {
 public:
  void SetSettingsKey(std::wstring_view key) override { settingsKey = key; }
  int ReadSettingInt(std::wstring_view section, std::wstring_view entry,
                     int defaultValue) const override;
  std::wstring ReadSettingString(std::wstring_view section, std::wstring_view entry,
                                 std::wstring_view defaultValue) const override;
  bool WriteSettingInt(std::wstring_view section, std::wstring_view entry, int value) override;
  bool WriteSettingString(std::wstring_view section, std::wstring_view entry,
                          std::wstring_view text) override;

  std::filesystem::path Folder() const override { return folder; }

  /// The folder for files beside the settings.
  std::filesystem::path folder;
  /// The key that was set last.
  std::wstring settingsKey;

 private:
  std::map<std::pair<std::wstring, std::wstring>, std::variant<int, std::wstring>> values;
};

}  // namespace vexa
