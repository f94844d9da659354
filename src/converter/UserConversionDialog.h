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
  /// What the boxes hold.
  ConversionBoxes Typed() const;

  ListEditor& Editor() override { return editor; }
  void ShowFields() override;
  bool IsChanged() const override { return Typed() != editor.ShownBoxes(); }
  ListEditor::Refusal SaveFields() override { return editor.Save(Typed()); }
  int FirstField(bool isNew) const override;
  void RecallVariable() override;

  SettingsStore& store;
  UserConversionEditor editor;
  QLineEdit* firstName;
  QLineEdit* secondName;
  QLineEdit* rate;
};

}  // namespace vexa
