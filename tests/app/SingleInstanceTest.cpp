#include "app/SingleInstance.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace vexa {

class SingleInstanceTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void TheFirstClaimsTheSecondAsks();
  void TheTokenReachesTheFirst_data();
  void TheTokenReachesTheFirst();
  void AfterTheFirstTheNextMayRun();
  void ManyWishesAreOne();
  void AnythingInPlaceOfThePipeIsReplaced_data();
  void AnythingInPlaceOfThePipeIsReplaced();
  void WhatCannotBeReplacedDoesNotBlock();
  void AFolderThatOthersMayWriteIsAvoided();
  void AFolderOfAnotherUserIsAvoided();
  void WithoutARuntimeFolderTheSettingsFolderServes();
  void WithoutAnyFolderTheProgramRuns();

 private:
  QString RuntimePipe() const {
    return dir->filePath(QStringLiteral("runtime/vexa-calculator.instance"));
  }
  QString ConfigPipe() const {
    return dir->filePath(QStringLiteral("config/Vexa Calculator/vexa-calculator.instance"));
  }
  static bool IsPipe(const QString& name) {
    struct stat info {};
    return lstat(QFile::encodeName(name).constData(), &info) == 0 && S_ISFIFO(info.st_mode);
  }

  std::unique_ptr<QTemporaryDir> dir;
};

void SingleInstanceTest::init() {
  dir = std::make_unique<QTemporaryDir>();
  const QString runtime = dir->filePath(QStringLiteral("runtime"));
  QVERIFY(QDir().mkpath(runtime));
  QCOMPARE(chmod(QFile::encodeName(runtime).constData(), 0700), 0);
  qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime));
  qputenv("XDG_CONFIG_HOME", QFile::encodeName(dir->filePath(QStringLiteral("config"))));
  qunsetenv("XDG_ACTIVATION_TOKEN");
  qunsetenv("DESKTOP_STARTUP_ID");
}

void SingleInstanceTest::TheFirstClaimsTheSecondAsks() {
  SingleInstance first;
  QVERIFY(first.Claim());
  QVERIFY(IsPipe(RuntimePipe()));
  first.Listen();
  QSignalSpy wishes(&first, &SingleInstance::FrontRequested);
  SingleInstance second;
  QVERIFY(!second.Claim());
  QTRY_COMPARE(wishes.size(), qsizetype{1});
  QCOMPARE(wishes.first().first().toByteArray(), QByteArray());
}

void SingleInstanceTest::TheTokenReachesTheFirst_data() {
  QTest::addColumn<QByteArray>("activation");
  QTest::addColumn<QByteArray>("startup");
  QTest::addColumn<QByteArray>("received");
  const QByteArray none;
  QTest::newRow("activation") << QByteArray("abc-1") << none << QByteArray("abc-1");
  QTest::newRow("startup") << none << QByteArray("id_TIME5") << QByteArray("id_TIME5");
  QTest::newRow("both") << QByteArray("abc") << QByteArray("id") << QByteArray("abc");
  QTest::newRow("too long") << QByteArray(5000, 'x') << none << none;
  QTest::newRow("two lines") << QByteArray("a\nb") << none << none;
}

void SingleInstanceTest::TheTokenReachesTheFirst() {
  QFETCH(QByteArray, activation);
  QFETCH(QByteArray, startup);
  QFETCH(QByteArray, received);
  SingleInstance first;
  QVERIFY(first.Claim());
  first.Listen();
  QSignalSpy wishes(&first, &SingleInstance::FrontRequested);
  qputenv("XDG_ACTIVATION_TOKEN", activation);
  qputenv("DESKTOP_STARTUP_ID", startup);
  SingleInstance second;
  QVERIFY(!second.Claim());
  QTRY_COMPARE(wishes.size(), qsizetype{1});
  QCOMPARE(wishes.first().first().toByteArray(), received);
}

void SingleInstanceTest::AfterTheFirstTheNextMayRun() {
  for (int n = 0; n < 3; ++n) {
    SingleInstance instance;
    QVERIFY(instance.Claim());
  }
}

