#include "plotter/PlotterScreen.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "display/DisplayFormattingDialog.h"
#include "display/SettingsLayout.h"
#include "display/WideText.h"
#include "macros/MacroEditorDialog.h"
#include "macros/MacroKey.h"
#include "macros/MemoryVariableDialog.h"
#include "plotter/ColourIcon.h"
#include "plotter/GraphFunction.h"
#include "plotter/GraphViewDialog.h"
#include "plotter/NoticeLine.h"
#include "plotter/PlotterKeypad.h"
#include "plotter/RangeEdit.h"
#include "plotter/RangeForm.h"
#include "toolkit/EditLine.h"
#include "toolkit/KeyButton.h"
#include "toolkit/Keypad.h"
#include "toolkit/MessageBox.h"
#include "toolkit/TouchComboBox.h"
#include "toolkit/TouchHeight.h"

namespace vexa {
namespace {

/// Shares of the window's height, and the least that the field needs for a row.
constexpr int kFieldShare = 4;
constexpr int kListShare = 3;
constexpr int kFormShare = 8;
constexpr int kKeypadShare = 26;
constexpr int kLeastFieldHeight = 25;
constexpr int kLeastBoxHeight = 17;
constexpr int kLeastListHeight = 18;
/// Eight rows of keys that leave a notice its line on the smallest display.
constexpr int kLeastKeypadHeight = 157;
constexpr int kListButtonWidth = 40;

}  // namespace

const PlotterScreen::KeyCommand PlotterScreen::kKeyCommands[] = {
    {L"Plot", &PlotterScreen::Plot},       {L"PB", &PlotterScreen::RecallHistory},
    {L"DEG", &PlotterScreen::ToggleAngle}, {L"RAD", &PlotterScreen::ToggleAngle},
    {L"Mac", &PlotterScreen::InsertMacro}, {L"M", &PlotterScreen::RecallVariable},
};

PlotterScreen::PlotterScreen(SettingsStore& settingsStore, QWidget* parent)
    : ExpressionScreen(Mode::FunctionPlotter, PlotterKeys(), parent),
      store(settingsStore),
      functions(settingsStore),
      notice(new NoticeLine(this)),
      list(new TouchComboBox(this)),
      lastFocused(Line()) {
  Line()->setObjectName(QStringLiteral("Function"));
  Line()->setAccessibleName(QStringLiteral("Function"));
  Line()->setMinimumHeight(kLeastFieldHeight);
  auto* const field = new QVBoxLayout;
  field->setSpacing(0);
  field->addWidget(Line(), 1);
  field->addWidget(notice);
  Content()->addLayout(field, kFieldShare);
  connect(Line(), &EditLine::textChanged, this, &PlotterScreen::ShowNotice);
  BuildList();
  form = new RangeForm(kLeastBoxHeight, this);
  form->SetTexts(functions.StoredRanges());
  connect(form, &RangeForm::RangesChanged, this, &PlotterScreen::Save);
  Content()->addWidget(form, kFormShare);
  PlaceKeypad(kKeypadShare);
  Keys()->setMinimumHeight(kLeastKeypadHeight);

  AddFileCommand(QStringLiteral("&Config..."), this, &PlotterScreen::Configure);
  BuildEditMenu();
  SetDefaultButton(Keys()->Button(L"Plot"));
  FollowFocus();
  Refresh();
}

PlotterScreen::~PlotterScreen() {
  // The focus leaves the boxes when they go.
  qApp->disconnect(this);
  Save();
}

void PlotterScreen::Save() {
  functions.Save(form->Texts());
}

void PlotterScreen::StoreState() {
  Save();
}

void PlotterScreen::BuildList() {
  auto* const row = new QHBoxLayout;
  auto* const label = new QLabel(QStringLiteral("F(X) ="), this);
  label->setBuddy(list);
  list->setObjectName(QStringLiteral("F(X) ="));
  list->setAccessibleName(QStringLiteral("F(X) ="));
  // A list that was opened by a click and closed again leaves the focus where the user types.
  list->setFocusPolicy(Qt::TabFocus);
  row->addWidget(label);
  GrowToTouchHeight(list, kLeastListHeight);
  row->addWidget(list, 1);
  addButton = NewListButton(row, QStringLiteral("A"), &PlotterScreen::Add);
  addButton->setToolTip(QStringLiteral("Add the function to the list"));
  deleteButton = NewListButton(row, QStringLiteral("D"), &PlotterScreen::Delete);
  deleteButton->setToolTip(QStringLiteral("Delete the selected function from the list"));
  Content()->addLayout(row, kListShare);
  connect(list, &QComboBox::activated, this, &PlotterScreen::SelectFunction);
}

QPushButton* PlotterScreen::NewListButton(QBoxLayout* row, const QString& caption,
                                          void (PlotterScreen::*pressed)()) {
  auto* const button = new QPushButton(caption, this);
  button->setObjectName(caption);
  button->setAccessibleName(caption);
  // Return presses the button that has the focus; elsewhere it plots.
  button->setAutoDefault(true);
  button->setFocusPolicy(Qt::TabFocus);
  button->setFixedWidth(kListButtonWidth);
  GrowToTouchHeight(button, kLeastListHeight);
  row->addWidget(button);
  connect(button, &QPushButton::clicked, this, pressed);
  return button;
}

void PlotterScreen::FollowFocus() {
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    if (now == Line() || std::ranges::find(form->Boxes(), now) != form->Boxes().end()) {
      lastFocused = now;
    }
  });
}

