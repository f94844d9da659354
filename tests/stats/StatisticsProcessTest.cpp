// Leaving with unsaved data, as a process: what is asked, what a signal does, what is left behind.

#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QTest>

namespace vexa {
namespace {

constexpr int kPatienceMs = 60000;

}  // namespace

class StatisticsProcessTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();
  void AnsweringNoEndsWithoutSaving();
  void AnsweringYesSavesAndEnds();
  void ASavedSetIsLoadedByTheNextRun();
  void SignalsDoNotWaitForData_data();
  void SignalsDoNotWaitForData();
  void SignalsDoNotWaitForAnAnswer_data() { SignalsDoNotWaitForData_data(); }
  void SignalsDoNotWaitForAnAnswer();
  void ASignalStopsALongLoad();
  void ClosingTheWindowDoesNotAsk();
  void WhatNobodyWasAskedAboutIsKept_data();
  void WhatNobodyWasAskedAboutIsKept();
  void WhatWasAskedAboutIsNotKept();
  void RowsThatCannotBeKeptAreSaid_data() { SignalsDoNotWaitForData_data(); }
  void RowsThatCannotBeKeptAreSaid();

 private:
  void Wish(const char* name, const QString& value) {
    environment.insert(QString::fromLatin1(name), value);
  }
  void Start();
  /// Waits until the program says `what`.
  void WaitFor(const char* what);
  void ExpectGoodEnd();
  QByteArray Bytes(const char* name) const {
    QFile file(dir->filePath(QString::fromLatin1(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
  }

  std::unique_ptr<QTemporaryDir> dir;
  QProcessEnvironment environment;
  std::unique_ptr<QProcess> process;
  QByteArray said;
  /// No file of the program can grow, as if the disk were full.
  bool fullDisk = false;
};

void StatisticsProcessTest::init() {
  dir = std::make_unique<QTemporaryDir>();
  fullDisk = false;
  environment = QProcessEnvironment::systemEnvironment();
  Wish("QT_QPA_PLATFORM", "offscreen");
  Wish("XDG_CONFIG_HOME", dir->filePath("config"));
  Wish("XDG_RUNTIME_DIR", dir->filePath("runtime"));
  QVERIFY(QDir().mkpath(dir->filePath("config/Vexa Calculator")));
  QVERIFY(QDir().mkpath(dir->filePath("runtime")));
  QCOMPARE(chmod(QFile::encodeName(dir->filePath("runtime")).constData(), 0700), 0);
  QFile store(dir->filePath("config/Vexa Calculator/settings.json"));
  QVERIFY(store.open(QIODevice::WriteOnly));
  store.write(R"({"Config":{"Mode":3}})");
}

void StatisticsProcessTest::cleanup() {
  if (process && process->state() != QProcess::NotRunning) {
    process->kill();
    process->waitForFinished(kPatienceMs);
  }
}

void StatisticsProcessTest::Start() {
  process = std::make_unique<QProcess>();
  process->setProcessEnvironment(environment);
  if (fullDisk) {
    process->setChildProcessModifier([] {
      const rlimit nothing{0, 0};
      setrlimit(RLIMIT_FSIZE, &nothing);
    });
  } else {
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
  }
  said.clear();
  process->start(QStringLiteral(VEXA_STATISTICS_USER), QStringList());
  QVERIFY(process->waitForStarted(kPatienceMs));
}

void StatisticsProcessTest::WaitFor(const char* what) {
  while (!said.contains(what) && process->waitForReadyRead(kPatienceMs)) {
    said += process->readAllStandardOutput();
  }
  QVERIFY2(said.contains(what), said.constData());
}

void StatisticsProcessTest::ExpectGoodEnd() {
  QVERIFY(process->state() == QProcess::NotRunning || process->waitForFinished(kPatienceMs));
  said += process->readAllStandardOutput();
  QCOMPARE(process->exitStatus(), QProcess::NormalExit);
  QCOMPARE(process->exitCode(), 0);
  // The mode and the window's place are written at the end.
  const QByteArray store = Bytes("config/Vexa Calculator/settings.json");
  QVERIFY2(store.contains("\"Mode\": 3") && store.contains("\"Width\""), store.constData());
}

void StatisticsProcessTest::AnsweringNoEndsWithoutSaving() {
  Wish("VEXA_TEST_DO", "exit");
  Wish("VEXA_TEST_ANSWER", "no");
  Start();
  WaitFor("Do you want to save changes to Data?");
  ExpectGoodEnd();
}

void StatisticsProcessTest::AnsweringYesSavesAndEnds() {
  Wish("VEXA_TEST_DO", "exit");
  Wish("VEXA_TEST_ANSWER", "yes");
  Wish("VEXA_TEST_SAVE", dir->filePath("data.txt"));
  Start();
  WaitFor("Do you want to save changes to Data?");
  ExpectGoodEnd();
  QCOMPARE(Bytes("data.txt"), QByteArray("4\t1\r\n2.5\t1\r\n"));
}

void StatisticsProcessTest::ASavedSetIsLoadedByTheNextRun() {
  AnsweringYesSavesAndEnds();
  environment.remove("VEXA_TEST_DO");
  Wish("VEXA_TEST_LOAD", dir->filePath("data.txt"));
  Start();
  WaitFor("2 rows, total 2");
  kill(static_cast<pid_t>(process->processId()), SIGTERM);
  ExpectGoodEnd();
}

void StatisticsProcessTest::SignalsDoNotWaitForData_data() {
  QTest::addColumn<int>("signalNumber");
  QTest::newRow("SIGTERM") << SIGTERM;
  QTest::newRow("SIGINT") << SIGINT;
  QTest::newRow("SIGHUP") << SIGHUP;
}

void StatisticsProcessTest::SignalsDoNotWaitForData() {
  QFETCH(int, signalNumber);
  Start();
  WaitFor("ready");
  kill(static_cast<pid_t>(process->processId()), signalNumber);
  ExpectGoodEnd();
}

void StatisticsProcessTest::SignalsDoNotWaitForAnAnswer() {
  QFETCH(int, signalNumber);
  Wish("VEXA_TEST_DO", "exit");
  Start();
  WaitFor("ready");
  QVERIFY(said.contains("Do you want to save changes to Data?"));
  kill(static_cast<pid_t>(process->processId()), signalNumber);
  ExpectGoodEnd();
}

void StatisticsProcessTest::ASignalStopsALongLoad() {
  // Large enough to be far from its end when the signal comes.
  QFile file(dir->filePath("large.txt"));
  QVERIFY(file.open(QIODevice::WriteOnly));
  const QByteArray rows = QByteArray("0.123456789012\t1\r\n").repeated(100000);
  for (int n = 0; n < 100; ++n) QCOMPARE(file.write(rows), rows.size());
  file.close();
  Wish("VEXA_TEST_LOAD", file.fileName());
  Start();
  WaitFor("loading");
  kill(static_cast<pid_t>(process->processId()), SIGTERM);
  ExpectGoodEnd();
  QVERIFY2(!said.contains("rows, total"), said.constData());
}

void StatisticsProcessTest::ClosingTheWindowDoesNotAsk() {
  Wish("VEXA_TEST_DO", "close");
  Start();
  ExpectGoodEnd();
  QVERIFY(!said.contains("Do you want to save"));
}

void StatisticsProcessTest::WhatNobodyWasAskedAboutIsKept_data() {
  SignalsDoNotWaitForData_data();
  QTest::newRow("close") << 0;
}

void StatisticsProcessTest::WhatNobodyWasAskedAboutIsKept() {
  QFETCH(int, signalNumber);
  if (signalNumber == 0) Wish("VEXA_TEST_DO", "close");
  Start();
  WaitFor("ready");
  if (signalNumber != 0) kill(static_cast<pid_t>(process->processId()), signalNumber);
  ExpectGoodEnd();
  const QFileInfo kept(dir->filePath("config/Vexa Calculator/unsaved-1-var-1.rows"));
  QVERIFY(kept.exists());
  QVERIFY(!(kept.permissions() & (QFile::ReadGroup | QFile::ReadOther)));
  Wish("VEXA_TEST_DO", "restore");
  Start();
  WaitFor("2 rows, total 2");
  kill(static_cast<pid_t>(process->processId()), SIGKILL);
  process->waitForFinished(kPatienceMs);
  // Not even then they are lost.
  Start();
  WaitFor("2 rows, total 2");
  kill(static_cast<pid_t>(process->processId()), SIGTERM);
  ExpectGoodEnd();
}

void StatisticsProcessTest::WhatWasAskedAboutIsNotKept() {
  AnsweringNoEndsWithoutSaving();
  Wish("VEXA_TEST_DO", "restore");
  Start();
  WaitFor("nothing to restore");
  kill(static_cast<pid_t>(process->processId()), SIGTERM);
  ExpectGoodEnd();
}

void StatisticsProcessTest::RowsThatCannotBeKeptAreSaid() {
  QFETCH(int, signalNumber);
  const QByteArray stored = Bytes("config/Vexa Calculator/settings.json");
  fullDisk = true;
  Wish("VEXA_TEST_DO", "exit");
  Start();
  WaitFor("ready");
  kill(static_cast<pid_t>(process->processId()), signalNumber);
  QVERIFY(process->waitForFinished(kPatienceMs));
  QCOMPARE(process->exitStatus(), QProcess::NormalExit);
  QCOMPARE(process->exitCode(), 0);
  const QByteArray complaint = process->readAllStandardError();
  QVERIFY2(
      complaint.contains("Vexa Calculator: the unsaved rows could not be kept: File too large\n"),
      complaint.constData());
  QCOMPARE(Bytes("config/Vexa Calculator/settings.json"), stored);
  QVERIFY(!QFile::exists(dir->filePath("config/Vexa Calculator/unsaved-1-var-1.rows")));
}

}  // namespace vexa

QTEST_GUILESS_MAIN(vexa::StatisticsProcessTest)
#include "StatisticsProcessTest.moc"
