#include "macros/MacroEditor.h"

#include <algorithm>

#include "toolkit/LineText.h"

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

MacroEditor::MacroEditor(SettingsStore& settingsStore) : macros(settingsStore) {
  macros.LoadMacroTable();
  selected = std::min(0, macros.Count() - 1);
}

void MacroEditor::New() {
  editing = true;
  edited = -1;
}

void MacroEditor::Edit() {
  if (selected < 0) return;
  editing = true;
  edited = selected;
}

MacroEditor::Refusal MacroEditor::Save(const Fields& fields) {
  const Fields trimmed{Trimmed(fields.name), fields.type, Trimmed(fields.formula)};
  Refusal refusal = Check(trimmed);
  if (!refusal.sentence.empty()) return refusal;
  const std::wstring_view type = kMacroTypes[static_cast<std::size_t>(trimmed.type)].storedText;
  if (edited < 0) {
    macros.AddMacro(trimmed.name, type, trimmed.formula);
    selected = macros.Count() - 1;
  } else {
    macros.ReplaceMacro(edited, trimmed.name, type, trimmed.formula);
    selected = edited;
  }
  editing = false;
  return {};
}

std::wstring_view MacroEditor::CheckFormulaLength(std::size_t length) {
  return length > kMaxFormulaLength ? kFormulaTooLong : std::wstring_view{};
}

void MacroEditor::Cancel() {
  editing = false;
}

void MacroEditor::Delete() {
  if (selected < 0) return;
  macros.DeleteMacro(selected);
  selected = std::min(selected, macros.Count() - 1);
}

MacroEditor::Fields MacroEditor::ShownFields() const {
  const int index = editing ? edited : selected;
  if (index < 0) return {};
  const Macro& macro = macros.At(index);
  return {macro.name, TypeIndex(macro.type), LineText(macros.ReadFormula(index))};
}

MacroEditor::Refusal MacroEditor::Check(const Fields& trimmed) const {
  // A full table refuses changes of its macros too; meant.
  if (macros.Count() >= kMaxMacros) {
    return {L"Maximum of macro is " + std::to_wstring(kMaxMacros), Field::Name};
  }
  if (trimmed.name.empty()) return {L"Macro Name is NULL", Field::Name};
  if (trimmed.name.find_first_of(kForbiddenInNames) != std::wstring::npos) {
    return {L"Can not use '(',')',':' in Macro Name.", Field::Name};
  }
  for (int i = 0; i < macros.Count(); ++i) {
    if (i != edited && macros.At(i).name == trimmed.name) {
      return {trimmed.name + L" exists already.", Field::Name};
    }
  }
  if (trimmed.type < 0) return {L"Argument Type is NULL", Field::Type};
  if (trimmed.formula.empty()) return {L"Macro Expression is NULL", Field::Formula};
  const std::wstring_view tooLong = CheckFormulaLength(trimmed.formula.size());
  if (!tooLong.empty()) return {std::wstring(tooLong), Field::Formula};
  ExprParser parser;
  parser.formulaType = kMacroTypes[static_cast<std::size_t>(trimmed.type)].formulaType;
  parser.Validate(trimmed.formula);
  return {parser.errorText, Field::Formula};
}

}  // namespace vexa
