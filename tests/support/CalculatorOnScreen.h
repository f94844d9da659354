#pragma once

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <memory>

#include "app/CalculatorScreen.h"
#include "display/MemorySettingsStore.h"
#include "toolkit/EditLine.h"
#include "toolkit/ResultLine.h"

namespace vexa::test {

/// A calculator screen on a store in memory, and what people do with it.
class CalculatorOnScreen {
 public:
  /// Opens the screen, again on what the former one left in the store.
  void Open() {
    screen.reset();
    screen = std::make_unique<CalculatorScreen>(store, nullptr);
    edit = screen->findChild<EditLine*>();
    screen->resize(340, 560);
    screen->show();
    QVERIFY(QTest::qWaitForWindowActive(screen.get()));
    screen->setFocus();
  }

  /// The key with this caption: the visible one where two share it.
  QPushButton* Key(const QString& caption) const {
    QPushButton* found = nullptr;
    for (QPushButton* const button : screen->findChildren<QPushButton*>(caption)) {
      if (!found || button->isVisible()) found = button;
    }
    return found;
  }
  void Press(const char* caption) {
    QPushButton* const key = Key(QString::fromLatin1(caption));
    QVERIFY2(key && key->isVisible() && key->isEnabled(), caption);
    QTest::mouseClick(key, Qt::LeftButton);
  }
  /// Types an expression over the former one and presses "=".
  void Calculate(const char* expression) {
    Write(expression);
    Press("=");
  }
  void Write(const char* text) {
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, QString::fromLatin1(text));
  }
  void Select(int start, int end) {
    QTextCursor cursor = edit->textCursor();
    cursor.setPosition(start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    edit->setTextCursor(cursor);
  }
  /// The edit line's text with the caret marked by "|".
  QString Marked() const {
    QString text = edit->toPlainText();
    text.insert(edit->textCursor().position(), u'|');
    return text;
  }
  QString Result() const { return screen->findChild<ResultLine*>()->toPlainText(); }
  bool LineHasFocus() const { return screen->focusWidget() == edit; }

  /// The visible base key.
  QPushButton* BaseKey() const {
    for (const char* base : {"DEC", "HEX", "BIN", "OCT"}) {
      if (Key(QString::fromLatin1(base))->isVisible()) return Key(QString::fromLatin1(base));
    }
    return nullptr;
  }
  /// Chooses a base from its menu: "Binary".
  void ChooseBase(const char* name) {
    QTest::mouseClick(BaseKey(), Qt::LeftButton);
    ChooseFromPopup("Bases", name);
  }
  /// The open pop-up menu with this object name, or null.
  QMenu* Popup(const char* name) const {
    for (QMenu* const menu : screen->findChildren<QMenu*>(QString::fromLatin1(name))) {
      if (menu->isVisible()) return menu;
    }
    return nullptr;
  }
  /// The texts of the open pop-up menu, "-" for a separator.
  QStringList PopupTexts(const char* name) const {
    QStringList texts;
    const QMenu* const menu = Popup(name);
    if (!menu) return {QStringLiteral("no menu")};
    for (const QAction* const action : menu->actions()) {
      texts += action->isSeparator() ? QStringLiteral("-") : action->text();
    }
    return texts;
  }
  void ChooseFromPopup(const char* name, const char* text) {
    QMenu* const menu = Popup(name);
    QVERIFY2(menu, name);
    for (QAction* const action : menu->actions()) {
      if (action->text() == QString::fromLatin1(text)) menu->setActiveAction(action);
    }
    QVERIFY2(menu->activeAction(), text);
    QTest::keyClick(menu, Qt::Key_Return);
  }
  void ClosePopup(const char* name) {
    QVERIFY(Popup(name));
    QTest::keyClick(Popup(name), Qt::Key_Escape);
    QVERIFY(!Popup(name));
  }
  /// Runs a command of the "File" menu.
  void RunFileCommand(const char* text) {
    for (QAction* const action :
         screen->findChild<QMenuBar*>()->actions().first()->menu()->actions()) {
      if (action->text().remove(u'&') == QString::fromLatin1(text)) return action->trigger();
    }
    QFAIL(text);
  }

  MemorySettingsStore store;
  std::unique_ptr<CalculatorScreen> screen;
  EditLine* edit = nullptr;
};

}  // namespace vexa::test
