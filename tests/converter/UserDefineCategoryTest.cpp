#include <limits>

#include "display/SettingsLayout.h"
#include "support/Boxes.h"
#include "support/ConversionEditorOnScreen.h"
#include "support/ConverterOnScreen.h"
#include "support/ScreenMain.h"

namespace vexa {
namespace {

constexpr int kUserDefine = 14;
constexpr ConverterPositions kKilometersToMeters{6, 14, 16};
constexpr int kIntMin = std::numeric_limits<int>::min();
constexpr int kIntMax = std::numeric_limits<int>::max();

}  // namespace

/// The converter's category of the user's own conversions, and what a hostile store makes of it.
class UserDefineCategoryTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup() { delete screen.dialog; }
  void WithoutAnyTheEditorOpens_data();
  void WithoutAnyTheEditorOpens();
  void WithoutAnyStoredTheConverterFallsBack();
  void OpensOnTheStoredConversion();
  void EditingKeepsTheConversionChosen();
  void DeletingAllFallsBack();
  void StoredPositionsMayBeAnything_data();
  void StoredPositionsMayBeAnything();
  void StoredCountsMayBeAnything_data();
  void StoredCountsMayBeAnything();
  void StoredConversionsMayBeAnything_data();
  void StoredConversionsMayBeAnything();

 private:
  test::ConverterOnScreen screen;
};

void UserDefineCategoryTest::init() {
  screen.store = MemorySettingsStore();
}

void UserDefineCategoryTest::WithoutAnyTheEditorOpens_data() {
  QTest::addColumn<bool>("stores");
  QTest::newRow("stores one") << true;
  QTest::newRow("stores none") << false;
}

void UserDefineCategoryTest::WithoutAnyTheEditorOpens() {
  QFETCH(bool, stores);
  screen.Open(kKilometersToMeters, L"3");
  test::ChooseRow(screen.category, kUserDefine);
  QCOMPARE(test::ShownBox(), test::Error("Not exist saved user-define unit convert"));
  test::AnswerBox();
  test::ConversionEditorOnScreen editor;
  QVERIFY(test::OpenDialog(QStringLiteral("UserConversions")));
  editor.Adopt(test::OpenDialog(QStringLiteral("UserConversions")));
  if (stores) {
    editor.Press("New");
    editor.Type(QStringLiteral("Inch"), QStringLiteral("Centimeter"), QStringLiteral("2.54"));
    editor.Press("Save");
  }
  editor.Press("Close");

  const bool single = stores;
  QCOMPARE(screen.block->isVisible(), single);
  QCOMPARE(screen.line->isVisible(), !single);
  QCOMPARE(screen.outputUnit->isVisible(), !single);
  if (stores) {
    QCOMPARE(screen.category->currentText(), QStringLiteral("15. User Define"));
    QCOMPARE(screen.block->toPlainText(), QStringLiteral("3 Inch\n=\n7.62 Centimeter"));
  } else {
    QCOMPARE(screen.category->currentText(), QStringLiteral("01. Area"));
    QCOMPARE(screen.inputUnit->currentText(), QStringLiteral("Acres"));
    QCOMPARE(screen.line->toPlainText(), QStringLiteral("3"));
  }
  QCOMPARE(screen.dialog->Converter().Positions(),
           (ConverterPositions{stores ? kUserDefine : 0, 0, 0}));
  QTRY_VERIFY(screen.input->hasFocus());
}

void UserDefineCategoryTest::WithoutAnyStoredTheConverterFallsBack() {
  screen.Open({kUserDefine, 3, 0});
  QCOMPARE(screen.category->currentText(), QStringLiteral("01. Area"));
  QVERIFY(screen.line->isVisible());
  QVERIFY(!test::OpenBox());
}

void UserDefineCategoryTest::OpensOnTheStoredConversion() {
  test::AddConversion(screen.store, L"a -> b", L"2");
  test::AddConversion(screen.store, L"c -> d", L"3");
  screen.Open({kUserDefine, 1, 0}, L"5");
  QCOMPARE(test::Entries(screen.inputUnit),
           (QStringList{QStringLiteral("a -> b"), QStringLiteral("c -> d")}));
  QCOMPARE(screen.inputUnit->currentIndex(), 1);
  QCOMPARE(screen.block->toPlainText(), QStringLiteral("5 c\n=\n15 d"));
}

void UserDefineCategoryTest::EditingKeepsTheConversionChosen() {
  for (const wchar_t* const name : {L"a -> b", L"c -> d", L"e -> f"}) {
    test::AddConversion(screen.store, name, L"2");
  }
  screen.Open({kUserDefine, 2, 0}, L"5");
  screen.Command("File", "Edit Unit Convert")->trigger();
  test::ConversionEditorOnScreen editor;
  QVERIFY(test::OpenDialog(QStringLiteral("UserConversions")));
  editor.Adopt(test::OpenDialog(QStringLiteral("UserConversions")));
  editor.Press("Delete");
  test::AnswerBox(QMessageBox::Yes);
  editor.Press("Close");
  QCOMPARE(screen.inputUnit->currentText(), QStringLiteral("e -> f"));
  QCOMPARE(screen.block->toPlainText(), QStringLiteral("5 e\n=\n10 f"));
  QCOMPARE(screen.dialog->Converter().Positions(), (ConverterPositions{kUserDefine, 1, 0}));
}

