#pragma once

#include <string>
#include <vector>

#include "toolkit/Dialog.h"
#include "toolkit/ListEditorView.h"

namespace vexa {

class TouchList;

/// The dialog of an editor of a list: fields on top, then the list and the buttons of its two
/// states. A derived dialog adds its fields, then calls BuildList, and says what each button does.
class ListEditorDialog : public Dialog {
  Q_OBJECT

 public:
  /// While an entry is being edited, Escape and the window's close button end the editing only,
  /// and ask before they discard what was changed.
  void reject() override;

 protected:
  using Dialog::Dialog;

  /// Adds the list and the buttons. `editedFields` are enabled while editing.
  void BuildList(std::vector<QWidget*> editedFields);
  /// Fills the list and selects a line, -1: none.
  void ShowLines(const std::vector<std::wstring>& lines, int selected);
  /// Shows and enables what `view` says.
  void ShowView(const ListEditorView& view);
  void FocusList();

  virtual void New() = 0;
  virtual void Edit() = 0;
  virtual void Delete() = 0;
  virtual void Save() = 0;
  virtual void Cancel() = 0;
  virtual void RecallVariable() = 0;
  /// Whether the edited fields hold anything else than when the editing began.
  virtual bool IsChanged() const = 0;
  /// Line `index` of the list was selected; -1: none is.
  virtual void Select(int index) = 0;

 private:
  bool editing = false;
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
