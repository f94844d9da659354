#include "toolkit/EditLine.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QVBoxLayout>
#include <functional>
#include <random>

#include "support/Boxes.h"
#include "toolkit/LineText.h"

namespace vexa {

class EditLineTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void PositionsAreCharacters();
  void AChangeIsOneStepOfUndo();
  void AChangeThatChangesNothingIsNoStep();
  void ChangesInARowAreSeparateSteps();
  void AChangeTakesTheFocus();
  void EnterNeverBreaksTheLine_data();
  void EnterNeverBreaksTheLine();
  void TabMovesTheFocus();
  void PastedBreaksAreBlanks();
  void PastedTextIsPlain();
  void AHugePasteIsRefusedAtOnce();
  void AFullLineTakesNoMore();
  void NothingIsCut();
  void PastedNumbersAreAnExpressions();
  void AFreshLineHasNothingToUndo();
  void EachKeyIsAStepOfUndo();
  void TheNextExpressionIsAStepOfItsOwn();
  void UndoingSelectsAgain();
  void TheMenuUndoesToo();
  void UndoAndRedoGoThroughEveryState();
  void AssistiveTextIsOneLine();
  void InputMethodTextIsOneLine();
  void InsertedBlockMarksAreBlanks();

 private:
  void Paste(const QString& text);
  void Select(int start, int end);
  void Undo() { QTest::keyClick(edit, Qt::Key_Z, Qt::ControlModifier); }
  void Redo() { QTest::keyClick(edit, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }
  /// The text, the selection between "[" and "]", the caret "|".
  QString Written() const;

  std::unique_ptr<QWidget> window;
  EditLine* edit = nullptr;
  QLineEdit* other = nullptr;
};

void EditLineTest::init() {
  window = std::make_unique<QWidget>();
  edit = new EditLine(window.get());
  other = new QLineEdit(window.get());
  auto* layout = new QVBoxLayout(window.get());
  layout->addWidget(edit);
  layout->addWidget(other);
  window->resize(300, 200);
  window->show();
  QVERIFY(QTest::qWaitForWindowActive(window.get()));
  edit->setFocus();
}

void EditLineTest::Paste(const QString& text) {
  QGuiApplication::clipboard()->setText(text);
  QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);
}

void EditLineTest::Select(int start, int end) {
  QTextCursor cursor = edit->textCursor();
  cursor.setPosition(start);
  cursor.setPosition(end, QTextCursor::KeepAnchor);
  edit->setTextCursor(cursor);
}

QString EditLineTest::Written() const {
  const QTextCursor cursor = edit->textCursor();
  QString text = edit->toPlainText();
  if (!cursor.hasSelection()) return text.insert(cursor.position(), u'|');
  return text.insert(cursor.selectionEnd(), u']').insert(cursor.selectionStart(), u'[');
}

void EditLineTest::PositionsAreCharacters() {
  // Each of these faces is one character and two units of the document.
  edit->setPlainText(QString::fromStdWString(L"\x1F600+\x1F601*2"));
  Select(3, 5);
  const EditText state = edit->State();
  QVERIFY(state.text == L"\x1F600+\x1F601*2");
  QCOMPARE(state.selectionStart, std::size_t{2});
  QCOMPARE(state.selectionEnd, std::size_t{3});
  edit->ApplyChange(WrapSelection(state, L"(", L")"));
  QVERIFY(edit->Text() == L"\x1F600+(\x1F601)*2");
  QCOMPARE(edit->State().selectionStart, std::size_t{5});
}

