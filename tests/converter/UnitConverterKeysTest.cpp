#include <QApplication>
#include <QClipboard>
#include <QSignalSpy>

#include "support/Boxes.h"
#include "support/ConverterOnScreen.h"
#include "support/ScreenMain.h"
#include "toolkit/KeyboardOnFocus.h"

namespace vexa {
namespace {

constexpr int kLength = 6;
constexpr int kTemperature = 11;
constexpr int kUserDefine = 14;
constexpr ConverterPositions kKilometersToMeters{kLength, 14, 16};
constexpr int kFingerHeight = 30;
/// The smallest screen less the window's title bar.
constexpr QSize kSmallestRoom(240, 292);

QString ClipboardText() {
  return QGuiApplication::clipboard()->text();
}

}  // namespace

/// The converter by keyboard, menus and finger.
class UnitConverterKeysTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup() { delete screen.dialog; }
  void TypingFindsUnits_data();
  void TypingFindsUnits();
  void TypingFindsACategoryByItsName();
  void TypingFindsUnitsInTheOpenList();
  void AfterAChoiceInTheOpenListTheFieldHasTheFocus_data();
  void AfterAChoiceInTheOpenListTheFieldHasTheFocus();
  void TheWheelTurnsFocusedListsOnly();
  void TabFollowsTheLayout_data();
  void TabFollowsTheLayout();
  void EnterIsOk_data();
  void EnterIsOk();
  void AFocusedButtonTakesReturn();
  void EscapeIsCancel();
  void EditCommandsActOnTheInputField();
  void ShortcutsEditTheInputField();
  void TheResultCanBeCopied();
  void EditUnitConvertOpensTheEditor();
  void TheFieldRaisesTheKeyboard();
  void EveryControlHasAName();
  void TargetsAreLargeEnough();
  void FitsTheSmallestScreen_data();
  void FitsTheSmallestScreen();

 private:
  test::ConverterOnScreen screen;
};

void UnitConverterKeysTest::init() {
  screen.store = MemorySettingsStore();
}

void UnitConverterKeysTest::TypingFindsUnits_data() {
  QTest::addColumn<QString>("typed");
  QTest::addColumn<QString>("unit");
  QTest::newRow("beginning") << QStringLiteral("ya") << QStringLiteral("Yards");
  QTest::newRow("capitals") << QStringLiteral("MICROM") << QStringLiteral("Micrometers");
  QTest::newRow("two words") << QStringLiteral("light y") << QStringLiteral("Light years");
  QTest::newRow("a later word") << QStringLiteral("years") << QStringLiteral("Light years");
  QTest::newRow("no unit") << QStringLiteral("qq") << QStringLiteral("Kilometers");
}

void UnitConverterKeysTest::TypingFindsUnits() {
  QFETCH(QString, typed);
  QFETCH(QString, unit);
  screen.Open(kKilometersToMeters);
  screen.inputUnit->setFocus();
  QTest::keyClicks(screen.inputUnit, typed);
  QCOMPARE(screen.inputUnit->currentText(), unit);
  QCOMPARE(screen.dialog->Converter().Positions().input, screen.inputUnit->currentIndex());
}

void UnitConverterKeysTest::TypingFindsACategoryByItsName() {
  screen.Open({});
  QTest::keyClicks(screen.category, QStringLiteral("temp"));
  QCOMPARE(screen.category->currentText(), QStringLiteral("12. Temperature"));
  QVERIFY(screen.block->isVisible());
  QTest::qWait(QApplication::keyboardInputInterval() + 50);
  QTest::keyClicks(screen.category, QStringLiteral("07"));
  QCOMPARE(screen.category->currentText(), QStringLiteral("07. Length"));
}

void UnitConverterKeysTest::TypingFindsUnitsInTheOpenList() {
  screen.Open(kKilometersToMeters, L"1");
  QTest::mouseClick(screen.outputUnit, Qt::LeftButton);
  QTRY_VERIFY(screen.outputUnit->view()->isVisible());
  QTest::keyClicks(screen.outputUnit->view(), QStringLiteral("inch"));
  QTest::keyClick(screen.outputUnit->view(), Qt::Key_Return);
  QCOMPARE(screen.outputUnit->currentText(), QStringLiteral("Inches"));
  QCOMPARE(screen.line->toPlainText(), QStringLiteral("39,370.0787401575"));
}

void UnitConverterKeysTest::AfterAChoiceInTheOpenListTheFieldHasTheFocus_data() {
  QTest::addColumn<QString>("name");
  QTest::addColumn<int>("row");
  for (const char* name : {"Unit Converter", "Input unit", "Output unit"}) {
    QTest::addRow("%s", name) << QString(name) << 3;
  }
  QTest::newRow("the same again") << QStringLiteral("Input unit") << kKilometersToMeters.input;
}

