#include "macros/MacroEditor.h"

namespace vexa {
namespace {

constexpr std::wstring_view kForbiddenInNames = L":()";

std::wstring Trimmed(const std::wstring& text) {
  const std::size_t start = text.find_first_not_of(L' ');
  if (start == std::wstring::npos) return {};
  return text.substr(start, text.find_last_not_of(L' ') + 1 - start);
}

int TypeIndex(std::wstring_view storedText) {
  return static_cast<int>(&MacroTypeOf(storedText) - kMacroTypes.data());
}

}  // namespace

MacroEditor::MacroEditor(SettingsStore& settingsStore)
    : ListEditor(kMaxMacros), macros(settingsStore) {
  macros.LoadMacroTable();
  Select(0);
}

std::wstring_view MacroEditor::DeleteQuestion() const {
  return L"Are you sure you want to delete the selected macro?";
}

ListEditor::Refusal MacroEditor::Save(const Fields& fields) {
  const Fields trimmed{Trimmed(fields.name), fields.type, Trimmed(fields.formula)};
  Refusal refusal = Check(trimmed);
  if (!refusal.sentence.empty()) return refusal;
  const std::wstring_view type = kMacroTypes[static_cast<std::size_t>(trimmed.type)].storedText;
  if (Edited() < 0) {
    macros.AddMacro(trimmed.name, type, trimmed.formula);
    ShowSaved(Count() - 1);
  } else {
    macros.ReplaceMacro(Edited(), trimmed.name, type, trimmed.formula);
    ShowSaved(Edited());
  }
  return {};
}

MacroEditor::Fields MacroEditor::ShownFields() const {
  const int index = Shown();
  if (index < 0) return {};
  const Macro& macro = macros.At(index);
  return {macro.name, TypeIndex(macro.type), LineText(macros.ReadFormula(index))};
}

ListEditor::Refusal MacroEditor::Check(const Fields& trimmed) const {
  // A full table refuses changes of its macros too; meant.
  if (macros.Count() >= kMaxMacros) {
    return {L"Maximum of macro is " + std::to_wstring(kMaxMacros), Name};
  }
  if (trimmed.name.empty()) return {L"Macro Name is NULL", Name};
  if (trimmed.name.find_first_of(kForbiddenInNames) != std::wstring::npos) {
    return {L"Can not use '(',')',':' in Macro Name.", Name};
  }
  if (macros.HasOther(Edited(), trimmed.name)) {
    return {trimmed.name + L" exists already.", Name};
  }
  if (trimmed.type < 0) return {L"Argument Type is NULL", Type};
  if (trimmed.formula.empty()) return {L"Macro Expression is NULL", Formula};
  if (trimmed.formula.size() > kMaxFormulaLength) return {std::wstring(kFormulaTooLong), Formula};
  ExprParser parser;
  parser.formulaType = kMacroTypes[static_cast<std::size_t>(trimmed.type)].formulaType;
  parser.Validate(trimmed.formula);
  return {parser.errorText, Formula};
}

}  // namespace vexa
