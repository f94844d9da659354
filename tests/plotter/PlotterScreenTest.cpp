// The plotter's screen through its controls, and what it leaves in the store.

#include "plotter/PlotterScreen.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QScrollBar>

#include "display/DisplayFormattingDialog.h"
#include "display/MemorySettingsStore.h"
#include "display/SettingsLayout.h"
#include "display/WideText.h"
#include "macros/MacroEditorDialog.h"
#include "macros/MacroListDialog.h"
#include "macros/MemoryVariableDialog.h"
#include "plotter/GraphViewDialog.h"
#include "plotter/PlotterKeypad.h"
#include "plotter/ScreenSteps.h"
#include "toolkit/EditLine.h"
#include "toolkit/TouchList.h"

namespace vexa {

using namespace test;

class PlotterScreenTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup() { screen.reset(); }
  void StartsAsAFreshStoreSays();
  void StartsWithWhatIsStored();
  void EveryControlHasAName();
  void KeysTypeAFunction();
  void OperatorKeysWrapASelection();
  void EditingKeysWork();
  void ShiftAndAngleSwapTheirKeys();
  void AddListsTheFunction();
  void RefusalsAreShownAndTheFieldGetsTheFocus();
  void ThreeFunctionsDisableAdd();
  void DeleteAsksFirst();
  void ChoosingAFunctionPutsItIntoTheField();
  void ChoosingInTheOpenListGoesOnInTheField();
  void ListsShowTheFrontOfALongFunction();
  void PbListsTheNewestFirst();
  void PbListsEmptyEntriesToo();
  void ClicksLeaveTheFocusWhereTheUserTypes();
  void WhatIsTypedOnAButtonGoesToTheField();
  void PlotOpensTheGraph();
  void EnterPlots();
  void ReturnPressesTheFocusedListButton();
  void PlotSaysThatABoxIsNoNumber();
  void PlotShowsTheFunctionThatFails();
  void MemoryGoesToTheBoxThatHadTheFocus();
  void MemoryThatIsTooLargeIsRefused();
  void ALongNumberIsStoredExactly();
  void MacroWithoutMacrosOpensTheEditor();
  void MacroInsertsItsCall();
  void ConfigIsStoredAtOnce();
  void CutCopyPaste();
  void EverythingIsSavedAtTheEnd();
  void NothingIsSavedWhileABoxIsNoNumber();
  void EveryChangeIsStoredAtOnce();
  void ATextThatPlotLeavesOutIsNoticed();
  void TheAngleTypeIsOnlyRead();
  void AHostileStoreIsHarmless();
  void TargetsAreLargeEnough();
  void EverythingFitsAtTheSmallestSize();
  void TabReachesEverythingAsRead();

 private:
  void Open();
  QString Field() const { return field->toPlainText(); }
  void SetField(const QString& text) { field->setPlainText(text); }
  QComboBox* List() const { return screen->findChild<QComboBox*>(QStringLiteral("F(X) =")); }
  QStringList Functions() const;
  QLineEdit* Box(const char* name) const {
    return screen->findChild<QLineEdit*>(QString::fromLatin1(name));
  }
  QWidget* Control(const char* name) const {
    return screen->findChild<QWidget*>(QString::fromLatin1(name));
  }
  void PressKey(const char* caption) { Press(screen.get(), QString::fromLatin1(caption)); }

  std::unique_ptr<MemorySettingsStore> store;
  std::unique_ptr<PlotterScreen> screen;
  EditLine* field = nullptr;
};

void PlotterScreenTest::init() {
  store = std::make_unique<MemorySettingsStore>();
  Open();
}

void PlotterScreenTest::Open() {
  screen.reset();
  screen = std::make_unique<PlotterScreen>(*store, nullptr);
  field = screen->findChild<EditLine*>();
  screen->resize(340, 560);
  screen->show();
  QVERIFY(QTest::qWaitForWindowActive(screen.get()));
  screen->setFocus();
}

QStringList PlotterScreenTest::Functions() const {
  QStringList functions;
  for (int i = 0; i < List()->count(); ++i) functions << List()->itemText(i);
  return functions;
}

