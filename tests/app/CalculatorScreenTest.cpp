#include "app/CalculatorScreen.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include "app/CalculatorKeypad.h"
#include "display/MemorySettingsStore.h"
#include "display/WideText.h"
#include "toolkit/EditLine.h"
#include "toolkit/ResultLine.h"

namespace vexa {
namespace {

/// What a key makes of "12+34": with the caret behind "+", and with "34" selected; "|" marks the
/// caret. `layout` is the base and layer that show the key.
struct KeyCase {
  const char* caption;
  const char* withoutSelection;
  const char* withSelection;
  const char* layout = "DEC";
};
constexpr KeyCase kKeyCases[] = {
    {"0", "12+0|34", "12+0|"},
    {"1", "12+1|34", "12+1|"},
    {"2", "12+2|34", "12+2|"},
    {"3", "12+3|34", "12+3|"},
    {"4", "12+4|34", "12+4|"},
    {"5", "12+5|34", "12+5|"},
    {"6", "12+6|34", "12+6|"},
    {"7", "12+7|34", "12+7|"},
    {"8", "12+8|34", "12+8|"},
    {"9", "12+9|34", "12+9|"},
    {"00", "12+00|34", "12+00|"},
    {".", "12+.|34", "12+.|"},
    {"Exp", "12+E|34", "12+E|"},
    {"(", "12+(|34", "12+(|"},
    {")", "12+)|34", "12+)|"},
    {"Pi", "12+Pi|34", "12+Pi|"},
    {"+", "12++|34", "12+34+|"},
    {"-", "12+-|34", "12+34-|"},
    {"*", "12+*|34", "12+(34)*|"},
    {"/", "12+/|34", "12+(34)/|"},
    {"%", "12+%|34", "12+(34)%|"},
    {"X^2", "12+^2|34", "12+(34)^2|"},
    {"Y^X", "12+^|34", "12+(34)^|"},
    {"nCr", "12+C|34", "12+(34)C|"},
    {"(...)", "12+(|)34", "12+(34)|"},
    {"SIN", "12+sin(|)34", "12+sin(34)|"},
    {"COS", "12+cos(|)34", "12+cos(34)|"},
    {"TAN", "12+tan(|)34", "12+tan(34)|"},
    {"SINH", "12+sinh(|)34", "12+sinh(34)|"},
    {"COSH", "12+cosh(|)34", "12+cosh(34)|"},
    {"TANH", "12+tanh(|)34", "12+tanh(34)|"},
    {"LOG", "12+log(|)34", "12+log(34)|"},
    {"LN", "12+ln(|)34", "12+ln(34)|"},
    {"SQRT", "12+sqrt(|)34", "12+sqrt(34)|"},
    {"ABS()", "12+abs(|)34", "12+abs(34)|"},
    {"BS", "12|34", "12+|"},
    {"DEL", "12+|4", "12+|"},
    {"CLR", "|", "|"},
    {"ASIN", "12+asin(|)34", "12+asin(34)|", "Shift"},
    {"ACOS", "12+acos(|)34", "12+acos(34)|", "Shift"},
    {"ATAN", "12+atan(|)34", "12+atan(34)|", "Shift"},
    {"INT()", "12+int(|)34", "12+int(34)|", "Shift"},
    {"FRAC", "12+frac(|)34", "12+frac(34)|", "Shift"},
    {"e^X", "12+exp(|)34", "12+exp(34)|", "Shift"},
    {"10^X", "12+10^|34", "12+10^(34)|", "Shift"},
    {"1/X", "12+1/|34", "12+1/(34)|", "Shift"},
    {"X!", "12+!|34", "12+(34)!|", "Shift"},
    {"nPr", "12+P|34", "12+(34)P|", "Shift"},
    {"XthR", "12+^(1/|)34", "12+(34)^(1/|)", "Shift"},
    {"<<", "12+<<|34", "12+(34)<<|", "Shift"},
    {">>", "12+>>|34", "12+(34)>>|", "Shift"},
    {"NOT", "12+ NOT |34", "12+NOT(34)|", "HEX"},
    {"AND", "12+ AND |34", "12+(34) AND |", "HEX"},
    {"OR", "12+ OR |34", "12+(34) OR |", "HEX"},
    {"XOR", "12+ XOR |34", "12+(34) XOR |", "HEX"},
    {"XNOR", "12+ XNOR |34", "12+(34) XNOR |", "HEX"},
    {"A", "12+A|34", "12+A|", "HEX"},
    {"B", "12+B|34", "12+B|", "HEX"},
    {"C", "12+C|34", "12+C|", "HEX"},
    {"D", "12+D|34", "12+D|", "HEX"},
    {"E", "12+E|34", "12+E|", "HEX"},
    {"F", "12+F|34", "12+F|", "HEX"},
};
/// The keys that change more than the edit line.
constexpr const char* kOtherKeys[] = {"=",   "PB",  "DEG", "RAD", "Shift", "DEC",
                                      "HEX", "BIN", "OCT", "Mac", "Cnv",   "MEM"};

}  // namespace

class CalculatorScreenTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void StartsAsAFreshStoreSays();
  void EveryKeyIsKnown();
  void KeysChangeTheEditLine_data();
  void KeysChangeTheEditLine();
  void BackspaceAtTheStartDoesNothing();
  void EveryControlHasAName();
  void TapsCalculate();
  void TypingAndEnterCalculate_data();
  void TypingAndEnterCalculate();
  void EnterOnAFocusedKeyRunsEquals();
  void TheNextKeyReplacesTheExpression();
  void FailuresAreSentences_data();
  void FailuresAreSentences();
  void DegAndRadShareAPlace();
  void PbIsDisabledWithoutHistory();
  void PbListsTheNewestFirst();
  void PbDismissedDoesNothing();
  void PbShowsCaptionsLiterally();
  void PbConvertsResults();
  void CutCopyPaste();
  void TheMenuCopiesFromTheLine();
  void TheResultCanBeCopied();
  void TypingGoesToTheLine_data();
  void TypingGoesToTheLine();
  void KeysThatAreNotTypedStay();
  void KeysFinishAComposition();
  void TheAngleIsStoredAtOnce();
  void EveryEntryOfTheHistoryIsAnItem();
  void TheStoredBaseIsShown();
  void SettingsAreWrittenAtTheEnd();
  void AHostileStoreIsHarmless();
  void ClrLeavesTheResult();
  void MenusSayWhatWasChosen();
  void TheAboutBoxNamesTheProduct();
  void TargetsAreLargeEnough();
  void KeysFitAtTheSmallestSize();
  void TabReachesEveryEnabledKey();

