#include "converter/UserConversionDialog.h"

#include <QListWidget>
#include <QSignalSpy>

#include "display/SettingsLayout.h"
#include "support/Boxes.h"
#include "support/ConversionEditorOnScreen.h"
#include "support/ScreenMain.h"
#include "toolkit/KeyboardOnFocus.h"

namespace vexa {
namespace {

const QStringList kEditingButtons{QStringLiteral("MEM"), QStringLiteral("Save"),
                                  QStringLiteral("Cancel")};
constexpr int kFingerHeight = 30;
constexpr QSize kSmallestScreen(240, 320);

}  // namespace

/// The editor of the user's conversions: its two states, selecting, deleting, keys and looks.
class UserConversionDialogTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() { delete screen.dialog; }
  void TheViewState_data();
  void TheViewState();
  void NewStartsWithEmptyNames();
  void EditStartsAtTheRate();
  void EditAndDeleteNeedASelection();
  void SelectingShowsTheConversion();
  void CancelShowsTheSelectedConversion();
  void EscapeEndsTheEditingOnly();
  void EscapeAsksBeforeWhatWasTypedIsLost_data();
  void EscapeAsksBeforeWhatWasTypedIsLost();
  void EnterRunsTheShownButton();
  void AFocusedButtonTakesReturn();
  void DeleteAsksFirst();
  void DeleteRenumbersWhatFollows();
  void DeletingTheLastSelectsTheNewLast();
  void DeletingTheOnlyOneLeavesAnEmptyEditor();
  void MemFillsTheRate();
  void FieldsRaiseTheKeyboard();
  void TabFollowsTheLayout();
  void FitsTheSmallestScreen();
  void AHostileStoreIsHarmless_data();
  void AHostileStoreIsHarmless();

 private:
  test::ConversionEditorOnScreen screen;
};

void UserConversionDialogTest::TheViewState_data() {
  QTest::addColumn<int>("count");
  QTest::addColumn<QString>("label");
  QTest::addColumn<QStringList>("buttons");
  const QString add = QStringLiteral("New");
  const QString close = QStringLiteral("Close");
  const QStringList change{QStringLiteral("Edit"), QStringLiteral("Delete")};
  QTest::newRow("none") << 0 << QStringLiteral("List(0/60)") << QStringList{add, close};
  QTest::newRow("one") << 1 << QStringLiteral("List(1/60)")
                       << QStringList{add} + change + QStringList{close};
  QTest::newRow("59") << 59 << QStringLiteral("List(59/60)")
                      << QStringList{add} + change + QStringList{close};
  QTest::newRow("full") << 60 << QStringLiteral("List(60/60)") << change + QStringList{close};
}

void UserConversionDialogTest::TheViewState() {
  QFETCH(int, count);
  QFETCH(QString, label);
  QFETCH(QStringList, buttons);
  screen.Open(count);
  QCOMPARE(screen.Label(), label);
  QCOMPARE(screen.ShownButtons(), buttons);
  QCOMPARE(screen.list->count(), count);
  QVERIFY(screen.list->isEnabled());
  for (const QLineEdit* const box : {screen.first, screen.second, screen.rate}) {
    QVERIFY(!box->isEnabled());
  }
}

void UserConversionDialogTest::NewStartsWithEmptyNames() {
  screen.Open(2);
  screen.Press("New");
  QCOMPARE(screen.ShownButtons(), kEditingButtons);
  QCOMPARE(screen.Boxes(), (QStringList{QString(), QString(), QStringLiteral("0")}));
  QVERIFY(!screen.list->isEnabled());
  for (const QLineEdit* const box : {screen.first, screen.second, screen.rate}) {
    QVERIFY(box->isEnabled());
  }
  QVERIFY(screen.first->hasFocus());
}