void UserDefineCategoryTest::DeletingAllFallsBack() {
  test::AddConversion(screen.store, L"a -> b", L"2");
  screen.Open({kUserDefine, 0, 0}, L"5");
  screen.Command("File", "Edit Unit Convert")->trigger();
  test::ConversionEditorOnScreen editor;
  QVERIFY(test::OpenDialog(QStringLiteral("UserConversions")));
  editor.Adopt(test::OpenDialog(QStringLiteral("UserConversions")));
  editor.Press("Delete");
  test::AnswerBox(QMessageBox::Yes);
  editor.Press("Close");
  QCOMPARE(screen.category->currentText(), QStringLiteral("01. Area"));
  QCOMPARE(screen.line->toPlainText(), QStringLiteral("5"));
}

void UserDefineCategoryTest::StoredPositionsMayBeAnything_data() {
  QTest::addColumn<int>("category");
  QTest::addColumn<int>("input");
  QTest::addColumn<int>("output");
  QTest::addColumn<QString>("shown");
  QTest::addColumn<int>("inputRow");
  const QString area = QStringLiteral("01. Area");
  const QString own = QStringLiteral("15. User Define");
  QTest::newRow("category 15") << 15 << 0 << 0 << area << 0;
  QTest::newRow("least") << kIntMin << kIntMin << kIntMin << area << 0;
  QTest::newRow("most") << kIntMax << kIntMax << kIntMax << area << 0;
  QTest::newRow("input") << 6 << 60 << 0 << QStringLiteral("07. Length") << -1;
  QTest::newRow("output") << 6 << 2 << kIntMin << QStringLiteral("07. Length") << 2;
  QTest::newRow("temperature") << 11 << 6 << 0 << QStringLiteral("12. Temperature") << -1;
  QTest::newRow("user's") << kUserDefine << kIntMax << 0 << own << 0;
  QTest::newRow("user's, negative") << kUserDefine << -7 << 0 << own << -1;
}

void UserDefineCategoryTest::StoredPositionsMayBeAnything() {
  QFETCH(int, category);
  QFETCH(int, input);
  QFETCH(int, output);
  QFETCH(QString, shown);
  QFETCH(int, inputRow);
  test::AddConversion(screen.store, L"a -> b", L"2");
  screen.Open({category, input, output}, L"5");
  QCOMPARE(screen.category->currentText(), shown);
  QCOMPARE(screen.inputUnit->currentIndex(), inputRow);
  // Whatever was stored, a unit can be chosen and is converted.
  test::ChooseRow(screen.inputUnit, 0);
  if (screen.outputUnit->isVisible()) test::ChooseRow(screen.outputUnit, 0);
  QVERIFY(screen.dialog->Converter().Positions().input == 0);
  screen.Type("0");
  QVERIFY(screen.dialog->Converter().HasResult());
}

void UserDefineCategoryTest::StoredCountsMayBeAnything_data() {
  QTest::addColumn<int>("count");
  QTest::addColumn<int>("listed");
  QTest::newRow("negative") << -1 << 0;
  QTest::newRow("least") << kIntMin << 0;
  QTest::newRow("too many") << 10000 << 60;
  QTest::newRow("most") << kIntMax << 60;
}

void UserDefineCategoryTest::StoredCountsMayBeAnything() {
  QFETCH(int, count);
  QFETCH(int, listed);
  Write(screen.store, settings::kConversionCount, count);
  screen.Open({kUserDefine, 0, 0}, L"5");
  QCOMPARE(screen.category->currentIndex(), listed > 0 ? kUserDefine : 0);
  if (listed > 0) QCOMPARE(screen.inputUnit->count(), listed);
}

void UserDefineCategoryTest::StoredConversionsMayBeAnything_data() {
  QTest::addColumn<QString>("name");
  QTest::addColumn<QString>("rate");
  QTest::addColumn<QString>("block");
  const QString two = QStringLiteral("2");
  QTest::newRow("no arrow") << QStringLiteral("Inch") << two << QStringLiteral("5 Inch\n=\n10 ");
  QTest::newRow("empty") << QString() << two << QStringLiteral("5 \n=\n10 ");
  QTest::newRow("arrow only") << QStringLiteral("->") << two << QStringLiteral("5 \n=\n10 ");
  QTest::newRow("no blanks") << QStringLiteral("ab->cd") << two << QStringLiteral("5 a\n=\n10 d");
  QTest::newRow("two arrows") << QStringLiteral("a -> b -> c") << two
                              << QStringLiteral("5 a\n=\n10 b -> c");
  QTest::newRow("markup") << QStringLiteral("<b>a</b> -> &c") << two
                          << QStringLiteral("5 <b>a</b>\n=\n10 &c");
  QTest::newRow("no rate") << QStringLiteral("a -> b") << QStringLiteral("x")
                           << QStringLiteral("5 a\n=\n0 b");
  QTest::newRow("rate too large") << QStringLiteral("a -> b") << QStringLiteral("1e999")
                                  << QStringLiteral("Out of range(overflow or underflow)");
  QTest::newRow("rate nan") << QStringLiteral("a -> b") << QStringLiteral("nan")
                            << QStringLiteral("Out of range(overflow or underflow)");
}

void UserDefineCategoryTest::StoredConversionsMayBeAnything() {
  QFETCH(QString, name);
  QFETCH(QString, rate);
  QFETCH(QString, block);
  test::AddConversion(screen.store, name.toStdWString(), rate.toStdWString());
  screen.Open({kUserDefine, 0, 0}, L"5");
  QCOMPARE(screen.inputUnit->currentText(), name);
  QCOMPARE(screen.block->toPlainText(), block);
}

}  // namespace vexa

VEXA_SCREEN_MAIN(vexa::UserDefineCategoryTest)
#include "UserDefineCategoryTest.moc"
