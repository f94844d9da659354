#include "macros/MemoryVariableDialog.h"

#include <QHBoxLayout>
#include <utility>

#include "display/WideText.h"
#include "toolkit/MessageBox.h"
#include "toolkit/TouchList.h"

namespace vexa {
namespace {

constexpr int kOpeningHeight = 420;

}  // namespace

MemoryVariableDialog::MemoryVariableDialog(SettingsStore& store, QWidget* parent)
    : Dialog(QStringLiteral("MemoryVariable"), parent), variables(store) {
  Build(L"Recall", &MemoryVariableDialog::RecallSelected);
}

MemoryVariableDialog::MemoryVariableDialog(SettingsStore& store, std::wstring text, QWidget* parent)
    : Dialog(QStringLiteral("MemoryVariable"), parent),
      variables(store),
      textToStore(std::move(text)) {
  Build(L"Store", &MemoryVariableDialog::StoreSelected);
}

void MemoryVariableDialog::Build(std::wstring_view confirmCaption,
                                 void (MemoryVariableDialog::*confirm)()) {
  list = new TouchList(this);
  AddField(L"Memory Variable", list, 1);
  FillList();
  QHBoxLayout* const row = AddButtonRow();
  AddButton(row, L"Clear All", this, &MemoryVariableDialog::ClearAll);
  SetDefault(AddButton(row, confirmCaption, this, confirm));
  AddButton(row, L"Cancel", this, &MemoryVariableDialog::reject);
  connect(list, &QListWidget::itemDoubleClicked, this, confirm);
  SetOpeningHeight(kOpeningHeight);
  list->setFocus();
}

void MemoryVariableDialog::FillList() {
  const int row = list->SelectedRow();
  list->clear();
  for (int i = 0; i < MemoryVariables::kCount; ++i) list->AddLine(FromWide(variables.Line(i)));
  list->SelectRow(row);
}

void MemoryVariableDialog::ClearAll() {
  AskYesNo(this, std::wstring(MemoryVariables::kClearQuestion), [this] {
    variables.ClearAll();
    FillList();
    list->setFocus();
  });
}

int MemoryVariableDialog::SelectedOrComplain() {
  const int index = list->SelectedRow();
  if (index < 0) {
    ShowErrorBox(this, std::wstring(MemoryVariables::kSelectMessage), [this] { list->setFocus(); });
  }
  return index;
}

void MemoryVariableDialog::StoreSelected() {
  const int index = SelectedOrComplain();
  if (index < 0) return;
  variables.Store(index, textToStore);
  accept();
}

void MemoryVariableDialog::RecallSelected() {
  const int index = SelectedOrComplain();
  if (index < 0) return;
  emit Recalled(index);
  accept();
}

}  // namespace vexa
