#include <QListWidget>
#include <limits>

#include "display/SettingsLayout.h"
#include "macros/MemoryVariables.h"
#include "support/Boxes.h"
#include "support/ConverterOnScreen.h"
#include "support/ScreenMain.h"

namespace vexa {
namespace {

constexpr ConverterPositions kKilometersToMeters{6, 14, 16};

}  // namespace

/// The converter's "MEM" menu: its entries by state, and what each does.
class UnitConverterMemoryTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup() { delete screen.dialog; }
  void AllEntriesAreShownWithAResult();
  void OutOfRangeLeavesTheEntriesThatNeedNoResult();
  void TheMenuOpensAtItsButton();
  void PlusMinusAndClear();
  void RecallPutsTheMemoryIntoTheField();
  void AnOverflowedMemoryIsNoNumber();
  void RecallMemVarPutsTheVariableIntoTheField_data();
  void RecallMemVarPutsTheVariableIntoTheField();
  void RecallMemVarNeedsASelection();
  void RecallMemVarCancelledChangesNothing();
  void StoreMemVarStoresTheResult();
  void StoreMemVarCancelledStoresNothing();
  void DismissedItChangesNothing();

 private:
  /// Picks `row` in the open memory-variable dialog and presses its confirming button.
  void Confirm(const char* caption, int row) const;
  QString Variable(int index) const {
    return FromWide(Read(screen.store, settings::kMemoryVariable, index));
  }

  test::ConverterOnScreen screen;
};

void UnitConverterMemoryTest::init() {
  screen.store = MemorySettingsStore();
}

void UnitConverterMemoryTest::Confirm(const char* caption, int row) const {
  QDialog* const dialog = test::OpenDialog(QStringLiteral("MemoryVariable"));
  QVERIFY(dialog);
  dialog->findChild<QListWidget*>()->setCurrentRow(row);
  QTest::mouseClick(dialog->findChild<QPushButton*>(QString::fromLatin1(caption)), Qt::LeftButton);
}

void UnitConverterMemoryTest::AllEntriesAreShownWithAResult() {
  screen.Open(kKilometersToMeters);
  QCOMPARE(screen.OpenMemoryMenu(),
           (QStringList{QStringLiteral("Memory +"), QStringLiteral("Memory -"),
                        QStringLiteral("Memory Recall"), QStringLiteral("Memory Clear"),
                        QStringLiteral("-"), QStringLiteral("ReCall MemVar"),
                        QStringLiteral("Store MemVar")}));
}

void UnitConverterMemoryTest::OutOfRangeLeavesTheEntriesThatNeedNoResult() {
  screen.Open(kKilometersToMeters, L"1e307");
  QCOMPARE(screen.OpenMemoryMenu(),
           (QStringList{QStringLiteral("Memory Recall"), QStringLiteral("Memory Clear"),
                        QStringLiteral("-"), QStringLiteral("ReCall MemVar")}));
  screen.MemoryMenu()->close();
  screen.Type("1");
  QCOMPARE(screen.OpenMemoryMenu().size(), 7);
}

void UnitConverterMemoryTest::TheMenuOpensAtItsButton() {
  screen.Open(kKilometersToMeters);
  screen.dialog->move(100, 50);
  screen.OpenMemoryMenu();
  const auto* const button = screen.Find<QPushButton>("MEM");
  const QRect menu = screen.MemoryMenu()->geometry();
  QVERIFY(qAbs(menu.right() - button->mapToGlobal(button->rect().bottomRight()).x()) < 10);
  QVERIFY(qAbs(menu.top() - button->mapToGlobal(button->rect().bottomRight()).y()) < 10);
  for (QAction* const action : screen.MemoryMenu()->actions()) {
    if (!action->isSeparator()) QVERIFY(screen.MemoryMenu()->actionGeometry(action).height() >= 30);
  }
}

void UnitConverterMemoryTest::PlusMinusAndClear() {
  screen.Open(kKilometersToMeters, L"1.5", 100.0);
  const UnitConverter& converter = screen.dialog->Converter();
  screen.ChooseMemory("Memory +");
  QCOMPARE(converter.Memory(), 1600.0);
  screen.Type("2");
  screen.ChooseMemory("Memory -");
  QCOMPARE(converter.Memory(), -400.0);
  screen.ChooseMemory("Memory Clear");
  QCOMPARE(converter.Memory(), 0.0);
  QCOMPARE(screen.input->text(), QStringLiteral("2"));
  QCOMPARE(screen.line->toPlainText(), QStringLiteral("2,000"));
}

void UnitConverterMemoryTest::RecallPutsTheMemoryIntoTheField() {
  screen.Open(kKilometersToMeters, L"1", 1234567.5);
  screen.ChooseMemory("Memory Recall");
  QCOMPARE(screen.input->text(), QStringLiteral("1234567.5"));
  QCOMPARE(screen.line->toPlainText(), QStringLiteral("1,234,567,500"));
  QCOMPARE(screen.dialog->Converter().Memory(), 1234567.5);
}

