#include "converter/UnitConverterDialog.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "converter/UserConversionDialog.h"
#include "display/WideText.h"
#include "macros/MemoryMenu.h"
#include "macros/MemoryVariableDialog.h"
#include "toolkit/KeyButton.h"
#include "toolkit/Keypad.h"
#include "toolkit/MessageBox.h"
#include "toolkit/PopupMenu.h"
#include "toolkit/Theme.h"
#include "toolkit/TouchComboBox.h"
#include "toolkit/TouchSize.h"

namespace vexa {
namespace {

constexpr Key kButtons[] = {
    {L"OK", KeyRole::Pale, 0, 0, L"Put the result into the expression"},
    {L"Cancel", KeyRole::Pale, 0, 1, L"Close without a result"},
    {L"MEM", KeyRole::Memory, 0, 2, L"Memory: add, subtract, recall, clear, variables"},
};

constexpr int kOpeningHeight = 430;
constexpr int kButtonHeight = 36;
/// Three rows of text.
constexpr int kOutputHeight = 76;

void SetNames(QWidget* control, const QString& name) {
  control->setObjectName(name);
  control->setAccessibleName(name);
}

void Fill(TouchComboBox* list, const std::vector<std::wstring>& entries, int selected) {
  const QSignalBlocker blocker(list);
  list->clear();
  for (const std::wstring& entry : entries) list->AddLine(FromWide(entry));
  list->setCurrentIndex(selected);
}

}  // namespace

UnitConverterDialog::UnitConverterDialog(SettingsStore& settingsStore,
                                         const ConverterPositions& positions, double memory,
                                         const std::wstring& inputText, QWidget* parent)
    : Dialog(QStringLiteral("UnitConverter"), parent),
      store(settingsStore),
      converter(settingsStore),
      category(new TouchComboBox(this)),
      buttons(new Keypad(kButtons, this)),
      input(new QLineEdit(this)),
      notice(new QLabel(this)),
      inputUnit(new TouchComboBox(this)),
      outputLine(new QLineEdit(this)),
      outputBlock(new QPlainTextEdit(this)),
      outputUnit(new TouchComboBox(this)) {
  converter.Open(positions, memory, inputText);
  BuildMenus();
  BuildCategory();
  BuildInput();
  BuildOutput();
  Content()->addStretch(1);
  resize(width(), kOpeningHeight);
  Refresh();
  input->selectAll();
  input->setFocus();
}

void UnitConverterDialog::BuildMenus() {
  auto* const menuBar = new QMenuBar(this);
  layout()->setMenuBar(menuBar);
  menuBar->addMenu(QStringLiteral("&File"))
      ->addAction(QStringLiteral("Edit &Unit Convert"), this,
                  &UnitConverterDialog::EditConversions);
  QMenu* const edit = menuBar->addMenu(QStringLiteral("&Edit"));
  edit->addAction(QStringLiteral("Cu&t"), input, &QLineEdit::cut);
  edit->addAction(QStringLiteral("&Copy"), input, &QLineEdit::copy);
  edit->addAction(QStringLiteral("&Paste"), input, &QLineEdit::paste);
}

void UnitConverterDialog::BuildCategory() {
  for (const UnitCategory& entry : kUnitCategories) category->AddLine(FromWide(entry.name));
  AddField(L"Unit Converter", category);
  buttons->setFixedHeight(kButtonHeight);
  buttons->Refresh([](const Key&) { return true; }, [](const Key&) { return true; });
  SetDefault(buttons->Button(L"OK"));
  Content()->addWidget(buttons);
  connect(buttons, &Keypad::KeyPressed, this, &UnitConverterDialog::PressKey);
  connect(category, &QComboBox::currentIndexChanged, this, &UnitConverterDialog::ChangeCategory);
}

void UnitConverterDialog::BuildInput() {
  auto* const group = new QGroupBox(QStringLiteral("Input"), this);
  auto* const column = new QVBoxLayout(group);
  input->setMinimumHeight(kTouchHeight);
  SetNames(input, QStringLiteral("Input value"));
  SetNames(notice, QStringLiteral("Input notice"));
  SetNames(inputUnit, QStringLiteral("Input unit"));
  // Keeps its place while it says nothing.
  notice->setMinimumHeight(notice->fontMetrics().height());
  theme::ShowAsNotice(notice);
  column->addWidget(input);
  column->addWidget(notice);
  column->addWidget(inputUnit);
  Content()->addWidget(group);
  connect(input, &QLineEdit::textChanged, this, &UnitConverterDialog::EnterText);
  connect(inputUnit, &QComboBox::currentIndexChanged, this, &UnitConverterDialog::ChooseInput);
}

void UnitConverterDialog::BuildOutput() {
  auto* const group = new QGroupBox(QStringLiteral("Output"), this);
  auto* const column = new QVBoxLayout(group);
  SetNames(outputLine, QStringLiteral("Output value"));
  SetNames(outputBlock, QStringLiteral("Output"));
  SetNames(outputUnit, QStringLiteral("Output unit"));
  outputLine->setMinimumHeight(kTouchHeight);
  outputLine->setReadOnly(true);
  outputBlock->setFixedHeight(kOutputHeight);
  outputBlock->setReadOnly(true);
  outputBlock->setTabChangesFocus(true);
  for (QWidget* const shown : {static_cast<QWidget*>(outputLine),
                               static_cast<QWidget*>(outputBlock)}) {
    theme::ShowOnAmber(shown);
    column->addWidget(shown);
  }
  column->addWidget(outputUnit);
  Content()->addWidget(group);
  connect(outputUnit, &QComboBox::currentIndexChanged, this, &UnitConverterDialog::ChooseOutput);
}

void UnitConverterDialog::Refresh() {
  const ConverterPositions& selection = converter.Selection();
  const QSignalBlocker categoryBlocker(category);
  category->setCurrentIndex(selection.category);
  Fill(inputUnit, converter.InputUnits(), selection.input);
  Fill(outputUnit, converter.OutputUnits(), selection.output);
  const QSignalBlocker inputBlocker(input);
  input->setText(FromWide(converter.InputText()));
  const bool factors = converter.Layout() == ConverterLayout::Factor;
  outputLine->setVisible(factors);
  outputUnit->setVisible(factors);
  outputBlock->setVisible(!factors);
  ShowOutput();
}

void UnitConverterDialog::ShowOutput() {
  notice->setText(FromWide(converter.InputNotice()));
  outputLine->setText(FromWide(converter.OutputLine()));
  outputLine->setCursorPosition(0);
  outputBlock->setPlainText(FromWide(converter.OutputBlock()));
}

void UnitConverterDialog::PressKey(int index) {
  static constexpr void (UnitConverterDialog::*kCommands[])() = {&UnitConverterDialog::accept,
                                                          &UnitConverterDialog::reject,
                                                          &UnitConverterDialog::OpenMemoryMenu};
  (this->*kCommands[index])();
}

void UnitConverterDialog::ChangeCategory(int chosen) {
  const CategoryOutcome outcome = converter.ChangeCategory(chosen);
  Refresh();
  if (outcome == CategoryOutcome::NoUserConversions) {
    ShowErrorBox(this, std::wstring(kNoUserConversions), [this] { EditConversions(); });
  }
}

void UnitConverterDialog::ChooseInput(int position) {
  converter.ChooseInput(position);
  ShowOutput();
}

void UnitConverterDialog::ChooseOutput(int position) {
  converter.ChooseOutput(position);
  ShowOutput();
}

void UnitConverterDialog::EnterText(const QString& text) {
  converter.EnterText(text.toStdWString());
  ShowOutput();
}

void UnitConverterDialog::accept() {
  const std::wstring_view sentence = converter.Accept();
  if (sentence.empty()) return Dialog::accept();
  ShowErrorBox(this, std::wstring(sentence), [this] { input->setFocus(); });
}

void UnitConverterDialog::OpenMemoryMenu() {
  ShowPopupMenu(buttons, buttons->rect().bottomRight(), PopupSide::Left,
                MemoryMenuCommands(converter.HasResult()),
                [this](int command) { RunMemoryCommand(command); })
      ->setObjectName(QStringLiteral("Memory"));
}

void UnitConverterDialog::RunMemoryCommand(int command) {
  switch (static_cast<MemoryCommand>(command)) {
    case MemoryCommand::Plus:
      return converter.MemoryPlus();
    case MemoryCommand::Minus:
      return converter.MemoryMinus();
    case MemoryCommand::Recall:
      converter.MemoryRecall();
      return Refresh();
    case MemoryCommand::Clear:
      return converter.MemoryClear();
    case MemoryCommand::RecallVariable:
      return RecallVariable();
    case MemoryCommand::StoreVariable:
      return StoreVariable();
    case MemoryCommand::Separator:
      break;
  }
}

void UnitConverterDialog::RecallVariable() {
  auto* const dialog = new MemoryVariableDialog(store, this);
  connect(dialog, &MemoryVariableDialog::Recalled, this, [this](int index) {
    converter.RecallVariable(MemoryVariables(store).Text(index));
    Refresh();
  });
  OpenOverInput(dialog);
}

void UnitConverterDialog::StoreVariable() {
  OpenOverInput(new MemoryVariableDialog(store, converter.ResultText(), this));
}

void UnitConverterDialog::EditConversions() {
  auto* const dialog = new UserConversionDialog(store, this);
  connect(dialog, &QDialog::finished, this, [this] {
    converter.ReloadUserConversions();
    Refresh();
  });
  OpenOverInput(dialog);
}

void UnitConverterDialog::OpenOverInput(QDialog* dialog) {
  connect(dialog, &QDialog::finished, input, qOverload<>(&QWidget::setFocus));
  dialog->open();
}

}  // namespace vexa