void PlotterScreenTest::StartsAsAFreshStoreSays() {
  QCOMPARE(Field(), QString());
  QVERIFY(field->hasFocus());
  QCOMPARE(Functions(), QStringList());
  QVERIFY(Control("A")->isEnabled());
  QVERIFY(!Control("D")->isEnabled());
  QVERIFY(!Control("PB")->isEnabled());
  QCOMPARE(Box("X min")->text(), QStringLiteral("-10"));
  QCOMPARE(Box("X max")->text(), QStringLiteral("10"));
  QCOMPARE(Box("Y min")->text(), QStringLiteral("-10"));
  QCOMPARE(Box("Y max")->text(), QStringLiteral("10"));
  for (const char* option : {"Grid", "Line", "Coordinates"}) {
    QVERIFY(screen->findChild<QCheckBox*>(QString::fromLatin1(option))->isChecked());
  }
  QVERIFY(Control("DEG")->isVisible());
  QVERIFY(!Control("RAD")->isVisible());
  QVERIFY(screen->findChild<QPushButton*>(QStringLiteral("Plot"))->isDefault());
}

void PlotterScreenTest::StartsWithWhatIsStored() {
  screen.reset();
  Write(*store, settings::kAngleType, 2);
  Write(*store, settings::kFunctionCount, 3);
  for (int i = 0; i < 3; ++i) Write(*store, settings::kFunction, i, i == 1 ? L"x&y" : L"x");
  Write(*store, settings::kXMin, L"-1e3");
  Write(*store, settings::kYMax, L"x");
  Write(*store, settings::kGrapHistoryCount, 2);
  Open();
  QCOMPARE(Functions(),
           QStringList({QStringLiteral("x"), QStringLiteral("x&y"), QStringLiteral("x")}));
  QCOMPARE(List()->currentIndex(), 0);
  QCOMPARE(Field(), QString());
  QVERIFY(!Control("A")->isEnabled());
  QVERIFY(Control("D")->isEnabled());
  QVERIFY(Control("PB")->isEnabled());
  QVERIFY(Control("RAD")->isVisible());
  QCOMPARE(Box("X min")->text(), QStringLiteral("-1e3"));
  QCOMPARE(Box("Y max")->text(), QStringLiteral("x"));
}

void PlotterScreenTest::EveryControlHasAName() {
  for (const Key& key : PlotterKeys()) {
    const QString caption = FromWide(key.caption);
    const auto* const button = screen->findChild<QPushButton*>(caption);
    QVERIFY2(button, qPrintable(caption));
    QCOMPARE(button->accessibleName(), caption);
  }
  for (const char* name : {"Function", "F(X) =", "A", "D", "X min", "X max", "Y min", "Y max",
                           "Grid", "Line", "Coordinates"}) {
    QVERIFY2(Control(name) && !Control(name)->accessibleName().isEmpty(), name);
  }
  for (const QLabel* label : screen->findChildren<QLabel*>()) {
    QVERIFY(label->buddy() || label->objectName() == QStringLiteral("Notice"));
  }
}

void PlotterScreenTest::KeysTypeAFunction() {
  for (const char* key : {"SIN", "X-Var"}) PressKey(key);
  QTest::keyClick(field, Qt::Key_End);
  for (const char* key : {"*", "1", "0", "0", ".", "Pi", "Exp", "X-Var"}) PressKey(key);
  QCOMPARE(Field(), QStringLiteral("sin(x)*100.PiEx"));
  QVERIFY(field->hasFocus());
}

void PlotterScreenTest::OperatorKeysWrapASelection() {
  SetField(QStringLiteral("x+1"));
  field->selectAll();
  PressKey("-");
  QCOMPARE(Field(), QStringLiteral("(x+1)-"));
  field->selectAll();
  PressKey("+");
  QCOMPARE(Field(), QStringLiteral("((x+1)-)+"));
  field->selectAll();
  PressKey("X-Var");
  QCOMPARE(Field(), QStringLiteral("x"));
}

void PlotterScreenTest::EditingKeysWork() {
  SetField(QStringLiteral("x+12"));
  QTest::keyClick(field, Qt::Key_End);
  PressKey("BS");
  QCOMPARE(Field(), QStringLiteral("x+1"));
  QTest::keyClick(field, Qt::Key_Home);
  PressKey("DEL");
  QCOMPARE(Field(), QStringLiteral("+1"));
  PressKey("CLR");
  QCOMPARE(Field(), QString());
}