void EditLineTest::AChangeIsOneStepOfUndo() {
  edit->setPlainText(QStringLiteral("1+2"));
  Select(0, 3);
  edit->ApplyChange(WrapSelection(edit->State(), L"sin(", L")"));
  QVERIFY(edit->Text() == L"sin(1+2)");
  QTest::keyClick(edit, Qt::Key_Z, Qt::ControlModifier);
  QVERIFY(edit->Text() == L"1+2");
  QTest::keyClick(edit, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  QVERIFY(edit->Text() == L"sin(1+2)");
}

void EditLineTest::AChangeThatChangesNothingIsNoStep() {
  edit->setPlainText(QStringLiteral("12"));
  Select(0, 0);
  edit->ApplyChange(DeleteBefore(edit->State()));
  QVERIFY(!edit->document()->isUndoAvailable());
}

void EditLineTest::ChangesInARowAreSeparateSteps() {
  for (const wchar_t* digit : {L"1", L"2", L"3"}) {
    edit->ApplyChange(InsertText(edit->State(), digit));
  }
  QVERIFY(edit->Text() == L"123");
  for (const std::wstring text : {L"12", L"1", L""}) {
    QTest::keyClick(edit, Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(edit->Text() == text);
  }
}

void EditLineTest::AChangeTakesTheFocus() {
  other->setFocus();
  edit->ApplyChange(InsertText(edit->State(), L"7"));
  QVERIFY(edit->hasFocus());
}

void EditLineTest::EnterNeverBreaksTheLine_data() {
  QTest::addColumn<int>("key");
  QTest::addColumn<int>("modifiers");
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    for (const Qt::KeyboardModifiers modifiers :
         {Qt::KeyboardModifiers(Qt::NoModifier), Qt::KeyboardModifiers(Qt::ShiftModifier),
          Qt::KeyboardModifiers(Qt::ControlModifier), Qt::ControlModifier | Qt::ShiftModifier,
          Qt::KeyboardModifiers(Qt::KeypadModifier)}) {
      QTest::addRow("%x %x", key, modifiers.toInt())
          << int{key} << static_cast<int>(modifiers.toInt());
    }
  }
}

void EditLineTest::EnterNeverBreaksTheLine() {
  QFETCH(int, key);
  QFETCH(int, modifiers);
  edit->setPlainText(QStringLiteral("12"));
  Select(1, 1);
  QTest::keyClick(edit, static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers));
  QVERIFY(edit->Text() == L"12");
}

void EditLineTest::TabMovesTheFocus() {
  QTest::keyClick(edit, Qt::Key_Tab);
  QVERIFY(other->hasFocus());
  QVERIFY(edit->Text().empty());
}

void EditLineTest::PastedBreaksAreBlanks() {
  Paste(QStringLiteral("1+\r\n2\n+\t3"));
  QVERIFY(edit->Text() == L"1+ 2 +\t3");
  QCOMPARE(edit->blockCount(), 1);
  QTest::keyClick(edit, Qt::Key_Z, Qt::ControlModifier);
  QVERIFY(edit->Text().empty());
}

void EditLineTest::PastedTextIsPlain() {
  auto* data = new QMimeData;
  data->setHtml(QStringLiteral("<b>1</b>"));
  data->setText(QStringLiteral("1"));
  QGuiApplication::clipboard()->setMimeData(data);
  QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);
  QVERIFY(edit->Text() == L"1");

  auto* html = new QMimeData;
  html->setData(QStringLiteral("image/png"), "x");
  QGuiApplication::clipboard()->setMimeData(html);
  QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);
  QVERIFY(edit->Text() == L"1");
}

void EditLineTest::AHugePasteIsRefusedAtOnce() {
  edit->setPlainText(QStringLiteral("12"));
  for (const qsizetype length : {qsizetype{20'000'000}, static_cast<qsizetype>(kLongestLine) + 1}) {
    edit->selectAll();
    Paste(QString(length, u'1'));
    QCOMPARE(test::ShownBox(), test::Error("Expression exceeded length limit."));
    test::AnswerBox();
    QCOMPARE(Written(), QStringLiteral("[12]"));
    QVERIFY(edit->hasFocus());
  }
}

void EditLineTest::AFullLineTakesNoMore() {
  const QString full(static_cast<qsizetype>(kLongestLine), u'1');
  Paste(full);
  QCOMPARE(edit->toPlainText(), full);
  QTest::keyClicks(edit, QStringLiteral("23"));
  edit->ApplyChange(InsertText(edit->State(), L"sin("));
  QVERIFY(!test::OpenBox());
  Paste(QStringLiteral("45"));
  test::AnswerBox();
  QCOMPARE(edit->toPlainText(), full);
  QTest::keyClick(edit, Qt::Key_Backspace);
  QTest::keyClick(edit, Qt::Key_7);
  QVERIFY(edit->Text().ends_with(L"17"));
  edit->selectAll();
  QTest::keyClick(edit, Qt::Key_8);
  QVERIFY(edit->Text() == L"8");
}