 private:
  void Open();
  QPushButton* Button(const QString& caption) const {
    return screen->findChild<QPushButton*>(caption);
  }
  void Press(const QString& caption) { QTest::mouseClick(Button(caption), Qt::LeftButton); }
  void SetText(const QString& text, int start, int end);
  /// The edit line's text with the caret marked by "|".
  QString Marked() const;
  QString Result() const { return screen->findChild<ResultLine*>()->toPlainText(); }
  QAction* MenuAction(const QString& menuTitle, const QString& text) const;
  /// The open pop-up menu with this name, or null.
  QMenu* OpenMenu(const QString& name) const;
  QMenu* OpenHistory();
  void ChooseBase(const QString& name);

  std::unique_ptr<MemorySettingsStore> store;
  std::unique_ptr<CalculatorScreen> screen;
  EditLine* edit = nullptr;
};

void CalculatorScreenTest::init() {
  screen.reset();
  store = std::make_unique<MemorySettingsStore>();
  Open();
}

void CalculatorScreenTest::Open() {
  screen.reset();
  screen = std::make_unique<CalculatorScreen>(*store, nullptr);
  edit = screen->findChild<EditLine*>();
  screen->resize(340, 560);
  screen->show();
  QVERIFY(QTest::qWaitForWindowActive(screen.get()));
  screen->setFocus();
}

void CalculatorScreenTest::SetText(const QString& text, int start, int end) {
  edit->setPlainText(text);
  QTextCursor cursor = edit->textCursor();
  cursor.setPosition(start);
  cursor.setPosition(end, QTextCursor::KeepAnchor);
  edit->setTextCursor(cursor);
}

QString CalculatorScreenTest::Marked() const {
  const QTextCursor cursor = edit->textCursor();
  QString text = edit->toPlainText();
  text.insert(cursor.position(), u'|');
  return cursor.hasSelection() ? text + QStringLiteral(" (selection)") : text;
}