void PlotterScreenTest::ShiftAndAngleSwapTheirKeys() {
  PressKey("DEG");
  QVERIFY(!Control("DEG")->isVisible());
  PressKey("RAD");
  QVERIFY(Control("DEG")->isVisible());
  PressKey("Shift");
  QVERIFY(Control("ASIN")->isVisible());
  QVERIFY(!Control("SIN")->isVisible());
  PressKey("Shift");
  QVERIFY(Control("SIN")->isVisible());
}

void PlotterScreenTest::AddListsTheFunction() {
  QTest::keyClicks(field, QStringLiteral("x ^ 2"));
  PressKey("A");
  QCOMPARE(Functions(), QStringList(QStringLiteral("x^2")));
  QCOMPARE(List()->currentIndex(), 0);
  QCOMPARE(Field(), QString());
  QVERIFY(field->hasFocus());
  QVERIFY(Control("D")->isEnabled());
  QVERIFY(Control("PB")->isEnabled());
}

void PlotterScreenTest::RefusalsAreShownAndTheFieldGetsTheFocus() {
  PressKey("A");
  QCOMPARE(ShownIcon(screen.get()), QMessageBox::Critical);
  QCOMPARE(Answer(screen.get()), QStringLiteral("Equation is null."));
  QTRY_VERIFY(field->hasFocus());
  SetField(QStringLiteral("y"));
  PressKey("A");
  QCOMPARE(Answer(screen.get()), QStringLiteral("Can not use variable Y"));
  QCOMPARE(Field(), QStringLiteral("y"));
  QVERIFY(Control("PB")->isEnabled());
}

void PlotterScreenTest::ThreeFunctionsDisableAdd() {
  for (const char* text : {"x", "x+1", "x+2"}) {
    SetField(QString::fromLatin1(text));
    PressKey("A");
  }
  QVERIFY(!Control("A")->isEnabled());
  QCOMPARE(List()->currentIndex(), 2);
  PressKey("D");
  QCOMPARE(Answer(screen.get(), QMessageBox::Yes),
           QStringLiteral("Are you sure you want to delete the selected graph equation?"));
  QVERIFY(Control("A")->isEnabled());
  QCOMPARE(List()->currentIndex(), 1);
}

void PlotterScreenTest::DeleteAsksFirst() {
  SetField(QStringLiteral("x"));
  PressKey("A");
  PressKey("D");
  QCOMPARE(ShownIcon(screen.get()), QMessageBox::Question);
  Answer(screen.get(), QMessageBox::No);
  QCOMPARE(Functions().size(), 1);
  QTRY_VERIFY(!OpenWindow<QMessageBox>(screen.get()));
  PressKey("D");
  Answer(screen.get(), QMessageBox::Yes);
  QCOMPARE(Functions(), QStringList());
  QVERIFY(!Control("D")->isEnabled());
}

void PlotterScreenTest::ChoosingAFunctionPutsItIntoTheField() {
  for (const char* text : {"x", "sin(x)", "sqrt(x)"}) {
    SetField(QString::fromLatin1(text));
    PressKey("A");
  }
  List()->setFocus();
  QTest::keyClick(List(), Qt::Key_Up);
  QCOMPARE(Field(), QStringLiteral("sin(x)"));
  QTest::keyClick(List(), Qt::Key_Up);
  QCOMPARE(Field(), QStringLiteral("x"));
  QVERIFY2(List()->hasFocus(), "its keys choose on");
  QTest::keyClicks(List(), QStringLiteral("sqrt"));
  QCOMPARE(Field(), QStringLiteral("sqrt(x)"));
  QCOMPARE(List()->currentText(), QStringLiteral("sqrt(x)"));
}

void PlotterScreenTest::ChoosingInTheOpenListGoesOnInTheField() {
  for (const char* text : {"x", "sin(x)"}) {
    SetField(QString::fromLatin1(text));
    PressKey("A");
  }
  Box("X max")->setFocus();
  List()->setFocus();
  List()->showPopup();
  QTRY_VERIFY(List()->view()->isVisible());
  const QRect first = List()->view()->visualRect(List()->model()->index(0, 0));
  QTest::mouseMove(List()->view()->viewport(), first.center());
  // The list takes no release right after it has opened.
  QTest::qWait(QApplication::doubleClickInterval() + 50);
  QTest::mouseClick(List()->view()->viewport(), Qt::LeftButton, {}, first.center());
  QTRY_COMPARE(Field(), QStringLiteral("x"));
  QVERIFY(field->hasFocus());
}

