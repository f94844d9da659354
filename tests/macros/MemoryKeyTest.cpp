// "MEM" on the calculator: its menu, the register, and the dialog of the variables.

#include "display/SettingsLayout.h"
#include "support/Boxes.h"
#include "support/CalculatorOnScreen.h"
#include "support/ScreenMain.h"
#include "toolkit/TouchList.h"

namespace vexa {

using test::CalculatorOnScreen;

class MemoryKeyTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup() { calculator.reset(); }
  void TheMenuFollowsTheLastResult();
  void TheRegister();
  void TheRegisterIsRecalledInTheBase();
  void TheRegisterIsForgottenWithTheScreen();
  void DismissingTheMenuChangesNothing();
  void AFreshStoreListsZeros();
  void StoringAndRecalling();
  void ValuesAreKeptInDecimal();
  void ASlotMustBeSelected_data();
  void ASlotMustBeSelected();
  void ClearAllAsksAndCannotBeCancelled();
  void DismissingTheDialogChangesNothing_data();
  void DismissingTheDialogChangesNothing();
  void ADoubleTapRecalls();
  void TextsThatAreNoNumbersRecallAsZero_data();
  void TextsThatAreNoNumbersRecallAsZero();
  void WhatCannotBeShownIsTold_data();
  void WhatCannotBeShownIsTold();
  void AnOverflowedRegisterLeavesTheMenu();
  void ARecallWithoutRoomIsTold();

 private:
  void Choose(const char* command) {
    calculator->Press("MEM");
    calculator->ChooseFromPopup("Memory", command);
  }
  QDialog* OpenVariables(const char* command) {
    Choose(command);
    return test::OpenDialog(QStringLiteral("MemoryVariable"));
  }
  static void Tap(const QDialog* dialog, const char* caption) {
    QTest::mouseClick(dialog->findChild<QPushButton*>(QString::fromLatin1(caption)),
                      Qt::LeftButton);
  }
  static TouchList* ListOf(const QDialog* dialog) { return dialog->findChild<TouchList*>(); }
  static QPoint PlaceOf(const TouchList* list, int row) {
    return list->visualItemRect(list->item(row)).center();
  }
  void UseVariable(const char* command, int row, const char* button) {
    QDialog* const dialog = OpenVariables(command);
    QVERIFY(dialog);
    TouchList* const list = ListOf(dialog);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, PlaceOf(list, row));
    Tap(dialog, button);
    QVERIFY(!test::OpenDialog(QStringLiteral("MemoryVariable")));
    QVERIFY(calculator->LineHasFocus());
  }
  void StoreIn(int row) { UseVariable("Store MemVar", row, "Store"); }
  void RecallFrom(int row) { UseVariable("ReCall MemVar", row, "Recall"); }
  QString Stored(int slot) const {
    return QString::fromStdWString(Read(calculator->store, settings::kMemoryVariable, slot));
  }

  std::unique_ptr<CalculatorOnScreen> calculator;
};

void MemoryKeyTest::init() {
  calculator = std::make_unique<CalculatorOnScreen>();
  calculator->Open();
}

void MemoryKeyTest::TheMenuFollowsTheLastResult() {
  const QString all =
      QStringLiteral("Memory +|Memory -|Memory Recall|Memory Clear|-|ReCall MemVar|Store MemVar");
  const QString afterAFailure = QStringLiteral("Memory Recall|Memory Clear|-|ReCall MemVar");
  const auto menu = [this] {
    calculator->Press("MEM");
    const QString texts = calculator->PopupTexts("Memory").join(u'|');
    calculator->ClosePopup("Memory");
    return texts;
  };
  QCOMPARE(menu(), all);
  calculator->Calculate("1+");
  QCOMPARE(menu(), afterAFailure);
  calculator->Calculate("1+1");
  QCOMPARE(menu(), all);
  calculator->Calculate("");
  QCOMPARE(menu(), afterAFailure);
}

void MemoryKeyTest::TheRegister() {
  calculator->Calculate("1234.5");
  Choose("Memory +");
  QVERIFY(calculator->LineHasFocus());
  Choose("Memory +");
  calculator->Calculate("0.5");
  Choose("Memory -");
  calculator->Write("1+2");
  calculator->Select(2, 3);
  Choose("Memory Recall");
  // In place of the selection, without thousands separators.
  QCOMPARE(calculator->Marked(), QStringLiteral("1+2468.5|"));
  QVERIFY(calculator->LineHasFocus());
  Choose("Memory Clear");
  calculator->Write("");
  Choose("Memory Recall");
  QCOMPARE(calculator->Marked(), QStringLiteral("0|"));
}

void MemoryKeyTest::TheRegisterIsRecalledInTheBase() {
  calculator->Calculate("255.9");
  Choose("Memory +");
  calculator->ChooseBase("Hexadecimal");
  calculator->Write("");
  Choose("Memory Recall");
  QCOMPARE(calculator->Marked(), QStringLiteral("FF|"));
  calculator->ChooseBase("Decimal");
  calculator->Write("");
  Choose("Memory Recall");
  QCOMPARE(calculator->Marked(), QStringLiteral("255.9|"));
}

