#include "display/DisplayFormattingDialog.h"

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QRadioButton>
#include <QSignalSpy>

#include "support/Boxes.h"
#include "support/CalculatorOnScreen.h"
#include "support/ScreenMain.h"
#include "toolkit/KeyboardOnFocus.h"

namespace vexa {
namespace {

/// The choices from top to bottom, with their stored codes, and whether decimals can be chosen.
struct Choice {
  const char* caption;
  int code;
  bool hasDecimals;
};
constexpr Choice kChoices[] = {
    {"Floating Point", 0, false},
    {"Fixed Point", 1, true},
    {"Scientific Notation", 2, true},
    {"Engineering Notation", 4, true},
    {"Currency-Punctuated at thousands", 3, false},
};

}  // namespace

class DisplayFormattingDialogTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() { delete dialog; }
  void TheOrderOnScreen();
  void OpensOnTheValues_data();
  void OpensOnTheValues();
  void TabsAsRead_data();
  void TabsAsRead();
  void ChoosingEnablesTheBox_data();
  void ChoosingEnablesTheBox();
  void AForeignTypeChoosesNone();
  void BadEntriesBecomeSeven_data();
  void BadEntriesBecomeSeven();
  void GoodEntriesAreTaken_data();
  void GoodEntriesAreTaken();
  void TheDisabledBoxKeepsItsValue();
  void AStoredNumberOutOfRangeIsLeftWithTheSeven();
  void CancelTakesNothing();
  void TheKeyboardFollowsTheFocus();
  void TextsStandOnLightBlue();
  void ConfigShowsTheResultAgain();
  void ConfigLeavesAFailure();

 private:
  void Open(int type, int decimals) {
    delete dialog;
    dialog = new DisplayFormattingDialog(static_cast<DisplayType>(type), decimals, nullptr);
    dialog->setAttribute(Qt::WA_DeleteOnClose, false);
    dialog->open();
    QVERIFY(QTest::qWaitForWindowActive(dialog));
  }
  QRadioButton* Radio(const char* caption) const {
    return dialog->findChild<QRadioButton*>(QString::fromLatin1(caption));
  }
  QLineEdit* Box() const {
    return dialog->findChild<QLineEdit*>(QStringLiteral("Number of decimal places"));
  }
  static void Tap(const QDialog* shown, const char* caption) {
    QTest::mouseClick(shown->findChild<QPushButton*>(QString::fromLatin1(caption)), Qt::LeftButton);
  }
  /// Opens "Config..." on `calculator`, chooses, and presses "OK".
  static void Configure(test::CalculatorOnScreen& calculator, const char* caption,
                        const char* decimals) {
    calculator.RunFileCommand("Config...");
    QDialog* const config = test::OpenDialog(QStringLiteral("DisplayFormatting"));
    QVERIFY(config);
    config->findChild<QRadioButton*>(QString::fromLatin1(caption))->click();
    config->findChild<QLineEdit*>()->setText(QString::fromLatin1(decimals));
    Tap(config, "OK");
    QVERIFY(!test::OpenDialog(QStringLiteral("DisplayFormatting")));
    QVERIFY(calculator.LineHasFocus());
  }

  QPointer<DisplayFormattingDialog> dialog;
};

void DisplayFormattingDialogTest::TheOrderOnScreen() {
  Open(1, 5);
  QCOMPARE(dialog->windowTitle(), QStringLiteral("Vexa Calculator"));
  QVERIFY(dialog->isModal());
  std::vector<QWidget*> controls;
  for (const QLabel* const label : dialog->findChildren<QLabel*>()) {
    if (label->text() == QStringLiteral("Display Formatting")) {
      controls.push_back(const_cast<QLabel*>(label));
    }
  }
  QCOMPARE(controls.size(), std::size_t{1});
  for (const Choice& choice : kChoices) controls.push_back(Radio(choice.caption));
  controls.push_back(Box());
  controls.push_back(dialog->findChild<QPushButton*>(QStringLiteral("OK")));
  for (std::size_t n = 1; n < controls.size(); ++n) {
    QVERIFY(controls[n] && controls[n]->isVisible());
    QVERIFY(controls[n]->y() > controls[n - 1]->y());
  }
}

void DisplayFormattingDialogTest::OpensOnTheValues_data() {
  QTest::addColumn<int>("row");
  for (int row = 0; row < 5; ++row) QTest::newRow(kChoices[row].caption) << row;
}

void DisplayFormattingDialogTest::OpensOnTheValues() {
  QFETCH(int, row);
  Open(kChoices[row].code, row);
  for (const Choice& choice : kChoices) {
    QCOMPARE(Radio(choice.caption)->isChecked(), choice.code == kChoices[row].code);
  }
  QCOMPARE(Box()->text(), QString::number(row));
  QCOMPARE(Box()->isEnabled(), kChoices[row].hasDecimals);
  QVERIFY(Radio(kChoices[row].caption)->hasFocus());
}

void DisplayFormattingDialogTest::TabsAsRead_data() {
  OpensOnTheValues_data();
}

