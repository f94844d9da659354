#include "macros/MemoryVariables.h"

#include <cmath>

#include "display/SettingsLayout.h"
#include "engine/NumberText.h"
#include "toolkit/NumberBox.h"

namespace vexa {

std::wstring MemoryVariables::Text(int index) const {
  return Read(store, settings::kMemoryVariable, index);
}

double MemoryVariables::Value(int index) const {
  // The unit converter stores its results as it shows them, grouped at thousands.
  const std::wstring text = Text(index);
  const double value = ReadNumberBox(text).value_or(TextToDouble(text));
  return std::isfinite(value) ? value : 0.0;
}

std::wstring MemoryVariables::FormulaText(int index) const {
  std::wstring text = Text(index);
  if (!ReadNumberBox(text)) return L"0";
  std::erase_if(text, [](wchar_t c) { return c == L',' || c <= L' '; });
  return text;
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
