// "Mac" on the calculator: the list of macros and what it inserts.

#include "support/Boxes.h"
#include "support/CalculatorOnScreen.h"
#include "support/ScreenMain.h"
#include "support/StoredMacros.h"
#include "toolkit/TouchList.h"

namespace vexa {

using test::CalculatorOnScreen;
using test::kThreeMacros;
using test::kType1;

class MacroKeyTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup() { calculator.reset(); }
  void WithoutMacrosTheEditorOpens();
  void TheListShowsTheFormula();
  void CancelIsTheDefault_data();
  void CancelIsTheDefault();
  void OkWithoutASelectionInsertsNothing();
  void CallsAreInserted_data();
  void CallsAreInserted();
  void ACallIsOneStepOfUndo();
  void ADoubleTapPicks();
  void TheFileMenuOpensTheEditor();
  void ASavedMacroCanBeCalledAtOnce();
  void ForeignMacrosAreHarmless();

 private:
  QDialog* OpenList() {
    calculator->Press("Mac");
    return test::OpenDialog(QStringLiteral("MacroList"));
  }
  static TouchList* ListOf(const QDialog* dialog) { return dialog->findChild<TouchList*>(); }
  static QString FormulaOf(const QDialog* dialog) {
    return dialog->findChild<QPlainTextEdit*>(QStringLiteral("Macro Expression"))->toPlainText();
  }
  static void Tap(const QDialog* dialog, const char* caption) {
    QTest::mouseClick(dialog->findChild<QPushButton*>(QString::fromLatin1(caption)),
                      Qt::LeftButton);
  }
  void Pick(int row) {
    QDialog* const dialog = OpenList();
    QVERIFY(dialog);
    ListOf(dialog)->SelectRow(row);
    Tap(dialog, "OK");
  }

  std::unique_ptr<CalculatorOnScreen> calculator;
};

void MacroKeyTest::init() {
  calculator = std::make_unique<CalculatorOnScreen>();
  test::Store(calculator->store, kThreeMacros);
  calculator->Open();
}

void MacroKeyTest::WithoutMacrosTheEditorOpens() {
  test::Store(calculator->store, {});
  calculator->Open();
  calculator->Write("1+");
  calculator->Press("Mac");
  QCOMPARE(test::ShownBox(), test::Error("Not exist saved macro"));
  QVERIFY(!calculator->screen->findChild<QDialog*>(QStringLiteral("MacroEditor")));
  test::AnswerBox();
  QDialog* const editor = test::OpenDialog(QStringLiteral("MacroEditor"));
  QVERIFY(editor && editor->isVisible());
  Tap(editor, "Close");
  QCOMPARE(calculator->Marked(), QStringLiteral("1+|"));
  QVERIFY(calculator->LineHasFocus());
}

void MacroKeyTest::TheListShowsTheFormula() {
  QDialog* const dialog = OpenList();
  QVERIFY(dialog && dialog->isModal());
  QCOMPARE(dialog->windowTitle(), QStringLiteral("Vexa Calculator"));
  TouchList* const list = ListOf(dialog);
  QCOMPARE(list->accessibleName(), QStringLiteral("Macro List"));
  const QStringList lines{QStringLiteral("twice(X)"), QStringLiteral("area(X,Y)"),
                          QStringLiteral("sum(X,Y,Z)")};
  QCOMPARE(list->count(), 3);
  for (int row = 2; row >= 0; --row) {
    QCOMPARE(list->item(row)->text(), lines[row]);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(row)).center());
    QCOMPARE(FormulaOf(dialog).toStdWString(), kThreeMacros[static_cast<std::size_t>(row)].formula);
  }
  list->clearSelection();
  QCOMPARE(FormulaOf(dialog), QString());
  // The formula is for reading only.
  auto* const formula = dialog->findChild<QPlainTextEdit*>(QStringLiteral("Macro Expression"));
  QVERIFY(formula->isReadOnly());
  Tap(dialog, "Cancel");
}

void MacroKeyTest::CancelIsTheDefault_data() {
  QTest::addColumn<QString>("answer");
  for (const char* answer : {"Cancel", "Enter", "Escape"}) {
    QTest::newRow(answer) << QString::fromLatin1(answer);
  }
}

void MacroKeyTest::CancelIsTheDefault() {
  QFETCH(QString, answer);
  calculator->Write("12+34");
  calculator->Select(3, 5);
  QDialog* const dialog = OpenList();
  QVERIFY(dialog);
  QVERIFY(dialog->findChild<QPushButton*>(QStringLiteral("Cancel"))->isDefault());
  if (answer == QStringLiteral("Cancel")) Tap(dialog, "Cancel");
  if (answer == QStringLiteral("Enter")) QTest::keyClick(ListOf(dialog), Qt::Key_Return);
  if (answer == QStringLiteral("Escape")) QTest::keyClick(ListOf(dialog), Qt::Key_Escape);
  QVERIFY(!test::OpenDialog(QStringLiteral("MacroList")));
  QCOMPARE(calculator->edit->toPlainText(), QStringLiteral("12+34"));
  QCOMPARE(calculator->edit->textCursor().selectedText(), QStringLiteral("34"));
  QVERIFY(calculator->LineHasFocus());
}

