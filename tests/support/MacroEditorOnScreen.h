#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>

#include "display/MemorySettingsStore.h"
#include "macros/MacroEditorDialog.h"
#include "support/Boxes.h"
#include "support/StoredMacros.h"
#include "toolkit/EditLine.h"
#include "toolkit/TouchList.h"

namespace vexa::test {

/// The macro editor on a store in memory, and what people do with it.
class MacroEditorOnScreen {
 public:
  ~MacroEditorOnScreen() { delete dialog; }

  void Open(const std::vector<StoredMacro>& macros = kThreeMacros) {
    Store(store, macros);
    Reopen();
  }
  /// Opens on what the store holds.
  void Reopen() {
    delete dialog;
    dialog = new MacroEditorDialog(store, nullptr);
    name = dialog->findChild<QLineEdit*>(QStringLiteral("Macro Name"));
    type = dialog->findChild<QComboBox*>(QStringLiteral("Argument Type"));
    formula = dialog->findChild<EditLine*>(QStringLiteral("Macro Expression(Max Len:150)"));
    list = dialog->findChild<TouchList*>();
    QVERIFY(name && type && formula && list);
    dialog->open();
    QVERIFY(QTest::qWaitForWindowActive(dialog));
  }
  QPushButton* Button(const char* caption) const {
    return dialog->findChild<QPushButton*>(QString::fromLatin1(caption));
  }
  void Press(const char* caption) {
    QVERIFY2(Button(caption)->isVisible(), caption);
    QTest::mouseClick(Button(caption), Qt::LeftButton);
  }
  void Tap(int row) {
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(row)).center());
  }
  void Fill(const QString& newName, int newType, const QString& newFormula) {
    name->setText(newName);
    type->setCurrentIndex(newType);
    formula->setPlainText(newFormula);
  }
  /// The captions of the visible buttons.
  QString ShownButtons() const {
    QStringList shown;
    for (const char* caption : {"New", "Edit", "Delete", "Close", "MEM", "Save", "Cancel"}) {
      if (Button(caption)->isVisible()) shown += QString::fromLatin1(caption);
    }
    return shown.join(u' ');
  }
  QString Lines() const {
    QStringList lines;
    for (int i = 0; i < list->count(); ++i) lines += list->item(i)->text();
    return lines.join(u' ');
  }
  QString ListLabel() const {
    for (const QLabel* const label : dialog->findChildren<QLabel*>()) {
      if (label->buddy() == list) return label->text();
    }
    return {};
  }
  /// What the three fields show.
  StoredMacro Fields() const {
    return {name->text().toStdWString(), type->currentText().toStdWString(), formula->Text()};
  }
  /// The editing state has no "Close", the view state no "Save".
  void ExpectViewState() const {
    QVERIFY(list->isEnabled());
    QVERIFY(!name->isEnabled() && !type->isEnabled() && !formula->isEnabled());
    for (const char* hidden : {"Save", "Cancel", "MEM"}) QVERIFY(!Button(hidden)->isVisible());
    QVERIFY(Button("Close")->isVisible() && Button("Close")->isDefault());
    QCOMPARE(dialog->focusWidget(), list);
  }
  void ExpectEditingState() const {
    QVERIFY(!list->isEnabled());
    QVERIFY(name->isEnabled() && type->isEnabled() && formula->isEnabled());
    QCOMPARE(ShownButtons(), QStringLiteral("MEM Save Cancel"));
    QVERIFY(Button("Save")->isDefault());
  }

  MemorySettingsStore store;
  QPointer<MacroEditorDialog> dialog;
  QLineEdit* name = nullptr;
  QComboBox* type = nullptr;
  EditLine* formula = nullptr;
  TouchList* list = nullptr;
};

}  // namespace vexa::test
