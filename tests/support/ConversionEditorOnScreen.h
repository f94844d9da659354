#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>

#include "converter/UserConversionDialog.h"
#include "support/ConverterOnScreen.h"
#include "toolkit/TouchList.h"

namespace vexa::test {

/// An editor of the user's conversions, and what people do with it.
class ConversionEditorOnScreen {
 public:
  ~ConversionEditorOnScreen() { delete dialog; }

  /// Stores `count` conversions: "A0 -> B0" at 1.5, "A1 -> B1" at 2.5 ...
  void Store(int count) {
    store = MemorySettingsStore();
    for (int i = 0; i < count; ++i) {
      const std::wstring n = std::to_wstring(i);
      AddConversion(store, L"A" + n + L" -> B" + n, std::to_wstring(i + 1) + L".5");
    }
  }
  /// Opens the editor on what is stored.
  void Open() {
    delete dialog;
    Adopt(new UserConversionDialog(store, nullptr));
    dialog->open();
    QVERIFY(QTest::qWaitForWindowActive(dialog));
  }
  void Open(int count) {
    Store(count);
    Open();
  }
  /// Goes on with an editor that is open already.
  void Adopt(QDialog* open) {
    dialog = open;
    first = dialog->findChild<QLineEdit*>(QStringLiteral("Input unit name"));
    second = dialog->findChild<QLineEdit*>(QStringLiteral("Output unit name"));
    rate = dialog->findChild<QLineEdit*>(QStringLiteral("Rate"));
    list = dialog->findChild<TouchList*>(QStringLiteral("List"));
  }

  QPushButton* Button(const char* caption) const {
    return dialog->findChild<QPushButton*>(QString::fromLatin1(caption));
  }
  void Press(const char* caption) {
    QVERIFY2(Button(caption) && Button(caption)->isVisible(), caption);
    QTest::mouseClick(Button(caption), Qt::LeftButton);
  }
  /// Clicks a line of the list.
  void Select(int row) {
    list->scrollToItem(list->item(row));
    const QRect line = list->visualItemRect(list->item(row));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, line.center());
  }
  /// Types into the three boxes.
  void Type(const QString& firstName, const QString& secondName, const QString& rateText) {
    for (const auto& [box, text] :
         {std::pair(first, firstName), std::pair(second, secondName), std::pair(rate, rateText)}) {
      box->selectAll();
      QTest::keyClick(box, Qt::Key_Delete);
      QTest::keyClicks(box, text);
    }
  }

  /// The visible buttons, in the order of the row.
  QStringList ShownButtons() const {
    QStringList captions;
    for (const char* caption : {"New", "Edit", "Delete", "Close", "MEM", "Save", "Cancel"}) {
      if (Button(caption)->isVisible()) captions += QString::fromLatin1(caption);
    }
    return captions;
  }
  QStringList Boxes() const { return {first->text(), second->text(), rate->text()}; }
  QString Label() const {
    for (const QLabel* const label : dialog->findChildren<QLabel*>()) {
      if (label->buddy() == list) return label->text();
    }
    return {};
  }
  QStringList Lines() const {
    QStringList lines;
    for (int row = 0; row < list->count(); ++row) lines += list->item(row)->text();
    return lines;
  }
  /// What the store holds: "name = rate" for each conversion.
  QStringList Stored() {
    UserConversions conversions(store);
    conversions.Load();
    QStringList lines;
    for (int i = 0; i < conversions.Count(); ++i) {
      lines += FromWide(conversions.At(i).name + L" = " + conversions.At(i).rateText);
    }
    return lines;
  }

  MemorySettingsStore store;
  QPointer<QDialog> dialog;
  QLineEdit* first = nullptr;
  QLineEdit* second = nullptr;
  QLineEdit* rate = nullptr;
  TouchList* list = nullptr;
};

}  // namespace vexa::test
