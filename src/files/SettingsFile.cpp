#include "files/SettingsFile.h"

#include <algorithm>
#include <utility>

#include "files/OldSettings.h"
#include "files/ReadFile.h"
#include "files/ReplaceFile.h"
#include "files/SettingsJson.h"
#include "files/UserFolders.h"
#include "files/Utf8.h"

namespace vexa {
namespace {

/// Other programs hold the lock for as long as a write takes.
constexpr std::chrono::milliseconds kLockPatience{1000};

/// The system's words for `error`.
std::wstring Reason(const std::error_code& error) {
  return DecodeUtf8(error.message()).value_or(L"error " + std::to_wstring(error.value()));
}

/// True for what a later attempt may not meet: then the file is as good as it was.
bool IsPassing(const std::error_code& error) {
  constexpr std::errc kPassing[] = {std::errc::io_error,
                                    std::errc::too_many_files_open,
                                    std::errc::not_enough_memory,
                                    std::errc::too_many_files_open_in_system,
                                    std::errc::timed_out,
                                    std::errc::resource_unavailable_try_again,
                                    std::errc::device_or_resource_busy};
  return std::ranges::any_of(kPassing, [&](std::errc passing) { return error == passing; });
}

}  // namespace

/// What stands in one of the files; no values: it is damaged.
struct SettingsFile::Stored {
  std::filesystem::path source;
  std::optional<SettingsValues> values;
  /// What kept the file from being read now, and says nothing about its content.
  std::error_code hindrance{};
};

bool SettingsFile::Stamp::operator==(const Stamp& other) const {
  return device == other.device && file == other.file && size == other.size &&
         changed.tv_sec == other.changed.tv_sec && changed.tv_nsec == other.changed.tv_nsec;
}

SettingsFile::SettingsFile(std::filesystem::path settingsFolder)
    : folder(std::move(settingsFolder)),
      fileName(folder / "settings.json"),
      oldName(folder / "settings.ini") {
  FileLock lock;
  const bool isLocked = !Lock(lock);
  if (isLocked) {
    RemoveLeftFiles(fileName);
    RemoveLeftFiles(oldName);
  }
  stamp = CurrentStamp();
  Stored stored = ReadStored();
  // Where renaming fails, it fails in Save again, which tells why.
  if (!stored.values && isLocked) static_cast<void>(TakeStored(lock, stored));
  if (stored.values) Adopt(*std::move(stored.values));
}

SettingsFile::Stamp SettingsFile::CurrentStamp() const {
  struct stat info {};
  if (stat(fileName.c_str(), &info) != 0) return {};
  return {info.st_dev, info.st_ino, info.st_size, info.st_mtim};
}

SettingsFile::Stored SettingsFile::ReadStored() const {
  if (folder.empty()) return {fileName, values};
  const std::pair<const std::filesystem::path&, decltype(&ParseSettings)> sources[] = {
      {fileName, ParseSettings}, {oldName, ParseOldSettings}};
  for (const auto& [source, parse] : sources) {
    std::string bytes;
    const auto error = ReadFile(source, kLargestSettingsFile, bytes);
    const bool isMissing =
        error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory;
    if (isMissing) continue;
    if (IsPassing(error)) return {source, std::nullopt, error};
    return {source, error ? std::nullopt : parse(bytes)};
  }
  // A file that was removed meanwhile is written anew, whole.
  return {fileName, values};
}

std::error_code SettingsFile::Lock(FileLock& lock) const {
  if (folder.empty()) return make_error_code(std::errc::no_such_file_or_directory);
  if (const auto error = MakePrivateFolder(folder)) return error;
  std::filesystem::path name = fileName;
  return lock.Acquire(name += ".lock", kLockPatience);
}

/// Reads what is stored, with the lock held. What is damaged is renamed, and the values that are
/// known from it take its place.
std::error_code SettingsFile::TakeStored(const FileLock&, Stored& stored) {
  stored = ReadStored();
  if (stored.values) return {};
  if (stored.hindrance) return stored.hindrance;
  std::filesystem::path kept;
  if (const auto error = MoveAside(stored.source, "damaged", kept)) return error;
  notices.push_back(L"The settings file could not be read. It is kept as " +
                    kept.filename().wstring() + L".");
  stored = {fileName, values};
  return {};
}

std::error_code SettingsFile::Write() {
  FileLock lock;
  if (const auto error = Lock(lock)) return error;
  Stored stored;
  if (const auto error = TakeStored(lock, stored)) return error;
  SettingsValues merged = *std::move(stored.values);
  for (const auto& [name, value] : changes) merged.insert_or_assign(name, value);
  const std::string bytes = FormatSettings(merged);
  // What no program would read must not replace what every program can.
  if (merged.size() > kMostSettings || bytes.size() > kLargestSettingsFile) {
    return make_error_code(std::errc::file_too_large);
  }
  if (const auto error = ReplaceFile(fileName, bytes)) return error;
  changes.clear();
  values = std::move(merged);
  stamp = CurrentStamp();
  if (stored.source == oldName) {
    std::filesystem::path kept;
    static_cast<void>(MoveAside(oldName, "imported", kept));
  }
  return {};
}

bool SettingsFile::Save() {
  if (changes.empty()) return true;
  const std::error_code error = Write();
  if (error && !failureIsTold) {
    failureIsTold = true;
    notices.push_back(L"The settings cannot be saved: " + Reason(error) + L".");
  }
  return !error;
}

void SettingsFile::Adopt(SettingsValues&& stored) {
  values = std::move(stored);
  for (const auto& [name, value] : changes) values.insert_or_assign(name, value);
}

const SettingValue* SettingsFile::Find(const SettingName& name) {
  // Each write makes a new file, so that a look at it shows whether another program has written.
  if (const Stamp current = CurrentStamp(); current != stamp) {
    stamp = current;
    if (Stored stored = ReadStored(); stored.values) Adopt(*std::move(stored.values));
  }
  const auto found = values.find(name);
  if (found == values.end()) return nullptr;
  known.insert_or_assign(name, found->second);
  return &found->second;
}

void SettingsFile::Set(const SettingName& name, SettingValue value) {
  if (const auto found = known.find(name); found != known.end() && found->second == value) return;
  known.insert_or_assign(name, value);
  values.insert_or_assign(name, value);
  changes.insert_or_assign(name, std::move(value));
}

std::vector<std::wstring> SettingsFile::TakeNotices() {
  return std::exchange(notices, {});
}

}  // namespace vexa