void MacroKeyTest::OkWithoutASelectionInsertsNothing() {
  calculator->Write("1");
  QDialog* const dialog = OpenList();
  QVERIFY(dialog);
  ListOf(dialog)->clearSelection();
  Tap(dialog, "OK");
  QVERIFY(!test::OpenDialog(QStringLiteral("MacroList")));
  QCOMPARE(calculator->Marked(), QStringLiteral("1|"));
}

void MacroKeyTest::CallsAreInserted_data() {
  QTest::addColumn<int>("row");
  QTest::addColumn<QString>("withoutSelection");
  QTest::addColumn<QString>("withSelection");
  QTest::newRow("one argument") << 0 << QStringLiteral("12+M:twice(| )34")
                                << QStringLiteral("12+M:twice(34 )|");
  QTest::newRow("two arguments") << 1 << QStringLiteral("12+M:area(| , )34")
                                 << QStringLiteral("12+M:area(34 , )|");
  QTest::newRow("three arguments")
      << 2 << QStringLiteral("12+M:sum(| , , )34") << QStringLiteral("12+M:sum(34 , , )|");
}

void MacroKeyTest::CallsAreInserted() {
  QFETCH(int, row);
  QFETCH(QString, withoutSelection);
  QFETCH(QString, withSelection);
  calculator->Write("12+34");
  calculator->Select(3, 3);
  Pick(row);
  QCOMPARE(calculator->Marked(), withoutSelection);
  QVERIFY(calculator->LineHasFocus());
  calculator->Write("12+34");
  calculator->Select(3, 5);
  Pick(row);
  QCOMPARE(calculator->Marked(), withSelection);
  QVERIFY(calculator->LineHasFocus());
}

void MacroKeyTest::ACallIsOneStepOfUndo() {
  calculator->Write("12+34");
  calculator->Select(3, 5);
  Pick(1);
  QTest::keyClick(calculator->edit, Qt::Key_Z, Qt::ControlModifier);
  QCOMPARE(calculator->edit->toPlainText(), QStringLiteral("12+34"));
}

void MacroKeyTest::ADoubleTapPicks() {
  QDialog* const dialog = OpenList();
  QVERIFY(dialog);
  TouchList* const list = ListOf(dialog);
  const QPoint row = list->visualItemRect(list->item(2)).center();
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, row);
  QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, row);
  QCOMPARE(calculator->Marked(), QStringLiteral("M:sum(| , , )"));
}

void MacroKeyTest::TheFileMenuOpensTheEditor() {
  calculator->RunFileCommand("Edit Macro...");
  QDialog* const editor = test::OpenDialog(QStringLiteral("MacroEditor"));
  QVERIFY(editor && editor->isModal());
  Tap(editor, "Close");
  QVERIFY(calculator->LineHasFocus());
}

void MacroKeyTest::ASavedMacroCanBeCalledAtOnce() {
  calculator->Calculate("M:half(7)");
  QCOMPARE(calculator->Result(), QStringLiteral("Macro Name error"));
  calculator->RunFileCommand("Edit Macro...");
  QDialog* const editor = test::OpenDialog(QStringLiteral("MacroEditor"));
  QVERIFY(editor);
  // As another program would: the screen sees it when the editor is closed.
  test::Store(calculator->store, {{L"half", kType1, L"x/2"}});
  Tap(editor, "Close");
  calculator->Press("=");
  QCOMPARE(calculator->Result(), QStringLiteral("3.5"));
}

void MacroKeyTest::ForeignMacrosAreHarmless() {
  test::Store(calculator->store,
              {{L"f(x)", L"TYPE9", L"x"}, {L"", L"", L""}, {L"a b", kType1, L"x+?"}});
  calculator->Open();
  const char* const calls[] = {"M:f(x)(| , , )", "M:(| , , )", "M:a b(| )"};
  const char* const results[] = {"Expression error.", "Macro argument error",
                                 "Macro formula is invalid"};
  for (int row = 0; row < 3; ++row) {
    calculator->Write("");
    Pick(row);
    QCOMPARE(calculator->Marked(), QString::fromLatin1(calls[row]));
    QTest::keyClicks(calculator->edit, QStringLiteral("1"));
    calculator->Press("=");
    QCOMPARE(calculator->Result(), QString::fromLatin1(results[row]));
    QVERIFY(calculator->LineHasFocus());
  }
}

}  // namespace vexa

VEXA_SCREEN_MAIN(vexa::MacroKeyTest)
#include "MacroKeyTest.moc"
