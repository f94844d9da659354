#pragma once

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QTest>

#include "converter/UnitConverterDialog.h"
#include "converter/UserConversions.h"
#include "display/MemorySettingsStore.h"
#include "display/WideText.h"
#include "toolkit/ResultLine.h"
#include "toolkit/TouchComboBox.h"

namespace vexa::test {

/// Adds a conversion to those in `store`: "Inch -> Centimeter", "2.54".
inline void AddConversion(SettingsStore& store, const std::wstring& name,
                          const std::wstring& rate) {
  UserConversions list(store);
  list.Load();
  list.Add({name, rate});
}

/// Chooses `row` of a drop-down list as people do: it is opened, the row is picked.
inline void ChooseRow(QComboBox* list, int row) {
  QVERIFY(list);
  QTest::mouseClick(list, Qt::LeftButton);
  QTRY_VERIFY(list->view()->isVisible());
  list->view()->setCurrentIndex(list->model()->index(row, list->modelColumn()));
  QTest::keyClick(list->view(), Qt::Key_Return);
  QTRY_VERIFY(!list->view()->isVisible());
}

inline QStringList Entries(const QComboBox* list) {
  QStringList entries;
  for (int row = 0; row < list->count(); ++row) entries += list->itemText(row);
  return entries;
}

/// A unit converter, and what people do with it.
class ConverterOnScreen {
 public:
  ~ConverterOnScreen() { delete dialog; }

  /// Opens the converter on `inputStore` as the calculator does.
  void Open(SettingsStore& inputStore, const ConverterPositions& positions, const wchar_t* text,
            double memory = 0.0) {
    delete dialog;
    Adopt(new UnitConverterDialog(inputStore, positions, memory, text, nullptr));
    dialog->open();
    QVERIFY(QTest::qWaitForWindowActive(dialog));
  }
  void Open(const ConverterPositions& positions, const wchar_t* text = L"1", double memory = 0.0) {
    Open(store, positions, text, memory);
  }
  /// Goes on with a converter that is open already.
  void Adopt(UnitConverterDialog* open) {
    dialog = open;
    category = Find<TouchComboBox>("Unit Converter");
    input = Find<QLineEdit>("Input value");
    notice = Find<QLabel>("Input notice");
    inputUnit = Find<TouchComboBox>("Input unit");
    line = Find<ResultLine>("Output value");
    block = Find<ResultLine>("Output block");
    outputUnit = Find<TouchComboBox>("Output unit");
  }

  template <typename Widget>
  Widget* Find(const char* name) const {
    return dialog->findChild<Widget*>(QString::fromLatin1(name));
  }
  void Press(const char* caption) {
    QVERIFY2(dialog && Find<QPushButton>(caption), caption);
    QTest::mouseClick(Find<QPushButton>(caption), Qt::LeftButton);
  }
  /// Types `text` over what the input field holds.
  void Type(const char* text) {
    input->selectAll();
    QTest::keyClick(input, Qt::Key_Delete);
    QTest::keyClicks(input, QString::fromLatin1(text));
  }

  /// Opens the "MEM" menu; its entries, "-" for a separator.
  QStringList OpenMemoryMenu() {
    Press("MEM");
    QStringList entries;
    for (const QAction* const action : MemoryMenu()->actions()) {
      entries += action->isSeparator() ? QStringLiteral("-") : action->text();
    }
    return entries;
  }
  /// The open "MEM" menu, or null.
  QMenu* MemoryMenu() const {
    for (QMenu* const menu : dialog->findChildren<QMenu*>(QStringLiteral("Memory"))) {
      if (menu->isVisible()) return menu;
    }
    return nullptr;
  }
  void ChooseMemory(const char* text) {
    QVERIFY(OpenMemoryMenu().contains(QString::fromLatin1(text)));
    QMenu* const menu = MemoryMenu();
    for (QAction* const action : menu->actions()) {
      if (action->text() == QString::fromLatin1(text)) menu->setActiveAction(action);
    }
    QTest::keyClick(menu, Qt::Key_Return);
  }
  /// The command of the menu bar, or null.
  QAction* Command(const char* menuTitle, const char* text) const {
    for (const QAction* const menu : dialog->findChild<QMenuBar*>()->actions()) {
      if (menu->text().remove(u'&') != QString::fromLatin1(menuTitle)) continue;
      for (QAction* const action : menu->menu()->actions()) {
        if (action->text().remove(u'&') == QString::fromLatin1(text)) return action;
      }
    }
    return nullptr;
  }

  MemorySettingsStore store;
  QPointer<UnitConverterDialog> dialog;
  TouchComboBox* category = nullptr;
  QLineEdit* input = nullptr;
  QLabel* notice = nullptr;
  TouchComboBox* inputUnit = nullptr;
  ResultLine* line = nullptr;
  ResultLine* block = nullptr;
  TouchComboBox* outputUnit = nullptr;
};

}  // namespace vexa::test
