#pragma once

#include <string>
#include <string_view>

#include "macros/MacroTable.h"
#include "toolkit/ListEditorView.h"

namespace vexa {

/// The macro editor without its window: the list, the two states, the checks before saving.
class MacroEditor {
 public:
  /// Characters of a formula at most.
  static constexpr std::size_t kMaxFormulaLength = 150;
  static constexpr std::wstring_view kFormulaTooLong = L"Macro Expression exceeded length limit.";
  static constexpr std::wstring_view kDeleteQuestion =
      L"Are you sure you want to delete the selected macro?";

  /// A field of the editor.
  enum class Field { Name, Type, Formula };

  /// What the fields hold. `type` is an index of kMacroTypes, -1: none chosen.
  struct Fields {
    std::wstring name;
    int type = -1;
    std::wstring formula;

    bool operator==(const Fields&) const = default;
  };

  /// Why nothing was saved, and the field at fault; an empty sentence: saved.
  struct Refusal {
    std::wstring sentence;
    Field field = Field::Name;
  };

  /// Loads the macros from `settingsStore`, which must outlive the editor. Selects the first one.
  explicit MacroEditor(SettingsStore& settingsStore);

  /// Enters the editing state with a new, empty macro.
  void New();
  /// Enters the editing state with the selected macro; does nothing without one.
  void Edit();
  /// Checks the fields, stores the macro, selects it and returns to the view state; or tells why
  /// not.
  Refusal Save(const Fields& fields);
  /// Why a formula of `length` characters is refused; empty: it has room.
  static std::wstring_view CheckFormulaLength(std::size_t length);
  /// Returns to the view state.
  void Cancel();
  /// Deletes the selected macro and selects the one that takes its place, or the last one.
  void Delete();
  /// Selects macro `index`, -1: none.
  void Select(int index) { selected = index; }

  const MacroTable& Macros() const { return macros; }
  /// Index of the selected macro, -1: none.
  int Selected() const { return selected; }
  bool IsEditing() const { return editing; }
  /// What is shown and enabled, and the list's label.
  ListEditorView View() const { return ViewOfListEditor(editing, macros.Count(), kMaxMacros); }
  /// What the fields show: the new macro's empty fields, or the selected macro. A formula of
  /// several lines is shown as one.
  Fields ShownFields() const;

 private:
  Refusal Check(const Fields& trimmed) const;

  MacroTable macros;
  int selected = -1;
  bool editing = false;
  /// Index of the macro that is being edited, -1: a new one.
  int edited = -1;
};

}  // namespace vexa