void PlotterScreenTest::ListsShowTheFrontOfALongFunction() {
  const QString text = QStringLiteral("x") + QStringLiteral("+x").repeated(400);
  screen.reset();
  Write(*store, settings::kFunctionCount, 2);
  Write(*store, settings::kFunction, 0, text.toStdWString());
  Write(*store, settings::kFunction, 1, L"x");
  Open();
  QCOMPARE(List()->itemText(0), text.left(497) + QStringLiteral("..."));
  List()->setFocus();
  QTest::keyClick(List(), Qt::Key_Down);
  QTest::keyClick(List(), Qt::Key_Up);
  QCOMPARE(Field(), text);
}

void PlotterScreenTest::PbListsTheNewestFirst() {
  for (const char* text : {"x+12345678901", "x+123456789012", "y"}) {
    SetField(QString::fromLatin1(text));
    PressKey("A");
    Answer(screen.get());
  }
  SetField(QStringLiteral("2*"));
  QTest::keyClick(field, Qt::Key_End);
  PressKey("PB");
  QMenu* menu = nullptr;
  for (QMenu* open : screen->findChildren<QMenu*>(QStringLiteral("History"))) {
    if (open->isVisible()) menu = open;
  }
  QVERIFY(menu);
  QStringList entries;
  for (const QAction* action : menu->actions()) entries << action->text();
  QCOMPARE(entries, QStringList({QStringLiteral("y"), QStringLiteral("x+12345678..."),
                                 QStringLiteral("x+12345678901")}));
  menu->setActiveAction(menu->actions().at(1));
  QTest::keyClick(menu, Qt::Key_Return);
  QCOMPARE(Field(), QStringLiteral("2*x+123456789012"));
}

void PlotterScreenTest::ClicksLeaveTheFocusWhereTheUserTypes() {
  SetField(QStringLiteral("x"));
  PressKey("A");
  for (QWidget* const edit : {static_cast<QWidget*>(field), Control("X max")}) {
    edit->setFocus();
    for (const char* option : {"Grid", "Line", "Coordinates"}) {
      PressKey(option);
      QVERIFY2(edit->hasFocus(), option);
    }
    QTest::mouseClick(List(), Qt::LeftButton);
    QTRY_VERIFY(List()->view()->isVisible());
    QTest::keyClick(List()->view(), Qt::Key_Escape);
    QTRY_VERIFY(!List()->view()->isVisible());
    QVERIFY(edit->hasFocus());
  }
}

void PlotterScreenTest::WhatIsTypedOnAButtonGoesToTheField() {
  SetField(QStringLiteral("x"));
  PressKey("A");
  for (const char* name : {"Grid", "Line", "Coordinates", "A", "D", "SIN"}) {
    Control(name)->setFocus(Qt::TabFocusReason);
    QTest::keyClick(Control(name), 'x');
    QVERIFY2(field->hasFocus(), name);
    QCOMPARE(Field(), QStringLiteral("x"));
    Control(name)->setFocus(Qt::TabFocusReason);
    QTest::keyClick(Control(name), Qt::Key_Backspace);
    QVERIFY2(field->hasFocus(), name);
    QCOMPARE(Field(), QString());
  }
  // The blank is the button's own key.
  auto* const grid = screen->findChild<QCheckBox*>(QStringLiteral("Grid"));
  grid->setFocus(Qt::TabFocusReason);
  QTest::keyClick(grid, Qt::Key_Space);
  QVERIFY(grid->hasFocus() && !grid->isChecked());
}

void PlotterScreenTest::PbListsEmptyEntriesToo() {
  screen.reset();
  Write(*store, settings::kGrapHistoryCount, 3);
  Write(*store, settings::kGrapHistory, 1, L"x");
  Write(*store, settings::kGrapHistory, 3, L"x+1");
  Open();
  PressKey("PB");
  QMenu* const menu = OpenWindow<QMenu>(screen.get());
  QVERIFY(menu);
  QStringList entries;
  for (const QAction* action : menu->actions()) {
    QVERIFY(!action->isSeparator() && action->isEnabled());
    entries << action->text();
  }
  QCOMPARE(entries, QStringList({"x+1", "(empty)", "x"}));
  menu->close();
}

