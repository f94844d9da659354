#include "toolkit/ListEditorDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <utility>

#include "display/WideText.h"
#include "toolkit/TouchList.h"

namespace vexa {

void ListEditorDialog::BuildList(std::vector<QWidget*> editedFields) {
  fields = std::move(editedFields);
  list = new TouchList(this);
  listLabel = AddField(L"List", list, 1);
  connect(list, &QListWidget::currentRowChanged, this, &ListEditorDialog::Select);
  QHBoxLayout* const row = AddButtonRow();
  newButton = AddButton(row, L"New", this, &ListEditorDialog::New);
  editButton = AddButton(row, L"Edit", this, &ListEditorDialog::Edit);
  deleteButton = AddButton(row, L"Delete", this, &ListEditorDialog::Delete);
  closeButton = AddButton(row, L"Close", this, &ListEditorDialog::reject);
  memoryButton = AddButton(row, L"MEM", this, &ListEditorDialog::RecallVariable);
  saveButton = AddButton(row, L"Save", this, &ListEditorDialog::Save);
  cancelButton = AddButton(row, L"Cancel", this, &ListEditorDialog::Cancel);
}

void ListEditorDialog::ShowLines(const std::vector<std::wstring>& lines, int selected) {
  const QSignalBlocker blocker(list);
  list->clear();
  for (const std::wstring& line : lines) list->AddLine(FromWide(line));
  list->setCurrentRow(selected);
}

void ListEditorDialog::ShowView(const ListEditorView& view) {
  editing = view.fieldsEnabled;
  listLabel->setText(FromWide(view.listLabel));
  list->setEnabled(view.listEnabled);
  for (QWidget* const field : fields) field->setEnabled(view.fieldsEnabled);
  newButton->setVisible(view.newShown);
  editButton->setVisible(view.editShown);
  deleteButton->setVisible(view.deleteShown);
  closeButton->setVisible(view.closeShown);
  memoryButton->setVisible(view.memoryShown);
  saveButton->setVisible(view.saveShown);
  cancelButton->setVisible(view.cancelShown);
  SetDefault(editing ? saveButton : closeButton);
}

void ListEditorDialog::FocusList() { list->setFocus(); }

void ListEditorDialog::reject() {
  if (editing) return Cancel();
  Dialog::reject();
}

}  // namespace vexa
