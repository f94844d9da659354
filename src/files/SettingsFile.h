#pragma once

#include <sys/stat.h>

#include <filesystem>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include "files/FileLock.h"
#include "files/SettingsValues.h"

namespace vexa {

/// The settings in a file of the user's own, settings.json in a folder of this program, shared with
/// every other program that uses it.
///
/// What is found is what stands in the file now and what was changed here since. A change is kept
/// until Save has brought it into the file, beside what other programs have changed meanwhile; one
/// that was removed meanwhile is written anew, whole. A file that cannot be read is renamed, never
/// overwritten, and an empty one takes its place; where nothing can be written, values last as long
/// as the object. The settings.ini of an earlier version is read once and renamed.
class SettingsFile {
 public:
  /// Opens the file in `folder`, which is created; an empty name: nothing is ever written.
  explicit SettingsFile(std::filesystem::path folder);

  /// Where the file is; empty: nothing is ever written.
  const std::filesystem::path& Folder() const { return folder; }
  /// The value of a setting, or null when there is none. Valid until the next call.
  const SettingValue* Find(const SettingName& name);
  /// Changes a setting; one that has the value already, for all that was found or set here, is left
  /// to the other programs.
  void Set(const SettingName& name, SettingValue value);
  /// Brings the changes into the file. False: that failed, and they wait for the next call.
  bool Save();
  /// Sentences that the user should read, each told once: what was kept aside, and, the first time
  /// only, why the file cannot be written.
  std::vector<std::wstring> TakeNotices();

 private:
  struct Stored;
  /// Tells one state of the file from the next.
  struct Stamp {
    dev_t device = 0;
    ino_t file = 0;
    off_t size = 0;
    timespec changed{};
    bool operator==(const Stamp& other) const;
  };

  Stamp CurrentStamp() const;
  Stored ReadStored() const;
  std::error_code Lock(FileLock& lock) const;
  std::error_code TakeStored(const FileLock& lock, Stored& stored);
  std::error_code Write();
  void Adopt(SettingsValues&& stored);

  std::filesystem::path folder;
  std::filesystem::path fileName;
  std::filesystem::path oldName;
  /// The file's values with this program's changes.
  SettingsValues values;
  SettingsValues changes;
  /// What was found or set here.
  SettingsValues known;
  Stamp stamp;
  std::vector<std::wstring> notices;
  bool failureIsTold = false;
};

}  // namespace vexa