void UserConversionDialogTest::EditStartsAtTheRate() {
  screen.Open(3);
  screen.Select(1);
  screen.Press("Edit");
  QCOMPARE(screen.ShownButtons(), kEditingButtons);
  QCOMPARE(screen.Boxes(),
           (QStringList{QStringLiteral("A1"), QStringLiteral("B1"), QStringLiteral("2.5")}));
  QVERIFY(screen.rate->hasFocus());
  QVERIFY(!screen.list->isEnabled());
}

void UserConversionDialogTest::EditAndDeleteNeedASelection() {
  screen.Open(2);
  const QRect line = screen.list->visualItemRect(screen.list->item(0));
  QTest::mouseClick(screen.list->viewport(), Qt::LeftButton, Qt::ControlModifier, line.center());
  QCOMPARE(screen.list->SelectedRow(), -1);
  QCOMPARE(screen.Boxes(), (QStringList{QString(), QString(), QString()}));
  screen.Press("Edit");
  QVERIFY(screen.Button("Close")->isVisible());
  screen.Press("Delete");
  QVERIFY(!test::OpenBox());
  QCOMPARE(screen.Stored().size(), 2);
}

void UserConversionDialogTest::SelectingShowsTheConversion() {
  screen.Open(3);
  QCOMPARE(screen.list->SelectedRow(), 0);
  screen.Select(2);
  QCOMPARE(screen.Boxes(),
           (QStringList{QStringLiteral("A2"), QStringLiteral("B2"), QStringLiteral("3.5")}));
  QTest::keyClick(screen.list, Qt::Key_Up);
  QCOMPARE(screen.Boxes(),
           (QStringList{QStringLiteral("A1"), QStringLiteral("B1"), QStringLiteral("2.5")}));
}

void UserConversionDialogTest::CancelShowsTheSelectedConversion() {
  screen.Open(2);
  screen.Select(1);
  screen.Press("New");
  screen.Type(QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("9"));
  screen.Press("Cancel");
  QVERIFY(screen.Button("Close")->isVisible());
  QCOMPARE(screen.Boxes(),
           (QStringList{QStringLiteral("A1"), QStringLiteral("B1"), QStringLiteral("2.5")}));
  QCOMPARE(screen.list->SelectedRow(), 1);
  QCOMPARE(screen.Stored().size(), 2);
}

void UserConversionDialogTest::EscapeEndsTheEditingOnly() {
  screen.Open(1);
  screen.Press("New");
  QTest::keyClick(screen.first, Qt::Key_Escape);
  QVERIFY(screen.dialog->isVisible());
  QVERIFY(screen.Button("Close")->isVisible());
  screen.Press("New");
  screen.dialog->close();
  QVERIFY(screen.dialog->isVisible());
  QSignalSpy rejected(screen.dialog, &QDialog::rejected);
  QTest::keyClick(screen.list, Qt::Key_Escape);
  QCOMPARE(rejected.count(), 1);
}

void UserConversionDialogTest::EscapeAsksBeforeWhatWasTypedIsLost_data() {
  QTest::addColumn<QString>("opening");
  QTest::addColumn<QString>("box");
  for (const char* opening : {"New", "Edit"}) {
    for (const char* box : {"Input unit name", "Output unit name", "Rate"}) {
      QTest::addRow("%s, %s", opening, box) << QString(opening) << QString(box);
    }
  }
}

void UserConversionDialogTest::EscapeAsksBeforeWhatWasTypedIsLost() {
  QFETCH(QString, opening);
  QFETCH(QString, box);
  screen.Open(1);
  screen.Press(qPrintable(opening));
  const QStringList before = screen.Boxes();
  auto* const typed = screen.dialog->findChild<QLineEdit*>(box);
  typed->setFocus();
  QTest::keyClick(typed, Qt::Key_7);
  const QStringList changed = screen.Boxes();
  QVERIFY(changed != before);
  for (const bool close : {false, true}) {
    if (close) {
      screen.dialog->close();
    } else {
      QTest::keyClick(typed, Qt::Key_Escape);
    }
    QCOMPARE(test::ShownBox(), test::Question("Are you sure you want to discard your changes?"));
    test::AnswerBox(QMessageBox::No);
    QCOMPARE(screen.Boxes(), changed);
    QTRY_VERIFY(typed->hasFocus());
  }
  QTest::keyClick(typed, Qt::Key_Escape);
  test::AnswerBox(QMessageBox::Yes);
  QVERIFY(screen.dialog->isVisible());
  QCOMPARE(screen.Boxes(),
           (QStringList{QStringLiteral("A0"), QStringLiteral("B0"), QStringLiteral("1.5")}));
  QVERIFY(!typed->isEnabled());
}

