#include "macros/MacroEditorDialog.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

#include "display/WideText.h"
#include "macros/MemoryVariableDialog.h"
#include "toolkit/EditLine.h"
#include "toolkit/KeyboardOnFocus.h"
#include "toolkit/LineText.h"
#include "toolkit/MessageBox.h"
#include "toolkit/Theme.h"
#include "toolkit/TouchList.h"
#include "toolkit/TouchSize.h"

namespace vexa {
namespace {

constexpr int kOpeningHeight = 480;
/// A formula of 150 characters is shown whole; on the smallest screens the list goes first.
constexpr int kFormulaHeight = 108;
constexpr int kFormulaText = 14;
constexpr int kLeastFormulaHeight = 44;
constexpr int kLeastListHeight = kTouchHeight + 8;

}  // namespace

MacroEditorDialog::MacroEditorDialog(SettingsStore& settingsStore, QWidget* parent)
    : Dialog(QStringLiteral("MacroEditor"), parent), store(settingsStore), editor(settingsStore) {
  BuildFields();
  BuildButtons();
  SetOpeningHeight(kOpeningHeight);
  FillList();
  Refresh();
  list->setFocus();
}

void MacroEditorDialog::BuildFields() {
  name = new QLineEdit(this);
  name->setMinimumHeight(kTouchHeight);
  new KeyboardOnFocus(name);
  AddFieldRow(L"Macro Name", name);
  type = new QComboBox(this);
  type->setMinimumHeight(kTouchHeight);
  for (const MacroType& macroType : kMacroTypes) type->addItem(FromWide(macroType.storedText));
  AddFieldRow(L"Argument Type", type);
  formula = new EditLine(this, MacroEditor::kMaxFormulaLength);
  formula->SetLargestText(kFormulaText);
  formula->setMinimumHeight(kLeastFormulaHeight);
  formula->setMaximumHeight(kFormulaHeight);
  new KeyboardOnFocus(formula);
  AddField(L"Macro Expression(Max Len:150)", formula, kFormulaHeight);
  list = new TouchList(this);
  list->setMinimumHeight(kLeastListHeight);
  listLabel = AddField(L"List", list, kFormulaHeight);
  for (QWidget* const field : Fields()) theme::KeepReadable(field);
  theme::KeepReadable(list);
  connect(list, &QListWidget::itemSelectionChanged, this, &MacroEditorDialog::SelectMacro);
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

std::array<QWidget*, 3> MacroEditorDialog::Fields() const {
  return {name, type, formula};
}

void MacroEditorDialog::FillList() {
  const QSignalBlocker blocker(list);
  list->clear();
  const MacroTable& macros = editor.Macros();
  for (int i = 0; i < macros.Count(); ++i) list->AddLine(FromWide(MacroLine(macros.At(i))));
  list->SelectRow(editor.Selected());
}

void MacroEditorDialog::Refresh() {
  const MacroEditor::Controls controls = editor.ShownControls();
  list->setEnabled(controls.listEnabled);
  for (QWidget* const field : Fields()) field->setEnabled(controls.fieldsEnabled);
  const std::pair<QPushButton*, bool> buttons[] = {
      {newButton, controls.newShown},       {editButton, controls.editShown},
      {deleteButton, controls.deleteShown}, {closeButton, controls.closeShown},
      {memButton, controls.memShown},       {saveButton, controls.saveShown},
      {cancelButton, controls.cancelShown},
  };
  // First those that go: all of them side by side would widen the window.
  for (const bool shown : {false, true}) {
    for (const auto& [button, isShown] : buttons) {
      if (isShown == shown) button->setVisible(shown);
    }
  }
  SetDefault(editor.IsEditing() ? saveButton : closeButton);

  listLabel->setText(FromWide(editor.ListLabel()));
  const MacroEditor::Fields fields = editor.ShownFields();
  name->setText(FromWide(fields.name));
  type->setCurrentIndex(fields.type);
  formula->setPlainText(FromWide(LineText(fields.formula)));
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
    ShowViewState();
  });
}

void MacroEditorDialog::Save() {
  const MacroEditor::Refusal refusal =
      editor.Save({name->text().toStdWString(), type->currentIndex(), formula->Text()});
  if (!refusal.sentence.empty()) {
    QWidget* const field = Fields()[static_cast<std::size_t>(refusal.field)];
    ShowErrorBox(this, refusal.sentence, [field] { field->setFocus(); });
    return;
  }
  ShowViewState();
}

void MacroEditorDialog::Cancel() {
  editor.Cancel();
  ShowViewState();
}

void MacroEditorDialog::ShowViewState() {
  FillList();
  Refresh();
  list->setFocus();
}

void MacroEditorDialog::RecallVariable() {
  auto* const dialog = new MemoryVariableDialog(store, this);
  connect(dialog, &MemoryVariableDialog::Recalled, this, &MacroEditorDialog::InsertVariable);
  connect(dialog, &QDialog::finished, formula, qOverload<>(&QWidget::setFocus));
  dialog->open();
}

void MacroEditorDialog::InsertVariable(int index) {
  const EditText before = formula->State();
  const TextChange change = InsertText(before, MemoryVariables(store).Text(index));
  // A number of which only the front has room would be another number.
  const std::wstring_view tooLong =
      MacroEditor::CheckFormulaLength(Apply(before, change).text.size());
  if (tooLong.empty()) return formula->ApplyChange(change);
  ShowErrorBox(this, std::wstring(tooLong), [this] { formula->setFocus(); });
}

void MacroEditorDialog::SelectMacro() {
  editor.Select(list->SelectedRow());
  Refresh();
}

void MacroEditorDialog::reject() {
  if (editor.IsEditing()) return Cancel();
  QDialog::reject();
}

}  // namespace vexa
