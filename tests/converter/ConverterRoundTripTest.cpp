#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <memory>

#include "app/CalculatorScreen.h"
#include "display/FileSettingsStore.h"
#include "display/SettingsLayout.h"
#include "support/Boxes.h"
#include "support/ConversionEditorOnScreen.h"
#include "support/ConverterOnScreen.h"
#include "support/ScreenMain.h"
#include "toolkit/EditLine.h"

namespace vexa {

/// From the calculator into the converter and back, with the settings in a file that the next start
/// reads.
class ConverterRoundTripTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup() { End(); }
  void AFreshStartOpensOnAreaWithOne();
  void TheAnswerIsHandedIn_data();
  void TheAnswerIsHandedIn();
  void TheResultGoesToTheCaret();
  void TheResultCanBeCalculatedWith_data();
  void TheResultCanBeCalculatedWith();
  void WithoutAResultOkInsertsNothing();
  void CancelInsertsNothing();
  void MemoryIsShared();
  void UnitsAreRememberedAcrossARestart_data();
  void UnitsAreRememberedAcrossARestart();
  void ConversionsAreRememberedAcrossARestart();
  void UnitsAreRememberedWhenTheProgramEndsMeanwhile();

 private:
  /// A run of the program on the settings' file.
  void Start();
  void End();
  void Press(const char* caption) {
    for (QPushButton* const key :
         calculator->findChildren<QPushButton*>(QString::fromLatin1(caption))) {
      if (key->isVisible() && key->window() == calculator.get()) {
        QTest::mouseClick(key, Qt::LeftButton);
        return;
      }
    }
    QFAIL(caption);
  }
  void Calculate(const char* expression) {
    line->selectAll();
    QTest::keyClick(line, Qt::Key_Delete);
    QTest::keyClicks(line, QString::fromLatin1(expression));
    Press("=");
  }
  void OpenConverter() {
    Press("Cnv");
    auto* const dialog = qobject_cast<UnitConverterDialog*>(QApplication::activeModalWidget());
    QVERIFY(dialog);
    converter.Adopt(dialog);
  }
  QString Result() const { return calculator->findChild<ResultLine*>()->toPlainText(); }

  std::unique_ptr<QTemporaryDir> folder;
  std::unique_ptr<FileSettingsStore> store;
  std::unique_ptr<CalculatorScreen> calculator;
  EditLine* line = nullptr;
  test::ConverterOnScreen converter;
};

void ConverterRoundTripTest::init() {
  folder = std::make_unique<QTemporaryDir>();
  Start();
}

void ConverterRoundTripTest::Start() {
  End();
  store = std::make_unique<FileSettingsStore>(folder->path().toStdString());
  store->SetSettingsKey(settings::kSettingsKey);
  calculator = std::make_unique<CalculatorScreen>(*store, nullptr);
  line = calculator->findChild<EditLine*>();
  calculator->resize(340, 560);
  calculator->show();
  QVERIFY(QTest::qWaitForWindowActive(calculator.get()));
}

void ConverterRoundTripTest::End() {
  calculator.reset();
  store.reset();
}

void ConverterRoundTripTest::AFreshStartOpensOnAreaWithOne() {
  OpenConverter();
  QCOMPARE(converter.category->currentText(), QStringLiteral("01. Area"));
  QCOMPARE(converter.input->text(), QStringLiteral("1"));
}

void ConverterRoundTripTest::TheAnswerIsHandedIn_data() {
  QTest::addColumn<QByteArray>("expression");
  QTest::addColumn<QString>("input");
  QTest::newRow("answer") << QByteArray("1234*2") << QStringLiteral("2468");
  QTest::newRow("decimals") << QByteArray("-1/8") << QStringLiteral("-0.125");
  QTest::newRow("zero") << QByteArray("5-5") << QStringLiteral("1");
  QTest::newRow("error") << QByteArray("5/0") << QStringLiteral("1");
  QTest::newRow("empty") << QByteArray("") << QStringLiteral("1");
}

void ConverterRoundTripTest::TheAnswerIsHandedIn() {
  QFETCH(QByteArray, expression);
  QFETCH(QString, input);
  Calculate(expression.constData());
  OpenConverter();
  QCOMPARE(converter.input->text(), input);
  QVERIFY(converter.notice->text().isEmpty());
}

void ConverterRoundTripTest::TheResultGoesToTheCaret() {
  Calculate("1.5");
  line->selectAll();
  QTest::keyClicks(line, QStringLiteral("2*+1"));
  QTest::keyClick(line, Qt::Key_Left);
  QTest::keyClick(line, Qt::Key_Left);
  OpenConverter();
  test::ChooseRow(converter.category, 6);
  test::ChooseRow(converter.inputUnit, 16);
  test::ChooseRow(converter.outputUnit, 14);
  QTest::keyClick(converter.input, Qt::Key_Return);
  QCOMPARE(line->toPlainText(), QStringLiteral("2*0.0015+1"));
  QTRY_VERIFY(line->hasFocus());
  Press("=");
  QCOMPARE(Result(), QStringLiteral("1.003"));
}

void ConverterRoundTripTest::TheResultCanBeCalculatedWith_data() {
  QTest::addColumn<QByteArray>("value");
  QTest::addColumn<QString>("inserted");
  QTest::addColumn<QString>("result");
  QTest::newRow("thousands") << QByteArray("1.2345") << QStringLiteral("1234.5")
                             << QStringLiteral("1,234.5");
  QTest::newRow("millions") << QByteArray("12345.6789") << QStringLiteral("12345678.9")
                            << QStringLiteral("12,345,678.9");
  QTest::newRow("exponent") << QByteArray("1e20") << QStringLiteral("1.000000000000e+023")
                            << QStringLiteral("1.00000e+023");
}

