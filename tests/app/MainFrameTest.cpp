#include "app/MainFrame.h"

#include <QApplication>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include "app/CalculatorScreen.h"
#include "app/WindowPlace.h"
#include "display/MemorySettingsStore.h"
#include "plotter/PlotterScreen.h"
#include "stats/TwoVarScreen.h"
#include "toolkit/EditLine.h"

namespace vexa {

class MainFrameTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void LoadingIsPaintedFifteenUnitsIn();
  void TheFirstPaintCreatesTheStoredScreen_data();
  void TheFirstPaintCreatesTheStoredScreen();
  void MenusSwitchModes();
  void TheNewScreenIsShownBeforeTheOldOneGoes();
  void SwitchingKeepsSettingsAndForgetsTheAnswer();
  void TheNewScreenReadsWhatTheOldOneShowed();
  void ThePlotterStoresEachFunctionAtOnce();
  void TheModeIsStoredWhenItIsChosen();
  void SwitchingToTheSameModeKeepsTheScreen();
  void ExitHidesThenCloses();
  void ClosingTheWindowEnds();
  void PlaceAndSizeAreRemembered();
  void TheMaximisedStateIsRememberedBesideThePlace();
  void ThePlaceIsStoredWhenTheWindowRests();
  void HostilePlacesAreHarmless();
  void ScreensFillTheFrame();
  void ComesToTheFrontWhenMinimised();
  void ThePopUpComesToTheFront();
  void AModeCanBeAskedForFromOutside();
  void HelpSaysWhichPage();

 private:
  void Open();
  int StoredMode() const { return store->ReadSettingInt(L"Config", L"Mode", 0); }
  void Choose(const QString& menuTitle, const QString& text);
  /// The class of the one screen.
  QByteArray Screen() const {
    const QList<ModeScreen*> screens = frame->findChildren<ModeScreen*>();
    return screens.size() == 1 ? screens.front()->metaObject()->className() : "";
  }

  std::unique_ptr<MemorySettingsStore> store;
  std::unique_ptr<MainFrame> frame;
};

void MainFrameTest::init() {
  frame.reset();
  store = std::make_unique<MemorySettingsStore>();
}

void MainFrameTest::Open() {
  frame.reset();
  frame = std::make_unique<MainFrame>(*store);
  frame->show();
  QTRY_VERIFY(frame->findChild<ModeScreen*>());
}

void MainFrameTest::AModeCanBeAskedForFromOutside() {
  // Before the first screen is there it becomes the first.
  frame = std::make_unique<MainFrame>(*store);
  frame->AskForMode(Mode::FunctionPlotter);
  frame->show();
  QTRY_COMPARE(Screen(), QByteArray("vexa::PlotterScreen"));
  frame->AskForMode(Mode::ScientificCalculator);
  QTRY_COMPARE(Screen(), QByteArray("vexa::CalculatorScreen"));
  QCOMPARE(StoredMode(), 1);
  // A dialog that waits for an answer keeps its screen.
  frame->findChild<QPushButton*>(QStringLiteral("Cnv"))->click();
  QTRY_VERIFY(QApplication::activeModalWidget());
  frame->AskForMode(Mode::FunctionPlotter);
  QCoreApplication::processEvents();
  QCOMPARE(Screen(), QByteArray("vexa::CalculatorScreen"));
}

void MainFrameTest::HelpSaysWhichPage() {
  Open();
  QStringList pages;
  connect(frame.get(), &MainFrame::GuideChosen, this, [&pages](std::string_view page) {
    pages << QString::fromUtf8(page.data(), static_cast<qsizetype>(page.size()));
  });
  Choose(QStringLiteral("Help"), QStringLiteral("Guide\tF1"));
  Choose(QStringLiteral("Help"), QStringLiteral("Keys and Functions"));
  QCOMPARE(pages, QStringList({QStringLiteral("calculator"), QStringLiteral("keys-and-functions")}));
}

void MainFrameTest::Choose(const QString& menuTitle, const QString& text) {
  for (const QAction* menu : frame->findChild<QMenuBar*>()->actions()) {
    if (menu->text().remove(u'&') != menuTitle) continue;
    for (QAction* action : menu->menu()->actions()) {
      if (action->text().remove(u'&') == text) return action->trigger();
    }
  }
  QFAIL(qPrintable(text));
}

void MainFrameTest::LoadingIsPaintedFifteenUnitsIn() {
  frame = std::make_unique<MainFrame>(*store);
  QCOMPARE(frame->objectName(), QStringLiteral("VexaMain"));
  QCOMPARE(frame->windowTitle(), QStringLiteral("Vexa Calculator"));
  const QImage image = frame->grab().toImage();
  const QRgb background = image.pixel(0, 0);
  QRect inked;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixel(x, y) != background) inked |= QRect(x, y, 1, 1);
    }
  }
  QVERIFY(inked.isValid());
  QVERIFY(inked.left() >= 15 && inked.left() < 20);
  QVERIFY(inked.top() >= 15 && inked.bottom() < 15 + frame->fontMetrics().height());
  // The paint asked for the screen, but did not create it.
  QVERIFY(!frame->findChild<ModeScreen*>());
  QTRY_VERIFY(frame->findChild<CalculatorScreen*>());
}