void DisplayFormattingDialogTest::TabsAsRead() {
  QFETCH(int, row);
  const Choice& choice = kChoices[row];
  Open(choice.code, 5);
  QStringList order{QString::fromLatin1(choice.caption)};
  if (choice.hasDecimals) order += QStringLiteral("Number of decimal places");
  order += {QStringLiteral("OK"), QStringLiteral("Cancel")};
  for (int turn = 0; turn < 2; ++turn) {
    for (const QString& name : order) {
      QCOMPARE(QApplication::focusWidget()->objectName(), name);
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
  }
  for (qsizetype n = order.size() - 1; n >= 0; --n) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    QCOMPARE(QApplication::focusWidget()->objectName(), order[n]);
  }
}

void DisplayFormattingDialogTest::ChoosingEnablesTheBox_data() {
  OpensOnTheValues_data();
}

void DisplayFormattingDialogTest::ChoosingEnablesTheBox() {
  QFETCH(int, row);
  const Choice& choice = kChoices[row];
  Open(choice.hasDecimals ? 0 : 1, 5);
  QCOMPARE(Box()->isEnabled(), !choice.hasDecimals);
  // Anywhere on its row.
  QRadioButton* const radio = Radio(choice.caption);
  QTest::mouseClick(radio, Qt::LeftButton, {}, QPoint(radio->width() - 4, radio->height() - 3));
  QCOMPARE(Box()->isEnabled(), choice.hasDecimals);
  QCOMPARE(Box()->text(), QStringLiteral("5"));
  // The arrow keys choose too.
  QTest::keyClick(radio, row == 0 ? Qt::Key_Down : Qt::Key_Up);
  const Choice& next = kChoices[row == 0 ? 1 : row - 1];
  QVERIFY(Radio(next.caption)->isChecked());
  QCOMPARE(Box()->isEnabled(), next.hasDecimals);
  Tap(dialog, "OK");
  QCOMPARE(static_cast<int>(dialog->displayType), next.code);
}

void DisplayFormattingDialogTest::AForeignTypeChoosesNone() {
  for (const int type : {-1, 5, 2147483647}) {
    Open(type, 3);
    for (const Choice& choice : kChoices) QVERIFY(!Radio(choice.caption)->isChecked());
    QVERIFY(Radio("Floating Point")->hasFocus());
    Tap(dialog, "OK");
    QCOMPARE(dialog->result(), int{QDialog::Accepted});
    QCOMPARE(static_cast<int>(dialog->displayType), type);
    QCOMPARE(dialog->decimalPlaces, 3);
  }
}

void DisplayFormattingDialogTest::BadEntriesBecomeSeven_data() {
  QTest::addColumn<QString>("entry");
  QTest::addColumn<QByteArray>("sentence");
  const QByteArray range = "Please enter an integer between 0 and 12.";
  const QByteArray integer = "Please enter an integer.";
  QTest::newRow("13") << QStringLiteral("13") << range;
  QTest::newRow("-1") << QStringLiteral("-1") << range;
  QTest::newRow("99999999999999999999") << QStringLiteral("99999999999999999999") << range;
  QTest::newRow("abc") << QStringLiteral("abc") << integer;
  QTest::newRow("empty") << QString() << integer;
  QTest::newRow("2.5") << QStringLiteral("2.5") << integer;
  QTest::newRow("0x5") << QStringLiteral("0x5") << integer;
}

void DisplayFormattingDialogTest::BadEntriesBecomeSeven() {
  QFETCH(QString, entry);
  QFETCH(QByteArray, sentence);
  Open(1, 5);
  Radio("Scientific Notation")->click();
  Box()->setText(entry);
  Tap(dialog, "OK");
  QCOMPARE(test::ShownBox(), test::Error(sentence));
  QVERIFY(dialog->isVisible());
  test::AnswerBox();
  QVERIFY(dialog->isVisible());
  QCOMPARE(Box()->text(), QStringLiteral("7"));
  QCOMPARE(dialog->decimalPlaces, 7);
  // The number is selected in the box that has the focus: the next key replaces it.
  QCOMPARE(dialog->focusWidget(), Box());
  QTest::keyClicks(Box(), QStringLiteral("12"));
  QTest::keyClick(Box(), Qt::Key_Return);
  QVERIFY(!dialog->isVisible());
  QCOMPARE(dialog->decimalPlaces, 12);
  QCOMPARE(dialog->displayType, DisplayType::Scientific);
}

void DisplayFormattingDialogTest::GoodEntriesAreTaken_data() {
  QTest::addColumn<QString>("entry");
  QTest::addColumn<int>("decimals");
  for (int decimals = 0; decimals <= 12; ++decimals) {
    QTest::addRow("%d", decimals) << QString::number(decimals) << decimals;
  }
  QTest::newRow("blanks") << QStringLiteral("  8 ") << 8;
  QTest::newRow("sign") << QStringLiteral("+03") << 3;
}

