// What the macro editor accepts, what it refuses with which words, and how its fields are filled.

#include <QClipboard>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QToolTip>

#include "support/MacroEditorOnScreen.h"
#include "support/ScreenMain.h"
#include "toolkit/KeyboardOnFocus.h"

namespace vexa {

using test::AnswerBox;
using test::kThreeMacros;
using test::kType1;
using test::MacroEditorOnScreen;
using test::ShownBox;
using test::StoredMacro;

class MacroEditorSaveTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { editor = std::make_unique<MacroEditorOnScreen>(); }
  void cleanup() { editor.reset(); }
  void RefusalsSayWhyAndFocusTheField_data();
  void RefusalsSayWhyAndFocusTheField();
  void SavingANewMacroSelectsItsLine();
  void SavingAnEditedMacroReplacesItsLine();
  void EnterSaves();
  void TheFormulaHoldsAHundredAndFiftyCharacters();
  void APasteWithoutRoomIsRefusedWhole();
  void TheNameHasALength();
  void MemInsertsIntoTheFormula();
  void MemInsertsPlainNumbers();
  void MemInsertsWholeNumbersOnly();
  void MemInsertsNothingThatIsTooLarge();
  void MemDismissedChangesNothing();
  void TheKeyboardFollowsTheFocus();

 private:
  QDialog* OpenMemory() {
    editor->Press("MEM");
    return test::OpenDialog(QStringLiteral("MemoryVariable"));
  }
  void Recall(int row) {
    QDialog* const memory = OpenMemory();
    QVERIFY(memory);
    memory->findChild<TouchList*>()->SelectRow(row);
    QTest::mouseClick(memory->findChild<QPushButton*>(QStringLiteral("Recall")), Qt::LeftButton);
  }

  std::unique_ptr<MacroEditorOnScreen> editor;
};

void MacroEditorSaveTest::RefusalsSayWhyAndFocusTheField_data() {
  QTest::addColumn<QString>("name");
  QTest::addColumn<int>("type");
  QTest::addColumn<QString>("formula");
  QTest::addColumn<QByteArray>("sentence");
  QTest::addColumn<QString>("field");
  struct Case {
    const char* name;
    int type;
    const char* formula;
    const char* sentence;
    const char* field;
  };
  constexpr const char* kName = "Macro Name";
  constexpr const char* kFormula = "Macro Expression(Max Len:150)";
  constexpr const char* kForbidden = "Can not use '(',')',':' in Macro Name.";
  constexpr Case kCases[] = {
      {"", -1, "", "Macro Name is NULL", kName},
      {"   ", 0, "x", "Macro Name is NULL", kName},
      {"f(x", 0, "x", kForbidden, kName},
      {"f)", 0, "x", kForbidden, kName},
      {"M:f", -1, "", kForbidden, kName},
      {" area ", -1, "", "area exists already.", kName},
      {"new", -1, "", "Argument Type is NULL", "Argument Type"},
      {"new", 0, "  ", "Macro Expression is NULL", kFormula},
      {"new", 0, "x+", "Expression error.", kFormula},
      {"new", 0, "(x", "Not matched '(' and ')'.", kFormula},
      {"new", 0, "foo(x)", "foo is not supported.", kFormula},
      {"new", 0, "x+y", "Can not use variable Y", kFormula},
      {"new", 1, "x", "Argument error : Missing variable Y", kFormula},
      {"new", 2, "x+y", "Argument error : Missing variable Z", kFormula},
  };
  for (const Case& c : kCases) {
    QTest::addRow("%s, %d, %s", c.name, c.type, c.formula)
        << QString::fromLatin1(c.name) << c.type << QString::fromLatin1(c.formula)
        << QByteArray(c.sentence) << QString::fromLatin1(c.field);
  }
}

void MacroEditorSaveTest::RefusalsSayWhyAndFocusTheField() {
  QFETCH(QString, name);
  QFETCH(int, type);
  QFETCH(QString, formula);
  QFETCH(QByteArray, sentence);
  QFETCH(QString, field);
  editor->Open();
  editor->Press("New");
  editor->Fill(name, type, formula);
  editor->Press("Save");
  QCOMPARE(ShownBox(), test::Error(sentence));
  QCOMPARE(test::OpenBox()->windowTitle(), QStringLiteral("Vexa Calculator"));
  AnswerBox();
  QCOMPARE(editor->dialog->focusWidget()->objectName(), field);
  QTRY_VERIFY(editor->dialog->focusWidget()->hasFocus());
  // Nothing was lost and nothing stored.
  editor->ExpectEditingState();
  QCOMPARE(editor->name->text(), name);
  QCOMPARE(editor->formula->toPlainText(), formula);
  QVERIFY(test::Stored(editor->store) == kThreeMacros);
}

