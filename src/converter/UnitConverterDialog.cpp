#include "converter/UnitConverterDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "converter/UserConversionDialog.h"
#include "display/WideText.h"
#include "macros/MemoryPopup.h"
#include "macros/MemoryVariableDialog.h"
#include "toolkit/KeyButton.h"
#include "toolkit/KeyboardOnFocus.h"
#include "toolkit/Keypad.h"
#include "toolkit/LimitLength.h"
#include "toolkit/MessageBox.h"
#include "toolkit/NumberBox.h"
#include "toolkit/ResultLine.h"
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

constexpr int kOpeningHeight = 400;
/// Closer than other dialogs: everything has room on the smallest screen.
constexpr int kMargin = 4;
constexpr int kGap = 4;
constexpr int kButtonHeight = kTouchHeight;
/// Room for three rows that can be read.
constexpr int kLeastBlockHeight = 48;
/// The text of the input stands out, and twenty digits have room on the smallest screen.
constexpr int kInputText = 16;

void SetNames(QWidget* control, const QString& name) {
  control->setObjectName(name);
  control->setAccessibleName(name);
}

QLabel* NewCaption(const QString& text, QWidget* parent) {
  auto* const caption = new QLabel(text, parent);
  QFont bold = caption->font();
  bold.setBold(true);
  caption->setFont(bold);
  return caption;
}

/// A group of controls from top to bottom under `heading`.
QVBoxLayout* AddGroup(QVBoxLayout* content, const QString& name, QLayout* heading, int stretch) {
  auto* const group = new QWidget(content->parentWidget());
  SetNames(group, name);
  auto* const column = new QVBoxLayout(group);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(kGap);
  column->addLayout(heading);
  content->addWidget(group, stretch);
  return column;
}