void DisplayFormattingDialogTest::GoodEntriesAreTaken() {
  QFETCH(QString, entry);
  QFETCH(int, decimals);
  Open(1, 5);
  Box()->setText(entry);
  Tap(dialog, "OK");
  QVERIFY(!test::OpenBox());
  QCOMPARE(dialog->result(), int{QDialog::Accepted});
  QCOMPARE(dialog->decimalPlaces, decimals);
}

void DisplayFormattingDialogTest::TheDisabledBoxKeepsItsValue() {
  Open(1, 9);
  Radio("Floating Point")->click();
  QVERIFY(!Box()->isEnabled());
  QCOMPARE(Box()->text(), QStringLiteral("9"));
  Tap(dialog, "OK");
  QCOMPARE(dialog->displayType, DisplayType::FloatingPoint);
  QCOMPARE(dialog->decimalPlaces, 9);
}

void DisplayFormattingDialogTest::AStoredNumberOutOfRangeIsLeftWithTheSeven() {
  for (const int decimals : {2147483647, -2147483647 - 1, 13}) {
    Open(3, decimals);
    QCOMPARE(Box()->text(), QString::number(decimals));
    Tap(dialog, "OK");
    QCOMPARE(test::ShownBox(), test::Error("Please enter an integer between 0 and 12."));
    test::AnswerBox();
    QCOMPARE(Box()->text(), QStringLiteral("7"));
    QVERIFY(dialog->focusWidget() != Box());
    Tap(dialog, "OK");
    QVERIFY(!test::OpenBox() && !dialog->isVisible());
    QCOMPARE(dialog->displayType, DisplayType::Currency);
    QCOMPARE(dialog->decimalPlaces, 7);
  }
}

void DisplayFormattingDialogTest::CancelTakesNothing() {
  for (const bool byEscape : {false, true}) {
    Open(3, 5);
    Radio("Fixed Point")->click();
    Box()->setText(QStringLiteral("abc"));
    if (byEscape) {
      QTest::keyClick(Box(), Qt::Key_Escape);
    } else {
      Tap(dialog, "Cancel");
    }
    QVERIFY(!test::OpenBox() && !dialog->isVisible());
    QCOMPARE(dialog->result(), int{QDialog::Rejected});
    QCOMPARE(dialog->displayType, DisplayType::Currency);
    QCOMPARE(dialog->decimalPlaces, 5);
  }
}

void DisplayFormattingDialogTest::TheKeyboardFollowsTheFocus() {
  Open(1, 5);
  dialog->findChild<QPushButton*>(QStringLiteral("OK"))->setFocus();
  QSignalSpy asked(Box()->findChild<KeyboardOnFocus*>(), &KeyboardOnFocus::Asked);
  Box()->setFocus();
  QCOMPARE(asked, (QList<QVariantList>{{true}}));
  Radio("Fixed Point")->setFocus();
  QCOMPARE(asked, (QList<QVariantList>{{true}, {false}}));
}

void DisplayFormattingDialogTest::TextsStandOnLightBlue() {
  Open(1, 5);
  int bands = 0;
  for (QLabel* const label : dialog->findChildren<QLabel*>()) {
    QCOMPARE(label->grab().toImage().pixelColor(1, 1), QColor(222, 231, 255));
    ++bands;
  }
  QCOMPARE(bands, 2);
}

void DisplayFormattingDialogTest::ConfigShowsTheResultAgain() {
  test::CalculatorOnScreen calculator;
  calculator.Open();
  calculator.Calculate("1234.5");
  QCOMPARE(calculator.Result(), QStringLiteral("1,234.5"));
  Configure(calculator, "Fixed Point", "2");
  QCOMPARE(calculator.Result(), QStringLiteral("1234.50"));
  QCOMPARE(calculator.store.ReadSettingInt(L"Config", L"Display Type", -1), 1);
  QCOMPARE(calculator.store.ReadSettingInt(L"Config", L"Precision", -1), 2);
  // Cancel leaves all of it.
  calculator.RunFileCommand("Config...");
  QDialog* const config = test::OpenDialog(QStringLiteral("DisplayFormatting"));
  config->findChild<QRadioButton*>(QStringLiteral("Floating Point"))->click();
  Tap(config, "Cancel");
  QVERIFY(calculator.LineHasFocus());
  QCOMPARE(calculator.Result(), QStringLiteral("1234.50"));
  calculator.Open();
  calculator.Calculate("2");
  QCOMPARE(calculator.Result(), QStringLiteral("2.00"));
}

void DisplayFormattingDialogTest::ConfigLeavesAFailure() {
  test::CalculatorOnScreen calculator;
  calculator.Open();
  calculator.Calculate("1+");
  const QString sentence = calculator.Result();
  QVERIFY(sentence.endsWith(u'.'));
  Configure(calculator, "Fixed Point", "2");
  QCOMPARE(calculator.Result(), sentence);
}

}  // namespace vexa

VEXA_SCREEN_MAIN(vexa::DisplayFormattingDialogTest)
#include "DisplayFormattingDialogTest.moc"
