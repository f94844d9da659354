#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "display/SettingsStore.h"

/// Every section, entry, kind and default of the settings store, once. Real numbers are kept as
/// texts. A list is a count entry plus indexed entries; readers stop at the count, so entries
/// behind it are stale and ignored.
namespace vexa::settings {

/// The key that names this program's store.
inline constexpr std::wstring_view kSettingsKey = L"Vexa Calculator";

/// A single integer.
struct IntSetting {
  std::wstring_view section;
  std::wstring_view entry;
  int defaultValue;
};

/// A single text.
struct TextSetting {
  std::wstring_view section;
  std::wstring_view entry;
  std::wstring_view defaultValue;
};

/// Texts whose entry names end in a decimal index: entry + index.
struct IndexedTextSetting {
  std::wstring_view section;
  std::wstring_view entryPrefix;
  std::wstring_view defaultValue;
};

/// Texts of indexed sections: section prefix + index.
struct SectionTextSetting {
  std::wstring_view sectionPrefix;
  std::wstring_view entry;
  std::wstring_view defaultValue;
};

// clang-format off
inline constexpr IntSetting kMode            {L"Config", L"Mode", 1};
inline constexpr IntSetting kAngleType       {L"Config", L"Angle Type", 1};
inline constexpr IntSetting kBaseType        {L"Config", L"Base Type", 1};
inline constexpr IntSetting kDisplayType     {L"Config", L"Display Type", 3};
inline constexpr IntSetting kPrecision       {L"Config", L"Precision", 5};

inline constexpr IntSetting kClassPos        {L"Convert", L"ClassPos", -1};
inline constexpr IntSetting kInputTypePos    {L"Convert", L"InputTypePos", -1};
inline constexpr IntSetting kOutputTypePos   {L"Convert", L"OutputTypePos", -1};

inline constexpr IntSetting kCalHistoryCount {L"History", L"CalHistoryCount", 0};
inline constexpr IndexedTextSetting kCalHistory   {L"History", L"CalHistory", L""};    // 1..10
inline constexpr IntSetting kGrapHistoryCount{L"History", L"GrapHistoryCount", 0};
inline constexpr IndexedTextSetting kGrapHistory  {L"History", L"GrapHistory", L""};   // 1..5

inline constexpr IntSetting kMacroCount      {L"MacroInfo", L"TotalNumber", 0};
inline constexpr SectionTextSetting kMacroName    {L"Macro", L"Name", L""};            // 0..59
inline constexpr SectionTextSetting kMacroType    {L"Macro", L"Type", L""};
inline constexpr SectionTextSetting kMacroFormula {L"Macro", L"Formula", L""};

inline constexpr IntSetting kFunctionCount   {L"Grapher", L"Grapher FunTotalNumber", 0};
inline constexpr IndexedTextSetting kFunction     {L"Grapher", L"Fun", L""};           // 0..2
inline constexpr TextSetting kXMin           {L"Grapher", L"X Min", L"-10"};
inline constexpr TextSetting kXMax           {L"Grapher", L"X Max", L"10"};
inline constexpr TextSetting kYMin           {L"Grapher", L"Y Min", L"-10"};
inline constexpr TextSetting kYMax           {L"Grapher", L"Y Max", L"10"};

inline constexpr IndexedTextSetting kMemoryVariable{L"MemoryVar", L"Var", L"0"};       // 0..19

inline constexpr IntSetting kConversionCount {L"Converter", L"UserDefine_TotalNumber", 0};
inline constexpr SectionTextSetting kConversionName{L"UserDefine_Convert_", L"ConvType", L""};  // 0..59
inline constexpr SectionTextSetting kConversionRate{L"UserDefine_Convert_", L"Rate", L"0"};
// clang-format on

/// `prefix` followed by `index` in decimal.
inline std::wstring Indexed(std::wstring_view prefix, int index) {
  return std::wstring(prefix) + std::to_wstring(index);
}

/// A stored count, which may be any integer, within 0 to `capacity`.
inline int ClampCount(int stored, int capacity) {
  return std::clamp(stored, 0, capacity);
}

inline int Read(const SettingsStore& store, const IntSetting& setting) {
  return store.ReadSettingInt(setting.section, setting.entry, setting.defaultValue);
}
inline std::wstring Read(const SettingsStore& store, const TextSetting& setting) {
  return store.ReadSettingString(setting.section, setting.entry, setting.defaultValue);
}
inline std::wstring Read(const SettingsStore& store, const IndexedTextSetting& setting, int index) {
  return store.ReadSettingString(setting.section, Indexed(setting.entryPrefix, index),
                                 setting.defaultValue);
}
inline std::wstring Read(const SettingsStore& store, const SectionTextSetting& setting, int index) {
  return store.ReadSettingString(Indexed(setting.sectionPrefix, index), setting.entry,
                                 setting.defaultValue);
}

inline void Write(SettingsStore& store, const IntSetting& setting, int value) {
  store.WriteSettingInt(setting.section, setting.entry, value);
}
inline void Write(SettingsStore& store, const TextSetting& setting, std::wstring_view text) {
  store.WriteSettingString(setting.section, setting.entry, text);
}
inline void Write(SettingsStore& store, const IndexedTextSetting& setting, int index,
                  std::wstring_view text) {
  store.WriteSettingString(setting.section, Indexed(setting.entryPrefix, index), text);
}
inline void Write(SettingsStore& store, const SectionTextSetting& setting, int index,
                  std::wstring_view text) {
  store.WriteSettingString(Indexed(setting.sectionPrefix, index), setting.entry, text);
}

}  // namespace vexa::settings
