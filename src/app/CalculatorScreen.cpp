#include "app/CalculatorScreen.h"

#include <QDialog>
#include <QMenu>
#include <QVBoxLayout>

#include "app/CalculatorKeypad.h"
#include "converter/UnitConverterDialog.h"
#include "converter/UserConversionDialog.h"
#include "display/DisplayFormattingDialog.h"
#include "display/WideText.h"
#include "macros/MacroEditorDialog.h"
#include "macros/MacroListDialog.h"
#include "macros/MemoryMenu.h"
#include "macros/MemoryVariableDialog.h"
#include "toolkit/EditLine.h"
#include "toolkit/KeyButton.h"
#include "toolkit/Keypad.h"
#include "toolkit/MessageBox.h"
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

constexpr std::wstring_view kNoMacro = L"Not exist saved macro";

}  // namespace

/// The keys that run a command; all others insert their text.
const CalculatorScreen::KeyCommand CalculatorScreen::kKeyCommands[] = {
    {L"=", &CalculatorScreen::Evaluate},
    {L"BS", &CalculatorScreen::Backspace},
    {L"DEL", &CalculatorScreen::Delete},
    {L"CLR", &CalculatorScreen::Clear},
    {L"PB", &CalculatorScreen::RecallHistory},
    {L"DEG", &CalculatorScreen::ToggleAngle},
    {L"RAD", &CalculatorScreen::ToggleAngle},
    {L"Shift", &CalculatorScreen::ToggleShift},
    {L"DEC", &CalculatorScreen::ChooseBase},
    {L"HEX", &CalculatorScreen::ChooseBase},
    {L"BIN", &CalculatorScreen::ChooseBase},
    {L"OCT", &CalculatorScreen::ChooseBase},
    {L"Mac", &CalculatorScreen::InsertMacro},
    {L"Cnv", &CalculatorScreen::ConvertUnits},
    {L"MEM", &CalculatorScreen::OpenMemoryMenu},
};

CalculatorScreen::CalculatorScreen(SettingsStore& settingsStore, QWidget* parent)
    : ModeScreen(Mode::ScientificCalculator, parent),
      store(settingsStore),
      calculator(settingsStore),
      editLine(new EditLine(this)),
      resultLine(new ResultLine(this)),
      keypad(new Keypad(CalculatorKeys(), this)) {
  editLine->setObjectName(QStringLiteral("Expression"));
  editLine->setAccessibleName(QStringLiteral("Expression"));
  editLine->setMinimumHeight(kLeastEditHeight);
  resultLine->setObjectName(QStringLiteral("Result"));
  resultLine->setAccessibleName(QStringLiteral("Result"));
  resultLine->setMinimumHeight(kLeastResultHeight);
  Content()->addWidget(editLine, kEditShare);
  Content()->addWidget(resultLine, kResultShare);
  Content()->addWidget(keypad, kKeypadShare);

  BuildFileMenu();
  BuildEditMenu();
  SetDefaultButton(keypad->Button(L"="));
  setFocusProxy(editLine);
  connect(keypad, &Keypad::KeyPressed, this, &CalculatorScreen::PressKey);
  Refresh();
}

CalculatorScreen::~CalculatorScreen() {
  calculator.Save();
}

void CalculatorScreen::BuildFileMenu() {
  AddFileCommand(QStringLiteral("&Config..."), this, &CalculatorScreen::Configure);
  AddFileCommand(QStringLiteral("Edit &Macro..."), this, &CalculatorScreen::EditMacros);
  AddFileCommand(QStringLiteral("Edit &Unit Convert"), this, &CalculatorScreen::EditConversions);
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
    if (command.caption == key.caption) return (this->*command.run)();
  }
}

void CalculatorScreen::Refresh() {
  const CalculatorKeypadState state{calculator.angleType, calculator.history.IsEmpty(),
                                    calculator.baseType, shifted};
  keypad->Refresh([&](const Key& key) { return IsKeyShown(key, state); },
                  [&](const Key& key) { return IsKeyEnabled(key, state); });
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
  ShowPopupMenu(keypad, keypad->rect().topRight(), PopupSide::Left, entries, [this](int index) {
    InsertIntoLine(calculator.RecallHistory(index));
  })->setObjectName(QStringLiteral("History"));
}

void CalculatorScreen::ToggleShift() {
  shifted = !shifted;
  Refresh();
  editLine->setFocus();
}