void UserConversionDialogTest::EnterRunsTheShownButton() {
  screen.Open(0);
  screen.Press("New");
  screen.Type(QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("2"));
  QTest::keyClick(screen.rate, Qt::Key_Return);
  QCOMPARE(screen.Stored(), QStringList{QStringLiteral("a -> b = 2")});
  QSignalSpy rejected(screen.dialog, &QDialog::rejected);
  QTest::keyClick(screen.list, Qt::Key_Return);
  QCOMPARE(rejected.count(), 1);
}

void UserConversionDialogTest::AFocusedButtonTakesReturn() {
  screen.Open(1);
  const auto press = [this](const char* caption) {
    screen.Button(caption)->setFocus();
    QTest::keyClick(screen.Button(caption), Qt::Key_Return);
  };
  press("New");
  QVERIFY(screen.Button("Save")->isVisible());
  screen.Type(QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("2"));
  press("Cancel");
  QVERIFY(screen.Button("Close")->isVisible());
  QCOMPARE(screen.Stored().size(), 1);
  press("Delete");
  QVERIFY(test::OpenBox());
  test::AnswerBox(QMessageBox::No);
}

void UserConversionDialogTest::DeleteAsksFirst() {
  screen.Open(2);
  screen.Press("Delete");
  QCOMPARE(test::ShownBox(),
           test::Question("Are you sure you want to delete the selected unit convert?"));
  test::AnswerBox(QMessageBox::No);
  QCOMPARE(screen.Stored().size(), 2);
  QCOMPARE(screen.Label(), QStringLiteral("List(2/60)"));
}

void UserConversionDialogTest::DeleteRenumbersWhatFollows() {
  screen.Open(5);
  screen.Select(2);
  screen.Press("Delete");
  test::AnswerBox(QMessageBox::Yes);
  QCOMPARE(screen.Stored(),
           (QStringList{QStringLiteral("A0 -> B0 = 1.5"), QStringLiteral("A1 -> B1 = 2.5"),
                        QStringLiteral("A3 -> B3 = 4.5"), QStringLiteral("A4 -> B4 = 5.5")}));
  QCOMPARE(Read(screen.store, settings::kConversionCount), 4);
  QCOMPARE(screen.Label(), QStringLiteral("List(4/60)"));
  QCOMPARE(screen.list->SelectedRow(), 2);
  QCOMPARE(screen.Boxes(),
           (QStringList{QStringLiteral("A3"), QStringLiteral("B3"), QStringLiteral("4.5")}));
}

void UserConversionDialogTest::DeletingTheLastSelectsTheNewLast() {
  screen.Open(60);
  screen.Select(59);
  screen.Press("Delete");
  test::AnswerBox(QMessageBox::Yes);
  QCOMPARE(screen.list->SelectedRow(), 58);
  QCOMPARE(screen.first->text(), QStringLiteral("A58"));
  QVERIFY(screen.Button("New")->isVisible());
}

void UserConversionDialogTest::DeletingTheOnlyOneLeavesAnEmptyEditor() {
  screen.Open(1);
  screen.Press("Delete");
  test::AnswerBox(QMessageBox::Yes);
  QCOMPARE(screen.Boxes(), (QStringList{QString(), QString(), QString()}));
  QCOMPARE(screen.ShownButtons(), (QStringList{QStringLiteral("New"), QStringLiteral("Close")}));
  QVERIFY(screen.Stored().isEmpty());
}

