#pragma once

#include "macros/MacroEditor.h"
#include "toolkit/Dialog.h"

class QComboBox;
class QLineEdit;

namespace vexa {

class EditLine;
class TouchList;

/// Creates, edits and deletes macros. MacroEditor decides.
class MacroEditorDialog : public Dialog {
  Q_OBJECT

 public:
  MacroEditorDialog(SettingsStore& settingsStore, QWidget* parent);

  /// While a macro is being edited, Escape and the window's close button end the editing only.
  void reject() override;

 private:
  void BuildFields();
  void BuildButtons();
  /// Shows what the editor says: list, fields, buttons.
  void Refresh();
  void FillList();

  void New();
  void Edit();
  void Delete();
  void Save();
  void Cancel();
  void RecallVariable();
  void SelectMacro(int index);
  QWidget* FieldWidget(MacroEditor::Field field) const;

  SettingsStore& store;
  MacroEditor editor;
  QLineEdit* name;
  QComboBox* type;
  EditLine* formula;
  QLabel* listLabel;
  TouchList* list;
  QPushButton* newButton;
  QPushButton* editButton;
  QPushButton* deleteButton;
  QPushButton* closeButton;
  QPushButton* memButton;
  QPushButton* saveButton;
  QPushButton* cancelButton;
};

}  // namespace vexa