void UnitConverterMemoryTest::AnOverflowedMemoryIsNoNumber() {
  screen.Open(kKilometersToMeters, L"1", std::numeric_limits<double>::infinity());
  screen.ChooseMemory("Memory Recall");
  QCOMPARE(screen.notice->text(), QStringLiteral("Please enter a number."));
  QCOMPARE(screen.line->toPlainText(), QStringLiteral("1,000"));
}

void UnitConverterMemoryTest::RecallMemVarPutsTheVariableIntoTheField_data() {
  QTest::addColumn<QString>("stored");
  QTest::addColumn<QString>("field");
  QTest::addColumn<QString>("result");
  QTest::newRow("number") << QStringLiteral("2.5") << QStringLiteral("2.5")
                          << QStringLiteral("2,500");
  QTest::newRow("grouped") << QStringLiteral("1,500") << QStringLiteral("1,500")
                           << QStringLiteral("1,500,000");
  QTest::newRow("exponent") << QStringLiteral("1e15") << QStringLiteral("1.000000000000e+015")
                            << QStringLiteral("1.000000000000e+018");
  QTest::newRow("no number") << QStringLiteral("abc") << QStringLiteral("0") << QStringLiteral("0");
}

void UnitConverterMemoryTest::RecallMemVarPutsTheVariableIntoTheField() {
  QFETCH(QString, stored);
  QFETCH(QString, field);
  QFETCH(QString, result);
  Write(screen.store, settings::kMemoryVariable, 19, stored.toStdWString());
  screen.Open(kKilometersToMeters, L"7");
  screen.ChooseMemory("ReCall MemVar");
  Confirm("Recall", 19);
  QVERIFY(!test::OpenDialog(QStringLiteral("MemoryVariable")));
  QCOMPARE(screen.input->text(), field);
  QCOMPARE(screen.line->toPlainText(), result);
  QTRY_VERIFY(screen.input->hasFocus());
}

void UnitConverterMemoryTest::RecallMemVarNeedsASelection() {
  screen.Open(kKilometersToMeters, L"7");
  screen.ChooseMemory("ReCall MemVar");
  Confirm("Recall", -1);
  QCOMPARE(test::ShownBox(), test::Error("Please select a memory variable"));
  test::AnswerBox();
  QVERIFY(test::OpenDialog(QStringLiteral("MemoryVariable")));
  QCOMPARE(screen.input->text(), QStringLiteral("7"));
}

void UnitConverterMemoryTest::RecallMemVarCancelledChangesNothing() {
  Write(screen.store, settings::kMemoryVariable, 0, L"5");
  screen.Open(kKilometersToMeters, L"7");
  screen.ChooseMemory("ReCall MemVar");
  Confirm("Cancel", 0);
  QVERIFY(!test::OpenDialog(QStringLiteral("MemoryVariable")));
  QCOMPARE(screen.input->text(), QStringLiteral("7"));
  QTRY_VERIFY(screen.input->hasFocus());
}

void UnitConverterMemoryTest::StoreMemVarStoresTheResult() {
  screen.Open(kKilometersToMeters, L"0.0125");
  screen.ChooseMemory("Store MemVar");
  Confirm("Store", 2);
  QVERIFY(!test::OpenDialog(QStringLiteral("MemoryVariable")));
  QCOMPARE(Variable(2), QStringLiteral("12.5"));
  QCOMPARE(Variable(1), QStringLiteral("0"));
  // Of a value that is grouped, what is recalled is the same value.
  screen.Type("1.5");
  screen.ChooseMemory("Store MemVar");
  Confirm("Store", 0);
  QCOMPARE(Variable(0), QStringLiteral("1,500"));
  QCOMPARE(MemoryVariables(screen.store).Value(0), 1500.0);
}

void UnitConverterMemoryTest::StoreMemVarCancelledStoresNothing() {
  screen.Open(kKilometersToMeters, L"2");
  screen.ChooseMemory("Store MemVar");
  Confirm("Cancel", 2);
  QCOMPARE(Variable(2), QStringLiteral("0"));
}

void UnitConverterMemoryTest::DismissedItChangesNothing() {
  screen.Open(kKilometersToMeters, L"2", 5.0);
  screen.OpenMemoryMenu();
  QTest::keyClick(screen.MemoryMenu(), Qt::Key_Escape);
  QVERIFY(!screen.MemoryMenu());
  QCOMPARE(screen.dialog->Converter().Memory(), 5.0);
  QCOMPARE(screen.input->text(), QStringLiteral("2"));
  QVERIFY(screen.dialog->isVisible());
}

}  // namespace vexa

VEXA_SCREEN_MAIN(vexa::UnitConverterMemoryTest)
#include "UnitConverterMemoryTest.moc"
