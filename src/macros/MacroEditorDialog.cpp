#include "macros/MacroEditorDialog.h"

#include <QLineEdit>

#include "display/WideText.h"
#include "macros/MemoryVariableDialog.h"
#include "toolkit/EditLine.h"
#include "toolkit/KeyboardOnFocus.h"
#include "toolkit/LimitLength.h"
#include "toolkit/MessageBox.h"
#include "toolkit/TouchComboBox.h"
#include "toolkit/TouchSize.h"

namespace vexa {
namespace {

constexpr int kOpeningHeight = 480;
/// Room for a formula of 150 characters, which shrinks with the window.
constexpr int kFormulaHeight = 108;
constexpr int kFormulaText = 14;
constexpr int kLeastFormulaHeight = 44;

}  // namespace

MacroEditorDialog::MacroEditorDialog(SettingsStore& settingsStore, QWidget* parent)
    : ListEditorDialog(QStringLiteral("MacroEditor"), parent),
      store(settingsStore),
      editor(settingsStore) {
  BuildFields();
  BuildList({name, type, formula});
  SetOpeningHeight(kOpeningHeight);
}

void MacroEditorDialog::BuildFields() {
  name = new QLineEdit(this);
  LimitLength(name, MacroEditor::kNameLength);
  name->setMinimumHeight(kTouchHeight);
  new KeyboardOnFocus(name);
  AddFieldRow(L"Macro Name", name);
  type = new TouchComboBox(this);
  for (const MacroType& macroType : kMacroTypes) type->addItem(FromWide(macroType.storedText));
  AddFieldRow(L"Argument Type", type);
  formula = new EditLine(this, {MacroEditor::kMaxFormulaLength, MacroEditor::kFormulaTooLong});
  formula->SetLargestText(kFormulaText);
  formula->setMinimumHeight(kLeastFormulaHeight);
  formula->setMaximumHeight(kFormulaHeight);
  new KeyboardOnFocus(formula);
  AddField(L"Macro Expression(Max Len:150)", formula, 1);
}

MacroEditor::Fields MacroEditorDialog::Typed() const {
  return {name->text().toStdWString(), type->currentIndex(), formula->Text()};
}

bool MacroEditorDialog::IsChanged() const {
  return Typed() != editor.ShownFields();
}

void MacroEditorDialog::ShowFields() {
  const MacroEditor::Fields shown = editor.ShownFields();
  name->setText(FromWide(shown.name));
  type->setCurrentIndex(shown.type);
  formula->setPlainText(FromWide(shown.formula));
}

void MacroEditorDialog::RecallVariable() {
  auto* const dialog = new MemoryVariableDialog(store, this);
  connect(dialog, &MemoryVariableDialog::Recalled, this, &MacroEditorDialog::InsertVariable);
  connect(dialog, &QDialog::finished, formula, qOverload<>(&QWidget::setFocus));
  dialog->open();
}

void MacroEditorDialog::InsertVariable(int index) {
  std::wstring text;
  const std::wstring sentence = MemoryVariables(store).FormulaText(index, text);
  if (sentence.empty()) return formula->ApplyOrTell(InsertText(formula->State(), text));
  ShowErrorBox(this, sentence, [this] { formula->setFocus(); });
}

}  // namespace vexa
