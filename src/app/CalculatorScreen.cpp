#include "app/CalculatorScreen.h"

#include <QLabel>
#include <QMenu>
#include <QVBoxLayout>

#include "app/CalculatorKeypad.h"
#include "display/WideText.h"
#include "toolkit/EditLine.h"
#include "toolkit/KeyButton.h"
#include "toolkit/Keypad.h"
#include "toolkit/PopupMenu.h"
#include "toolkit/ResultLine.h"

namespace vexa {
namespace {

/// Shares of the window's height, and the least that edit and result line need for two rows.
constexpr int kEditShare = 5;
constexpr int kResultShare = 3;
constexpr int kKeypadShare = 26;
constexpr int kLeastEditHeight = 44;
constexpr int kLeastResultHeight = 36;

}  // namespace

/// The keys that run a command; all others insert their text.
const CalculatorScreen::KeyCommand CalculatorScreen::kKeyCommands[] = {
    {L"=", &CalculatorScreen::Evaluate},       {L"BS", &CalculatorScreen::Backspace},
    {L"DEL", &CalculatorScreen::Delete},       {L"CLR", &CalculatorScreen::Clear},
    {L"DEG", &CalculatorScreen::ToggleAngle},  {L"RAD", &CalculatorScreen::ToggleAngle},
    {L"PB", &CalculatorScreen::RecallHistory},
};

CalculatorScreen::CalculatorScreen(SettingsStore& store, QWidget* parent)
    : ModeScreen(Mode::ScientificCalculator, parent),
      calculator(store),
      editLine(new EditLine(this)),
      resultLine(new ResultLine(this)),
      keypad(new Keypad(CalculatorKeys(), this)),
      baseLabel(new QLabel(keypad)) {
  editLine->setObjectName(QStringLiteral("Expression"));
  editLine->setAccessibleName(QStringLiteral("Expression"));
  editLine->setMinimumHeight(kLeastEditHeight);
  resultLine->setObjectName(QStringLiteral("Result"));
  resultLine->setAccessibleName(QStringLiteral("Result"));
  resultLine->setMinimumHeight(kLeastResultHeight);
  baseLabel->setObjectName(QStringLiteral("Base"));
  baseLabel->setAccessibleName(QStringLiteral("Number base"));
  baseLabel->setAlignment(Qt::AlignCenter);
  keypad->PlaceControl(baseLabel, 0, 0);

  Content()->addWidget(editLine, kEditShare);
  Content()->addWidget(resultLine, kResultShare);
  Content()->addWidget(keypad, kKeypadShare);

  BuildEditMenu();
  SetDefaultButton(keypad->Button(L"="));
  setFocusProxy(editLine);
  connect(keypad, &Keypad::KeyPressed, this, &CalculatorScreen::PressKey);
  Refresh();
}

CalculatorScreen::~CalculatorScreen() {
  calculator.Save();
}

void CalculatorScreen::BuildEditMenu() {
  struct EditCommand {
    const char* text;
    QKeySequence::StandardKey shortcut;
    void (CalculatorScreen::*run)();
  };
  constexpr EditCommand kEditCommands[] = {
      {"Cu&t", QKeySequence::Cut, &CalculatorScreen::Cut},
      {"&Copy", QKeySequence::Copy, &CalculatorScreen::Copy},
      {"&Paste", QKeySequence::Paste, &CalculatorScreen::Paste},
  };
  QMenu* const menu = AddMenu(QStringLiteral("&Edit"));
  for (const EditCommand& command : kEditCommands) {
    QAction* const action = menu->addAction(QString::fromLatin1(command.text), this, command.run);
    action->setShortcuts(command.shortcut);
  }
}

void CalculatorScreen::PressKey(int index) {
  const Key& key = CalculatorKeys()[static_cast<std::size_t>(index)];
  if (!key.inserts.IsEmpty()) {
    editLine->ApplyChange(TypeKey(editLine->State(), key.inserts));
    return;
  }
  for (const KeyCommand& command : kKeyCommands) {
    if (command.caption == key.caption) (this->*command.run)();
  }
}

void CalculatorScreen::Refresh() {
  const CalculatorKeypadState state{calculator.angleType, calculator.history.IsEmpty()};
  keypad->Refresh([&](const Key& key) { return IsKeyShown(key, state); },
                  [&](const Key& key) { return IsKeyEnabled(key, state); });
  baseLabel->setText(FromWide(BaseName(calculator.baseType)));
  resultLine->ShowText(FromWide(calculator.resultLine));
}

void CalculatorScreen::Evaluate() {
  calculator.Evaluate(editLine->Text());
  Refresh();
  editLine->SelectWholeText();
}

void CalculatorScreen::Backspace() {
  editLine->ApplyChange(DeleteBefore(editLine->State()));
}

void CalculatorScreen::Delete() {
  editLine->ApplyChange(DeleteAfter(editLine->State()));
}

void CalculatorScreen::Clear() {
  editLine->ApplyChange(DeleteAll(editLine->State()));
}

void CalculatorScreen::ToggleAngle() {
  calculator.ToggleAngle();
  Refresh();
  editLine->setFocus();
}

void CalculatorScreen::RecallHistory() {
  editLine->setFocus();
  std::vector<PopupCommand> entries;
  for (int index = calculator.history.Count(); index >= 1; --index) {
    entries.push_back({index, calculator.history.Caption(index)});
  }
  if (entries.empty()) return;
  ShowPopupMenu(keypad, keypad->rect().topRight(), entries, [this](int index) {
    const std::wstring text = calculator.RecallHistory(index);
    editLine->ApplyChange(InsertText(editLine->State(), text));
  })->setObjectName(QStringLiteral("History"));
}

void CalculatorScreen::Cut() {
  editLine->cut();
  editLine->setFocus();
}

void CalculatorScreen::Copy() {
  // The result has its own selection; the focus tells which one is meant.
  if (resultLine->hasFocus()) return resultLine->copy();
  editLine->copy();
  editLine->setFocus();
}

void CalculatorScreen::Paste() {
  editLine->paste();
  editLine->setFocus();
}

}  // namespace vexa
