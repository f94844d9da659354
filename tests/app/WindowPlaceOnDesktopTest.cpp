// The window's place under a window manager: random sequences of what a person does to a window, by
// the program's own ways and by the window manager's keys. tests/support/desktop gives it a display
// and a window manager.

#include <QApplication>
#include <QProcess>
#include <QRandomGenerator>
#include <QScreen>
#include <QWindow>
#include <QtTest>

#include "app/MainFrame.h"
#include "app/WindowPlace.h"
#include "display/MemorySettingsStore.h"
#include "toolkit/ModeScreen.h"

// The desktop's message bus keeps a buffer to the end.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libdbus-1";
}

namespace vexa {

class WindowPlaceOnDesktopTest : public QObject {
  Q_OBJECT

 private slots:
  void ThereIsAWindowManager();
  void APlaceIsKeptExactly();
  void RandomSequencesKeepTheNormalPlace_data();
  void RandomSequencesKeepTheNormalPlace();

 private:
  /// What a person wants of the window.
  struct Wanted {
    QPoint position;
    QSize size;
    bool isMaximized = false;
    bool isMinimized = false;
  };

  void Open();
  void Close(bool byExit);
  /// Presses a key of the window manager's.
  static void Press(const char* key);
  void Step(quint32 choice);
  WindowPlace WantedPlace() const {
    return {wanted.position.x(), wanted.position.y(), wanted.size.width(), wanted.size.height()};
  }
  /// True when the window manager's keys are for the window.
  bool IsActive() const;
  bool IsAsWanted() const;

  MemorySettingsStore store;
  std::unique_ptr<MainFrame> frame;
  Wanted wanted;
  QRandomGenerator random;
};

void WindowPlaceOnDesktopTest::Open() {
  frame = std::make_unique<MainFrame>(store);
  frame->show();
  QVERIFY(QTest::qWaitForWindowActive(frame.get()));
  QTRY_VERIFY(frame->findChild<ModeScreen*>());
  wanted.isMinimized = false;
}

void WindowPlaceOnDesktopTest::Close(bool byExit) {
  if (byExit) {
    frame->Exit();
  } else {
    frame->close();
  }
  frame.reset();
}

void WindowPlaceOnDesktopTest::Press(const char* key) {
  QCOMPARE(QProcess::execute(QStringLiteral("xdotool"),
                             {QStringLiteral("key"), QString::fromLatin1(key)}),
           0);
}

bool WindowPlaceOnDesktopTest::IsActive() const {
  if (!frame->windowHandle()->isExposed()) return false;
  QProcess asked;
  asked.start(QStringLiteral("xdotool"), {QStringLiteral("getactivewindow")});
  return asked.waitForFinished() && asked.readAllStandardOutput().toULongLong() == frame->winId();
}

bool WindowPlaceOnDesktopTest::IsAsWanted() const {
  if (frame->isMinimized() != wanted.isMinimized) return false;
  if (wanted.isMinimized) return true;
  if (!IsActive() || frame->isMaximized() != wanted.isMaximized) return false;
  if (!wanted.isMaximized) {
    // At rest, as a person sees it before the next step.
    return frame->pos() == wanted.position && frame->size() == wanted.size &&
           LoadWindowPlace(store) == RememberedPlace{WantedPlace(), false};
  }
  const QRect area = frame->screen()->availableGeometry();
  return frame->frameGeometry().contains(area);
}

void WindowPlaceOnDesktopTest::ThereIsAWindowManager() {
  QCOMPARE(QGuiApplication::platformName(), QStringLiteral("xcb"));
  Open();
  // A frame of the window manager's has a title.
  QTRY_VERIFY(frame->frameGeometry().height() > frame->height());
  Close(true);
}

void WindowPlaceOnDesktopTest::APlaceIsKeptExactly() {
  SaveWindowPlace(store, {{120, 90, 400, 500}, false});
  for (int n = 0; n < 5; ++n) {
    Open();
    QTRY_VERIFY(frame->frameGeometry().height() > frame->height());
    QTRY_COMPARE(frame->pos(), QPoint(120, 90));
    Close(n % 2 == 0);
    QCOMPARE(LoadWindowPlace(store).place, (WindowPlace{120, 90, 400, 500}));
  }
}

void WindowPlaceOnDesktopTest::RandomSequencesKeepTheNormalPlace_data() {
  QTest::addColumn<quint32>("seed");
  // A part of them for each of the programs that run beside each other.
  const quint32 part = qEnvironmentVariableIntValue("VEXA_PART");
  constexpr quint32 kInPart = 50;
  for (quint32 n = 0; n < kInPart; ++n) {
    const quint32 seed = part * kInPart + n;
    QTest::addRow("%u", seed) << seed;
  }
}

void WindowPlaceOnDesktopTest::Step(quint32 choice) {
  const bool isNormal = !wanted.isMinimized && !wanted.isMaximized;
  switch (choice) {
    case 0:  // move
      if (!isNormal) return;
      wanted.position = {random.bounded(20, 500), random.bounded(20, 200)};
      return frame->move(wanted.position);
    case 1:  // resize
      if (!isNormal) return;
      wanted.size = {random.bounded(240, 500), random.bounded(320, 500)};
      return frame->resize(wanted.size);
    case 2:
    case 3:  // the window manager's maximise key
      if (wanted.isMinimized) return;
      wanted.isMaximized = !wanted.isMaximized;
      return Press("super+m");
    case 4:  // the window manager's minimise key
      if (wanted.isMinimized) return;
      wanted.isMinimized = true;
      return Press("super+i");
    case 5:  // a second start
      wanted.isMinimized = false;
      return frame->BringToFront();
    default:  // the next start
      Close(choice % 2 == 0);
      return Open();
  }
}

void WindowPlaceOnDesktopTest::RandomSequencesKeepTheNormalPlace() {
  QFETCH(quint32, seed);
  random.seed(seed);
  wanted = {{100, 80}, {340, 480}};
  SaveWindowPlace(store, {{100, 80, 340, 480}, false});
  Open();
  constexpr int kSteps = 6;
  constexpr quint32 kChoices = 8;
  for (int n = 0; n < kSteps; ++n) {
    QTRY_VERIFY2(IsAsWanted(), qPrintable(QStringLiteral("step %1").arg(n)));
    Step(random.bounded(kChoices));
  }
  QTRY_VERIFY(IsAsWanted());
  Close(seed % 2 == 0);
  const RememberedPlace remembered = LoadWindowPlace(store);
  const WindowPlace expected = WantedPlace();
  QVERIFY2(remembered.place == expected, qPrintable(QStringLiteral("%1,%2 %3x%4 is not %5,%6 %7x%8")
                                                        .arg(remembered.place.left)
                                                        .arg(remembered.place.top)
                                                        .arg(remembered.place.width)
                                                        .arg(remembered.place.height)
                                                        .arg(expected.left)
                                                        .arg(expected.top)
                                                        .arg(expected.width)
                                                        .arg(expected.height)));
  QCOMPARE(remembered.isMaximized, wanted.isMaximized);
}

}  // namespace vexa

QTEST_MAIN(vexa::WindowPlaceOnDesktopTest)
#include "WindowPlaceOnDesktopTest.moc"