void MacroEditorSaveTest::SavingANewMacroSelectsItsLine() {
  editor->Open();
  editor->Press("New");
  // Another case is another name.
  editor->Fill(QStringLiteral("  Area "), 0, QStringLiteral("  X^2 "));
  editor->Press("Save");
  editor->ExpectViewState();
  QCOMPARE(editor->ListLabel(), QStringLiteral("List(4/60)"));
  QCOMPARE(editor->Lines(), QStringLiteral("twice(X) area(X,Y) sum(X,Y,Z) Area(X)"));
  QCOMPARE(editor->list->SelectedRow(), 3);
  const StoredMacro saved{L"Area", kType1, L"X^2"};
  QVERIFY(editor->Fields() == saved);
  QCOMPARE(test::Stored(editor->store).size(), std::size_t{4});
  QVERIFY(test::Stored(editor->store).back() == saved);
}

void MacroEditorSaveTest::SavingAnEditedMacroReplacesItsLine() {
  editor->Open();
  editor->Tap(1);
  editor->Press("Edit");
  // Its own name is no duplicate.
  editor->Fill(QStringLiteral("area"), 0, QStringLiteral("x*x"));
  editor->Press("Save");
  editor->ExpectViewState();
  QCOMPARE(editor->Lines(), QStringLiteral("twice(X) area(X) sum(X,Y,Z)"));
  QCOMPARE(editor->list->SelectedRow(), 1);
  auto expected = kThreeMacros;
  expected[1] = {L"area", kType1, L"x*x"};
  QVERIFY(test::Stored(editor->store) == expected);
}

void MacroEditorSaveTest::EnterSaves() {
  editor->Open({});
  editor->Press("New");
  QTest::keyClicks(editor->name, QStringLiteral("f"));
  QTest::keyClick(editor->name, Qt::Key_Tab);
  QVERIFY(editor->type->hasFocus());
  QTest::keyClick(editor->type, Qt::Key_Down);
  QTest::keyClick(editor->type, Qt::Key_Tab);
  QVERIFY(editor->formula->hasFocus());
  QTest::keyClicks(editor->formula, QStringLiteral("x+1"));
  QTest::keyClick(editor->formula, Qt::Key_Return);
  editor->ExpectViewState();
  QVERIFY(test::Stored(editor->store) == std::vector({StoredMacro{L"f", kType1, L"x+1"}}));
}

void MacroEditorSaveTest::TheFormulaHoldsAHundredAndFiftyCharacters() {
  editor->Open({});
  editor->Press("New");
  const QString longest = QStringLiteral("x") + QStringLiteral("+1").repeated(74);
  QCOMPARE(longest.size(), qsizetype{149});
  editor->name->setText(QStringLiteral("long"));
  editor->type->setCurrentIndex(0);
  QTest::keyClicks(editor->formula, longest + QStringLiteral("!!!"));
  QCOMPARE(editor->formula->toPlainText(), longest + u'!');
  editor->Press("Save");
  QVERIFY(!test::OpenBox());
  QVERIFY(test::Stored(editor->store).front().formula == (longest + u'!').toStdWString());
}

void MacroEditorSaveTest::APasteWithoutRoomIsRefusedWhole() {
  editor->Open();
  editor->Press("Edit");
  const QString before = editor->formula->toPlainText();
  editor->formula->setFocus();
  editor->formula->selectAll();
  const QString tooLong = QStringLiteral("x") + QStringLiteral("+1").repeated(80);
  QCOMPARE(tooLong.size(), qsizetype{161});
  QGuiApplication::clipboard()->setText(tooLong);
  QTest::keyClick(editor->formula, Qt::Key_V, Qt::ControlModifier);
  QCOMPARE(ShownBox(), test::Error("Macro Expression exceeded length limit."));
  AnswerBox();
  QCOMPARE(editor->formula->toPlainText(), before);
  QCOMPARE(editor->formula->textCursor().selectedText(), before);
  QTRY_VERIFY(editor->formula->hasFocus());
  QGuiApplication::clipboard()->setText(tooLong.left(149));
  QTest::keyClick(editor->formula, Qt::Key_V, Qt::ControlModifier);
  QVERIFY(!test::OpenBox());
  QCOMPARE(editor->formula->toPlainText(), tooLong.left(149));
}