void PlotterScreenTest::PlotOpensTheGraph() {
  PressKey("DEG");
  Type(Box("Y max"), QStringLiteral("5"));
  QTest::mouseClick(Control("Grid"), Qt::LeftButton, {}, QPoint(8, Control("Grid")->height() / 2));
  SetField(QStringLiteral("x^2"));
  PressKey("Plot");
  auto* const view = OpenWindow<GraphViewDialog>(screen.get());
  QVERIFY(view);
  QVERIFY(view->isModal());
  QCOMPARE(view->Graph().Ranges(), (PlotRanges{-10, 10, -10, 5}));
  QCOMPARE(view->Graph().Options(), (PlotOptions{false, true, true}));
  QCOMPARE(view->Graph().Angle(), AngleType::Radians);
  QCOMPARE(FromWide(view->Graph().Functions().at(0).label), QStringLiteral("R:F1(X)=x^2"));
  // The function was added on the way.
  QCOMPARE(Functions(), QStringList(QStringLiteral("x^2")));
  Press(view, QStringLiteral("Close"));
  QTRY_VERIFY(!OpenWindow<GraphViewDialog>(screen.get()));
  QVERIFY(field->hasFocus());
}

void PlotterScreenTest::EnterPlots() {
  for (QWidget* const control :
       {static_cast<QWidget*>(field), Control("X max"), Control("Line"), Control("F(X) =")}) {
    SetField(QStringLiteral("x"));
    control->setFocus();
    QTest::keyClick(control, Qt::Key_Return);
    auto* const view = OpenWindow<GraphViewDialog>(screen.get());
    QVERIFY2(view, qPrintable(control->objectName()));
    QTest::keyClick(view, Qt::Key_Escape);
    QTRY_VERIFY(!OpenWindow<GraphViewDialog>(screen.get()));
  }
}

void PlotterScreenTest::ReturnPressesTheFocusedListButton() {
  SetField(QStringLiteral("x"));
  Control("A")->setFocus(Qt::TabFocusReason);
  QTest::keyClick(Control("A"), Qt::Key_Return);
  QVERIFY(!OpenWindow<GraphViewDialog>(screen.get()));
  QCOMPARE(Functions(), QStringList(QStringLiteral("x")));
  Control("D")->setFocus(Qt::TabFocusReason);
  QTest::keyClick(Control("D"), Qt::Key_Return);
  QCOMPARE(Answer(screen.get(), QMessageBox::Yes), FromWide(kDeleteFunctionQuestion));
  QCOMPARE(Functions(), QStringList());
  QVERIFY(screen->findChild<QPushButton*>(QStringLiteral("Plot"))->isDefault());
}

void PlotterScreenTest::PlotSaysThatABoxIsNoNumber() {
  SetField(QStringLiteral("x"));
  Type(Box("Y min"), QStringLiteral("-"));
  PressKey("Plot");
  QCOMPARE(Answer(screen.get()), QStringLiteral("Please enter a number."));
  QTRY_VERIFY(field->hasFocus());
  QCOMPARE(Box("Y min")->text(), QStringLiteral("-"));
  Type(Box("Y min"), QStringLiteral("10"));
  PressKey("Plot");
  QCOMPARE(Answer(screen.get()),
           QStringLiteral("The maximum value of Y should be bigger than the minimum value of Y."));
  QTRY_VERIFY(field->hasFocus());
}

void PlotterScreenTest::PlotShowsTheFunctionThatFails() {
  screen.reset();
  Write(*store, settings::kFunctionCount, 2);
  Write(*store, settings::kFunction, 0, L"x");
  Write(*store, settings::kFunction, 1, L"12345678");
  Open();
  PressKey("Plot");
  QCOMPARE(Answer(screen.get()), QStringLiteral("12345... : Argument error : Missing variable X"));
  QCOMPARE(List()->currentIndex(), 1);
  QCOMPARE(Field(), QStringLiteral("12345678"));
}

