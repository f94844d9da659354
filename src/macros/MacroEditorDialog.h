#pragma once

#include <array>

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
  /// Shows the state that follows an action of the editing state or "Delete".
  void ShowViewState();

  void New();
  void Edit();
  void Delete();
  void Save();
  void Cancel();
  void RecallVariable();
  void InsertVariable(int index);
  void SelectMacro();
  /// The fields in the order of MacroEditor::Field.
  std::array<QWidget*, 3> Fields() const;

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