void MacroEditorSaveTest::TheNameHasALength() {
  editor->Open({});
  editor->Press("New");
  const auto paste = [this](qsizetype length) {
    QGuiApplication::clipboard()->setText(QString(length, u'f'));
    QTest::keyClick(editor->name, Qt::Key_V, Qt::ControlModifier);
  };
  paste(101);
  QCOMPARE(editor->name->text(), QString());
  QCOMPARE(QToolTip::text(), QStringLiteral("Macro Name exceeded length limit."));
  paste(100);
  QTest::keyClicks(editor->name, QStringLiteral("f"));
  QCOMPARE(editor->name->text(), QString(100, u'f'));
  editor->type->setCurrentIndex(0);
  editor->formula->setPlainText(QStringLiteral("x"));
  editor->Press("Save");
  QCOMPARE(test::Stored(editor->store).front().name, std::wstring(100, L'f'));
}

void MacroEditorSaveTest::MemInsertsIntoTheFormula() {
  Write(editor->store, settings::kMemoryVariable, 4, L"2.5");
  editor->Open();
  editor->Press("Edit");
  editor->formula->setPlainText(QStringLiteral("x*77"));
  QTextCursor cursor = editor->formula->textCursor();
  cursor.setPosition(2);
  cursor.setPosition(4, QTextCursor::KeepAnchor);
  editor->formula->setTextCursor(cursor);
  Recall(4);
  QCOMPARE(editor->formula->toPlainText(), QStringLiteral("x*2.5"));
  QCOMPARE(editor->dialog->focusWidget(), editor->formula);
  editor->ExpectEditingState();
}

void MacroEditorSaveTest::MemInsertsPlainNumbers() {
  // As the unit converter stores it.
  Write(editor->store, settings::kMemoryVariable, 4, L"1,234,500.25");
  editor->Open();
  editor->Press("Edit");
  editor->formula->setPlainText(QStringLiteral("x*"));
  editor->formula->moveCursor(QTextCursor::End);
  Recall(4);
  QCOMPARE(editor->formula->toPlainText(), QStringLiteral("x*1234500.25"));
  editor->Press("Save");
  QVERIFY(!test::OpenBox());
  editor->ExpectViewState();
}

void MacroEditorSaveTest::MemInsertsWholeNumbersOnly() {
  Write(editor->store, settings::kMemoryVariable, 0, L"12345");
  editor->Open();
  editor->Press("New");
  const QString nearlyFull = QStringLiteral("1").repeated(146);
  editor->formula->setPlainText(nearlyFull);
  Recall(0);
  QCOMPARE(ShownBox(), test::Error("Macro Expression exceeded length limit."));
  AnswerBox();
  QCOMPARE(editor->formula->toPlainText(), nearlyFull);
  QCOMPARE(editor->dialog->focusWidget(), editor->formula);
}

void MacroEditorSaveTest::MemInsertsNothingThatIsTooLarge() {
  Write(editor->store, settings::kMemoryVariable, 0, L"1e999");
  editor->Open();
  editor->Press("Edit");
  Recall(0);
  QCOMPARE(ShownBox(), test::Error("Out of range(overflow or underflow)"));
  AnswerBox();
  QVERIFY(editor->Fields() == kThreeMacros[0]);
  QCOMPARE(editor->dialog->focusWidget(), editor->formula);
}

void MacroEditorSaveTest::MemDismissedChangesNothing() {
  editor->Open();
  editor->Press("Edit");
  QDialog* const memory = OpenMemory();
  QVERIFY(memory);
  QVERIFY(!memory->findChild<QPushButton*>(QStringLiteral("Store")));
  QTest::keyClick(memory, Qt::Key_Escape);
  QVERIFY(editor->Fields() == kThreeMacros[0]);
  QCOMPARE(editor->dialog->focusWidget(), editor->formula);
  editor->ExpectEditingState();
}

void MacroEditorSaveTest::TheKeyboardFollowsTheFocus() {
  editor->Open();
  QSignalSpy nameAsked(editor->name->findChild<KeyboardOnFocus*>(), &KeyboardOnFocus::Asked);
  QSignalSpy formulaAsked(editor->formula->findChild<KeyboardOnFocus*>(), &KeyboardOnFocus::Asked);
  editor->Press("New");
  QCOMPARE(nameAsked, (QList<QVariantList>{{true}}));
  editor->formula->setFocus();
  QCOMPARE(nameAsked, (QList<QVariantList>{{true}, {false}}));
  QCOMPARE(formulaAsked, (QList<QVariantList>{{true}}));
  editor->Press("Cancel");
  QCOMPARE(formulaAsked, (QList<QVariantList>{{true}, {false}}));
}

}  // namespace vexa

VEXA_SCREEN_MAIN(vexa::MacroEditorSaveTest)
#include "MacroEditorSaveTest.moc"