QAction* CalculatorScreenTest::MenuAction(const QString& menuTitle, const QString& text) const {
  for (const QAction* menu : screen->findChild<QMenuBar*>()->actions()) {
    if (menu->text().remove(u'&') != menuTitle) continue;
    for (QAction* action : menu->menu()->actions()) {
      if (action->text().remove(u'&') == text) return action;
    }
  }
  return nullptr;
}

QMenu* CalculatorScreenTest::OpenMenu(const QString& name) const {
  // One that was just closed is deleted a little later.
  for (QMenu* menu : screen->findChildren<QMenu*>(name)) {
    if (menu->isVisible()) return menu;
  }
  return nullptr;
}

QMenu* CalculatorScreenTest::OpenHistory() {
  Press(QStringLiteral("PB"));
  return OpenMenu(QStringLiteral("History"));
}

void CalculatorScreenTest::ChooseBase(const QString& name) {
  for (const char* base : {"DEC", "HEX", "BIN", "OCT"}) {
    QPushButton* const button = Button(QString::fromLatin1(base));
    if (button->isVisible()) QTest::mouseClick(button, Qt::LeftButton);
  }
  QMenu* const menu = OpenMenu(QStringLiteral("Bases"));
  QVERIFY(menu);
  for (QAction* action : menu->actions()) {
    if (action->text() == name) menu->setActiveAction(action);
  }
  QTest::keyClick(menu, Qt::Key_Return);
}

void CalculatorScreenTest::StartsAsAFreshStoreSays() {
  QCOMPARE(Marked(), QStringLiteral("|"));
  QCOMPARE(Result(), QStringLiteral("0"));
  QVERIFY(Button(QStringLiteral("DEG"))->isVisible());
  QVERIFY(!Button(QStringLiteral("RAD"))->isVisible());
  QVERIFY(!Button(QStringLiteral("PB"))->isEnabled());
  QVERIFY(Button(QStringLiteral("DEC"))->isVisible());
  QVERIFY(edit->hasFocus());
  QVERIFY(Button(QStringLiteral("="))->isDefault());
}

void CalculatorScreenTest::EveryKeyIsKnown() {
  QSet<QString> known;
  for (const KeyCase& c : kKeyCases) known.insert(QString::fromLatin1(c.caption));
  for (const char* caption : kOtherKeys) known.insert(QString::fromLatin1(caption));
  QSet<QString> keys;
  for (const Key& key : CalculatorKeys()) keys.insert(FromWide(key.caption));
  QCOMPARE(keys, known);
}

void CalculatorScreenTest::KeysChangeTheEditLine_data() {
  QTest::addColumn<QString>("caption");
  QTest::addColumn<QString>("withoutSelection");
  QTest::addColumn<QString>("withSelection");
  QTest::addColumn<QString>("layout");
  for (const KeyCase& c : kKeyCases) {
    QTest::newRow(c.caption) << QString::fromLatin1(c.caption)
                             << QString::fromLatin1(c.withoutSelection)
                             << QString::fromLatin1(c.withSelection)
                             << QString::fromLatin1(c.layout);
  }
}

