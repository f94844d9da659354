#include "display/MemorySettingsStore.h"

namespace vexa {
namespace {

/// The value of kind `T` under the key, or the default when there is none of that kind.
template <typename T, typename Values>
T Find(const Values& values, std::wstring_view section, std::wstring_view entry, T defaultValue) {
  const auto found = values.find({std::wstring(section), std::wstring(entry)});
  if (found == values.end()) return defaultValue;
  const T* value = std::get_if<T>(&found->second);
  return value ? *value : defaultValue;
}

}  // namespace

int MemorySettingsStore::ReadSettingInt(std::wstring_view section, std::wstring_view entry,
                                        int defaultValue) const {
  return Find<int>(values, section, entry, defaultValue);
}

std::wstring MemorySettingsStore::ReadSettingString(std::wstring_view section,
                                                    std::wstring_view entry,
                                                    std::wstring_view defaultValue) const {
  return Find<std::wstring>(values, section, entry, std::wstring(defaultValue));
}

bool MemorySettingsStore::WriteSettingInt(std::wstring_view section, std::wstring_view entry,
                                          int value) {
  values[{std::wstring(section), std::wstring(entry)}] = value;
  return true;
}

bool MemorySettingsStore::WriteSettingString(std::wstring_view section, std::wstring_view entry,
                                             std::wstring_view text) {
  values[{std::wstring(section), std::wstring(entry)}] = std::wstring(text);
  return true;
}

}  // namespace vexa
