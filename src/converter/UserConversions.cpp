#include "converter/UserConversions.h"

#include "display/SettingsLayout.h"
#include "engine/NumberText.h"

namespace vexa {

double ReadRate(std::wstring_view rateText) {
  std::string narrow;
  narrow.reserve(rateText.size());
  for (const wchar_t c : rateText) narrow += static_cast<char>(static_cast<unsigned char>(c));
  return TextToDouble(narrow);
}

void UserConversions::Load() {
  const int count =
      settings::ClampCount(Read(store, settings::kConversionCount), kMaxUserConversions);
  conversions.clear();
  for (int i = 0; i < count; ++i) {
    conversions.push_back(
        {Read(store, settings::kConversionName, i), Read(store, settings::kConversionRate, i)});
  }
}

void UserConversions::Add(const UserConversion& conversion) {
  conversions.push_back(conversion);
  WriteConversion(Count() - 1);
  WriteCount();
}

void UserConversions::Replace(int index, const UserConversion& conversion) {
  conversions[static_cast<std::size_t>(index)] = conversion;
  WriteConversion(index);
}

void UserConversions::Delete(int index) {
  conversions.erase(conversions.begin() + index);
  for (int i = 0; i < Count(); ++i) WriteConversion(i);
  WriteCount();
}

bool UserConversions::HasOther(int index, std::wstring_view name) const {
  for (int i = 0; i < Count(); ++i) {
    if (i != index && At(i).name == name) return true;
  }
  return false;
}

void UserConversions::WriteConversion(int index) {
  Write(store, settings::kConversionName, index, At(index).name);
  Write(store, settings::kConversionRate, index, At(index).rateText);
}

void UserConversions::WriteCount() {
  Write(store, settings::kConversionCount, Count());
}

}  // namespace vexa
