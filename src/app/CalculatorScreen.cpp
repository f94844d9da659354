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
#include "macros/MacroKey.h"
#include "macros/MemoryPopup.h"
#include "macros/MemoryVariableDialog.h"
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
    {L"=", &CalculatorScreen::Evaluate},         {L"PB", &CalculatorScreen::RecallHistory},
    {L"DEG", &CalculatorScreen::ToggleAngle},    {L"RAD", &CalculatorScreen::ToggleAngle},
    {L"DEC", &CalculatorScreen::ChooseBase},     {L"HEX", &CalculatorScreen::ChooseBase},
    {L"BIN", &CalculatorScreen::ChooseBase},     {L"OCT", &CalculatorScreen::ChooseBase},
    {L"Mac", &CalculatorScreen::InsertMacro},    {L"Cnv", &CalculatorScreen::ConvertUnits},
    {L"MEM", &CalculatorScreen::OpenMemoryMenu},
};

CalculatorScreen::CalculatorScreen(SettingsStore& settingsStore, QWidget* parent)
    : ExpressionScreen(Mode::ScientificCalculator, CalculatorKeys(), parent),
      store(settingsStore),
      calculator(settingsStore),
      resultLine(new ResultLine(this)) {
  Line()->setObjectName(QStringLiteral("Expression"));
  Line()->setAccessibleName(QStringLiteral("Expression"));
  Line()->setMinimumHeight(kLeastEditHeight);
  resultLine->setObjectName(QStringLiteral("Result"));
  resultLine->setAccessibleName(QStringLiteral("Result"));
  resultLine->setMinimumHeight(kLeastResultHeight);
  Content()->addWidget(Line(), kEditShare);
  Content()->addWidget(resultLine, kResultShare);
  PlaceKeypad(kKeypadShare);

  BuildFileMenu();
  BuildEditMenu();
  SetDefaultButton(Keys()->Button(L"="));
  Refresh();
}

CalculatorScreen::~CalculatorScreen() {
  // The program may be ended while the converter is open: it hands back what it would on "Cancel".
  for (auto* const dialog : findChildren<UnitConverterDialog*>()) dialog->reject();
  calculator.Save();
}

void CalculatorScreen::StoreState() {
  calculator.Save();
}

void CalculatorScreen::BuildFileMenu() {
  AddFileCommand(QStringLiteral("&Config..."), this, &CalculatorScreen::Configure);
  AddFileCommand(QStringLiteral("Edit &Macro..."), this, &CalculatorScreen::EditMacros);
  AddFileCommand(QStringLiteral("Edit &Unit Convert"), this, &CalculatorScreen::EditConversions);
}

void CalculatorScreen::RunKey(std::wstring_view caption) {
  for (const KeyCommand& command : kKeyCommands) {
    if (command.caption == caption) return (this->*command.run)();
  }
}

KeypadState CalculatorScreen::State() const {
  return {calculator.angleType, calculator.history.IsEmpty(), calculator.baseType, IsShifted()};
}

void CalculatorScreen::Refresh() {
  RefreshKeypad();
  resultLine->ShowText(FromWide(calculator.resultLine));
}

void CalculatorScreen::Evaluate() {
  calculator.Evaluate(Line()->Text());
  Refresh();
  Line()->SelectWholeText();
}

void CalculatorScreen::ToggleAngle() {
  calculator.ToggleAngle();
  Refresh();
  Line()->setFocus();
}

void CalculatorScreen::RecallHistory() {
  ShowHistory(calculator.history,
              [this](int index) { InsertIntoLine(calculator.RecallHistory(index)); });
}

void CalculatorScreen::ChooseBase() {
  Line()->setFocus();
  std::vector<PopupCommand> bases;
  for (const BaseChoice& choice : kBaseMenu) {
    bases.push_back({static_cast<int>(choice.base), std::wstring(choice.name)});
  }
  ShowPopupMenu(
      Keys(), Keys()->rect().topLeft(), PopupSide::Right, bases,
      [this](int base) {
        calculator.SetBase(static_cast<BaseType>(base));
        Refresh();
      },
      std::wstring(kBaseMenuTitle))
      ->setObjectName(QStringLiteral("Bases"));
}

void CalculatorScreen::InsertMacro() {
  if (QDialog* const picker = NewMacroPicker(store, Line(), this, [this] { EditMacros(); })) {
    OpenDialog(picker);
  }
}

void CalculatorScreen::EditMacros() {
  auto* const dialog = new MacroEditorDialog(store, this);
  connect(dialog, &QDialog::finished, this, [this] { calculator.macros.LoadMacroTable(); });
  OpenDialog(dialog);
}

void CalculatorScreen::ConvertUnits() {
  auto* const dialog = new UnitConverterDialog(
      store, calculator.converterPositions, calculator.memory, calculator.ConverterInput(), this);
  connect(dialog, &QDialog::finished, this, [this, dialog](int outcome) {
    const UnitConverter& converter = dialog->Converter();
    calculator.TakeFromConverter(converter.Positions(), converter.Memory());
    // Without a result there is nothing to insert, which would take what is selected.
    if (outcome == QDialog::Accepted && converter.HasResult()) {
      InsertIntoLine(converter.ExpressionText());
    }
  });
  OpenDialog(dialog);
}

void CalculatorScreen::EditConversions() {
  OpenDialog(new UserConversionDialog(store, this));
}

void CalculatorScreen::OpenMemoryMenu() {
  Line()->setFocus();
  ShowMemoryMenu(Keys(), Keys()->Button(L"MEM")->geometry().topLeft(), PopupSide::Right,
                 MemoryMenuCommands(calculator.lastError.empty()),
                 {{MemoryCommand::Plus, [this] { calculator.AddToMemory(); }},
                  {MemoryCommand::Minus, [this] { calculator.SubtractFromMemory(); }},
                  {MemoryCommand::Recall,
                   [this] { InsertIntoLine(calculator.RecallValueText(calculator.memory)); }},
                  {MemoryCommand::Clear, [this] { calculator.ClearMemory(); }},
                  {MemoryCommand::RecallVariable, [this] { RecallVariable(); }},
                  {MemoryCommand::StoreVariable, [this] { StoreVariable(); }}});
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

}  // namespace vexa
