#include "display/DisplayFormatting.h"

#include "toolkit/NumberBox.h"

namespace vexa {

bool HasDecimalPlaces(DisplayType type) {
  return type != DisplayType::FloatingPoint && type != DisplayType::Currency;
}

std::wstring ReadDecimalPlaces(std::wstring_view text, int& decimalPlaces) {
  std::wstring sentence =
      ReadIntegerBox(text, kFewestDecimalPlaces, kMostDecimalPlaces, decimalPlaces);
  if (!sentence.empty()) decimalPlaces = kFallbackDecimalPlaces;
  return sentence;
}

}  // namespace vexa
