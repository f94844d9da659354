// Boxes that ask and boxes that show progress.

#include <sys/resource.h>
#include <unistd.h>

#include <QEventLoop>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <atomic>
#include <fstream>
#include <new>
#include <thread>

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
  // The first one: threads that have ended leave room for others.
  void WorkIsDoneWithoutRoomForAThread();
  void EitherAnswerLeadsOn();
  void EscapeIsNoAnswer();
  void ClosingIsNoAnswer();
  void OnlyYesAndNoAreOffered();
  void ShortWorkShowsNoProgress();
  void LongWorkShowsItsProgress();
  void WorkMayTakeAMoment();
  void ProgressCanBeCancelled();
  void ClosedWindowStopsTheWork();
  void WhatTheWorkThrowsArrives();
  // The last one: it ends the program.
  void AnEndingProgramStopsTheWork();

 private:
  /// Runs work that does not end by itself; true: it was told to stop.
  bool RunUntilStopped() {
    return RunWithProgress(window.get(), "Working...", [](auto watcher) {
      while (watcher(0.5)) std::this_thread::yield();
      return true;
    });
  }
  QMessageBox* Ask() {
    AskEitherWay(window.get(), L"Well?", [this](bool yes) { answers << yes; });
    return window->findChild<QMessageBox*>();
  }
  QDialog* Progress() const { return window->findChild<QDialog*>("Progress"); }

  std::unique_ptr<QWidget> window;
  QList<bool> answers;
};

void BoxesTest::WorkIsDoneWithoutRoomForAThread() {
#ifdef __SANITIZE_ADDRESS__
  QSKIP("The sanitizer needs the room.");
#endif
  rlim_t pages = 0;
  std::ifstream("/proc/self/statm") >> pages;
  rlimit usual{};
  QCOMPARE(getrlimit(RLIMIT_AS, &usual), 0);
  constexpr rlim_t kLessThanAThread = rlim_t{1} << 20;
  const rlimit narrow{pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE)) + kLessThanAThread,
                      usual.rlim_max};
  QCOMPARE(setrlimit(RLIMIT_AS, &narrow), 0);
  const auto here = std::this_thread::get_id();
  const auto where =
      RunWithProgress(window.get(), "Working...", [](auto) { return std::this_thread::get_id(); });
  QCOMPARE(setrlimit(RLIMIT_AS, &usual), 0);
  QVERIFY(where == here);
}

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
  ProgressBox::patienceMs = 100000;
  QCOMPARE(RunWithProgress(window.get(), "Working...", [](auto watcher) { return watcher(0.5); }),
           true);
  QVERIFY(!Progress());
}

void BoxesTest::LongWorkShowsItsProgress() {
  ProgressBox::patienceMs = 0;
  std::atomic<bool> seen = false;
  QTimer look;
  connect(&look, &QTimer::timeout, this, [&] {
    if (!Progress() || Progress()->findChild<QProgressBar*>()->value() != 250) return;
    seen = Progress()->isVisible() && Progress()->isModal();
  });
  look.start(1);
  const bool wanted = RunWithProgress(window.get(), "Working...", [&](auto watcher) {
    while (!seen && watcher(0.25)) std::this_thread::yield();
    return watcher(0.75);
  });
  QVERIFY(wanted && seen);
  QVERIFY(!Progress());
}

void BoxesTest::WorkMayTakeAMoment() {
  ProgressBox::patienceMs = 60;
  std::atomic<bool> seen = false;
  QTimer look;
  connect(&look, &QTimer::timeout, this, [&] { seen = seen || Progress(); });
  look.start(1);
  const bool wanted = RunWithProgress(window.get(), "Working...", [&](auto watcher) {
    while (!seen && watcher(0.0)) std::this_thread::yield();
    return watcher(0.0);
  });
  QVERIFY(wanted && seen);
}

void BoxesTest::ProgressCanBeCancelled() {
  ProgressBox::patienceMs = 0;
  QTimer::singleShot(0, this, [this] { Progress()->findChild<QPushButton*>("Cancel")->click(); });
  QVERIFY(RunUntilStopped());
}

void BoxesTest::ClosedWindowStopsTheWork() {
  ProgressBox::patienceMs = 0;
  QTimer::singleShot(0, window.get(), &QWidget::hide);
  QVERIFY(RunUntilStopped());
}

void BoxesTest::AnEndingProgramStopsTheWork() {
  ProgressBox::patienceMs = 0;
  QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(0); });
  QEventLoop program;
  bool stopped = false;
  QTimer::singleShot(0, &program, [&] { stopped = RunUntilStopped(); });
  program.exec();
  QVERIFY(stopped);
}

void BoxesTest::WhatTheWorkThrowsArrives() {
  QVERIFY_EXCEPTION_THROWN(
      RunWithProgress(window.get(), "Working...", [](auto) -> bool { throw std::bad_alloc(); }),
      std::bad_alloc);
}

}  // namespace vexa

QTEST_MAIN(vexa::BoxesTest)
#include "BoxesTest.moc"
