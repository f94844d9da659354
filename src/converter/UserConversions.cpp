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
  records.clear();
  for (int i = 0; i < count; ++i) {
    records.push_back(
        {Read(store, settings::kConversionName, i), Read(store, settings::kConversionRate, i)});
  }
}

void UserConversions::Add(const UserConversion& conversion) {
  records.push_back(conversion);
  WriteConversion(Count() - 1);
  WriteCount();
}

void UserConversions::Replace(int index, const UserConversion& conversion) {
  Changed(index) = conversion;
  WriteConversion(index);
}

void UserConversions::Delete(int index) {
  records.erase(records.begin() + index);
  for (int i = 0; i < Count(); ++i) WriteConversion(i);
  WriteCount();
}

void UserConversions::WriteConversion(int index) {
  Write(store, settings::kConversionName, index, At(index).name);
  Write(store, settings::kConversionRate, index, At(index).rateText);
}

void UserConversions::WriteCount() {
  Write(store, settings::kConversionCount, Count());
}

}  // namespace vexa