void PlotterScreenTest::MemoryGoesToTheBoxThatHadTheFocus() {
  Write(*store, settings::kMemoryVariable, 0, L"2.5");
  Write(*store, settings::kMemoryVariable, 1, L"1,234.5");
  Write(*store, settings::kMemoryVariable, 2, L"no number");
  const auto recall = [this](int row = 0) {
    PressKey("M");
    auto* const dialog = OpenWindow<MemoryVariableDialog>(screen.get());
    QVERIFY(dialog);
    dialog->findChild<TouchList*>()->setCurrentRow(row);
    Press(dialog, QStringLiteral("Recall"));
    QTRY_VERIFY(!OpenWindow<MemoryVariableDialog>(screen.get()));
  };
  SetField(QStringLiteral("x*"));
  QTest::keyClick(field, Qt::Key_End);
  recall();
  QCOMPARE(Field(), QStringLiteral("x*2.5"));
  QVERIFY(field->hasFocus());

  Box("X max")->setFocus();
  recall();
  QCOMPARE(Box("X max")->text(), QStringLiteral("2.5"));
  QVERIFY(Box("X max")->hasFocus());
  QCOMPARE(Field(), QStringLiteral("x*2.5"));

  PressKey("M");
  Press(OpenWindow<MemoryVariableDialog>(screen.get()), QStringLiteral("Cancel"));
  QCOMPARE(Box("X max")->text(), QStringLiteral("2.5"));

  SetField(QString());
  field->setFocus();
  recall(1);
  recall(2);
  QCOMPARE(Field(), QStringLiteral("1234.50"));
}

void PlotterScreenTest::MemoryThatIsTooLargeIsRefused() {
  Write(*store, settings::kMemoryVariable, 0, L"1e999");
  SetField(QStringLiteral("x*"));
  for (QWidget* const target : {static_cast<QWidget*>(field), Control("X max")}) {
    target->setFocus();
    PressKey("M");
    auto* const memory = OpenWindow<MemoryVariableDialog>(screen.get());
    QVERIFY(memory);
    memory->findChild<TouchList*>()->setCurrentRow(0);
    Press(memory, QStringLiteral("Recall"));
    QCOMPARE(Answer(screen.get()), QStringLiteral("Out of range(overflow or underflow)"));
    QTRY_VERIFY(target->hasFocus());
  }
  QCOMPARE(Field(), QStringLiteral("x*"));
  QCOMPARE(Box("X max")->text(), QStringLiteral("10"));
}

void PlotterScreenTest::ALongNumberIsStoredExactly() {
  const QString exact = QStringLiteral("0.000013118625691512345678901234567890");
  screen.reset();
  Write(*store, settings::kXMax, exact.toStdWString());
  Write(*store, settings::kMemoryVariable, 0, L"1234567890.12345678901234567890");
  Open();
  QVERIFY2(Box("X max")->text().endsWith(QStringLiteral("e-05")), qPrintable(Box("X max")->text()));
  Box("Y max")->setFocus();
  PressKey("M");
  auto* const memory = OpenWindow<MemoryVariableDialog>(screen.get());
  memory->findChild<TouchList*>()->setCurrentRow(0);
  Press(memory, QStringLiteral("Recall"));
  QCOMPARE(FromWide(Read(*store, settings::kYMax)),
           QStringLiteral("1234567890.12345678901234567890"));
  SetField(QStringLiteral("x"));
  PressKey("Plot");
  auto* const view = OpenWindow<GraphViewDialog>(screen.get());
  QVERIFY(view);
  QCOMPARE(view->Graph().Ranges().xMax, exact.toDouble());
  Press(view, QStringLiteral("Close"));
  screen.reset();
  QCOMPARE(FromWide(Read(*store, settings::kXMax)), exact);
}

void PlotterScreenTest::MacroWithoutMacrosOpensTheEditor() {
  PressKey("Mac");
  QCOMPARE(ShownIcon(screen.get()), QMessageBox::Critical);
  QCOMPARE(Answer(screen.get()), QStringLiteral("Not exist saved macro"));
  QTRY_VERIFY(OpenWindow<MacroEditorDialog>(screen.get()));
}

void PlotterScreenTest::MacroInsertsItsCall() {
  Write(*store, settings::kMacroCount, 1);
  Write(*store, settings::kMacroName, 0, L"sq");
  Write(*store, settings::kMacroType, 0, L"TYPE1 : F(X)");
  Write(*store, settings::kMacroFormula, 0, L"x*x");
  SetField(QStringLiteral("x"));
  field->selectAll();
  PressKey("Mac");
  auto* const dialog = OpenWindow<MacroListDialog>(screen.get());
  QVERIFY(dialog);
  Press(dialog, QStringLiteral("OK"));
  QCOMPARE(Field(), QStringLiteral("M:sq(x )"));
  QTRY_VERIFY(field->hasFocus());
}

