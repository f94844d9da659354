#pragma once

#include <string>
#include <string_view>

#include "macros/MacroTable.h"
#include "toolkit/LineText.h"
#include "toolkit/ListEditor.h"

namespace vexa {

/// The macro editor without its window: the macros and the checks before one is saved.
class MacroEditor : public ListEditor {
 public:
  /// Characters of a formula at most.
  static constexpr std::size_t kMaxFormulaLength = 150;
  static constexpr std::wstring_view kFormulaTooLong = L"Macro Expression exceeded length limit.";

  /// What a name holds: more than its line in the list can show.
  static constexpr FieldLength kNameLength{100, L"Macro Name exceeded length limit."};

  /// The fields of the editor.
  enum Field : int { Name, Type, Formula };

  /// What the fields hold. `type` is an index of kMacroTypes, -1: none chosen.
  struct Fields {
    std::wstring name;
    int type = -1;
    std::wstring formula;

    bool operator==(const Fields&) const = default;
  };

  /// Loads the macros from `settingsStore`, which must outlive the editor. Selects the first one.
  explicit MacroEditor(SettingsStore& settingsStore);

  int Count() const override { return macros.Count(); }
  std::wstring Line(int index) const override { return MacroLine(macros.At(index)); }
  std::wstring_view DeleteQuestion() const override;

  /// Checks the fields, stores the macro, selects it and returns to the view state; or tells why
  /// not.
  Refusal Save(const Fields& fields);
  const MacroTable& Macros() const { return macros; }
  /// What the fields show: the new macro's empty fields, or the selected macro. A formula of
  /// several lines is shown as one.
  Fields ShownFields() const;

 protected:
  void Remove(int index) override { macros.DeleteMacro(index); }

 private:
  Refusal Check(const Fields& trimmed) const;

  MacroTable macros;
};

}  // namespace vexa
