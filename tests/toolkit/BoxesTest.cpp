// Boxes that ask and boxes that show progress.

#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "toolkit/MessageBox.h"
#include "toolkit/ProgressBox.h"

namespace vexa {

class BoxesTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    window = std::make_unique<QWidget>();
    window->show();
    ProgressBox::patienceMs = 200;
  }
  void EitherAnswerLeadsOn();
  void EscapeIsNoAnswer();
  void ClosingIsNoAnswer();
  void OnlyYesAndNoAreOffered();
  void ShortWorkShowsNoProgress();
  void LongWorkShowsItsProgress();
  void ProgressCanBeCancelled();
  void ClosedWindowStopsTheWork();

 private:
  QMessageBox* Ask() {
    AskEitherWay(window.get(), L"Well?", [this](bool yes) { answers << yes; });
    return window->findChild<QMessageBox*>();
  }
  QDialog* Progress() const { return window->findChild<QDialog*>("Progress"); }

  std::unique_ptr<QWidget> window;
  QList<bool> answers;
};

void BoxesTest::EitherAnswerLeadsOn() {
  answers.clear();
  QMessageBox* box = Ask();
  QCOMPARE(box->text(), QStringLiteral("Well?"));
  QCOMPARE(box->icon(), QMessageBox::Question);
  QCOMPARE(box->defaultButton(), box->button(QMessageBox::Yes));
  box->button(QMessageBox::Yes)->click();
  QTRY_VERIFY(!window->findChild<QMessageBox*>());
  Ask()->button(QMessageBox::No)->click();
  QCOMPARE(answers, (QList<bool>{true, false}));
}

void BoxesTest::EscapeIsNoAnswer() {
  answers.clear();
  QTest::keyClick(Ask(), Qt::Key_Escape);
  QTRY_VERIFY(!window->findChild<QMessageBox*>());
  QVERIFY(answers.isEmpty());
}

void BoxesTest::ClosingIsNoAnswer() {
  answers.clear();
  Ask()->close();
  QTRY_VERIFY(!window->findChild<QMessageBox*>());
  QVERIFY(answers.isEmpty());
}

void BoxesTest::OnlyYesAndNoAreOffered() {
  QStringList shown;
  for (const QAbstractButton* button : Ask()->buttons()) {
    if (button->isVisible()) shown << button->text().remove(u'&');
  }
  QCOMPARE(shown.size(), qsizetype{2});
  QVERIFY(shown.contains("Yes") && shown.contains("No"));
}

void BoxesTest::ShortWorkShowsNoProgress() {
  ProgressBox box(window.get(), "Working...");
  QVERIFY(box.Report(0.5));
  QVERIFY(!Progress());
}

void BoxesTest::LongWorkShowsItsProgress() {
  ProgressBox::patienceMs = 0;
  {
    ProgressBox box(window.get(), "Working...");
    QVERIFY(box.Report(0.25));
    QVERIFY(Progress() && Progress()->isVisible());
    QVERIFY(Progress()->isModal());
    QCOMPARE(Progress()->findChild<QProgressBar*>()->value(), 250);
    QTest::qSleep(20);
    QVERIFY(box.Report(0.75));
    QCOMPARE(Progress()->findChild<QProgressBar*>()->value(), 750);
  }
  QVERIFY(!Progress());
}

void BoxesTest::ProgressCanBeCancelled() {
  ProgressBox::patienceMs = 0;
  ProgressBox box(window.get(), "Working...");
  QVERIFY(box.Report(0.1));
  QTimer::singleShot(0, this, [this] { Progress()->findChild<QPushButton*>("Cancel")->click(); });
  QTest::qSleep(20);
  QVERIFY(!box.Report(0.2));
}

void BoxesTest::ClosedWindowStopsTheWork() {
  ProgressBox::patienceMs = 0;
  ProgressBox box(window.get(), "Working...");
  QVERIFY(box.Report(0.1));
  window->hide();
  QTest::qSleep(20);
  QVERIFY(!box.Report(0.2));
}

}  // namespace vexa

QTEST_MAIN(vexa::BoxesTest)
#include "BoxesTest.moc"
