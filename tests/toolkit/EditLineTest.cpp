#include "toolkit/EditLine.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QTest>
#include <QVBoxLayout>

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
  void AHugePasteIsCutAtOnce();
  void AFullLineTakesNoMore();
  void InputMethodTextIsOneLine();
  void InsertedBlockMarksAreBlanks();

 private:
  void Paste(const QString& text);
  void Select(int start, int end);

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

void EditLineTest::AHugePasteIsCutAtOnce() {
  Paste(QString(20'000'000, u'1'));
  QCOMPARE(edit->Text().size(), kLongestLine);
}

void EditLineTest::AFullLineTakesNoMore() {
  Paste(QString(static_cast<qsizetype>(kLongestLine), u'1'));
  QTest::keyClicks(edit, QStringLiteral("23"));
  edit->ApplyChange(InsertText(edit->State(), L"sin("));
  Paste(QStringLiteral("45"));
  QCOMPARE(edit->Text().size(), kLongestLine);
  QTest::keyClick(edit, Qt::Key_Backspace);
  QTest::keyClick(edit, Qt::Key_7);
  QVERIFY(edit->Text().ends_with(L"17"));
  edit->selectAll();
  QTest::keyClick(edit, Qt::Key_8);
  QVERIFY(edit->Text() == L"8");
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
