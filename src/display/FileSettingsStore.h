#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "display/SettingsStore.h"
#include "files/SettingsFile.h"
#include "files/UserFolders.h"

namespace vexa {

/// The store in a file of the user's own: <folder>/<key>/settings.json. Changes reach the file by
/// Flush and when the store is destroyed.
class FileSettingsStore : public SettingsStore {
 public:
  /// `folder` holds the key's folder; it is created when it is missing. An empty one: values last
  /// as long as the store.
  explicit FileSettingsStore(std::filesystem::path settingsFolder = UserSettingsFolder());
  ~FileSettingsStore() override;

  void SetSettingsKey(std::wstring_view key) override;
  int ReadSettingInt(std::wstring_view section, std::wstring_view entry,
                     int defaultValue) const override;
  std::wstring ReadSettingString(std::wstring_view section, std::wstring_view entry,
                                 std::wstring_view defaultValue) const override;
  bool WriteSettingInt(std::wstring_view section, std::wstring_view entry, int value) override;
  bool WriteSettingString(std::wstring_view section, std::wstring_view entry,
                          std::wstring_view text) override;
  std::filesystem::path Folder() const override;

  /// Brings all changes into the file now. False: it could not be written, and they are kept for
  /// the next call.
  bool Flush();
  /// What the user should be told since the last call, each sentence once.
  std::vector<std::wstring> TakeNotices();
  /// Runs after each change, for a program that brings it into the file soon.
  std::function<void()> changed = [] {};

 private:
  bool Set(std::wstring_view section, std::wstring_view entry, SettingValue value);

  std::filesystem::path folder;
  /// Null until the key is set.
  std::unique_ptr<SettingsFile> file;
};

}  // namespace vexa