void EditLineTest::NothingIsCut() {
  const FieldLength ten{10, L"Ten at most."};
  delete edit;
  edit = new EditLine(window.get(), ten);
  window->layout()->addWidget(edit);
  edit->show();
  edit->setFocus();
  QTest::keyClicks(edit, QStringLiteral("12345678"));
  // A key puts in all of its text or none.
  edit->ApplyChange(InsertText(edit->State(), L"sin"));
  QCOMPARE(Written(), QStringLiteral("12345678|"));
  edit->ApplyChange(InsertText(edit->State(), L"00"));
  QCOMPARE(Written(), QStringLiteral("1234567800|"));
  // What is selected stays where what comes in its place has no room.
  Select(2, 5);
  edit->ApplyChange(WrapSelection(edit->State(), L"(", L")"));
  QCOMPARE(Written(), QStringLiteral("12[345]67800"));
  edit->ApplyChange(InsertText(edit->State(), L"9876"));
  QCOMPARE(Written(), QStringLiteral("12[345]67800"));
  QVERIFY(!test::OpenBox());
  // What was chosen, pasted or spoken is told.
  const std::function<void()> ways[] = {
      [this] { edit->ApplyOrTell(WrapSelection(edit->State(), L"(", L")")); },
      [this] { Paste(QStringLiteral("9876")); },
      [this] {
        QInputMethodEvent event;
        event.setCommitString(QStringLiteral("9876"));
        QGuiApplication::sendEvent(edit, &event);
      },
  };
  for (const auto& put : ways) {
    put();
    QCOMPARE(test::ShownBox(), test::Error("Ten at most."));
    test::AnswerBox();
    QCOMPARE(Written(), QStringLiteral("12[345]67800"));
    QVERIFY(edit->hasFocus());
  }
  Paste(QStringLiteral("987"));
  QCOMPARE(Written(), QStringLiteral("12987|67800"));
  // Less has room in a text that was too long from the beginning.
  edit->setPlainText(QString(20, u'1'));
  QTest::keyClick(edit, Qt::Key_Delete);
  QCOMPARE(edit->toPlainText().size(), 19);
}

void EditLineTest::PastedNumbersAreAnExpressions() {
  Paste(QStringLiteral("1,234.5"));
  QCOMPARE(Written(), QStringLiteral("1234.5|"));
  Paste(QString::fromStdWString(L"\u00d72\u00f7(3\u22124)\u00b75"));
  QCOMPARE(Written(), QStringLiteral("1234.5*2/(3-4)*5|"));
}

void EditLineTest::AFreshLineHasNothingToUndo() {
  window->resize(500, 400);
  QCoreApplication::processEvents();
  QVERIFY(!edit->document()->isUndoAvailable());
}

void EditLineTest::EachKeyIsAStepOfUndo() {
  QTest::keyClicks(edit, QStringLiteral("1+23"));
  QTest::keyClick(edit, Qt::Key_Backspace);
  QTest::keyClick(edit, Qt::Key_Backspace);
  QTest::keyClicks(edit, QStringLiteral("4+5"));
  QTest::keyClick(edit, Qt::Key_Backspace, Qt::ControlModifier);
  QTest::keyClick(edit, Qt::Key_Home);
  QTest::keyClick(edit, Qt::Key_Delete);
  QTest::keyClick(edit, Qt::Key_Delete);
  QCOMPARE(Written(), QStringLiteral("|4+"));
  for (const char* text : {"|+4+", "|1+4+", "1+4+5|", "1+4+|", "1+4|", "1+|", "1+2|", "1+23|",
                           "1+2|", "1+|", "1|", "|"}) {
    Undo();
    QCOMPARE(Written(), QString::fromLatin1(text));
  }
}

void EditLineTest::TheNextExpressionIsAStepOfItsOwn() {
  QTest::keyClicks(edit, QStringLiteral("1+2"));
  edit->SelectWholeText();
  QTest::keyClicks(edit, QStringLiteral("34"));
  for (const char* text : {"3|", "[1+2]", "1+|"}) {
    Undo();
    QCOMPARE(Written(), QString::fromLatin1(text));
  }
}

void EditLineTest::UndoingSelectsAgain() {
  edit->setPlainText(QStringLiteral("12+34"));
  Select(3, 5);
  edit->ApplyChange(WrapSelection(edit->State(), L"(", L")^(1/)"));
  Undo();
  QCOMPARE(Written(), QStringLiteral("12+[34]"));
  Redo();
  QCOMPARE(Written(), QStringLiteral("12+(34)^(1/)|"));
  // A selection that was made backwards is so again.
  Undo();
  Select(5, 3);
  edit->ApplyChange(InsertText(edit->State(), L"7"));
  Undo();
  QCOMPARE(edit->textCursor().position(), 3);
  QCOMPARE(Written(), QStringLiteral("12+[34]"));
}