void CalculatorScreenTest::KeysChangeTheEditLine() {
  QFETCH(QString, caption);
  QFETCH(QString, withoutSelection);
  QFETCH(QString, withSelection);
  QFETCH(QString, layout);
  if (layout == QStringLiteral("Shift")) Press(layout);
  if (layout == QStringLiteral("HEX")) ChooseBase(QStringLiteral("Hexadecimal"));
  const QString before = QStringLiteral("12+34");

  SetText(before, 3, 3);
  Press(caption);
  QCOMPARE(Marked(), withoutSelection);
  QVERIFY(edit->hasFocus());
  QTest::keyClick(edit, Qt::Key_Z, Qt::ControlModifier);
  QCOMPARE(edit->toPlainText(), before);

  for (const auto& [start, end] : {std::pair(3, 5), std::pair(5, 3)}) {
    SetText(before, start, end);
    Press(caption);
    QCOMPARE(Marked(), withSelection);
    QVERIFY(edit->hasFocus());
    QTest::keyClick(edit, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(edit->toPlainText(), before);
  }
}

void CalculatorScreenTest::BackspaceAtTheStartDoesNothing() {
  SetText(QStringLiteral("12"), 0, 0);
  Press(QStringLiteral("BS"));
  QCOMPARE(Marked(), QStringLiteral("|12"));
  SetText(QStringLiteral("12"), 2, 2);
  Press(QStringLiteral("DEL"));
  QCOMPARE(Marked(), QStringLiteral("12|"));
}

void CalculatorScreenTest::EveryControlHasAName() {
  for (const Key& key : CalculatorKeys()) {
    const QString caption = FromWide(key.caption);
    QVERIFY2(Button(caption), qPrintable(caption));
    QCOMPARE(Button(caption)->accessibleName(), caption);
  }
  for (const char* name : {"Expression", "Result"}) {
    const auto* control = screen->findChild<QWidget*>(QString::fromLatin1(name));
    QVERIFY2(control && !control->accessibleName().isEmpty(), name);
  }
}

void CalculatorScreenTest::TapsCalculate() {
  for (const char* caption : {"1", "2", "+", "3", "*", "(", "4", ".", "5", ")", "="}) {
    Press(QString::fromLatin1(caption));
  }
  QCOMPARE(edit->toPlainText(), QStringLiteral("12+3*(4.5)"));
  QCOMPARE(Result(), QStringLiteral("25.5"));
}

void CalculatorScreenTest::TypingAndEnterCalculate_data() {
  QTest::addColumn<int>("key");
  QTest::newRow("Return") << int{Qt::Key_Return};
  QTest::newRow("Enter") << int{Qt::Key_Enter};
}

void CalculatorScreenTest::TypingAndEnterCalculate() {
  QFETCH(int, key);
  QTest::keyClicks(edit, QStringLiteral("1000*2"));
  QTest::keyClick(edit, static_cast<Qt::Key>(key));
  QCOMPARE(Result(), QStringLiteral("2,000"));
  QCOMPARE(edit->toPlainText(), QStringLiteral("1000*2"));
  QCOMPARE(edit->textCursor().selectedText(), QStringLiteral("1000*2"));
  QVERIFY(edit->hasFocus());
}

void CalculatorScreenTest::EnterOnAFocusedKeyRunsEquals() {
  QTest::keyClicks(edit, QStringLiteral("2+3"));
  auto* seven = Button(QStringLiteral("7"));
  seven->setFocus();
  QTest::keyClick(seven, Qt::Key_Return);
  QCOMPARE(edit->toPlainText(), QStringLiteral("2+3"));
  QCOMPARE(Result(), QStringLiteral("5"));
  seven->setFocus();
  QTest::keyClick(seven, Qt::Key_Space);
  QCOMPARE(edit->toPlainText(), QStringLiteral("7"));
}

void CalculatorScreenTest::TheNextKeyReplacesTheExpression() {
  QTest::keyClicks(edit, QStringLiteral("2+3"));
  Press(QStringLiteral("="));
  Press(QStringLiteral("9"));
  QCOMPARE(Marked(), QStringLiteral("9|"));
  Press(QStringLiteral("="));
  Press(QStringLiteral("BS"));
  QCOMPARE(Marked(), QStringLiteral("|"));
}

void CalculatorScreenTest::FailuresAreSentences_data() {
  QTest::addColumn<QString>("expression");
  QTest::addColumn<QString>("sentence");
  QTest::newRow("empty") << QString() << QStringLiteral("Expression is null.");
  QTest::newRow("blank") << QStringLiteral("   ") << QStringLiteral("Expression is null.");
  QTest::newRow("parentheses") << QStringLiteral("((1+2)")
                               << QStringLiteral("Not matched '(' and ')'.");
  QTest::newRow("word") << QStringLiteral("2+foo") << QStringLiteral("foo is not supported.");
}

void CalculatorScreenTest::FailuresAreSentences() {
  QFETCH(QString, expression);
  QFETCH(QString, sentence);
  QTest::keyClicks(edit, expression);
  Press(QStringLiteral("="));
  QCOMPARE(Result(), sentence);
  QVERIFY(edit->hasFocus());
  QCOMPARE(Button(QStringLiteral("PB"))->isEnabled(), !expression.trimmed().isEmpty());
}

void CalculatorScreenTest::DegAndRadShareAPlace() {
  const QRect place = Button(QStringLiteral("DEG"))->geometry();
  QTest::keyClicks(edit, QStringLiteral("sin(90)"));
  Press(QStringLiteral("="));
  QCOMPARE(Result(), QStringLiteral("1"));
  Press(QStringLiteral("DEG"));
  QVERIFY(edit->hasFocus());
  QVERIFY(!Button(QStringLiteral("DEG"))->isVisible());
  QVERIFY(Button(QStringLiteral("RAD"))->isVisible());
  QTRY_COMPARE(Button(QStringLiteral("RAD"))->geometry(), place);
  Press(QStringLiteral("="));
  QVERIFY(Result() != QStringLiteral("1"));
  Press(QStringLiteral("RAD"));
  QVERIFY(Button(QStringLiteral("DEG"))->isVisible());
  QTRY_COMPARE(Button(QStringLiteral("DEG"))->geometry(), place);
}

void CalculatorScreenTest::PbIsDisabledWithoutHistory() {
  QVERIFY(!Button(QStringLiteral("PB"))->isEnabled());
  Press(QStringLiteral("="));
  QVERIFY(!Button(QStringLiteral("PB"))->isEnabled());
  QTest::keyClicks(edit, QStringLiteral("1+1"));
  Press(QStringLiteral("="));
  QVERIFY(Button(QStringLiteral("PB"))->isEnabled());
}

void CalculatorScreenTest::PbListsTheNewestFirst() {
  QTest::keyClicks(edit, QStringLiteral("1000+234"));
  Press(QStringLiteral("="));
  QTest::keyClicks(edit, QStringLiteral("1111111111+9222222222"));
  Press(QStringLiteral("="));
  QMenu* menu = OpenHistory();
  QVERIFY(menu);
  QStringList captions;
  for (const QAction* action : menu->actions()) captions += action->text();
  QCOMPARE(captions,
           (QStringList{QStringLiteral("1111111111+922..."), QStringLiteral("=[D]10,333,333..."),
                        QStringLiteral("1000+234"), QStringLiteral("=[D]1,234")}));
  // The whole entry comes back, in place of the selection.
  menu->setActiveAction(menu->actions().first());
  QTest::keyClick(menu, Qt::Key_Return);
  QCOMPARE(Marked(), QStringLiteral("1111111111+9222222222|"));

  menu = OpenHistory();
  QVERIFY(menu);
  menu->setActiveAction(menu->actions().last());
  QTest::keyClick(menu, Qt::Key_Return);
  QCOMPARE(edit->toPlainText(), QStringLiteral("1111111111+92222222221234"));
  QTRY_VERIFY(edit->hasFocus());
}

void CalculatorScreenTest::PbDismissedDoesNothing() {
  QTest::keyClicks(edit, QStringLiteral("1+1"));
  Press(QStringLiteral("="));
  QMenu* menu = OpenHistory();
  QVERIFY(menu);
  QTest::keyClick(menu, Qt::Key_Escape);
  QTRY_VERIFY(!screen->findChild<QMenu*>(QStringLiteral("History")));
  QCOMPARE(edit->toPlainText(), QStringLiteral("1+1"));
  QCOMPARE(screen->focusWidget(), edit);
}

void CalculatorScreenTest::PbShowsCaptionsLiterally() {
  screen.reset();
  store->WriteSettingInt(L"History", L"CalHistoryCount", 1);
  store->WriteSettingString(L"History", L"CalHistory1", L"1&2\t3\n4");
  Open();
  QMenu* menu = OpenHistory();
  QVERIFY(menu);
  QCOMPARE(menu->actions().first()->text(), QStringLiteral("1&&2 3 4"));
  menu->actions().first()->trigger();
  menu->close();
  QCOMPARE(edit->toPlainText(), QStringLiteral("1&2\t3 4"));
}

void CalculatorScreenTest::PbConvertsResults() {
  screen.reset();
  store->WriteSettingInt(L"History", L"CalHistoryCount", 1);
  store->WriteSettingString(L"History", L"CalHistory1", L"=[H]FF");
  Open();
  QMenu* menu = OpenHistory();
  QVERIFY(menu);
  menu->actions().first()->trigger();
  menu->close();
  QCOMPARE(edit->toPlainText(), QStringLiteral("255"));
}

void CalculatorScreenTest::CutCopyPaste() {
  QClipboard* clipboard = QGuiApplication::clipboard();
  SetText(QStringLiteral("12+34"), 3, 5);
  MenuAction(QStringLiteral("Edit"), QStringLiteral("Copy"))->trigger();
  QCOMPARE(clipboard->text(), QStringLiteral("34"));
  QCOMPARE(edit->toPlainText(), QStringLiteral("12+34"));
  MenuAction(QStringLiteral("Edit"), QStringLiteral("Cut"))->trigger();
  QCOMPARE(Marked(), QStringLiteral("12+|"));
  clipboard->setText(QStringLiteral("5\n6"));
  MenuAction(QStringLiteral("Edit"), QStringLiteral("Paste"))->trigger();
  QCOMPARE(Marked(), QStringLiteral("12+5 6|"));
  QVERIFY(edit->hasFocus());
  QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(edit, Qt::Key_X, Qt::ControlModifier);
  QCOMPARE(edit->toPlainText(), QString());
  QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);
  QCOMPARE(edit->toPlainText(), QStringLiteral("12+5 6"));
}