void ConverterRoundTripTest::TheResultCanBeCalculatedWith() {
  QFETCH(QByteArray, value);
  QFETCH(QString, inserted);
  QFETCH(QString, result);
  OpenConverter();
  test::ChooseRow(converter.category, 6);
  test::ChooseRow(converter.inputUnit, 14);
  test::ChooseRow(converter.outputUnit, 16);
  converter.Type(value.constData());
  converter.Press("OK");
  QCOMPARE(line->toPlainText(), inserted);
  Press("=");
  QCOMPARE(Result(), result);
}

void ConverterRoundTripTest::WithoutAResultOkInsertsNothing() {
  calculator.reset();
  Write(*store, settings::kClassPos, 6);
  Write(*store, settings::kInputTypePos, 99);
  Start();
  QTest::keyClicks(line, QStringLiteral("1+2"));
  line->selectAll();
  OpenConverter();
  QCOMPARE(converter.inputUnit->currentIndex(), -1);
  converter.Press("OK");
  QVERIFY(!QApplication::activeModalWidget());
  QCOMPARE(line->toPlainText(), QStringLiteral("1+2"));
  QCOMPARE(line->textCursor().selectedText(), QStringLiteral("1+2"));
}

void ConverterRoundTripTest::CancelInsertsNothing() {
  QTest::keyClicks(line, QStringLiteral("2*"));
  OpenConverter();
  QTest::keyClick(converter.input, Qt::Key_Escape);
  QCOMPARE(line->toPlainText(), QStringLiteral("2*"));
  QTRY_VERIFY(line->hasFocus());
}

void ConverterRoundTripTest::MemoryIsShared() {
  for (const char* caption : {"OK", "Cancel"}) {
    OpenConverter();
    converter.Type("2.5");
    converter.ChooseMemory("Memory +");
    converter.Press(caption);
  }
  OpenConverter();
  converter.ChooseMemory("Memory Recall");
  QCOMPARE(converter.input->text(), QStringLiteral("5"));
}

void ConverterRoundTripTest::UnitsAreRememberedAcrossARestart_data() {
  QTest::addColumn<QString>("caption");
  QTest::newRow("OK") << QStringLiteral("OK");
  QTest::newRow("Cancel") << QStringLiteral("Cancel");
}

void ConverterRoundTripTest::UnitsAreRememberedAcrossARestart() {
  QFETCH(QString, caption);
  OpenConverter();
  test::ChooseRow(converter.category, 13);
  test::ChooseRow(converter.inputUnit, 9);
  test::ChooseRow(converter.outputUnit, 12);
  converter.Press(qPrintable(caption));
  Start();
  QFile file(folder->filePath(QStringLiteral("Vexa Calculator/settings.json")));
  QVERIFY(file.open(QIODevice::ReadOnly));
  QVERIFY(file.readAll().contains("\"ClassPos\": 13"));
  OpenConverter();
  QCOMPARE(converter.category->currentText(), QStringLiteral("14. Volume"));
  QCOMPARE(converter.inputUnit->currentText(), QStringLiteral("Gallons (UK)"));
  QCOMPARE(converter.outputUnit->currentText(), QStringLiteral("Liters"));
  QCOMPARE(converter.line->toPlainText(), QStringLiteral("4.54609"));
}

void ConverterRoundTripTest::ConversionsAreRememberedAcrossARestart() {
  const QList<QAction*> fileMenu =
      calculator->findChild<QMenuBar*>()->actions().first()->menu()->actions();
  const auto edit = std::ranges::find_if(fileMenu, [](const QAction* action) {
    return action->text().remove(u'&') == QStringLiteral("Edit Unit Convert");
  });
  QVERIFY(edit != fileMenu.end());
  (*edit)->trigger();
  test::ConversionEditorOnScreen editor;
  QVERIFY(test::OpenDialog(QStringLiteral("UserConversions")));
  editor.Adopt(test::OpenDialog(QStringLiteral("UserConversions")));
  editor.Press("New");
  editor.Type(QStringLiteral("Zoll"), QStringLiteral("cm;=#"), QStringLiteral("2.54"));
  editor.first->insert(QStringLiteral(" €"));
  editor.Press("Save");
  editor.Press("Close");
  Start();
  OpenConverter();
  test::ChooseRow(converter.category, 14);
  QCOMPARE(converter.block->toPlainText(), QStringLiteral("1 Zoll €\n=\n2.54 cm;=#"));
  converter.Press("OK");
  QCOMPARE(line->toPlainText(), QStringLiteral("2.54"));
}

void ConverterRoundTripTest::UnitsAreRememberedWhenTheProgramEndsMeanwhile() {
  OpenConverter();
  test::ChooseRow(converter.category, 11);
  test::ChooseRow(converter.inputUnit, 4);
  Start();
  OpenConverter();
  QCOMPARE(converter.category->currentText(), QStringLiteral("12. Temperature"));
  QCOMPARE(converter.inputUnit->currentText(), QStringLiteral("Kelvin -> Celsius"));
}

}  // namespace vexa

VEXA_SCREEN_MAIN(vexa::ConverterRoundTripTest)
#include "ConverterRoundTripTest.moc"