void PlotterScreenTest::ConfigIsStoredAtOnce() {
  Write(*store, settings::kPrecision, 9);
  Choose(screen.get(), QStringLiteral("File"), QStringLiteral("Config..."));
  auto* const dialog = OpenWindow<DisplayFormattingDialog>(screen.get());
  QVERIFY(dialog);
  QCOMPARE(dialog->displayType, DisplayType::Currency);
  QCOMPARE(dialog->decimalPlaces, 9);
  Press(dialog, QStringLiteral("Fixed Point"));
  Press(dialog, QStringLiteral("OK"));
  QCOMPARE(Read(*store, settings::kDisplayType), 1);
  QCOMPARE(Read(*store, settings::kPrecision), 9);
}

void PlotterScreenTest::CutCopyPaste() {
  SetField(QStringLiteral("x+1"));
  field->selectAll();
  Box("X min")->setFocus();
  const QString edit = QStringLiteral("Edit");
  Choose(screen.get(), edit, QStringLiteral("Cut"));
  QCOMPARE(Field(), QString());
  QVERIFY(field->hasFocus());
  Choose(screen.get(), edit, QStringLiteral("Paste"));
  Choose(screen.get(), edit, QStringLiteral("Paste"));
  QCOMPARE(Field(), QStringLiteral("x+1x+1"));
  QCOMPARE(Box("X min")->text(), QStringLiteral("-10"));
}

void PlotterScreenTest::EverythingIsSavedAtTheEnd() {
  SetField(QStringLiteral("x"));
  PressKey("A");
  Type(Box("X min"), QStringLiteral("-2.50"));
  PressKey("DEG");
  screen.reset();
  QCOMPARE(Read(*store, settings::kFunctionCount), 1);
  QCOMPARE(FromWide(Read(*store, settings::kFunction, 0)), QStringLiteral("x"));
  QCOMPARE(FromWide(Read(*store, settings::kXMin)), QStringLiteral("-2.50"));
  QCOMPARE(Read(*store, settings::kGrapHistoryCount), 1);
  QCOMPARE(Read(*store, settings::kAngleType), 1);
}

void PlotterScreenTest::NothingIsSavedWhileABoxIsNoNumber() {
  Type(Box("X min"), QStringLiteral("abc"));
  SetField(QStringLiteral("x"));
  PressKey("A");
  Type(Box("X max"), QStringLiteral("20"));
  screen.reset();
  QCOMPARE(Read(*store, settings::kFunctionCount), 0);
  QCOMPARE(Read(*store, settings::kGrapHistoryCount), 0);
  QCOMPARE(FromWide(Read(*store, settings::kXMax)), QStringLiteral("10"));
}

void PlotterScreenTest::EveryChangeIsStoredAtOnce() {
  SetField(QStringLiteral("x"));
  PressKey("A");
  QCOMPARE(Read(*store, settings::kFunctionCount), 1);
  QCOMPARE(FromWide(Read(*store, settings::kFunction, 0)), QStringLiteral("x"));
  QCOMPARE(Read(*store, settings::kGrapHistoryCount), 1);
  SetField(QStringLiteral("y"));
  PressKey("A");
  Answer(screen.get());
  QCOMPARE(FromWide(Read(*store, settings::kGrapHistory, 2)), QStringLiteral("y"));
  Type(Box("Y max"), QStringLiteral("2.50"));
  QCOMPARE(FromWide(Read(*store, settings::kYMax)), QStringLiteral("2.50"));
  // As assistive technology sets a text: without a key.
  Box("X max")->setText(QStringLiteral("1e3"));
  QCOMPARE(FromWide(Read(*store, settings::kXMax)), QStringLiteral("1e3"));
  PressKey("D");
  Answer(screen.get(), QMessageBox::Yes);
  QCOMPARE(Read(*store, settings::kFunctionCount), 0);
}

void PlotterScreenTest::ATextThatPlotLeavesOutIsNoticed() {
  auto* const notice = screen->findChild<QLabel*>(QStringLiteral("Notice"));
  QVERIFY(notice);
  SetField(QStringLiteral("x"));
  QVERIFY(!notice->isVisible());
  PressKey("A");
  QVERIFY(!notice->isVisible());
  QTest::keyClicks(field, QStringLiteral("x+1"));
  QVERIFY(notice->isVisible());
  QCOMPARE(notice->text(), QStringLiteral("The field's text is not in the list: A adds it."));
  QVERIFY(notice->y() >= field->geometry().bottom());
  QVERIFY(notice->y() < List()->y());
  PressKey("A");
  QVERIFY(!notice->isVisible());
  List()->setFocus();
  QTest::keyClick(List(), Qt::Key_Up);
  QCOMPARE(Field(), QStringLiteral("x"));
  QVERIFY(!notice->isVisible());
}

