#include <QClipboard>
#include <QGuiApplication>
#include <QToolTip>

#include "support/Boxes.h"
#include "support/ConversionEditorOnScreen.h"
#include "support/ScreenMain.h"

namespace vexa {

/// "Save" of the conversion editor: its refusals in their order, what it stores and shows.
class UserConversionSaveTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() { delete screen.dialog; }
  void Refusals_data();
  void Refusals();
  void AFullListRefusesEdits();
  void ANewConversionIsAppended();
  void TheSixtiethIsTheLast();
  void AnEditedConversionStaysInItsPlace();
  void NamesAreStripped();
  void NamesHaveALength();

 private:
  test::ConversionEditorOnScreen screen;
};

void UserConversionSaveTest::Refusals_data() {
  QTest::addColumn<QString>("first");
  QTest::addColumn<QString>("second");
  QTest::addColumn<QString>("rate");
  QTest::addColumn<QString>("sentence");
  QTest::addColumn<QString>("focus");
  // Each breaks the rules that are checked later too, as far as it can.
  const struct {
    const char* name;
    const char* texts[3];
    const char* sentence;
    const char* focus;
  } rows[] = {
      {"rate", {" ", "a->b", "1,5"}, "Please enter a number.", "Rate"},
      {"no rate", {"a", "b", ""}, "Please enter a number.", "Rate"},
      {"exponent", {"a", "b", "1e"}, "Please enter a number.", "Rate"},
      {"first name", {"   ", "a->b", "0"}, "Please, Input a unit name", "Input unit name"},
      {"second name", {"a->b", " ", "0"}, "Please, Input a unit name", "Output unit name"},
      {"arrow in the first", {"a->b", "->", "0"}, "Invalid unit name.", "Input unit name"},
      {"arrow in the second", {"A0", "B0->", "0"}, "Invalid unit name.", "Output unit name"},
      {"duplicate", {" A0", "B0 ", "0"}, "A0 -> B0 exists already.", "Input unit name"},
      {"zero", {"a", "b", "-0.0"}, "Invalid convert rate", "Rate"},
  };
  for (const auto& row : rows) {
    QTest::newRow(row.name) << row.texts[0] << row.texts[1] << row.texts[2] << row.sentence
                            << row.focus;
  }
}

void UserConversionSaveTest::Refusals() {
  QFETCH(QString, first);
  QFETCH(QString, second);
  QFETCH(QString, rate);
  QFETCH(QString, sentence);
  QFETCH(QString, focus);
  screen.Open(2);
  screen.Press("New");
  screen.Type(first, second, rate);
  screen.Press("Save");
  QCOMPARE(test::ShownBox(), (test::BoxContent{QMessageBox::Critical, sentence}));
  test::AnswerBox();
  QTRY_COMPARE(QApplication::focusWidget()->objectName(), focus);
  QCOMPARE(screen.Boxes(), (QStringList{first, second, rate}));
  QVERIFY(screen.Button("Save")->isVisible());
  QCOMPARE(screen.Stored().size(), 2);
}

void UserConversionSaveTest::AFullListRefusesEdits() {
  screen.Open(60);
  screen.Press("Edit");
  screen.Type(QString(), QString(), QStringLiteral("x"));
  screen.Press("Save");
  QCOMPARE(test::ShownBox(), test::Error("Maximum of user-define unit convert is 60"));
  test::AnswerBox();
  QVERIFY(screen.Button("Save")->isVisible());
  QCOMPARE(screen.Stored().first(), QStringLiteral("A0 -> B0 = 1.5"));
}

void UserConversionSaveTest::ANewConversionIsAppended() {
  screen.Open(2);
  screen.Press("New");
  screen.Type(QStringLiteral("Inch"), QStringLiteral("Centimeter"), QStringLiteral("2.540"));
  screen.Press("Save");
  QVERIFY(!test::OpenBox());
  QCOMPARE(screen.Stored(),
           (QStringList{QStringLiteral("A0 -> B0 = 1.5"), QStringLiteral("A1 -> B1 = 2.5"),
                        QStringLiteral("Inch -> Centimeter = 2.540")}));
  QCOMPARE(screen.Lines().last(), QStringLiteral("Inch -> Centimeter"));
  QCOMPARE(screen.list->SelectedRow(), 2);
  QCOMPARE(screen.Label(), QStringLiteral("List(3/60)"));
  QVERIFY(screen.Button("Close")->isVisible());
  QVERIFY(screen.list->hasFocus());
}

void UserConversionSaveTest::TheSixtiethIsTheLast() {
  screen.Open(59);
  screen.Press("New");
  screen.Type(QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("1"));
  screen.Press("Save");
  QCOMPARE(screen.Label(), QStringLiteral("List(60/60)"));
  QVERIFY(!screen.Button("New")->isVisible());
  QCOMPARE(screen.list->SelectedRow(), 59);
}

void UserConversionSaveTest::AnEditedConversionStaysInItsPlace() {
  screen.Open(3);
  screen.Select(1);
  screen.Press("Edit");
  screen.Type(QStringLiteral("A1"), QStringLiteral("B1"), QStringLiteral("7"));
  screen.Press("Save");
  QCOMPARE(screen.Stored().at(1), QStringLiteral("A1 -> B1 = 7"));
  QCOMPARE(screen.list->SelectedRow(), 1);
  screen.Press("Edit");
  screen.Type(QStringLiteral("C"), QStringLiteral("D"), QStringLiteral("-7"));
  screen.Press("Save");
  QCOMPARE(screen.Lines(), (QStringList{QStringLiteral("A0 -> B0"), QStringLiteral("C -> D"),
                                        QStringLiteral("A2 -> B2")}));
}

void UserConversionSaveTest::NamesAreStripped() {
  screen.Open(0);
  screen.Press("New");
  screen.Type(QStringLiteral("  Light  year "), QStringLiteral(" km "), QStringLiteral("9.46e12"));
  screen.Press("Save");
  QCOMPARE(screen.Stored(), QStringList{QStringLiteral("Light  year -> km = 9.46e12")});
  QCOMPARE(screen.first->text(), QStringLiteral("Light  year"));
}

void UserConversionSaveTest::NamesHaveALength() {
  screen.Open(0);
  screen.Press("New");
  for (QLineEdit* const name : {screen.first, screen.second}) {
    name->setFocus();
    QGuiApplication::clipboard()->setText(QString(101, u'u'));
    QTest::keyClick(name, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(name->text(), QString());
    QCOMPARE(QToolTip::text(), QStringLiteral("Unit name exceeded length limit."));
    QTest::keyClicks(name, QString(101, u'u'));
    QCOMPARE(name->text(), QString(100, u'u'));
  }
}

}  // namespace vexa

VEXA_SCREEN_MAIN(vexa::UserConversionSaveTest)
#include "UserConversionSaveTest.moc"
