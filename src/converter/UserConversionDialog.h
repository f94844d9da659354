#pragma once

#include "converter/UserConversionEditor.h"
#include "toolkit/ListEditorDialog.h"

class QLineEdit;

namespace vexa {

/// Creates, edits and deletes the user's own conversions. UserConversionEditor decides.
class UserConversionDialog : public ListEditorDialog {
  Q_OBJECT

 public:
  UserConversionDialog(SettingsStore& settingsStore, QWidget* parent);

 private:
  void BuildFields();
  /// Shows what the editor says of boxes and buttons.
  void Refresh();
  /// Shows the list too, which gets the focus.
  void ShowViewState();
  void Focus(ConversionBox box);
  /// What the boxes hold.
  ConversionBoxes Typed() const;

  void New() override;
  void Edit() override;
  void Delete() override;
  void Save() override;
  void Cancel() override;
  void RecallVariable() override;
  bool IsChanged() const override;
  void Select(int index) override;

  SettingsStore& store;
  UserConversionEditor editor;
  QLineEdit* firstName;
  QLineEdit* secondName;
  QLineEdit* rate;
};

}  // namespace vexa
