#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

/// What a user does with a window, and what is seen there.
namespace vexa::test {

/// The open window of this kind over `window`, or null.
template <typename T>
T* OpenWindow(const QWidget* window) {
  for (T* child : window->findChildren<T*>()) {
    if (child->isVisible() && child->isWindow()) return child;
  }
  return nullptr;
}

inline void Press(const QWidget* window, const QString& caption) {
  for (auto* button : window->findChildren<QAbstractButton*>(caption)) {
    if (button->isVisible() && button->window() == window->window()) {
      // A check box's text ends before the box does.
      QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
      return;
    }
  }
  QFAIL(qPrintable(QStringLiteral("no button ") + caption));
}

inline QAction* MenuAction(const QWidget* window, const QString& menuTitle, const QString& text) {
  const auto* const menuBar = window->findChild<QMenuBar*>(QString(), Qt::FindDirectChildrenOnly);
  for (const QAction* menu : menuBar->actions()) {
    if (menu->text().remove(u'&') != menuTitle) continue;
    for (QAction* action : menu->menu()->actions()) {
      if (action->text().remove(u'&') == text) return action;
    }
  }
  return nullptr;
}

inline void Choose(const QWidget* window, const QString& menuTitle, const QString& text) {
  QAction* const action = MenuAction(window, menuTitle, text);
  QVERIFY2(action, qPrintable(text));
  action->trigger();
}

/// Reads the message box over `window` and answers it; no box: an empty text.
inline QString Answer(const QWidget* window, QMessageBox::StandardButton answer = QMessageBox::Ok) {
  auto* const box = OpenWindow<QMessageBox>(window);
  if (!box) return {};
  const QString text = box->text();
  QTest::mouseClick(box->button(answer), Qt::LeftButton);
  return text;
}

/// The icon of the message box over `window`.
inline QMessageBox::Icon ShownIcon(const QWidget* window) {
  auto* const box = OpenWindow<QMessageBox>(window);
  return box ? box->icon() : QMessageBox::NoIcon;
}

inline void Type(QLineEdit* box, const QString& text) {
  box->setFocus();
  box->selectAll();
  QTest::keyClick(box, Qt::Key_Delete);
  QTest::keyClicks(box, text);
}

}  // namespace vexa::test
