#pragma once

#include <string_view>
#include <vector>

#include "display/SettingsLayout.h"

namespace vexa::test {

/// A macro as the store holds it, whether or not this program would have written it so.
struct StoredMacro {
  std::wstring name;
  std::wstring type;
  std::wstring formula;

  bool operator==(const StoredMacro&) const = default;
};

inline const std::wstring kType1 = L"TYPE1 : F(X)";
inline const std::wstring kType2 = L"TYPE2 : F(X,Y)";
inline const std::wstring kType3 = L"TYPE3 : F(X,Y,Z)";

/// One macro of each type.
inline const std::vector<StoredMacro> kThreeMacros{
    {L"twice", kType1, L"2*x"}, {L"area", kType2, L"x*y"}, {L"sum", kType3, L"x+y+z"}};

inline void Store(SettingsStore& store, const std::vector<StoredMacro>& macros) {
  int index = 0;
  for (const StoredMacro& macro : macros) {
    Write(store, settings::kMacroName, index, macro.name);
    Write(store, settings::kMacroType, index, macro.type);
    Write(store, settings::kMacroFormula, index, macro.formula);
    ++index;
  }
  Write(store, settings::kMacroCount, index);
}

inline std::vector<StoredMacro> Stored(const SettingsStore& store) {
  std::vector<StoredMacro> macros;
  for (int i = 0; i < Read(store, settings::kMacroCount); ++i) {
    macros.push_back({Read(store, settings::kMacroName, i), Read(store, settings::kMacroType, i),
                      Read(store, settings::kMacroFormula, i)});
  }
  return macros;
}

}  // namespace vexa::test