void MainFrameTest::TheFirstPaintCreatesTheStoredScreen_data() {
  QTest::addColumn<int>("mode");
  QTest::addColumn<QByteArray>("screen");
  QTest::newRow("1") << 1 << QByteArray("vexa::CalculatorScreen");
  QTest::newRow("2") << 2 << QByteArray("vexa::PlotterScreen");
  QTest::newRow("3") << 3 << QByteArray("vexa::OneVarScreen");
  for (const int mode : {4, 0, 9, -1, 2147483647}) {
    QTest::addRow("%d", mode) << mode << QByteArray("vexa::TwoVarScreen");
  }
}

void MainFrameTest::TheFirstPaintCreatesTheStoredScreen() {
  QFETCH(int, mode);
  QFETCH(QByteArray, screen);
  store->WriteSettingInt(L"Config", L"Mode", mode);
  Open();
  QCOMPARE(Screen(), screen);
  frame.reset();
  // The code stays as it was given.
  QCOMPARE(StoredMode(), mode);
}

void MainFrameTest::MenusSwitchModes() {
  Open();
  const std::pair<const char*, const char*> modes[] = {
      {"Function Plotter", "vexa::PlotterScreen"},
      {"1-Var Statistics", "vexa::OneVarScreen"},
      {"2-Var Statistics", "vexa::TwoVarScreen"},
      {"Scientific Calculator", "vexa::CalculatorScreen"}};
  for (const auto& [name, screen] : modes) {
    Choose(QStringLiteral("Mode"), QString::fromLatin1(name));
    QTRY_COMPARE(Screen(), QByteArray(screen));
    QVERIFY(frame->findChild<ModeScreen*>()->isVisible());
  }
  Choose(QStringLiteral("Mode"), QStringLiteral("1-Var Statistics"));
  QTRY_COMPARE(Screen(), QByteArray("vexa::OneVarScreen"));
  frame.reset();
  QCOMPARE(StoredMode(), 3);
}

void MainFrameTest::TheNewScreenIsShownBeforeTheOldOneGoes() {
  Open();
  bool newWasVisible = false;
  connect(frame->findChild<CalculatorScreen*>(), &QObject::destroyed, this, [&] {
    const auto* plotter = frame->findChild<PlotterScreen*>();
    newWasVisible = plotter && plotter->isVisible();
  });
  frame->SwitchMode(2);
  QVERIFY(newWasVisible);
  QVERIFY(!frame->findChild<CalculatorScreen*>());
}

void MainFrameTest::SwitchingKeepsSettingsAndForgetsTheAnswer() {
  Open();
  QTest::keyClicks(frame->findChild<EditLine*>(), QStringLiteral("2+3"));
  QTest::keyClick(frame->findChild<EditLine*>(), Qt::Key_Return);
  QTest::mouseClick(frame->findChild<QWidget*>(QStringLiteral("DEG")), Qt::LeftButton);
  frame->SwitchMode(2);
  QCOMPARE(store->ReadSettingInt(L"Config", L"Angle Type", 0), 2);
  frame->SwitchMode(1);
  QVERIFY(frame->findChild<QWidget*>(QStringLiteral("RAD"))->isVisible());
  QVERIFY(frame->findChild<QWidget*>(QStringLiteral("PB"))->isEnabled());
  QCOMPARE(frame->findChild<QPlainTextEdit*>(QStringLiteral("Result"))->toPlainText(),
           QStringLiteral("0"));
  QVERIFY(frame->findChild<EditLine*>()->Text().empty());
  QCOMPARE(frame->focusWidget(), frame->findChild<EditLine*>());
}

void MainFrameTest::TheNewScreenReadsWhatTheOldOneShowed() {
  Open();
  QTest::mouseClick(frame->findChild<QWidget*>(QStringLiteral("DEG")), Qt::LeftButton);
  QCOMPARE(store->ReadSettingInt(L"Config", L"Angle Type", 0), 2);
  frame->SwitchMode(2);
  QVERIFY(frame->findChild<QWidget*>(QStringLiteral("RAD"))->isVisible());
  QVERIFY(!frame->findChild<QWidget*>(QStringLiteral("DEG"))->isVisible());
  // A range that no command has read yet.
  auto* const box = frame->findChild<QLineEdit*>(QStringLiteral("X max"));
  QVERIFY(box);
  box->setText(QStringLiteral("25"));
  bool wasStored = false;
  connect(frame->findChild<PlotterScreen*>(), &QObject::destroyed, this, [&] { wasStored = true; });
  frame->SwitchMode(1);
  QVERIFY(wasStored);
  QCOMPARE(store->ReadSettingString(L"Grapher", L"X Max", L""), L"25");
}

