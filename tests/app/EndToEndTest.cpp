// From a fresh settings file to a second run: what was tapped in the first is there in the next.

#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QTemporaryDir>

#include "app/CalculatorScreen.h"
#include "app/MainFrame.h"
#include "display/FileSettingsStore.h"
#include "display/SettingsLayout.h"
#include "support/Boxes.h"
#include "support/ScreenMain.h"
#include "toolkit/EditLine.h"
#include "toolkit/KeyButton.h"
#include "toolkit/ResultLine.h"

namespace vexa {

class EndToEndTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();
  void WhatIsTappedSurvivesARestart();

 private:
  /// Starts the program's frame on the user's settings file, as the program does.
  void Start();
  void Stop();
  void Tap(const QStringList& captions);
  /// Taps the control `name` of the open dialog.
  template <typename Control = QPushButton>
  static Control* InDialog(const char* name) {
    QWidget* const dialog = QApplication::activeModalWidget();
    return dialog ? dialog->findChild<Control*>(QString::fromLatin1(name)) : nullptr;
  }
  static void TapInDialog(const char* caption) {
    auto* const button = InDialog(caption);
    QVERIFY2(button && button->isVisible(), caption);
    QTest::mouseClick(button, Qt::LeftButton);
  }
  static void TapRow(const char* list, int row) {
    auto* const rows = InDialog<QListWidget>(list);
    QVERIFY2(rows && row < rows->count(), list);
    QTest::mouseClick(rows->viewport(), Qt::LeftButton, {},
                      rows->visualItemRect(rows->item(row)).center());
  }
  void Choose(const char* text);
  EditLine* Edit() const { return frame->findChild<EditLine*>(QStringLiteral("Expression")); }
  QString Result() const { return frame->findChild<ResultLine*>()->toPlainText(); }
  bool IsShown(const char* caption) const {
    return frame->findChild<KeyButton*>(QString::fromLatin1(caption))->isVisible();
  }

  QTemporaryDir folder;
  std::unique_ptr<FileSettingsStore> store;
  std::unique_ptr<MainFrame> frame;
};

void EndToEndTest::init() {
  QVERIFY(folder.isValid());
  qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path()));
}

void EndToEndTest::cleanup() {
  Stop();
}

void EndToEndTest::Start() {
  store = std::make_unique<FileSettingsStore>();
  store->SetSettingsKey(settings::kSettingsKey);
  frame = std::make_unique<MainFrame>(*store);
  frame->show();
  QTRY_VERIFY(frame->findChild<CalculatorScreen*>());
  QVERIFY(QTest::qWaitForWindowActive(frame.get()));
}

void EndToEndTest::Stop() {
  frame.reset();
  store.reset();
}

void EndToEndTest::Tap(const QStringList& captions) {
  for (const QString& caption : captions) {
    KeyButton* visible = nullptr;
    for (KeyButton* const key : frame->findChildren<KeyButton*>(caption)) {
      if (key->isVisible()) visible = key;
    }
    QVERIFY2(visible && visible->isEnabled(), qPrintable(caption));
    QTest::mouseClick(visible, Qt::LeftButton);
  }
}

void EndToEndTest::Choose(const char* text) {
  auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  QVERIFY2(menu, text);
  for (QAction* const action : menu->actions()) {
    if (action->text() != QString::fromLatin1(text)) continue;
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
    return;
  }
  QFAIL(text);
}

void EndToEndTest::WhatIsTappedSurvivesARestart() {
  Start();
  QVERIFY(IsShown("DEC"));

  // There is no macro yet: "Mac" says so and opens the editor.
  Tap({QStringLiteral("Mac")});
  QCOMPARE(test::ShownBox(), test::Error("Not exist saved macro"));
  test::AnswerBox();
  TapInDialog("New");
  QTest::keyClicks(InDialog<QLineEdit>("Macro Name"), QStringLiteral("area"));
  InDialog<QComboBox>("Argument Type")->setCurrentIndex(1);
  QTest::keyClicks(InDialog<EditLine>("Macro Expression(Max Len:150)"), QStringLiteral("x*y"));
  TapInDialog("Save");
  QVERIFY(!test::OpenBox());
  TapInDialog("Close");

  // Called with the sides 15 and 17 ...
  Tap({QStringLiteral("Mac")});
  TapRow("Macro List", 0);
  TapInDialog("OK");
  QCOMPARE(Edit()->toPlainText(), QStringLiteral("M:area( , )"));
  Tap({QStringLiteral("1"), QStringLiteral("5")});
  QTest::keyClick(Edit(), Qt::Key_End);
  QTest::keyClick(Edit(), Qt::Key_Left);
  Tap({QStringLiteral("1"), QStringLiteral("7"), QStringLiteral("=")});
  QCOMPARE(Edit()->toPlainText(), QStringLiteral("M:area(15 , 17)"));
  QCOMPARE(Result(), QStringLiteral("255"));

  // ... shown in hexadecimal, kept, and recalled.
  Tap({QStringLiteral("DEC")});
  Choose("Hexadecimal");
  QCOMPARE(Result(), QStringLiteral("FF"));
  Tap({QStringLiteral("MEM")});
  Choose("Store MemVar");
  TapRow("Memory Variable", 1);
  TapInDialog("Store");
  Tap({QStringLiteral("CLR"), QStringLiteral("MEM")});
  Choose("ReCall MemVar");
  TapRow("Memory Variable", 1);
  TapInDialog("Recall");
  QCOMPARE(Edit()->toPlainText(), QStringLiteral("FF"));
  Tap({QStringLiteral("="), QStringLiteral("DEG")});
  frame->Exit();
  Stop();

  Start();
  QVERIFY(IsShown("HEX") && !IsShown("DEC"));
  QVERIFY(IsShown("RAD") && !IsShown("DEG"));
  QVERIFY(IsShown("A") && !IsShown("SQRT"));
  QCOMPARE(Result(), QStringLiteral("0"));
  // The history, newest first.
  Tap({QStringLiteral("PB")});
  QStringList entries;
  for (const QAction* const action :
       qobject_cast<QMenu*>(QApplication::activePopupWidget())->actions()) {
    entries += action->text();
  }
  QCOMPARE(entries.join(u' '), QStringLiteral("FF =[H]FF M:area(15 , 17) =[D]255"));
  Choose("=[D]255");
  QCOMPARE(Edit()->toPlainText(), QStringLiteral("FF"));
  // The variable and the macro.
  Tap({QStringLiteral("CLR"), QStringLiteral("HEX")});
  Choose("Decimal");
  Tap({QStringLiteral("MEM")});
  Choose("ReCall MemVar");
  TapRow("Memory Variable", 1);
  TapInDialog("Recall");
  QCOMPARE(Edit()->toPlainText(), QStringLiteral("255"));
  Tap({QStringLiteral("CLR"), QStringLiteral("Mac")});
  TapRow("Macro List", 0);
  TapInDialog("OK");
  QTest::keyClicks(Edit(), QStringLiteral("2"));
  QTest::keyClick(Edit(), Qt::Key_End);
  QTest::keyClick(Edit(), Qt::Key_Left);
  Tap({QStringLiteral("3"), QStringLiteral("=")});
  QCOMPARE(Result(), QStringLiteral("6"));
}

}  // namespace vexa

VEXA_SCREEN_MAIN(vexa::EndToEndTest)
#include "EndToEndTest.moc"