void CalculatorScreenTest::TheMenuCopiesFromTheLine() {
  QTest::keyClicks(edit, QStringLiteral("1000*2"));
  Press(QStringLiteral("="));
  auto* result = screen->findChild<ResultLine*>();
  result->setFocus();
  result->selectAll();
  MenuAction(QStringLiteral("Edit"), QStringLiteral("Copy"))->trigger();
  QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("1000*2"));
  QVERIFY(edit->hasFocus());
}

void CalculatorScreenTest::TheResultCanBeCopied() {
  QTest::keyClicks(edit, QStringLiteral("1000*2"));
  Press(QStringLiteral("="));
  auto* result = screen->findChild<ResultLine*>();
  // With a click, with a double click, and with Tab alone.
  QTest::mouseClick(result->viewport(), Qt::LeftButton);
  QTest::keyClick(result, Qt::Key_C, Qt::ControlModifier);
  QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("2000"));
  QGuiApplication::clipboard()->clear();
  QTest::mouseDClick(result->viewport(), Qt::LeftButton);
  QTest::keyClick(result, Qt::Key_C, Qt::ControlModifier);
  QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("2000"));
  // What was copied goes on in the line.
  edit->setFocus();
  QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);
  QTest::keyClicks(edit, QStringLiteral("+1"));
  Press(QStringLiteral("="));
  QCOMPARE(Result(), QStringLiteral("2,001"));
}

