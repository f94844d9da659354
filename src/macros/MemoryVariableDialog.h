#pragma once

#include <string>

#include "macros/MemoryVariables.h"
#include "toolkit/Dialog.h"

namespace vexa {

class TouchList;

/// Stores a text in one of the memory variables, or picks a variable to recall.
class MemoryVariableDialog : public Dialog {
  Q_OBJECT

 public:
  /// Opens for recalling: `Recalled` says which variable was picked.
  MemoryVariableDialog(SettingsStore& store, QWidget* parent);
  /// Opens for storing `text`.
  MemoryVariableDialog(SettingsStore& store, std::wstring text, QWidget* parent);

 signals:
  /// Variable `index` was picked for recalling.
  void Recalled(int index);

 private:
  void Build(std::wstring_view confirmCaption, void (MemoryVariableDialog::*confirm)());
  void FillList();
  void ClearAll();
  void StoreSelected();
  void RecallSelected();
  /// The selected variable, or -1 after telling the user to select one.
  int SelectedOrComplain();

  MemoryVariables variables;
  std::wstring textToStore;
  TouchList* list;
};

}  // namespace vexa