void MemoryKeyTest::TheRegisterIsForgottenWithTheScreen() {
  calculator->Calculate("7");
  Choose("Memory +");
  calculator->Open();
  Choose("Memory Recall");
  QCOMPARE(calculator->Marked(), QStringLiteral("0|"));
}

void MemoryKeyTest::DismissingTheMenuChangesNothing() {
  calculator->Write("12");
  calculator->Press("MEM");
  calculator->ClosePopup("Memory");
  QCOMPARE(calculator->Marked(), QStringLiteral("12|"));
  QVERIFY(calculator->LineHasFocus());
}

void MemoryKeyTest::AFreshStoreListsZeros() {
  QDialog* const dialog = OpenVariables("ReCall MemVar");
  QVERIFY(dialog && dialog->isModal());
  TouchList* const list = ListOf(dialog);
  QCOMPARE(list->accessibleName(), QStringLiteral("Memory Variable"));
  QCOMPARE(list->count(), 20);
  QCOMPARE(list->item(0)->text(), QStringLiteral("Mem01 = 0"));
  QCOMPARE(list->item(8)->text(), QStringLiteral("Mem09 = 0"));
  QCOMPARE(list->item(9)->text(), QStringLiteral("Mem10 = 0"));
  QCOMPARE(list->item(19)->text(), QStringLiteral("Mem20 = 0"));
  QCOMPARE(list->SelectedRow(), -1);
  Tap(dialog, "Cancel");
}

void MemoryKeyTest::StoringAndRecalling() {
  calculator->Calculate("2.5");
  StoreIn(2);
  QCOMPARE(Stored(2), QStringLiteral("2.5"));
  calculator->Write("12+34");
  calculator->Select(0, 2);
  RecallFrom(2);
  QCOMPARE(calculator->Marked(), QStringLiteral("2.5|+34"));
  RecallFrom(3);
  QCOMPARE(calculator->Marked(), QStringLiteral("2.50|+34"));
}

void MemoryKeyTest::ValuesAreKeptInDecimal() {
  // The display groups at thousands; what is kept does not.
  calculator->Calculate("1234.5");
  QCOMPARE(calculator->Result(), QStringLiteral("1,234.5"));
  StoreIn(0);
  QCOMPARE(Stored(0), QStringLiteral("1234.5"));
  calculator->ChooseBase("Hexadecimal");
  calculator->Write("");
  RecallFrom(0);
  QCOMPARE(calculator->Marked(), QStringLiteral("4D2|"));
  calculator->Press("=");
  StoreIn(1);
  QCOMPARE(Stored(1), QStringLiteral("1234"));
  QCOMPARE(calculator->Result(), QStringLiteral("4D2"));
}

void MemoryKeyTest::ASlotMustBeSelected_data() {
  QTest::addColumn<QByteArray>("command");
  QTest::addColumn<QByteArray>("button");
  QTest::newRow("Store") << QByteArray("Store MemVar") << QByteArray("Store");
  QTest::newRow("Recall") << QByteArray("ReCall MemVar") << QByteArray("Recall");
}

void MemoryKeyTest::ASlotMustBeSelected() {
  QFETCH(QByteArray, command);
  QFETCH(QByteArray, button);
  calculator->Calculate("7");
  QDialog* const dialog = OpenVariables(command);
  QVERIFY(dialog);
  dialog->activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(dialog));
  TouchList* const list = ListOf(dialog);
  // The focus alone selects nothing.
  QTRY_VERIFY(list->hasFocus());
  Tap(dialog, button);
  QCOMPARE(test::ShownBox(), test::Error("Please select a memory variable"));
  test::AnswerBox();
  QVERIFY(dialog->isVisible());
  QCOMPARE(dialog->focusWidget(), list);
  // Enter runs the same button.
  QTRY_VERIFY(list->hasFocus());
  QTest::keyClick(list, Qt::Key_Return);
  QCOMPARE(test::ShownBox(), test::Error("Please select a memory variable"));
  test::AnswerBox();
  Tap(dialog, "Cancel");
  QCOMPARE(Stored(0), QStringLiteral("0"));
  QCOMPARE(calculator->edit->toPlainText(), QStringLiteral("7"));
}

void MemoryKeyTest::ClearAllAsksAndCannotBeCancelled() {
  for (int i = 0; i < 20; ++i) Write(calculator->store, settings::kMemoryVariable, i, L"7");
  QDialog* const dialog = OpenVariables("ReCall MemVar");
  QVERIFY(dialog);
  TouchList* const list = ListOf(dialog);
  list->SelectRow(4);
  const auto question = test::Question("Are you sure you want to clear all variable?");
  Tap(dialog, "Clear All");
  QCOMPARE(test::ShownBox(), question);
  test::AnswerBox(QMessageBox::No);
  QCOMPARE(list->item(19)->text(), QStringLiteral("Mem20 = 7"));
  QCOMPARE(Stored(19), QStringLiteral("7"));
  Tap(dialog, "Clear All");
  test::AnswerBox(QMessageBox::Yes);
  for (int i = 0; i < 20; ++i) {
    QCOMPARE(Stored(i), QStringLiteral("0"));
    QVERIFY(list->item(i)->text().endsWith(QStringLiteral(" = 0")));
  }
  QCOMPARE(list->item(19)->text(), QStringLiteral("Mem20 = 0"));
  QCOMPARE(list->SelectedRow(), 4);
  Tap(dialog, "Cancel");
  QCOMPARE(Stored(0), QStringLiteral("0"));
  QVERIFY(calculator->LineHasFocus());
}

