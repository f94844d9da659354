#include "toolkit/ListEditorDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <utility>

#include "display/WideText.h"
#include "toolkit/MessageBox.h"
#include "toolkit/Theme.h"
#include "toolkit/TouchList.h"
#include "toolkit/TouchSize.h"

namespace vexa {
namespace {

/// One line can be seen whole.
constexpr int kLeastListHeight = kTouchHeight + 8;

}  // namespace

void ListEditorDialog::BuildList(std::vector<QWidget*> editedFields) {
  fields = std::move(editedFields);
  list = new TouchList(this);
  list->setMinimumHeight(kLeastListHeight);
  listLabel = AddField(L"List", list, 1);
  for (QWidget* const field : fields) theme::KeepReadable(field);
  theme::KeepReadable(list);
  connect(list, &QListWidget::itemSelectionChanged, this, [this] { Select(list->SelectedRow()); });
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
  list->SelectRow(selected);
}

void ListEditorDialog::ShowView(const ListEditorView& view) {
  editing = view.fieldsEnabled;
  listLabel->setText(FromWide(view.listLabel));
  list->setEnabled(view.listEnabled);
  for (QWidget* const field : fields) field->setEnabled(view.fieldsEnabled);
  const std::pair<QPushButton*, bool> buttons[] = {
      {newButton, view.newShown},       {editButton, view.editShown},
      {deleteButton, view.deleteShown}, {closeButton, view.closeShown},
      {memoryButton, view.memoryShown}, {saveButton, view.saveShown},
      {cancelButton, view.cancelShown},
  };
  // First those that go: all of them side by side would widen the window.
  for (const bool shown : {false, true}) {
    for (const auto& [button, isShown] : buttons) {
      if (isShown == shown) button->setVisible(shown);
    }
  }
  SetDefault(editing ? saveButton : closeButton);
}

void ListEditorDialog::FocusList() {
  list->setFocus();
}

void ListEditorDialog::reject() {
  if (!editing) return Dialog::reject();
  if (!IsChanged()) return Cancel();
  AskToDiscard(this, [this] { Cancel(); });
}

}  // namespace vexa