void Fill(TouchComboBox* list, const std::vector<std::wstring>& entries, int selected) {
  const QSignalBlocker blocker(list);
  list->clear();
  for (const std::wstring& entry : entries) list->addItem(FromWide(entry));
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
      outputLine(new ResultLine(this)),
      outputBlock(new ResultLine(this)),
      outputUnit(new TouchComboBox(this)) {
  converter.Open(positions, memory, inputText);
  Content()->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  Content()->setSpacing(kGap);
  BuildMenus();
  BuildCategory();
  BuildButtons();
  BuildInput();
  BuildOutput();
  SetOpeningHeight(kOpeningHeight);
  Refresh();
  FocusInput();
}

void UnitConverterDialog::BuildMenus() {
  auto* const menuBar = new QMenuBar(this);
  layout()->setMenuBar(menuBar);
  menuBar->addMenu(QStringLiteral("&File"))
      ->addAction(QStringLiteral("Edit &Unit Convert"), this,
                  &UnitConverterDialog::EditConversions);
  QMenu* const edit = menuBar->addMenu(QStringLiteral("&Edit"));
  edit->addAction(QStringLiteral("Cu&t"), input, &QLineEdit::cut)->setShortcuts(QKeySequence::Cut);
  edit->addAction(QStringLiteral("&Copy"), input, &QLineEdit::copy)
      ->setShortcuts(QKeySequence::Copy);
  edit->addAction(QStringLiteral("&Paste"), input, &QLineEdit::paste)
      ->setShortcuts(QKeySequence::Paste);
  // Told only: each field has these keys of its own, so that a result can be copied too.
  for (QAction* const action : edit->actions()) action->setShortcutContext(Qt::WidgetShortcut);
  // Beside the menus, where it takes no row of its own.
  QLabel* const title = NewCaption(QStringLiteral("Unit Converter"), menuBar);
  title->setBuddy(category);
  title->setContentsMargins(0, 0, 2 * kMargin, 0);
  title->setMinimumHeight(kTouchHeight);
  menuBar->setCornerWidget(title);
}

void UnitConverterDialog::BuildCategory() {
  SetNames(category, QStringLiteral("Unit Converter"));
  for (const UnitCategory& entry : kUnitCategories) category->addItem(FromWide(entry.name));
  category->setMaxVisibleItems(kCategoryCount);
  Content()->addWidget(category);
  connect(category, &QComboBox::currentIndexChanged, this, &UnitConverterDialog::ChangeCategory);
  TypeAfterChoice(category);
}

void UnitConverterDialog::BuildButtons() {
  buttons->setFixedHeight(kButtonHeight);
  buttons->Refresh([](const Key&) { return true; }, [](const Key&) { return true; });
  SetDefault(buttons->Button(L"OK"));
  Content()->addWidget(buttons);
  connect(buttons, &Keypad::KeyPressed, this, &UnitConverterDialog::PressKey);
}

void UnitConverterDialog::BuildInput() {
  SetNames(input, QStringLiteral("Input value"));
  SetNames(notice, QStringLiteral("Input notice"));
  SetNames(inputUnit, QStringLiteral("Input unit"));
  QFont large = input->font();
  large.setPixelSize(kInputText);
  input->setFont(large);
  input->setAlignment(Qt::AlignRight);
  input->setMinimumHeight(kTouchHeight);
  LimitLength(input, kNumberLength);
  new KeyboardOnFocus(input);
  theme::ShowAsNotice(notice);
  notice->setAlignment(Qt::AlignRight);
  // In the heading's row, so that nothing moves and no gap waits for it.
  auto* const heading = new QHBoxLayout;
  heading->addWidget(NewCaption(QStringLiteral("Input"), this));
  heading->addWidget(notice, 1);
  QVBoxLayout* const column = AddGroup(Content(), QStringLiteral("Input"), heading, 0);
  column->addWidget(input);
  column->addWidget(inputUnit);
  connect(input, &QLineEdit::textChanged, this, &UnitConverterDialog::EnterText);
  connect(inputUnit, &QComboBox::currentIndexChanged, this, &UnitConverterDialog::ChooseInput);
  TypeAfterChoice(inputUnit);
}

void UnitConverterDialog::BuildOutput() {
  SetNames(outputLine, QStringLiteral("Output value"));
  SetNames(outputBlock, QStringLiteral("Output block"));
  SetNames(outputUnit, QStringLiteral("Output unit"));
  auto* const heading = new QHBoxLayout;
  heading->addWidget(NewCaption(QStringLiteral("Output"), this));
  QVBoxLayout* const column = AddGroup(Content(), QStringLiteral("Output"), heading, 1);
  for (ResultLine* const shown : {outputLine, outputBlock}) {
    column->addWidget(shown, 1);
  }
  outputLine->setMinimumHeight(kTouchHeight);
  outputBlock->setMinimumHeight(kLeastBlockHeight);
  column->addWidget(outputUnit);
  connect(outputUnit, &QComboBox::currentIndexChanged, this, &UnitConverterDialog::ChooseOutput);
  TypeAfterChoice(outputUnit);
}

void UnitConverterDialog::TypeAfterChoice(const TouchComboBox* units) {
  connect(units, &QComboBox::activated, this, [this, units] {
    // With arrow keys one may want to go on in the closed list.
    if (units->WasChosenInOpenList()) FocusInput();
  });
}

void UnitConverterDialog::FocusInput() {
  input->setFocus();
  input->selectAll();
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
  outputLine->ShowText(FromWide(converter.OutputLine()));
  outputBlock->ShowText(FromWide(converter.OutputBlock()));
  for (ResultLine* const shown : {outputLine, outputBlock}) {
    theme::ShowOnAmber(shown, converter.IsResultStale());
  }
}

void UnitConverterDialog::PressKey(int index) {
  using Command = void (*)(UnitConverterDialog&);
  static constexpr Command kCommands[] = {
      [](UnitConverterDialog& dialog) { dialog.accept(); },
      [](UnitConverterDialog& dialog) { dialog.reject(); },
      [](UnitConverterDialog& dialog) { dialog.OpenMemoryMenu(); },
  };
  kCommands[index](*this);
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
  ShowErrorBox(this, std::wstring(sentence), [this] { FocusInput(); });
}

void UnitConverterDialog::OpenMemoryMenu() {
  ShowMemoryMenu(buttons, buttons->rect().bottomRight(), PopupSide::Left,
                 MemoryMenuCommands(converter.HasResult()),
                 {{MemoryCommand::Plus, [this] { converter.MemoryPlus(); }},
                  {MemoryCommand::Minus, [this] { converter.MemoryMinus(); }},
                  {MemoryCommand::Recall, [this] { RecallMemory(); }},
                  {MemoryCommand::Clear, [this] { converter.MemoryClear(); }},
                  {MemoryCommand::RecallVariable, [this] { RecallVariable(); }},
                  {MemoryCommand::StoreVariable, [this] { StoreVariable(); }}});
}

void UnitConverterDialog::RecallMemory() {
  converter.MemoryRecall();
  Refresh();
}

void UnitConverterDialog::RecallVariable() {
  auto* const dialog = new MemoryVariableDialog(store, this);
  connect(dialog, &MemoryVariableDialog::Recalled, this, [this](int index) {
    converter.RecallVariable(MemoryVariables(store).Value(index));
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
