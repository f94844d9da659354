#include "display/FileSettingsStore.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>

namespace vexa {
namespace {

/// The integer that a text holds, blanks around it aside: a person may have written it so, and
/// earlier versions kept texts only.
std::optional<int> IntegerOf(std::wstring_view text) {
  constexpr std::wstring_view kBlanks = L" \t";
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  text.remove_suffix(text.size() - (text.find_last_not_of(kBlanks) + 1));
  std::string digits;
  for (const wchar_t c : text) digits += c > 0 && c < 0x7F ? static_cast<char>(c) : '?';
  int value = 0;
  const char* const end = digits.data() + digits.size();
  const auto [behind, error] = std::from_chars(digits.data(), end, value);
  return error == std::errc() && behind == end ? std::optional(value) : std::nullopt;
}

}  // namespace

FileSettingsStore::FileSettingsStore(std::filesystem::path settingsFolder)
    : folder(std::move(settingsFolder)) {}

FileSettingsStore::~FileSettingsStore() {
  Flush();
}

void FileSettingsStore::SetSettingsKey(std::wstring_view key) {
  Flush();
  file = std::make_unique<SettingsFile>(folder.empty() ? folder : folder / key);
}

int FileSettingsStore::ReadSettingInt(std::wstring_view section, std::wstring_view entry,
                                      int defaultValue) const {
  const SettingValue* const value =
      file ? file->Find({std::wstring(section), std::wstring(entry)}) : nullptr;
  if (!value) return defaultValue;
  if (const int* const number = std::get_if<int>(value)) return *number;
  return IntegerOf(std::get<std::wstring>(*value)).value_or(defaultValue);
}

std::wstring FileSettingsStore::ReadSettingString(std::wstring_view section,
                                                  std::wstring_view entry,
                                                  std::wstring_view defaultValue) const {
  const SettingValue* const value =
      file ? file->Find({std::wstring(section), std::wstring(entry)}) : nullptr;
  if (!value) return std::wstring(defaultValue);
  if (const int* const number = std::get_if<int>(value)) return std::to_wstring(*number);
  return std::get<std::wstring>(*value);
}

bool FileSettingsStore::WriteSettingInt(std::wstring_view section, std::wstring_view entry,
                                        int value) {
  return Set(section, entry, value);
}

bool FileSettingsStore::WriteSettingString(std::wstring_view section, std::wstring_view entry,
                                           std::wstring_view text) {
  return Set(section, entry, std::wstring(text));
}

bool FileSettingsStore::Set(std::wstring_view section, std::wstring_view entry,
                            SettingValue value) {
  if (!file) return false;
  file->Set({std::wstring(section), std::wstring(entry)}, std::move(value));
  changed();
  return true;
}

std::filesystem::path FileSettingsStore::Folder() const {
  return file ? file->Folder() : std::filesystem::path();
}

bool FileSettingsStore::Flush() {
  return !file || file->Save();
}

std::vector<std::wstring> FileSettingsStore::TakeNotices() {
  return file ? file->TakeNotices() : std::vector<std::wstring>();
}

}  // namespace vexa
