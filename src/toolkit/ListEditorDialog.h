#pragma once

#include <string>
#include <vector>

#include "toolkit/Dialog.h"
#include "toolkit/ListEditor.h"

namespace vexa {

class TouchList;

/// The dialog of a list's editor: fields on top, then the list and the buttons of its two states. A
/// derived dialog adds its fields, then calls BuildList, and says what is in the fields.
class ListEditorDialog : public Dialog {
  Q_OBJECT

 public:
  /// While an entry is being edited, Escape and the window's close button end the editing only,
  /// and ask before they discard what was changed.
  void reject() override;

 protected:
  using Dialog::Dialog;

  /// Adds the list and the buttons, and shows the view state. `editedFields`, in the order in which
  /// refusals count them, are enabled while editing.
  void BuildList(std::vector<QWidget*> editedFields);
  /// Gives a field the focus, with its text selected where it is one line.
  void FocusField(int field);

  /// The list's rules, which the derived dialog holds.
  virtual ListEditor& Editor() = 0;
  /// Puts what the rules say into the fields.
  virtual void ShowFields() = 0;
  /// Whether the fields hold anything else than what ShowFields puts there.
  virtual bool IsChanged() const = 0;
  /// Saves what the fields hold.
  virtual ListEditor::Refusal SaveFields() = 0;
  /// The field in which the editing of a new or of a stored entry begins.
  virtual int FirstField(bool isNew) const = 0;
  virtual void RecallVariable() = 0;

 private:
  /// `key` runs a command while the list has the focus.
  void ListKey(const QKeySequence& key, void (ListEditorDialog::*run)());
  void New();
  void Edit();
  void Delete();
  void Save();
  void Cancel();
  void BeginEditing(bool isNew);
  /// Shows the list too, which gets the focus.
  void ShowViewState();
  /// Shows and enables what the rules say.
  void Refresh();

  std::vector<QWidget*> fields;
  QLabel* listLabel = nullptr;
  TouchList* list = nullptr;
  QPushButton* newButton = nullptr;
  QPushButton* editButton = nullptr;
  QPushButton* deleteButton = nullptr;
  QPushButton* closeButton = nullptr;
  QPushButton* memoryButton = nullptr;
  QPushButton* saveButton = nullptr;
  QPushButton* cancelButton = nullptr;
};

}  // namespace vexa
