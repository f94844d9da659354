// Composing with an input method, as it sends its events, between the keys of an edit line.

#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>

#include "toolkit/EditLine.h"

namespace vexa {
namespace {

constexpr int kLengths[] = {1, 8, 25, 60};
constexpr int kWidths[] = {60, 120, 300};
constexpr int kComposedLengths[] = {1, 10, 40};

struct KeyPress {
  Qt::Key key;
  Qt::KeyboardModifiers modifiers;
};
constexpr KeyPress kKeys[] = {
    {Qt::Key_Down, Qt::NoModifier},      {Qt::Key_Down, Qt::ShiftModifier},
    {Qt::Key_Up, Qt::NoModifier},        {Qt::Key_Up, Qt::ShiftModifier},
    {Qt::Key_Left, Qt::NoModifier},      {Qt::Key_Right, Qt::ShiftModifier},
    {Qt::Key_Home, Qt::NoModifier},      {Qt::Key_End, Qt::ShiftModifier},
    {Qt::Key_PageDown, Qt::NoModifier},  {Qt::Key_PageUp, Qt::ShiftModifier},
    {Qt::Key_End, Qt::ControlModifier},  {Qt::Key_A, Qt::ControlModifier},
    {Qt::Key_Backspace, Qt::NoModifier}, {Qt::Key_Delete, Qt::ControlModifier},
    {Qt::Key_Z, Qt::ControlModifier},    {Qt::Key_7, Qt::NoModifier},
};

void Send(EditLine& line, const QString& composed, const QString& committed) {
  QInputMethodEvent event(composed, {});
  event.setCommitString(committed);
  QGuiApplication::sendEvent(&line, &event);
}

/// Composes `text` as an input method does: a character more each time.
void Compose(EditLine& line, const QString& text) {
  for (qsizetype n = 1; n <= text.size(); ++n) Send(line, text.left(n), QString());
}

QString Composed(const EditLine& line) {
  return line.document()->firstBlock().layout()->preeditAreaText();
}

}  // namespace

class EditLineComposingTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void KeysActAsOnTheCommittedText_data();
  void KeysActAsOnTheCommittedText();
  void AClickCommits();
  void AChangeCommits();
  void LeavingTheLineCommits();
  void KeysOfTheInputMethodLeaveTheComposition();
  void ACompositionIsOneStepOfUndo();

 private:
  void SetCaret(int position);
  /// `text`, into which `composed` is composed at `caret`, after a key and more text; the caret is
  /// "|". `committed`: the input method commits before the key.
  QString AfterKey(const QString& text, int caret, const QString& composed, bool committed,
                   const KeyPress& press);

  std::unique_ptr<EditLine> line;
};

void EditLineComposingTest::init() {
  line = std::make_unique<EditLine>(nullptr);
  line->show();
  QVERIFY(QTest::qWaitForWindowActive(line.get()));
  line->setFocus();
}

void EditLineComposingTest::SetCaret(int position) {
  QTextCursor cursor = line->textCursor();
  cursor.setPosition(position);
  line->setTextCursor(cursor);
}

QString EditLineComposingTest::AfterKey(const QString& text, int caret, const QString& composed,
                                        bool committed, const KeyPress& press) {
  line->setPlainText(text);
  SetCaret(caret);
  Compose(*line, composed);
  if (committed) Send(*line, QString(), composed);
  QTest::keyClick(line.get(), press.key, press.modifiers);
  Send(*line, QString(), QStringLiteral("3"));
  QTest::keyClicks(line.get(), QStringLiteral("4"));
  QString after = line->toPlainText();
  return after.insert(line->textCursor().position(), u'|');
}

void EditLineComposingTest::KeysActAsOnTheCommittedText_data() {
  QTest::addColumn<int>("length");
  QTest::addColumn<int>("width");
  QTest::addColumn<int>("composedLength");
  for (const int length : kLengths) {
    for (const int width : kWidths) {
      for (const int composed : kComposedLengths) {
        QTest::addRow("%d characters, %d wide, %d composed", length, width, composed)
            << length << width << composed;
      }
    }
  }
}

void EditLineComposingTest::KeysActAsOnTheCommittedText() {
  QFETCH(int, length);
  QFETCH(int, width);
  QFETCH(int, composedLength);
  line->resize(width, 50);
  const QString text(length, u'1');
  const QString composed(composedLength, u'2');
  for (const KeyPress& press : kKeys) {
    for (const int caret : {0, length / 2, length}) {
      const QString expected = AfterKey(text, caret, composed, true, press);
      QCOMPARE(AfterKey(text, caret, composed, false, press), expected);
    }
  }
}

void EditLineComposingTest::AClickCommits() {
  line->resize(120, 80);
  for (const int x : {2, 30, 60, 110}) {
    for (const int y : {2, 20, 40, 70}) {
      line->setPlainText(QString(30, u'1'));
      SetCaret(10);
      Compose(*line, QString(25, u'2'));
      QTest::mouseClick(line->viewport(), Qt::LeftButton, {}, QPoint(x, y));
      QCOMPARE(line->toPlainText(), QString(10, u'1') + QString(25, u'2') + QString(20, u'1'));
      Send(*line, QString(), QStringLiteral("3"));
      QCOMPARE(line->toPlainText().size(), 56);
    }
  }
}

void EditLineComposingTest::AChangeCommits() {
  line->setPlainText(QStringLiteral("11"));
  SetCaret(1);
  Compose(*line, QStringLiteral("22"));
  line->SelectWholeText();
  QCOMPARE(line->textCursor().selectedText(), QStringLiteral("1221"));
  Compose(*line, QStringLiteral("3"));
  line->ReplaceText(L"5");
  QCOMPARE(line->toPlainText(), QStringLiteral("5"));
  QCOMPARE(Composed(*line), QString());
}

void EditLineComposingTest::LeavingTheLineCommits() {
  QTest::keyClicks(line.get(), QStringLiteral("1"));
  Compose(*line, QStringLiteral("22"));
  line->clearFocus();
  QCOMPARE(line->toPlainText(), QStringLiteral("122"));
  QCOMPARE(Composed(*line), QString());
}

void EditLineComposingTest::KeysOfTheInputMethodLeaveTheComposition() {
  for (const Qt::Key key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_AltGr, Qt::Key_Hiragana,
                            Qt::Key_Super_L, Qt::Key_CapsLock, Qt::Key_Dead_Grave}) {
    Compose(*line, QStringLiteral("22"));
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QGuiApplication::sendEvent(line.get(), &press);
    QCOMPARE(Composed(*line), QStringLiteral("22"));
    QCOMPARE(line->toPlainText(), QString());
  }
}

void EditLineComposingTest::ACompositionIsOneStepOfUndo() {
  QTest::keyClicks(line.get(), QStringLiteral("1"));
  Compose(*line, QStringLiteral("22"));
  Send(*line, QString(), QStringLiteral("22"));
  Compose(*line, QStringLiteral("33"));
  for (const char* text : {"122", "1", ""}) {
    QTest::keyClick(line.get(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(line->toPlainText(), QString::fromLatin1(text));
  }
}

}  // namespace vexa

QTEST_MAIN(vexa::EditLineComposingTest)
#include "EditLineComposingTest.moc"
