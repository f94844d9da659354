#include "macros/MacroTable.h"

#include <algorithm>

#include "display/SettingsLayout.h"

namespace vexa {

const MacroType& MacroTypeOf(std::wstring_view storedText) {
  const auto found = std::find_if(kMacroTypes.begin(), kMacroTypes.end() - 1,
                                  [&](const MacroType& t) { return t.storedText == storedText; });
  return *found;
}

std::wstring MacroLine(const Macro& macro) {
  return macro.name + std::wstring(MacroTypeOf(macro.type).listSuffix);
}

MacroCall CallOf(const Macro& macro) {
  return {std::wstring(kMacroCallMark) + macro.name + L"(", MacroTypeOf(macro.type).callSuffix};
}

void MacroTable::LoadMacroTable() {
  const int count = settings::ClampCount(Read(store, settings::kMacroCount), kMaxMacros);
  records.clear();
  for (int i = 0; i < count; ++i) {
    records.push_back({Read(store, settings::kMacroName, i), Read(store, settings::kMacroType, i)});
  }
}

std::wstring MacroTable::ReadFormula(int index) const {
  return Read(store, settings::kMacroFormula, index);
}

void MacroTable::AddMacro(std::wstring_view name, std::wstring_view type,
                          std::wstring_view formula) {
  const Macro macro{std::wstring(name), std::wstring(type)};
  WriteMacro(Count(), macro, formula);
  records.push_back(macro);
  Write(store, settings::kMacroCount, Count());
}

void MacroTable::ReplaceMacro(int index, std::wstring_view name, std::wstring_view type,
                              std::wstring_view formula) {
  Changed(index) = {std::wstring(name), std::wstring(type)};
  WriteMacro(index, At(index), formula);
}

void MacroTable::DeleteMacro(int index) {
  for (int i = index; i + 1 < Count(); ++i) WriteMacro(i, At(i + 1), ReadFormula(i + 1));
  records.erase(records.begin() + index);
  // The section behind the last macro is emptied, not removed: the store has no removal.
  WriteMacro(Count(), {}, L"");
  Write(store, settings::kMacroCount, Count());
}

void MacroTable::WriteMacro(int index, const Macro& macro, std::wstring_view formula) {
  Write(store, settings::kMacroName, index, macro.name);
  Write(store, settings::kMacroType, index, macro.type);
  Write(store, settings::kMacroFormula, index, formula);
}

}  // namespace vexa
