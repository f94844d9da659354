#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace vexa {

/// What the program remembers between runs: named sections of named integers and texts. A write
/// that fails is reported and otherwise has no effect; nothing is thrown.
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;

  /// Names the store that all other operations work on. Called once, before anything is read.
  virtual void SetSettingsKey(std::wstring_view key) = 0;

  /// The stored integer, or `defaultValue` when there is none.
  virtual int ReadSettingInt(std::wstring_view section, std::wstring_view entry,
                             int defaultValue) const = 0;
  /// The stored text, or `defaultValue` when there is none.
  virtual std::wstring ReadSettingString(std::wstring_view section, std::wstring_view entry,
                                         std::wstring_view defaultValue) const = 0;
  /// True when the value was taken.
  virtual bool WriteSettingInt(std::wstring_view section, std::wstring_view entry, int value) = 0;
  /// The folder for files of the user's own beside the settings; empty: none may be written.
  virtual std::filesystem::path Folder() const { return {}; }
  /// True when the text was taken.
  virtual bool WriteSettingString(std::wstring_view section, std::wstring_view entry,
                                  std::wstring_view text) = 0;
};

}  // namespace vexa
