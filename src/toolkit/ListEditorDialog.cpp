#include "toolkit/ListEditorDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
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
  connect(list, &QListWidget::itemSelectionChanged, this, [this] {
    Editor().Select(list->SelectedRow());
    Refresh();
  });
  connect(list, &QListWidget::itemDoubleClicked, this, &ListEditorDialog::Edit);
  ListKey(Qt::Key_F2, &ListEditorDialog::Edit);
  ListKey(QKeySequence::Delete, &ListEditorDialog::Delete);
  QHBoxLayout* const row = AddButtonRow();
  newButton = AddButton(row, L"New", this, &ListEditorDialog::New);
  editButton = AddButton(row, L"Edit", this, &ListEditorDialog::Edit);
  deleteButton = AddButton(row, L"Delete", this, &ListEditorDialog::Delete);
  closeButton = AddButton(row, L"Close", this, &ListEditorDialog::reject);
  memoryButton = AddButton(row, L"MEM", this, &ListEditorDialog::RecallVariable);
  saveButton = AddButton(row, L"Save", this, &ListEditorDialog::Save);
  cancelButton = AddButton(row, L"Cancel", this, &ListEditorDialog::Cancel);
  ShowViewState();
}

void ListEditorDialog::ListKey(const QKeySequence& key, void (ListEditorDialog::*run)()) {
  auto* const shortcut = new QShortcut(key, list);
  shortcut->setContext(Qt::WidgetShortcut);
  connect(shortcut, &QShortcut::activated, this, run);
}

void ListEditorDialog::ShowViewState() {
  const ListEditor& editor = Editor();
  const QSignalBlocker blocker(list);
  list->clear();
  for (int i = 0; i < editor.Count(); ++i) list->AddLine(FromWide(editor.Line(i)));
  list->SelectRow(editor.Selected());
  Refresh();
  list->setFocus();
}

void ListEditorDialog::Refresh() {
  const ListEditorView view = Editor().View();
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
  SetDefault(view.saveShown ? saveButton : closeButton);
  ShowFields();
}

void ListEditorDialog::FocusField(int field) {
  if (field == ListEditor::kNoField) return;
  QWidget* const focused = fields[static_cast<std::size_t>(field)];
  focused->setFocus();
  if (auto* const line = qobject_cast<QLineEdit*>(focused)) line->selectAll();
}

void ListEditorDialog::New() {
  Editor().New();
  BeginEditing(true);
}

void ListEditorDialog::Edit() {
  Editor().Edit();
  if (Editor().IsEditing()) BeginEditing(false);
}

void ListEditorDialog::BeginEditing(bool isNew) {
  Refresh();
  FocusField(FirstField(isNew));
}

void ListEditorDialog::Delete() {
  if (Editor().Selected() < 0) return;
  AskYesNo(this, std::wstring(Editor().DeleteQuestion()), [this] {
    Editor().Delete();
    ShowViewState();
  });
}

void ListEditorDialog::Save() {
  const ListEditor::Refusal refusal = SaveFields();
  if (refusal.sentence.empty()) return ShowViewState();
  ShowErrorBox(this, refusal.sentence, [this, field = refusal.field] { FocusField(field); });
}

void ListEditorDialog::Cancel() {
  Editor().Cancel();
  ShowViewState();
}

void ListEditorDialog::reject() {
  if (!Editor().IsEditing()) return Dialog::reject();
  if (!IsChanged()) return Cancel();
  AskToDiscard(this, [this] { Cancel(); });
}

}  // namespace vexa