void EditLineTest::TheMenuUndoesToo() {
  edit->setPlainText(QStringLiteral("12+34"));
  Select(3, 5);
  edit->ApplyChange(WrapSelection(edit->State(), L"(", L")"));
  const auto choose = [this](const char* name) {
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5),
                            edit->mapToGlobal(QPoint(5, 5)));
    QGuiApplication::sendEvent(edit->viewport(), &event);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu);
    auto* const action = menu->findChild<QAction*>(QString::fromLatin1(name));
    QVERIFY(action && action->isEnabled());
    menu->setActiveAction(action);
    QTest::keyClick(menu, Qt::Key_Return);
    QVERIFY(!QApplication::activePopupWidget());
  };
  choose("edit-undo");
  QCOMPARE(Written(), QStringLiteral("12+[34]"));
  choose("edit-redo");
  QCOMPARE(Written(), QStringLiteral("12+(34)|"));
}

void EditLineTest::UndoAndRedoGoThroughEveryState() {
  std::mt19937 random(3);
  const auto below = [&random](std::size_t count) {
    return static_cast<int>(random() % (count ? count : 1));
  };
  QStringList states{Written()};
  for (int n = 0; n < 200; ++n) {
    const QString before = edit->toPlainText();
    const int size = static_cast<int>(before.size());
    switch (below(8)) {
      case 0:
        Select(below(edit->Text().size() + 1), below(edit->Text().size() + 1));
        states.last() = Written();
        break;
      case 1:
        QTest::keyClick(edit, Qt::Key_Backspace);
        break;
      case 2:
        QTest::keyClick(edit, Qt::Key_Delete, below(2) ? Qt::ControlModifier : Qt::NoModifier);
        break;
      case 3:
        edit->ApplyChange(WrapSelection(edit->State(), L"sin(", L")"));
        break;
      case 4:
        Paste(QStringLiteral("12"));
        break;
      case 5:
        if (size > 0) QTest::keyClick(edit, Qt::Key_X, Qt::ControlModifier);
        break;
      default:
        QTest::keyClick(edit, static_cast<char>('0' + below(10)));
    }
    if (edit->toPlainText() != before) states += Written();
  }
  QVERIFY(states.size() > 100);
  for (qsizetype n = states.size() - 2; n >= 0; --n) {
    Undo();
    QCOMPARE(Written(), states[n]);
  }
  QVERIFY(!edit->document()->isUndoAvailable());
  for (qsizetype n = 1; n < states.size(); ++n) {
    Redo();
    QCOMPARE(Written(), states[n]);
  }
}

void EditLineTest::AssistiveTextIsOneLine() {
  QTest::keyClicks(edit, QStringLiteral("7"));
  QAccessibleInterface* const interface = QAccessible::queryAccessibleInterface(edit);
  QVERIFY(interface && interface->editableTextInterface());
  interface->editableTextInterface()->insertText(1, QStringLiteral("1\n2"));
  QCOMPARE(edit->blockCount(), 1);
  QVERIFY(edit->Text() == L"71 2");
  Undo();
  QVERIFY(edit->Text() == L"7");
  interface->setText(QAccessible::Value, QStringLiteral("3\n4"));
  QCOMPARE(edit->blockCount(), 1);
  QVERIFY(edit->Text() == L"3 4");
}

void EditLineTest::InputMethodTextIsOneLine() {
  QInputMethodEvent event;
  event.setCommitString(QStringLiteral("1\n2"));
  QGuiApplication::sendEvent(edit, &event);
  QVERIFY(edit->Text() == L"1 2");
}

void EditLineTest::InsertedBlockMarksAreBlanks() {
  edit->ApplyChange(InsertText(edit->State(),
                               L"1\n2\xFDD0"
                               L"3\x2029"
                               L"4"));
  QVERIFY(edit->Text() == L"1 2 3 4");
  QCOMPARE(edit->State().selectionStart, std::size_t{7});
}

}  // namespace vexa

QTEST_MAIN(vexa::EditLineTest)
#include "EditLineTest.moc"