void CalculatorScreenTest::TypingGoesToTheLine_data() {
  QTest::addColumn<QString>("focused");
  for (const char* name : {"Result", "7", "Shift", "=", "SIN", "MEM"}) {
    QTest::newRow(name) << QString::fromLatin1(name);
  }
}

void CalculatorScreenTest::TypingGoesToTheLine() {
  QFETCH(QString, focused);
  QTest::keyClicks(edit, QStringLiteral("12"));
  auto* const control = screen->findChild<QWidget*>(focused);
  const auto type = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    control->setFocus();
    QVERIFY(!edit->hasFocus());
    QTest::keyClick(control, key, modifiers);
    QVERIFY(edit->hasFocus());
  };
  type(Qt::Key_3);
  QCOMPARE(Marked(), QStringLiteral("123|"));
  control->setFocus();
  QTest::keyClick(control, '(');
  QCOMPARE(Marked(), QStringLiteral("123(|"));
  type(Qt::Key_Backspace);
  QCOMPARE(Marked(), QStringLiteral("123|"));
  type(Qt::Key_Z, Qt::ControlModifier);
  QCOMPARE(Marked(), QStringLiteral("123(|"));
  QGuiApplication::clipboard()->setText(QStringLiteral("45"));
  type(Qt::Key_V, Qt::ControlModifier);
  QCOMPARE(Marked(), QStringLiteral("123(45|"));
  edit->moveCursor(QTextCursor::Start);
  type(Qt::Key_Delete);
  QCOMPARE(Marked(), QStringLiteral("|23(45"));
}

void CalculatorScreenTest::KeysThatAreNotTypedStay() {
  Press(QStringLiteral("7"));
  auto* const key = Button(QStringLiteral("8"));
  for (const Qt::Key code : {Qt::Key_Shift, Qt::Key_F5, Qt::Key_Escape, Qt::Key_PageUp}) {
    key->setFocus();
    QTest::keyClick(key, code);
    QVERIFY(key->hasFocus());
  }
  QTest::keyClick(key, Qt::Key_X, Qt::AltModifier);
  QTest::keyClick(key, Qt::Key_J, Qt::ControlModifier);
  QCOMPARE(edit->toPlainText(), QStringLiteral("7"));
}