void UserConversionDialogTest::MemFillsTheRate() {
  screen.Store(1);
  Write(screen.store, settings::kMemoryVariable, 4, L"0.3048");
  screen.Open();
  screen.Press("New");
  screen.Type(QStringLiteral("Foot"), QStringLiteral("Meter"), QStringLiteral("7"));
  for (const char* caption : {"Cancel", "Recall"}) {
    screen.Press("MEM");
    QDialog* const variables = test::OpenDialog(QStringLiteral("MemoryVariable"));
    QVERIFY(variables);
    variables->findChild<QListWidget*>()->setCurrentRow(4);
    QTest::mouseClick(variables->findChild<QPushButton*>(QString::fromLatin1(caption)),
                      Qt::LeftButton);
    const bool recalled = caption == QByteArray("Recall");
    QCOMPARE(screen.rate->text(), QString::fromLatin1(recalled ? "0.3048" : "7"));
    QTRY_VERIFY(screen.rate->hasFocus());
  }
  screen.Press("Save");
  QCOMPARE(screen.Stored().last(), QStringLiteral("Foot -> Meter = 0.3048"));
}

void UserConversionDialogTest::FieldsRaiseTheKeyboard() {
  screen.Open(1);
  QSignalSpy first(screen.first->findChild<KeyboardOnFocus*>(), &KeyboardOnFocus::Asked);
  QSignalSpy rate(screen.rate->findChild<KeyboardOnFocus*>(), &KeyboardOnFocus::Asked);
  screen.Press("New");
  QCOMPARE(first.last().first().toBool(), true);
  screen.Press("Cancel");
  QCOMPARE(first.last().first().toBool(), false);
  screen.Press("Edit");
  QCOMPARE(rate.last().first().toBool(), true);
}

void UserConversionDialogTest::TabFollowsTheLayout() {
  screen.Open(1);
  screen.Press("New");
  QStringList reached;
  for (int n = 0; n < 6; ++n) {
    reached += QApplication::focusWidget()->objectName();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  QCOMPARE(reached,
           (QStringList{QStringLiteral("Input unit name"), QStringLiteral("Output unit name"),
                        QStringLiteral("Rate"), QStringLiteral("MEM"), QStringLiteral("Save"),
                        QStringLiteral("Cancel")}));
}

void UserConversionDialogTest::FitsTheSmallestScreen() {
  screen.Open(60);
  for (const char* command : {"Edit", "Cancel"}) {
    screen.dialog->resize(kSmallestScreen);
    QCOMPARE(screen.dialog->size(), kSmallestScreen);
    for (const QPushButton* const button : screen.dialog->findChildren<QPushButton*>()) {
      QVERIFY(!button->isVisible() || button->height() >= kFingerHeight);
    }
    QVERIFY(screen.list->visualItemRect(screen.list->item(0)).height() >= kFingerHeight);
    screen.Press(command);
  }
}

void UserConversionDialogTest::AHostileStoreIsHarmless_data() {
  QTest::addColumn<int>("count");
  QTest::addColumn<int>("lines");
  QTest::newRow("negative") << -1 << 0;
  QTest::newRow("least") << std::numeric_limits<int>::min() << 0;
  QTest::newRow("too many") << 10000 << 60;
}

void UserConversionDialogTest::AHostileStoreIsHarmless() {
  QFETCH(int, count);
  QFETCH(int, lines);
  screen.Store(0);
  Write(screen.store, settings::kConversionName, 0, L"no arrow");
  Write(screen.store, settings::kConversionRate, 0, L"no number");
  Write(screen.store, settings::kConversionCount, count);
  screen.Open();
  QCOMPARE(screen.list->count(), lines);
  QCOMPARE(screen.Label(), QStringLiteral("List(%1/60)").arg(lines));
  if (lines == 0) return;
  QCOMPARE(screen.Boxes(),
           (QStringList{QStringLiteral("no arrow"), QString(), QStringLiteral("no number")}));
}

}  // namespace vexa

VEXA_SCREEN_MAIN(vexa::UserConversionDialogTest)
#include "UserConversionDialogTest.moc"