void MemoryKeyTest::DismissingTheDialogChangesNothing_data() {
  QTest::addColumn<QByteArray>("command");
  QTest::addColumn<bool>("byEscape");
  for (const char* command : {"Store MemVar", "ReCall MemVar"}) {
    QTest::addRow("%s, Cancel", command) << QByteArray(command) << false;
    QTest::addRow("%s, Escape", command) << QByteArray(command) << true;
  }
}

void MemoryKeyTest::DismissingTheDialogChangesNothing() {
  QFETCH(QByteArray, command);
  QFETCH(bool, byEscape);
  calculator->Calculate("7");
  QDialog* const dialog = OpenVariables(command);
  QVERIFY(dialog);
  ListOf(dialog)->SelectRow(3);
  if (byEscape) {
    QTest::keyClick(ListOf(dialog), Qt::Key_Escape);
  } else {
    Tap(dialog, "Cancel");
  }
  QVERIFY(!test::OpenDialog(QStringLiteral("MemoryVariable")));
  QCOMPARE(Stored(3), QStringLiteral("0"));
  QCOMPARE(calculator->edit->toPlainText(), QStringLiteral("7"));
  QVERIFY(calculator->LineHasFocus());
}

void MemoryKeyTest::ADoubleTapRecalls() {
  Write(calculator->store, settings::kMemoryVariable, 1, L"12.5");
  QDialog* const dialog = OpenVariables("ReCall MemVar");
  QVERIFY(dialog);
  TouchList* const list = ListOf(dialog);
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, PlaceOf(list, 1));
  QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, PlaceOf(list, 1));
  QVERIFY(!test::OpenDialog(QStringLiteral("MemoryVariable")));
  QCOMPARE(calculator->Marked(), QStringLiteral("12.5|"));
}

void MemoryKeyTest::TextsThatAreNoNumbersRecallAsZero_data() {
  QTest::addColumn<QString>("text");
  for (const char* text : {"", "hello", "inf", "-nan", "+-1", ",5"}) {
    QTest::newRow(text) << QString::fromLatin1(text);
  }
}

void MemoryKeyTest::TextsThatAreNoNumbersRecallAsZero() {
  QFETCH(QString, text);
  Write(calculator->store, settings::kMemoryVariable, 0, text.toStdWString());
  RecallFrom(0);
  QCOMPARE(calculator->Marked(), QStringLiteral("0|"));
  calculator->ChooseBase("Hexadecimal");
  calculator->Write("");
  RecallFrom(0);
  QCOMPARE(calculator->Marked(), QStringLiteral("0|"));
}

void MemoryKeyTest::WhatCannotBeShownIsTold_data() {
  QTest::addColumn<QString>("text");
  for (const char* text : {"1e400", "1.798e+308", "-1e999", " 1e400"}) {
    QTest::newRow(text) << QString::fromLatin1(text);
  }
}

void MemoryKeyTest::WhatCannotBeShownIsTold() {
  QFETCH(QString, text);
  Write(calculator->store, settings::kMemoryVariable, 0, text.toStdWString());
  for (const char* base : {"Decimal", "Hexadecimal"}) {
    calculator->ChooseBase(base);
    calculator->Write("");
    RecallFrom(0);
    QCOMPARE(calculator->Marked(), QStringLiteral("Out of range(overflow or underflow)|"));
  }
}

void MemoryKeyTest::AnOverflowedRegisterLeavesTheMenu() {
  calculator->Calculate("1e308");
  Choose("Memory +");
  Choose("Memory +");
  calculator->Press("MEM");
  const QStringList menu = calculator->PopupTexts("Memory");
  QCOMPARE(menu.size(), qsizetype{7});
  calculator->ClosePopup("Memory");
  calculator->Write("");
  Choose("Memory Recall");
  QCOMPARE(calculator->Marked(), QStringLiteral("Out of range(overflow or underflow)|"));
  calculator->Press("MEM");
  QCOMPARE(calculator->PopupTexts("Memory"), menu);
  calculator->ClosePopup("Memory");
}

void MemoryKeyTest::ARecallWithoutRoomIsTold() {
  calculator->Calculate("1234.5");
  Choose("Memory +");
  const QString full(10000, u'1');
  calculator->edit->setPlainText(full);
  Choose("Memory Recall");
  QCOMPARE(test::ShownBox(), test::Error("Expression exceeded length limit."));
  test::AnswerBox();
  QCOMPARE(calculator->edit->toPlainText(), full);
  QVERIFY(calculator->LineHasFocus());
}

}  // namespace vexa

VEXA_SCREEN_MAIN(vexa::MemoryKeyTest)
#include "MemoryKeyTest.moc"