void CalculatorScreenTest::KeysFinishAComposition() {
  const auto compose = [this](const char* text) {
    QInputMethodEvent event(QString::fromLatin1(text), {});
    QGuiApplication::sendEvent(edit, &event);
  };
  SetText(QStringLiteral("12"), 1, 1);
  compose("34");
  Press(QStringLiteral("+"));
  QCOMPARE(Marked(), QStringLiteral("134+|2"));
  compose("5");
  Press(QStringLiteral("="));
  QCOMPARE(edit->toPlainText(), QStringLiteral("134+52"));
  QCOMPARE(Result(), QStringLiteral("186"));
}

void CalculatorScreenTest::TheAngleIsStoredAtOnce() {
  Press(QStringLiteral("DEG"));
  QCOMPARE(store->ReadSettingInt(L"Config", L"Angle Type", 0), 2);
  Press(QStringLiteral("RAD"));
  QCOMPARE(store->ReadSettingInt(L"Config", L"Angle Type", 0), 1);
}

void CalculatorScreenTest::EveryEntryOfTheHistoryIsAnItem() {
  screen.reset();
  store->WriteSettingInt(L"History", L"CalHistoryCount", 3);
  store->WriteSettingString(L"History", L"CalHistory2", L"1+2");
  Open();
  edit->setPlainText(QStringLiteral("7"));
  QMenu* menu = OpenHistory();
  QVERIFY(menu);
  QStringList captions;
  for (const QAction* action : menu->actions()) {
    QVERIFY(!action->isSeparator() && action->isEnabled());
    captions += action->text();
  }
  const QString empty = QStringLiteral("(empty)");
  QCOMPARE(captions, (QStringList{empty, QStringLiteral("1+2"), empty}));
  // It is what it is: recalled over a selection it leaves nothing.
  edit->selectAll();
  menu->setActiveAction(menu->actions().last());
  QTest::keyClick(menu, Qt::Key_Return);
  QCOMPARE(Marked(), QStringLiteral("|"));
}

void CalculatorScreenTest::TheStoredBaseIsShown() {
  const std::pair<int, const char*> bases[] = {{1, "DEC"}, {2, "HEX"}, {3, "BIN"}, {4, "OCT"}};
  for (const auto& [code, name] : bases) {
    screen.reset();
    store->WriteSettingInt(L"Config", L"Base Type", code);
    Open();
    QVERIFY(Button(QString::fromLatin1(name))->isVisible());
    QCOMPARE(Result(), QStringLiteral("0"));
  }
  QTest::keyClicks(edit, QStringLiteral("7+1"));
  Press(QStringLiteral("="));
  QCOMPARE(Result(), QStringLiteral("10"));
}

void CalculatorScreenTest::SettingsAreWrittenAtTheEnd() {
  Press(QStringLiteral("DEG"));
  QTest::keyClicks(edit, QStringLiteral("1+1"));
  Press(QStringLiteral("="));
  screen.reset();
  QCOMPARE(store->ReadSettingInt(L"Config", L"Angle Type", 0), 2);
  QCOMPARE(store->ReadSettingInt(L"Config", L"Base Type", 0), 1);
  QCOMPARE(store->ReadSettingInt(L"Config", L"Display Type", -1), 3);
  QCOMPARE(store->ReadSettingInt(L"Config", L"Precision", -1), 5);
  QCOMPARE(store->ReadSettingInt(L"History", L"CalHistoryCount", 0), 2);
  QVERIFY(store->ReadSettingString(L"History", L"CalHistory2", L"") == L"1+1");
  Open();
  QVERIFY(Button(QStringLiteral("RAD"))->isVisible());
  QVERIFY(Button(QStringLiteral("PB"))->isEnabled());
  QCOMPARE(Result(), QStringLiteral("0"));
}