KeypadState PlotterScreen::State() const {
  return {functions.Angle(), functions.History().IsEmpty(), BaseType::Dec, IsShifted()};
}

void PlotterScreen::RunKey(std::wstring_view caption) {
  for (const KeyCommand& command : kKeyCommands) {
    if (command.caption == caption) return (this->*command.run)();
  }
}

void PlotterScreen::Refresh() {
  const QSignalBlocker blocker(list);
  list->clear();
  for (int i = 0; i < functions.Count(); ++i) {
    list->addItem(FromWide(ListText(functions.At(i))));
    list->setItemIcon(i, CurveIcon(static_cast<std::size_t>(i)));
  }
  list->setCurrentIndex(functions.Selected());
  addButton->setEnabled(functions.CanAdd());
  deleteButton->setEnabled(functions.CanDelete());
  RefreshKeypad();
  ShowNotice();
}

void PlotterScreen::ShowNotice() {
  notice->ShowText(FromWide(functions.FieldNotice(Line()->Text())));
}

bool PlotterScreen::Show(const PlotterOutcome& outcome) {
  if (outcome.fieldText) Line()->ReplaceText(*outcome.fieldText);
  Save();
  Refresh();
  Line()->setFocus();
  if (outcome.sentence.empty()) return true;
  ShowErrorBox(this, outcome.sentence, [this] { Line()->setFocus(); });
  return false;
}

void PlotterScreen::Add() {
  Show(functions.Add(Line()->Text()));
}

void PlotterScreen::Delete() {
  AskYesNo(this, std::wstring(kDeleteFunctionQuestion), [this] {
    functions.DeleteSelected();
    Save();
    Refresh();
    Line()->setFocus();
  });
}

void PlotterScreen::SelectFunction(int index) {
  functions.Select(index);
  Line()->ReplaceText(functions.At(index));
  // Keys that choose in the closed list may choose again.
  if (list->WasChosenInOpenList()) Line()->setFocus();
}

void PlotterScreen::Plot() {
  GraphData graph;
  if (!Show(functions.Plot(Line()->Text(), form->Texts(), form->Options(), graph))) return;
  OpenDialog(new GraphViewDialog(store, std::move(graph), this));
}

void PlotterScreen::ToggleAngle() {
  functions.ToggleAngle();
  Refresh();
  Line()->setFocus();
}

void PlotterScreen::RecallHistory() {
  const TextHistory& history = functions.History();
  ShowHistory(history, [this, &history](int index) { InsertIntoLine(history.At(index)); });
}

void PlotterScreen::InsertMacro() {
  if (QDialog* const picker = NewMacroPicker(store, Line(), this, [this] { EditMacros(); })) {
    OpenDialog(picker);
  }
}

void PlotterScreen::EditMacros() {
  OpenDialog(new MacroEditorDialog(store, this));
}

void PlotterScreen::RecallVariable() {
  QWidget* const target = lastFocused;
  auto* const dialog = new MemoryVariableDialog(store, this);
  connect(dialog, &MemoryVariableDialog::Recalled, this,
          [this, target](int index) { TakeVariable(target, index); });
  connect(dialog, &QDialog::finished, target, qOverload<>(&QWidget::setFocus));
  dialog->open();
}

void PlotterScreen::TakeVariable(QWidget* target, int index) {
  std::wstring text;
  const std::wstring sentence = MemoryVariables(store).FormulaText(index, text);
  if (!sentence.empty()) return ShowErrorBox(this, sentence, [target] { target->setFocus(); });
  if (target == Line()) return InsertIntoLine(text);
  qobject_cast<RangeEdit*>(target)->ShowText(text);
}

void PlotterScreen::Configure() {
  auto* const dialog =
      new DisplayFormattingDialog(static_cast<DisplayType>(Read(store, settings::kDisplayType)),
                                  Read(store, settings::kPrecision), this);
  connect(dialog, &QDialog::accepted, this, [this, dialog] {
    Write(store, settings::kDisplayType, static_cast<int>(dialog->displayType));
    Write(store, settings::kPrecision, dialog->decimalPlaces);
  });
  OpenDialog(dialog);
}

}  // namespace vexa