void MainFrameTest::ThePlotterStoresEachFunctionAtOnce() {
  store->WriteSettingInt(L"Config", L"Mode", 2);
  Open();
  QTest::keyClicks(frame->findChild<EditLine*>(), QStringLiteral("x+1"));
  QTest::mouseClick(frame->findChild<QWidget*>(QStringLiteral("A")), Qt::LeftButton);
  QCOMPARE(store->ReadSettingInt(L"Grapher", L"Grapher FunTotalNumber", 0), 1);
  QCOMPARE(store->ReadSettingString(L"Grapher", L"Fun0", L""), L"x+1");
  QCOMPARE(store->ReadSettingInt(L"History", L"GrapHistoryCount", 0), 1);
}

void MainFrameTest::TheModeIsStoredWhenItIsChosen() {
  Open();
  frame->SwitchMode(3);
  QCOMPARE(StoredMode(), 3);
}

void MainFrameTest::SwitchingToTheSameModeKeepsTheScreen() {
  Open();
  const auto* screen = frame->findChild<CalculatorScreen*>();
  frame->SwitchMode(1);
  QCOMPARE(frame->findChild<CalculatorScreen*>(), screen);
  frame->SwitchMode(9);
  const auto* statistics = frame->findChild<TwoVarScreen*>();
  frame->SwitchMode(4);
  QCOMPARE(frame->findChild<TwoVarScreen*>(), statistics);
}

void MainFrameTest::ExitHidesThenCloses() {
  Open();
  bool wasHidden = false;
  connect(frame.get(), &MainFrame::Closed, this, [&] { wasHidden = !frame->isVisible(); });
  QSignalSpy closed(frame.get(), &MainFrame::Closed);
  Choose(QStringLiteral("File"), QStringLiteral("Exit"));
  QTRY_COMPARE(closed.size(), qsizetype{1});
  QVERIFY(wasHidden);
}

void MainFrameTest::ClosingTheWindowEnds() {
  Open();
  QSignalSpy closed(frame.get(), &MainFrame::Closed);
  frame->close();
  QCOMPARE(closed.size(), qsizetype{1});
}

void MainFrameTest::PlaceAndSizeAreRemembered() {
  Open();
  frame->resize(300, 400);
  frame->move(50, 60);
  QTRY_COMPARE(frame->pos(), QPoint(50, 60));
  frame->Exit();
  frame.reset();
  QCOMPARE(LoadWindowPlace(*store), (RememberedPlace{{50, 60, 300, 400}, false}));
  Open();
  QCOMPARE(frame->size(), QSize(300, 400));
  QCOMPARE(frame->pos(), QPoint(50, 60));
}

void MainFrameTest::TheMaximisedStateIsRememberedBesideThePlace() {
  const WindowPlace normal{50, 60, 300, 400};
  SaveWindowPlace(*store, {normal, false});
  for (int n = 0; n < 4; ++n) {
    Open();
    QCOMPARE(frame->isMaximized(), n > 0);
    frame->showMaximized();
    QTRY_VERIFY(frame->isMaximized());
    if (n == 2) {
      frame->showMinimized();
      QTRY_VERIFY(frame->isMinimized());
      frame->BringToFront();
      QTRY_VERIFY(!frame->isMinimized());
    }
    frame->Exit();
    frame.reset();
    QCOMPARE(LoadWindowPlace(*store), (RememberedPlace{normal, true}));
  }
}

void MainFrameTest::ThePlaceIsStoredWhenTheWindowRests() {
  Open();
  frame->resize(300, 400);
  frame->move(50, 60);
  QTRY_COMPARE(LoadWindowPlace(*store), (RememberedPlace{{50, 60, 300, 400}, false}));
}

void MainFrameTest::HostilePlacesAreHarmless() {
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  for (const int value : {2147483647, -1, -2147483647 - 1}) {
    SaveWindowPlace(*store, {{value, value, value, value}, false});
    Open();
    QVERIFY(screen.contains(QRect(frame->pos(), frame->size())));
    frame.reset();
  }
}

void MainFrameTest::ScreensFillTheFrame() {
  Open();
  for (const QSize size : {QSize(240, 320), QSize(600, 700)}) {
    frame->resize(size);
    QTRY_COMPARE(frame->findChild<ModeScreen*>()->geometry(), frame->rect());
  }
  frame->SwitchMode(3);
  QCOMPARE(frame->findChild<ModeScreen*>()->geometry(), frame->rect());
}

void MainFrameTest::ComesToTheFrontWhenMinimised() {
  Open();
  frame->showMinimized();
  QTRY_VERIFY(frame->isMinimized());
  frame->BringToFront();
  QTRY_VERIFY(!frame->isMinimized() && frame->isVisible());
  QTRY_VERIFY(frame->isActiveWindow());
}

void MainFrameTest::ThePopUpComesToTheFront() {
  Open();
  Choose(QStringLiteral("File"), QStringLiteral("About..."));
  auto* box = frame->findChild<QWidget*>(QStringLiteral("About"));
  QVERIFY(box);
  QWidget other;
  other.show();
  QVERIFY(QTest::qWaitForWindowExposed(&other));
  frame->BringToFront();
  QTRY_VERIFY(box->isActiveWindow());
  box->close();
}

}  // namespace vexa

QTEST_MAIN(vexa::MainFrameTest)
#include "MainFrameTest.moc"