void CalculatorScreen::ChooseBase() {
  editLine->setFocus();
  std::vector<PopupCommand> bases;
  for (const BaseChoice& choice : kBaseMenu) {
    bases.push_back({static_cast<int>(choice.base), std::wstring(choice.name)});
  }
  ShowPopupMenu(keypad, keypad->rect().topLeft(), PopupSide::Right, bases,
                [this](int base) {
                  calculator.SetBase(static_cast<BaseType>(base));
                  Refresh();
                },
                std::wstring(kBaseMenuTitle))
      ->setObjectName(QStringLiteral("Bases"));
}

void CalculatorScreen::InsertMacro() {
  calculator.macros.LoadMacroTable();
  if (calculator.macros.Count() == 0) {
    ShowErrorBox(this, std::wstring(kNoMacro), [this] { EditMacros(); });
    return;
  }
  auto* const dialog = new MacroListDialog(store, this);
  connect(dialog, &MacroListDialog::Picked, this, &CalculatorScreen::InsertMacroCall);
  OpenDialog(dialog);
}

void CalculatorScreen::InsertMacroCall(int index) {
  const MacroCall call = CallOf(calculator.macros.At(index));
  editLine->ApplyChange(WrapSelection(editLine->State(), call.prefix, call.suffix));
}

void CalculatorScreen::EditMacros() {
  auto* const dialog = new MacroEditorDialog(store, this);
  connect(dialog, &QDialog::finished, this, [this] { calculator.macros.LoadMacroTable(); });
  OpenDialog(dialog);
}

void CalculatorScreen::ConvertUnits() {
  auto* const dialog =
      new UnitConverterDialog(store, calculator.converterPositions, calculator.memory,
                              calculator.ConverterInput(), this);
  connect(dialog, &QDialog::finished, this, [this, dialog](int outcome) {
    const UnitConverter& converter = dialog->Converter();
    calculator.TakeFromConverter(converter.Positions(), converter.Memory());
    if (outcome == QDialog::Accepted) InsertIntoLine(converter.ResultText());
  });
  OpenDialog(dialog);
}

void CalculatorScreen::EditConversions() {
  OpenDialog(new UserConversionDialog(store, this));
}

void CalculatorScreen::OpenMemoryMenu() {
  editLine->setFocus();
  ShowPopupMenu(keypad, keypad->Button(L"MEM")->geometry().topLeft(), PopupSide::Right,
                MemoryMenuCommands(calculator.lastError.empty()),
                [this](int command) { RunMemoryCommand(command); })
      ->setObjectName(QStringLiteral("Memory"));
}

void CalculatorScreen::RunMemoryCommand(int command) {
  switch (static_cast<MemoryCommand>(command)) {
    case MemoryCommand::Plus:
      return calculator.AddToMemory();
    case MemoryCommand::Minus:
      return calculator.SubtractFromMemory();
    case MemoryCommand::Recall:
      return InsertIntoLine(calculator.RecallValueText(calculator.memory));
    case MemoryCommand::Clear:
      return calculator.ClearMemory();
    case MemoryCommand::RecallVariable:
      return RecallVariable();
    case MemoryCommand::StoreVariable:
      return StoreVariable();
    case MemoryCommand::Separator:
      break;
  }
}

void CalculatorScreen::RecallVariable() {
  auto* const dialog = new MemoryVariableDialog(store, this);
  connect(dialog, &MemoryVariableDialog::Recalled, this, [this](int index) {
    InsertIntoLine(calculator.RecallValueText(MemoryVariables(store).Value(index)));
  });
  OpenDialog(dialog);
}

void CalculatorScreen::StoreVariable() {
  OpenDialog(new MemoryVariableDialog(store, calculator.MemoryVariableText(), this));
}

void CalculatorScreen::Configure() {
  auto* const dialog =
      new DisplayFormattingDialog(calculator.displayType, calculator.precision, this);
  connect(dialog, &QDialog::accepted, this, [this, dialog] {
    calculator.SetDisplay(dialog->displayType, dialog->decimalPlaces);
    Refresh();
  });
  OpenDialog(dialog);
}

void CalculatorScreen::OpenDialog(QDialog* dialog) {
  connect(dialog, &QDialog::finished, editLine, qOverload<>(&QWidget::setFocus));
  dialog->open();
}

void CalculatorScreen::InsertIntoLine(const std::wstring& text) {
  editLine->ApplyChange(InsertText(editLine->State(), text));
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
