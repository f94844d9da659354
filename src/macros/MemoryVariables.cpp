#include "macros/MemoryVariables.h"

#include <cmath>

#include "display/SettingsLayout.h"
#include "engine/EngineErrors.h"
#include "engine/NumberText.h"
#include "toolkit/NumberBox.h"

namespace vexa {
namespace {

/// "inf" and "nan" are no numbers, though a text-to-double conversion takes them.
bool HasDigitsInFront(std::wstring_view text) {
  const std::size_t front = text.find_first_not_of(L" \t\n\v\f\r+-.\u2212");
  return front != text.npos && text[front] >= L'0' && text[front] <= L'9';
}

}  // namespace

std::wstring MemoryVariables::Text(int index) const {
  return Read(store, settings::kMemoryVariable, index);
}

double MemoryVariables::Value(int index) const {
  // The unit converter stores its results as it shows them, grouped at thousands.
  const std::wstring text = Text(index);
  return HasDigitsInFront(text) ? ReadNumberBox(text).value_or(TextToDouble(text)) : 0.0;
}

std::wstring MemoryVariables::FormulaText(int index, std::wstring& text) const {
  if (std::isinf(Value(index))) return std::wstring(kOutOfRangeText);
  text = PlainNumber(Text(index)).value_or(L"0");
  return {};
}

std::wstring MemoryVariables::Line(int index) const {
  const std::wstring number = std::to_wstring(index + 1);
  return L"Mem" + std::wstring(number.size() < 2 ? L"0" : L"") + number + L" = " + Text(index);
}

void MemoryVariables::Store(int index, std::wstring_view text) {
  Write(store, settings::kMemoryVariable, index, text);
}

void MemoryVariables::ClearAll() {
  for (int i = 0; i < kCount; ++i) Store(i, settings::kMemoryVariable.defaultValue);
}

}  // namespace vexa
