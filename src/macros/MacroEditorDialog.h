#pragma once

#include <array>

#include "macros/MacroEditor.h"
#include "toolkit/ListEditorDialog.h"

class QLineEdit;

namespace vexa {

class EditLine;
class TouchComboBox;

/// Creates, edits and deletes macros. MacroEditor decides.
class MacroEditorDialog : public ListEditorDialog {
  Q_OBJECT

 public:
  MacroEditorDialog(SettingsStore& settingsStore, QWidget* parent);

 private:
  void BuildFields();
  /// Shows what the editor says of fields and buttons.
  void Refresh();
  /// Shows the list too, which gets the focus.
  void ShowViewState();
  void InsertVariable(int index);
  /// What the fields hold.
  MacroEditor::Fields Typed() const;
  /// The fields in the order of MacroEditor::Field.
  std::array<QWidget*, 3> Fields() const;

  void New() override;
  void Edit() override;
  void Delete() override;
  void Save() override;
  void Cancel() override;
  void RecallVariable() override;
  bool IsChanged() const override;
  void Select(int index) override;

  SettingsStore& store;
  MacroEditor editor;
  QLineEdit* name = nullptr;
  TouchComboBox* type = nullptr;
  EditLine* formula = nullptr;
};

}  // namespace vexa
