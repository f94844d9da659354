#include "toolkit/ExpressionScreen.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QMenu>
#include <QVBoxLayout>
#include <utility>
#include <vector>

#include "display/TextHistory.h"
#include "toolkit/EditLine.h"
#include "toolkit/Keypad.h"
#include "toolkit/PopupMenu.h"
#include "toolkit/ResultLine.h"

namespace vexa {

const ExpressionScreen::EditingKey ExpressionScreen::kEditingKeys[] = {
    {L"BS", &ExpressionScreen::Backspace},
    {L"DEL", &ExpressionScreen::Delete},
    {L"CLR", &ExpressionScreen::Clear},
    {L"Shift", &ExpressionScreen::ToggleShift},
};

ExpressionScreen::ExpressionScreen(Mode mode, std::span<const Key> keyTable, QWidget* parent)
    : ModeScreen(mode, parent), keys(keyTable), line(new EditLine(this)) {
  setFocusProxy(line);
}

void ExpressionScreen::PlaceKeypad(int stretch) {
  keypad = new Keypad(keys, this);
  Content()->addWidget(keypad, stretch);
  connect(keypad, &Keypad::KeyPressed, this, &ExpressionScreen::PressKey);
}

void ExpressionScreen::PressKey(int index) {
  line->CommitComposition();
  const Key& key = keys[static_cast<std::size_t>(index)];
  if (!key.inserts.IsEmpty()) {
    line->ApplyChange(TypeKey(line->State(), key.inserts));
    return;
  }
  for (const EditingKey& editing : kEditingKeys) {
    if (editing.caption == key.caption) return (this->*editing.run)();
  }
  RunKey(key.caption);
}

void ExpressionScreen::Backspace() {
  line->ApplyChange(DeleteBefore(line->State()));
}

void ExpressionScreen::Delete() {
  line->ApplyChange(DeleteAfter(line->State()));
}

void ExpressionScreen::Clear() {
  line->ApplyChange(DeleteAll(line->State()));
}

void ExpressionScreen::ToggleShift() {
  shifted = !shifted;
  RefreshKeypad();
  line->setFocus();
}

void ExpressionScreen::RefreshKeypad() {
  const KeypadState state = State();
  keypad->Refresh([&](const Key& key) { return IsKeyShown(key, state); },
                  [&](const Key& key) { return IsKeyEnabled(key, state); });
}

void ExpressionScreen::BuildEditMenu() {
  AddEditMenu([edited = line](EditCommand command) {
    switch (command) {
      case EditCommand::Cut:
        edited->cut();
        break;
      case EditCommand::Copy:
        edited->copy();
        break;
      case EditCommand::Paste:
        edited->paste();
        break;
    }
    edited->setFocus();
  });
}

void ExpressionScreen::ShowHistory(const TextHistory& history, std::function<void(int)> chosen) {
  line->setFocus();
  std::vector<PopupCommand> entries;
  for (int index = history.Count(); index >= 1; --index) {
    entries.push_back({index, history.Caption(index)});
  }
  if (entries.empty()) return;
  ShowPopupMenu(keypad, keypad->rect().topRight(), PopupSide::Left, entries, std::move(chosen))
      ->setObjectName(QStringLiteral("History"));
}

void ExpressionScreen::OpenDialog(QDialog* dialog) {
  connect(dialog, &QDialog::finished, line, qOverload<>(&QWidget::setFocus));
  dialog->open();
}

void ExpressionScreen::InsertIntoLine(const std::wstring& text) {
  line->ApplyOrTell(InsertText(line->State(), text));
}

void ExpressionScreen::keyPressEvent(QKeyEvent* event) {
  const QWidget* const focused = focusWidget();
  const bool isForReading =
      qobject_cast<const QAbstractButton*>(focused) || qobject_cast<const ResultLine*>(focused);
  if (!isForReading || !EditLine::IsTyping(*event)) return ModeScreen::keyPressEvent(event);
  line->setFocus();
  QCoreApplication::sendEvent(line, event);
}

}  // namespace vexa