void SingleInstanceTest::ManyWishesAreOne() {
  SingleInstance first;
  QVERIFY(first.Claim());
  // Far more than the pipe holds: nobody waits.
  qputenv("XDG_ACTIVATION_TOKEN", QByteArray(500, 'x'));
  for (int n = 0; n < 300; ++n) {
    SingleInstance other;
    QVERIFY(!other.Claim());
  }
  first.Listen();
  QSignalSpy wishes(&first, &SingleInstance::FrontRequested);
  QTRY_COMPARE(wishes.size(), qsizetype{1});
  QCOMPARE(wishes.first().first().toByteArray(), QByteArray(500, 'x'));
}

void SingleInstanceTest::AnythingInPlaceOfThePipeIsReplaced_data() {
  QTest::addColumn<QString>("kind");
  for (const char* kind : {"file", "link", "dangling link"}) {
    QTest::newRow(kind) << QString::fromLatin1(kind);
  }
}

void SingleInstanceTest::AnythingInPlaceOfThePipeIsReplaced() {
  QFETCH(QString, kind);
  QFile victim(dir->filePath(QStringLiteral("victim")));
  if (kind != QStringLiteral("dangling link")) {
    QVERIFY(victim.open(QIODevice::WriteOnly));
    victim.write("precious");
    victim.close();
  }
  if (kind == QStringLiteral("file")) {
    QVERIFY(victim.copy(RuntimePipe()));
  } else {
    QVERIFY(QFile::link(victim.fileName(), RuntimePipe()));
  }
  SingleInstance first;
  QVERIFY(first.Claim());
  QVERIFY(IsPipe(RuntimePipe()));
  SingleInstance second;
  QVERIFY(!second.Claim());
  if (kind == QStringLiteral("link")) {
    QVERIFY(victim.open(QIODevice::ReadOnly));
    QCOMPARE(victim.readAll(), QByteArray("precious"));
  }
}

void SingleInstanceTest::WhatCannotBeReplacedDoesNotBlock() {
  QVERIFY(QDir().mkpath(RuntimePipe() + QStringLiteral("/inner")));
  SingleInstance first;
  QVERIFY(first.Claim());
  first.Listen();
}

void SingleInstanceTest::AFolderThatOthersMayWriteIsAvoided() {
  QCOMPARE(chmod(qgetenv("XDG_RUNTIME_DIR").constData(), 0777), 0);
  SingleInstance first;
  QVERIFY(first.Claim());
  QVERIFY(!QFile::exists(RuntimePipe()));
  QVERIFY(IsPipe(ConfigPipe()));
  SingleInstance second;
  QVERIFY(!second.Claim());
}

void SingleInstanceTest::AFolderOfAnotherUserIsAvoided() {
  if (geteuid() != 0) QSKIP("only root can give a folder away");
  constexpr uid_t kSomebody = 12345;
  QCOMPARE(chown(qgetenv("XDG_RUNTIME_DIR").constData(), kSomebody, kSomebody), 0);
  SingleInstance first;
  QVERIFY(first.Claim());
  QVERIFY(!QFile::exists(RuntimePipe()));
  QVERIFY(IsPipe(ConfigPipe()));
}

void SingleInstanceTest::WithoutARuntimeFolderTheSettingsFolderServes() {
  qunsetenv("XDG_RUNTIME_DIR");
  SingleInstance first;
  QVERIFY(first.Claim());
  QVERIFY(IsPipe(ConfigPipe()));
  SingleInstance second;
  QVERIFY(!second.Claim());
}

void SingleInstanceTest::WithoutAnyFolderTheProgramRuns() {
  QFile file(dir->filePath(QStringLiteral("file")));
  QVERIFY(file.open(QIODevice::WriteOnly));
  qputenv("XDG_RUNTIME_DIR", QFile::encodeName(file.fileName()));
  qputenv("XDG_CONFIG_HOME", QFile::encodeName(file.fileName()));
  SingleInstance first;
  QVERIFY(first.Claim());
  first.Listen();
}

}  // namespace vexa

QTEST_GUILESS_MAIN(vexa::SingleInstanceTest)
#include "SingleInstanceTest.moc"