void UnitConverterKeysTest::AfterAChoiceInTheOpenListTheFieldHasTheFocus() {
  QFETCH(QString, name);
  QFETCH(int, row);
  screen.Open(kKilometersToMeters, L"12");
  auto* const list = screen.dialog->findChild<TouchComboBox*>(name);
  test::ChooseRow(list, row);
  QTRY_VERIFY(screen.input->hasFocus());
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("07"));
  QCOMPARE(list->currentIndex(), row);
  QCOMPARE(screen.input->text(), QStringLiteral("07"));
  // A list that is left without a choice, or chosen from by keys while closed, keeps the focus.
  list->setFocus();
  list->showPopup();
  QTRY_VERIFY(list->view()->isVisible());
  QTest::keyClick(list->view(), Qt::Key_Escape);
  QTRY_VERIFY(!list->view()->isVisible());
  QVERIFY(list->hasFocus());
  QTest::keyClick(list, Qt::Key_Down);
  QVERIFY(list->hasFocus());
}

void UnitConverterKeysTest::TheWheelTurnsFocusedListsOnly() {
  screen.Open(kKilometersToMeters, L"12");
  const auto turn = [](QWidget* list) {
    const QPointF place = list->rect().center();
    QWheelEvent wheel(place, list->mapToGlobal(place), {}, {0, -120}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(list, &wheel);
  };
  for (TouchComboBox* const list : {screen.category, screen.inputUnit, screen.outputUnit}) {
    const int before = list->currentIndex();
    turn(list);
    QCOMPARE(list->currentIndex(), before);
    QVERIFY(screen.input->hasFocus());
  }
  screen.inputUnit->setFocus();
  turn(screen.inputUnit);
  QCOMPARE(screen.inputUnit->currentIndex(), kKilometersToMeters.input + 1);
  QVERIFY(screen.inputUnit->hasFocus());
}

void UnitConverterKeysTest::TabFollowsTheLayout_data() {
  QTest::addColumn<int>("category");
  QTest::addColumn<QStringList>("names");
  const QStringList start{QStringLiteral("Input value"), QStringLiteral("Input unit")};
  const QStringList end{QStringLiteral("Unit Converter"), QStringLiteral("OK"),
                        QStringLiteral("Cancel"), QStringLiteral("MEM"),
                        QStringLiteral("Input value")};
  QTest::newRow("factors") << kLength
                           << start +
                                  QStringList{QStringLiteral("Output value"),
                                              QStringLiteral("Output unit")} +
                                  end;
  QTest::newRow("single list") << kTemperature
                               << start + QStringList{QStringLiteral("Output block")} + end;
}

void UnitConverterKeysTest::TabFollowsTheLayout() {
  QFETCH(int, category);
  QFETCH(QStringList, names);
  screen.Open({category, 0, 0});
  QStringList reached{QApplication::focusWidget()->objectName()};
  while (reached.size() < names.size()) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    reached += QApplication::focusWidget()->objectName();
  }
  QCOMPARE(reached, names);
}

void UnitConverterKeysTest::EnterIsOk_data() {
  QTest::addColumn<QString>("focus");
  for (const char* name : {"Input value", "Input unit", "Output value", "Unit Converter", "OK"}) {
    QTest::newRow(name) << QString::fromLatin1(name);
  }
}

void UnitConverterKeysTest::EnterIsOk() {
  QFETCH(QString, focus);
  screen.Open(kKilometersToMeters);
  QVERIFY(screen.Find<QPushButton>("OK")->isDefault());
  auto* const widget = screen.dialog->findChild<QWidget*>(focus);
  widget->setFocus();
  QSignalSpy accepted(screen.dialog, &QDialog::accepted);
  QTest::keyClick(widget, Qt::Key_Return);
  QCOMPARE(accepted.count(), 1);
}

void UnitConverterKeysTest::AFocusedButtonTakesReturn() {
  screen.Open(kKilometersToMeters);
  auto* const memory = screen.Find<QPushButton>("MEM");
  memory->setFocus();
  QTest::keyClick(memory, Qt::Key_Return);
  QVERIFY(screen.MemoryMenu());
  QTest::keyClick(screen.MemoryMenu(), Qt::Key_Escape);
  auto* const cancel = screen.Find<QPushButton>("Cancel");
  cancel->setFocus();
  QSignalSpy rejected(screen.dialog, &QDialog::rejected);
  QTest::keyClick(cancel, Qt::Key_Enter);
  QCOMPARE(rejected.count(), 1);
}

void UnitConverterKeysTest::EscapeIsCancel() {
  screen.Open(kKilometersToMeters);
  QSignalSpy rejected(screen.dialog, &QDialog::rejected);
  QTest::keyClick(screen.input, Qt::Key_Escape);
  QCOMPARE(rejected.count(), 1);
}

void UnitConverterKeysTest::EditCommandsActOnTheInputField() {
  screen.Open(kKilometersToMeters, L"12.5");
  screen.outputUnit->setFocus();
  screen.input->setSelection(0, 2);
  screen.Command("Edit", "Copy")->trigger();
  QCOMPARE(ClipboardText(), QStringLiteral("12"));
  screen.input->selectAll();
  screen.Command("Edit", "Cut")->trigger();
  QCOMPARE(ClipboardText(), QStringLiteral("12.5"));
  QVERIFY(screen.input->text().isEmpty());
  screen.Command("Edit", "Paste")->trigger();
  QCOMPARE(screen.input->text(), QStringLiteral("12.5"));
  QCOMPARE(screen.line->toPlainText(), QStringLiteral("12,500"));
}

