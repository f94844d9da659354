#include "macros/MacroEditorDialog.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

#include "display/WideText.h"
#include "macros/MemoryVariableDialog.h"
#include "toolkit/EditLine.h"
#include "toolkit/MessageBox.h"
#include "toolkit/TouchList.h"
#include "toolkit/TouchSize.h"

namespace vexa {
namespace {

constexpr int kOpeningHeight = 480;
constexpr int kFormulaHeight = 76;

}  // namespace

MacroEditorDialog::MacroEditorDialog(SettingsStore& settingsStore, QWidget* parent)
    : Dialog(QStringLiteral("MacroEditor"), parent), store(settingsStore), editor(settingsStore) {
  BuildFields();
  BuildButtons();
  resize(width(), kOpeningHeight);
  FillList();
  Refresh();
  list->setFocus();
}

void MacroEditorDialog::BuildFields() {
  name = new QLineEdit(this);
  name->setMinimumHeight(kTouchHeight);
  AddField(L"Macro Name", name);
  type = new QComboBox(this);
  type->setMinimumHeight(kTouchHeight);
  for (const MacroType& macroType : kMacroTypes) type->addItem(FromWide(macroType.storedText));
  AddField(L"Argument Type", type);
  formula = new EditLine(this, MacroEditor::kMaxFormulaLength);
  formula->setFixedHeight(kFormulaHeight);
  AddField(L"Macro Expression(Max Len:150)", formula);
  list = new TouchList(this);
  listLabel = AddField(L"List", list, 1);
  connect(list, &QListWidget::currentRowChanged, this, &MacroEditorDialog::SelectMacro);
}

void MacroEditorDialog::BuildButtons() {
  QHBoxLayout* const row = AddButtonRow();
  newButton = AddButton(row, L"New", this, &MacroEditorDialog::New);
  editButton = AddButton(row, L"Edit", this, &MacroEditorDialog::Edit);
  deleteButton = AddButton(row, L"Delete", this, &MacroEditorDialog::Delete);
  closeButton = AddButton(row, L"Close", this, &MacroEditorDialog::reject);
  memButton = AddButton(row, L"MEM", this, &MacroEditorDialog::RecallVariable);
  saveButton = AddButton(row, L"Save", this, &MacroEditorDialog::Save);
  cancelButton = AddButton(row, L"Cancel", this, &MacroEditorDialog::Cancel);
}

void MacroEditorDialog::FillList() {
  const QSignalBlocker blocker(list);
  list->clear();
  const MacroTable& macros = editor.Macros();
  for (int i = 0; i < macros.Count(); ++i) list->AddLine(FromWide(MacroLine(macros.At(i))));
  list->setCurrentRow(editor.Selected());
}

void MacroEditorDialog::Refresh() {
  const MacroEditor::Controls controls = editor.ShownControls();
  list->setEnabled(controls.listEnabled);
  for (QWidget* const field : {static_cast<QWidget*>(name), static_cast<QWidget*>(type),
                               static_cast<QWidget*>(formula)}) {
    field->setEnabled(controls.fieldsEnabled);
  }
  newButton->setVisible(controls.newShown);
  editButton->setVisible(controls.editShown);
  deleteButton->setVisible(controls.deleteShown);
  closeButton->setVisible(controls.closeShown);
  memButton->setVisible(controls.memShown);
  saveButton->setVisible(controls.saveShown);
  cancelButton->setVisible(controls.cancelShown);
  SetDefault(editor.IsEditing() ? saveButton : closeButton);

  listLabel->setText(FromWide(editor.ListLabel()));
  const MacroEditor::Fields fields = editor.ShownFields();
  name->setText(FromWide(fields.name));
  type->setCurrentIndex(fields.type);
  formula->setPlainText(FromWide(fields.formula));
}

void MacroEditorDialog::New() {
  editor.New();
  Refresh();
  name->setFocus();
}

void MacroEditorDialog::Edit() {
  editor.Edit();
  Refresh();
  if (editor.IsEditing()) name->setFocus();
}

void MacroEditorDialog::Delete() {
  if (editor.Selected() < 0) return;
  AskYesNo(this, std::wstring(MacroEditor::kDeleteQuestion), [this] {
    editor.Delete();
    FillList();
    Refresh();
  });
}

void MacroEditorDialog::Save() {
  const MacroEditor::Refusal refusal =
      editor.Save({name->text().toStdWString(), type->currentIndex(), formula->Text()});
  if (!refusal.sentence.empty()) {
    QWidget* const field = FieldWidget(refusal.field);
    ShowErrorBox(this, refusal.sentence, [field] { field->setFocus(); });
    return;
  }
  FillList();
  Refresh();
}

void MacroEditorDialog::Cancel() {
  editor.Cancel();
  Refresh();
  list->setFocus();
}

void MacroEditorDialog::RecallVariable() {
  auto* const dialog = new MemoryVariableDialog(store, this);
  connect(dialog, &MemoryVariableDialog::Recalled, this, [this](int index) {
    formula->ApplyChange(InsertText(formula->State(), MemoryVariables(store).Text(index)));
  });
  connect(dialog, &QDialog::finished, formula, qOverload<>(&QWidget::setFocus));
  dialog->open();
}

void MacroEditorDialog::SelectMacro(int index) {
  editor.Select(index);
  Refresh();
}

QWidget* MacroEditorDialog::FieldWidget(MacroEditor::Field field) const {
  switch (field) {
    case MacroEditor::Field::Type:
      return type;
    case MacroEditor::Field::Formula:
      return formula;
    case MacroEditor::Field::Name:
      break;
  }
  return name;
}

void MacroEditorDialog::reject() {
  if (editor.IsEditing()) return Cancel();
  QDialog::reject();
}

}  // namespace vexa