void CalculatorScreenTest::AHostileStoreIsHarmless() {
  for (const int value : {2147483647, -1, -2147483647 - 1}) {
    screen.reset();
    for (const wchar_t* entry :
         {L"Mode", L"Angle Type", L"Base Type", L"Display Type", L"Precision"}) {
      store->WriteSettingInt(L"Config", entry, value);
    }
    store->WriteSettingInt(L"History", L"CalHistoryCount", value);
    store->WriteSettingInt(L"MacroInfo", L"TotalNumber", value);
    Open();
    QTest::keyClicks(edit, QStringLiteral("6/4"));
    Press(QStringLiteral("="));
    QVERIFY(!Result().isEmpty());
    QVERIFY(OpenHistory());
    screen->findChild<QMenu*>(QStringLiteral("History"))->close();
  }
}

void CalculatorScreenTest::ClrLeavesTheResult() {
  QTest::keyClicks(edit, QStringLiteral("2*3"));
  Press(QStringLiteral("="));
  Press(QStringLiteral("CLR"));
  QCOMPARE(Marked(), QStringLiteral("|"));
  QCOMPARE(Result(), QStringLiteral("6"));
}

void CalculatorScreenTest::MenusSayWhatWasChosen() {
  QSignalSpy modes(screen.get(), &ModeScreen::ModeChosen);
  QSignalSpy exits(screen.get(), &ModeScreen::ExitChosen);
  const char* const names[] = {"Scientific Calculator", "Function Plotter", "1-Var Statistics",
                               "2-Var Statistics"};
  for (int code = 1; code <= 4; ++code) {
    QAction* action = MenuAction(QStringLiteral("Mode"), QString::fromLatin1(names[code - 1]));
    QVERIFY(action);
    QCOMPARE(action->isChecked(), code == 1);
    QCOMPARE(QKeySequence::mnemonic(action->text()),
             QKeySequence(Qt::ALT | Qt::Key(names[code - 1][0])));
    action->trigger();
    QCOMPARE(modes.takeFirst().first().toInt(), code);
  }
  MenuAction(QStringLiteral("File"), QStringLiteral("Exit"))->trigger();
  QCOMPARE(exits.size(), qsizetype{1});
}

void CalculatorScreenTest::TheAboutBoxNamesTheProduct() {
  MenuAction(QStringLiteral("File"), QStringLiteral("About..."))->trigger();
  auto* box = screen->findChild<QWidget*>(QStringLiteral("About"));
  QVERIFY(box && box->isVisible() && box->isModal());
  QString texts;
  for (const QLabel* label : box->findChildren<QLabel*>()) texts += label->text() + u'\n';
  for (const char* text : {"Vexa Calculator", "Ver 2.0", "MIT", "The Vexa Calculator authors"}) {
    QVERIFY2(texts.contains(QString::fromLatin1(text)), text);
  }
  QTest::keyClick(box, Qt::Key_Escape);
  QTRY_VERIFY(!screen->findChild<QWidget*>(QStringLiteral("About")));
}

void CalculatorScreenTest::TargetsAreLargeEnough() {
  for (const Key& key : CalculatorKeys()) {
    const auto* button = Button(FromWide(key.caption));
    if (button->isVisible()) QVERIFY2(button->height() >= 30, qPrintable(button->text()));
  }
}

void CalculatorScreenTest::KeysFitAtTheSmallestSize() {
  QVERIFY(screen->minimumSizeHint().width() <= 240);
  QVERIFY(screen->minimumSizeHint().height() <= 320);
  screen->resize(240, 320);
  QTRY_COMPARE(screen->size(), QSize(240, 320));
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  for (const auto* button : screen->findChildren<QPushButton*>()) {
    if (!button->isVisible()) continue;
    const QRect place(button->mapTo(screen.get(), QPoint()), button->size());
    QVERIFY2(screen->rect().contains(place), qPrintable(button->text()));
  }
}

void CalculatorScreenTest::TabReachesEveryEnabledKey() {
  QSet<QString> reached;
  for (int n = 0; n < 100; ++n) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    reached.insert(QApplication::focusWidget()->objectName());
  }
  for (const auto* button : screen->findChildren<QPushButton*>()) {
    if (!button->isVisible() || !button->isEnabled()) continue;
    QVERIFY2(reached.contains(button->objectName()), qPrintable(button->text()));
  }
  QVERIFY(reached.contains(QStringLiteral("Expression")));
  QVERIFY(reached.contains(QStringLiteral("Result")));
}

}  // namespace vexa

QTEST_MAIN(vexa::CalculatorScreenTest)
#include "CalculatorScreenTest.moc"