void UnitConverterKeysTest::ShortcutsEditTheInputField() {
  screen.Open(kKilometersToMeters, L"12.5");
  QTest::keyClick(screen.input, Qt::Key_X, Qt::ControlModifier);
  QCOMPARE(ClipboardText(), QStringLiteral("12.5"));
  QTest::keyClick(screen.input, Qt::Key_V, Qt::ControlModifier);
  QTest::keyClick(screen.input, Qt::Key_V, Qt::ControlModifier);
  QCOMPARE(screen.input->text(), QStringLiteral("12.512.5"));
}

void UnitConverterKeysTest::TheResultCanBeCopied() {
  screen.Open(kKilometersToMeters, L"1.5");
  for (ResultLine* const output : {screen.line, screen.block}) {
    if (output == screen.block) test::ChooseRow(screen.category, kTemperature);
    output->setFocus();
    QTest::keyClick(output, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(output, Qt::Key_C, Qt::ControlModifier);
    // A number as an expression holds it.
    const QString plain = QStringLiteral("1500");
    QCOMPARE(ClipboardText(), output == screen.line ? plain : output->toPlainText());
  }
}

void UnitConverterKeysTest::EditUnitConvertOpensTheEditor() {
  screen.Open(kKilometersToMeters);
  screen.Command("File", "Edit Unit Convert")->trigger();
  QDialog* const editor = test::OpenDialog(QStringLiteral("UserConversions"));
  QVERIFY(editor);
  test::AddConversion(screen.store, L"Inch -> Centimeter", L"2.54");
  QTest::keyClick(editor, Qt::Key_Escape);
  QTRY_VERIFY(screen.input->hasFocus());
  QCOMPARE(screen.line->toPlainText(), QStringLiteral("1,000"));
  test::ChooseRow(screen.category, kUserDefine);
  QCOMPARE(screen.block->toPlainText(), QStringLiteral("1 Inch\n=\n2.54 Centimeter"));
}

void UnitConverterKeysTest::TheFieldRaisesTheKeyboard() {
  screen.Open(kKilometersToMeters);
  screen.category->setFocus();
  QSignalSpy asked(screen.input->findChild<KeyboardOnFocus*>(), &KeyboardOnFocus::Asked);
  screen.ChooseMemory("Memory Recall");
  QCOMPARE(asked.count(), 0);
  screen.input->setFocus();
  QCOMPARE(asked.count(), 1);
  QCOMPARE(asked.last().first().toBool(), true);
}

void UnitConverterKeysTest::EveryControlHasAName() {
  screen.Open(kKilometersToMeters);
  int controls = 0;
  for (const QWidget* const widget : screen.dialog->findChildren<QWidget*>()) {
    if (!widget->isVisible() || !(widget->focusPolicy() & Qt::TabFocus)) continue;
    QVERIFY(!widget->objectName().isEmpty());
    QVERIFY2(!widget->accessibleName().isEmpty(), qPrintable(widget->objectName()));
    ++controls;
  }
  QCOMPARE(controls, 8);
}

void UnitConverterKeysTest::TargetsAreLargeEnough() {
  screen.Open(kKilometersToMeters);
  for (const char* name : {"Unit Converter", "OK", "Cancel", "MEM", "Input value", "Input unit",
                           "Output value", "Output unit"}) {
    QVERIFY2(screen.Find<QWidget>(name)->height() >= kFingerHeight, name);
  }
  screen.outputUnit->showPopup();
  QTRY_VERIFY(screen.outputUnit->view()->isVisible());
  QAbstractItemView* const list = screen.outputUnit->view();
  QVERIFY(list->visualRect(list->currentIndex()).height() >= kFingerHeight);
  screen.outputUnit->hidePopup();
}

void UnitConverterKeysTest::FitsTheSmallestScreen_data() {
  QTest::addColumn<int>("category");
  QTest::newRow("factors") << kLength;
  QTest::newRow("single list") << kTemperature;
}

void UnitConverterKeysTest::FitsTheSmallestScreen() {
  QFETCH(int, category);
  screen.Open({category, 0, 0});
  screen.dialog->resize(kSmallestRoom);
  QCOMPARE(screen.dialog->size(), kSmallestRoom);
  for (const QWidget* const widget : screen.dialog->findChildren<QWidget*>()) {
    if (!widget->isVisible() || widget->isWindow()) continue;
    const QRect place(widget->mapTo(screen.dialog, QPoint()), widget->size());
    QVERIFY2(screen.dialog->rect().contains(place), qPrintable(widget->objectName()));
  }
}

}  // namespace vexa

VEXA_SCREEN_MAIN(vexa::UnitConverterKeysTest)
#include "UnitConverterKeysTest.moc"