void PlotterScreenTest::TheAngleTypeIsOnlyRead() {
  PressKey("DEG");
  QCOMPARE(Read(*store, settings::kAngleType), 1);
  screen.reset();
  QCOMPARE(Read(*store, settings::kAngleType), 1);
}

void PlotterScreenTest::AHostileStoreIsHarmless() {
  screen.reset();
  Write(*store, settings::kFunctionCount, 2147483647);
  Write(*store, settings::kGrapHistoryCount, 2147483647);
  Write(*store, settings::kAngleType, -5);
  for (int i = 0; i < 3; ++i) Write(*store, settings::kFunction, i, std::wstring(100000, L'('));
  Write(*store, settings::kXMin, std::wstring(100000, L'9'));
  Open();
  QCOMPARE(Functions().size(), 3);
  PressKey("Plot");
  QCOMPARE(Answer(screen.get()), QStringLiteral("Please enter a number."));
}

void PlotterScreenTest::TargetsAreLargeEnough() {
  for (const char* name : {"Function", "F(X) =", "A", "D", "X min", "X max", "Y min", "Y max",
                           "Grid", "Line", "Coordinates"}) {
    QVERIFY2(Control(name)->height() >= 30, name);
  }
  for (const Key& key : PlotterKeys()) {
    const auto* const button = screen->findChild<QPushButton*>(FromWide(key.caption));
    if (button->isVisible()) QVERIFY2(button->height() >= 30, qPrintable(button->text()));
  }
}

void PlotterScreenTest::EverythingFitsAtTheSmallestSize() {
  screen->resize(240, 320);
  QTest::qWait(1);
  QCOMPARE(screen->size(), QSize(240, 320));
  QList<QWidget*> shown;
  for (QWidget* control : screen->findChildren<QWidget*>()) {
    const bool isTarget = qobject_cast<QAbstractButton*>(control) ||
                          qobject_cast<QLineEdit*>(control) || qobject_cast<QComboBox*>(control) ||
                          control == field;
    if (isTarget && control->isVisible()) shown << control;
  }
  QVERIFY(shown.size() > 50);
  SetField(QStringLiteral("x"));
  PressKey("A");
  SetField(QStringLiteral("x+1"));
  QTest::qWait(1);
  QCOMPARE(screen->size(), QSize(240, 320));
  QVERIFY2(!field->verticalScrollBar()->isVisible(), "a row has room");
  auto* const notice = screen->findChild<QLabel*>(QStringLiteral("Notice"));
  QVERIFY(notice->isVisible());
  QVERIFY2(notice->height() >= notice->fontMetrics().height(), "the notice has room");
  shown << notice;
  for (const QWidget* control : shown) {
    const QRect place(control->mapTo(screen.get(), QPoint()), control->size());
    QVERIFY2(screen->rect().contains(place), qPrintable(control->objectName()));
    for (const QWidget* other : shown) {
      if (other == control) continue;
      const QRect otherPlace(other->mapTo(screen.get(), QPoint()), other->size());
      QVERIFY2(!place.intersects(otherPlace),
               qPrintable(control->objectName() + u' ' + other->objectName()));
    }
  }
}

void PlotterScreenTest::TabReachesEverythingAsRead() {
  QStringList reached;
  field->setFocus();
  for (int n = 0; n < 100; ++n) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    const QString name = QApplication::focusWidget()->objectName();
    if (QApplication::focusWidget() == field) break;
    reached << name;
  }
  const QStringList start{
      QStringLiteral("F(X) ="), QStringLiteral("A"),     QStringLiteral("X min"),
      QStringLiteral("X max"),  QStringLiteral("Y min"), QStringLiteral("Y max"),
      QStringLiteral("Grid"),   QStringLiteral("Line"),  QStringLiteral("Coordinates"),
      QStringLiteral("BS"),     QStringLiteral("DEL")};
  QCOMPARE(reached.mid(0, start.size()), start);
  QCOMPARE(reached.last(), QStringLiteral("Plot"));
}

}  // namespace vexa

QTEST_MAIN(vexa::PlotterScreenTest)
#include "PlotterScreenTest.moc"
