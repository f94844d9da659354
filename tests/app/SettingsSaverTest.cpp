#include "app/SettingsSaver.h"

#include <QSignalSpy>
#include <QTest>

#include "app/MainFrame.h"
#include "display/MemorySettingsStore.h"
#include "files/SettingsJson.h"
#include "support/TemporaryFolder.h"
#include "toolkit/ModeScreen.h"
#include "toolkit/NoticeBar.h"

namespace vexa {

class SettingsSaverTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();
  void ChangesReachTheFileFromTheEventLoop();
  void AFailureIsSaidOnceAndTriedAgainWithTheNextChange();
  void ADamagedFileIsSaidWithTheKeptFilesName();
  void TheNoticeTakesNoInputAndGoesWhenDismissed();
  void TwoNoticesStandBelowEachOther();

 private:
  void Open();
  std::filesystem::path FileName() const { return *folder / "Vexa Calculator/settings.json"; }
  int StoredMode() const {
    auto values = ParseSettings(test::Bytes(FileName()));
    return values && values->contains({L"Config", L"Mode"})
               ? std::get<int>(values->at({L"Config", L"Mode"}))
               : 0;
  }

  std::unique_ptr<test::TemporaryFolder> folder;
  std::unique_ptr<FileSettingsStore> store;
  std::unique_ptr<SettingsSaver> saver;
};

void SettingsSaverTest::init() {
  folder = std::make_unique<test::TemporaryFolder>();
}

void SettingsSaverTest::cleanup() {
  saver.reset();
  store.reset();
}

void SettingsSaverTest::Open() {
  store = std::make_unique<FileSettingsStore>(folder->path);
  store->SetSettingsKey(L"Vexa Calculator");
  saver = std::make_unique<SettingsSaver>(*store);
}

void SettingsSaverTest::ChangesReachTheFileFromTheEventLoop() {
  Open();
  for (const int mode : {3, 2}) {
    store->WriteSettingInt(L"Config", L"Mode", mode);
    QTRY_COMPARE(StoredMode(), mode);
  }
}

void SettingsSaverTest::AFailureIsSaidOnceAndTriedAgainWithTheNextChange() {
  test::PutBytes(*folder / "Vexa Calculator", "a file in the place of the folder");
  Open();
  QSignalSpy notices(saver.get(), &SettingsSaver::NoticeRaised);
  for (const int mode : {3, 2, 4}) {
    store->WriteSettingInt(L"Config", L"Mode", mode);
    QTRY_COMPARE(notices.size(), qsizetype{1});
    QCoreApplication::processEvents();
  }
  QCOMPARE(notices.size(), qsizetype{1});
  QCOMPARE(notices.first().first().toString(),
           QStringLiteral("The settings cannot be saved: Not a directory."));
  std::filesystem::remove(*folder / "Vexa Calculator");
  store->WriteSettingInt(L"Config", L"Angle Type", 2);
  QTRY_COMPARE(StoredMode(), 4);
}

void SettingsSaverTest::ADamagedFileIsSaidWithTheKeptFilesName() {
  test::PutBytes(FileName(), "no settings");
  Open();
  QSignalSpy notices(saver.get(), &SettingsSaver::NoticeRaised);
  QTRY_COMPARE(notices.size(), qsizetype{1});
  QVERIFY(notices.first().first().toString().contains(QStringLiteral("settings.damaged-1.json")));
}

void SettingsSaverTest::TheNoticeTakesNoInputAndGoesWhenDismissed() {
  MemorySettingsStore settings;
  MainFrame frame(settings);
  frame.resize(340, 560);
  frame.show();
  QTRY_VERIFY(frame.findChild<ModeScreen*>());
  QVERIFY(QTest::qWaitForWindowActive(&frame));
  QWidget* const focus = frame.focusWidget();
  frame.ShowNotice(QStringLiteral("The settings cannot be saved: No space left on device."));
  auto* const bar = frame.findChild<NoticeBar*>();
  auto* const screen = frame.findChild<ModeScreen*>();
  QVERIFY(bar->isVisible());
  QCOMPARE(frame.focusWidget(), focus);
  QCOMPARE(bar->geometry().bottom(), frame.rect().bottom());
  QCOMPARE(screen->geometry().bottom() + 1, bar->geometry().top());
  // Another mode's screen leaves it room too.
  frame.SwitchMode(2);
  QVERIFY(bar->isVisible());
  QCOMPARE(frame.findChild<ModeScreen*>()->geometry().bottom() + 1, bar->geometry().top());
  QTest::mouseClick(bar->findChild<QWidget*>(QStringLiteral("Dismiss")), Qt::LeftButton);
  QVERIFY(!bar->isVisible());
  QCOMPARE(frame.findChild<ModeScreen*>()->geometry(), frame.rect());
}

void SettingsSaverTest::TwoNoticesStandBelowEachOther() {
  MemorySettingsStore settings;
  MainFrame frame(settings);
  frame.ShowNotice(QStringLiteral("One."));
  const int height = frame.findChild<NoticeBar*>()->height();
  frame.ShowNotice(QStringLiteral("Two.\n\n\nLong."));
  auto* const label = frame.findChild<QLabel*>(QStringLiteral("Notice text"));
  QVERIFY(label->text().startsWith(QStringLiteral("One.\nTwo.")));
  QVERIFY(frame.findChild<NoticeBar*>()->height() > height);
}

}  // namespace vexa

QTEST_MAIN(vexa::SettingsSaverTest)
#include "SettingsSaverTest.moc"
