#pragma once

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
  void InsertVariable(int index);
  /// What the fields hold.
  MacroEditor::Fields Typed() const;

  ListEditor& Editor() override { return editor; }
  void ShowFields() override;
  bool IsChanged() const override;
  ListEditor::Refusal SaveFields() override { return editor.Save(Typed()); }
  int FirstField(bool) const override { return MacroEditor::Name; }
  void RecallVariable() override;

  SettingsStore& store;
  MacroEditor editor;
  QLineEdit* name = nullptr;
  TouchComboBox* type = nullptr;
  EditLine* formula = nullptr;
};

}  // namespace vexa
