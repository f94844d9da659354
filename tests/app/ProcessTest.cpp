#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <memory>
#include <vector>

#include "files/SettingsJson.h"

namespace vexa {
namespace {

constexpr int kPatienceMs = 60000;

QByteArray Bytes(const QString& fileName) {
  QFile file(fileName);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The value of a "name: value" line of the process's state.
QByteArray StatusLine(qint64 process, const QByteArray& name) {
  const QByteArray status = Bytes(QStringLiteral("/proc/%1/status").arg(process));
  for (const QByteArray& line : status.split('\n')) {
    if (line.startsWith(name + ':')) return line.mid(name.size() + 1).trimmed();
  }
  return {};
}

/// True once the program handles termination signals itself.
bool HandlesSignals(qint64 process) {
  const quint64 caught = StatusLine(process, "SigCgt").toULongLong(nullptr, 16);
  return caught & (quint64{1} << (SIGTERM - 1));
}

/// What a start without any display answers: its exit status and what it said.
struct Outcome {
  int status;
  QByteArray output;
  QByteArray errors;
};
Outcome StartWithoutDisplay(const QStringList& arguments) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
    environment.remove(QLatin1String(name));
  }
  const QTemporaryDir folder;
  environment.insert(QStringLiteral("XDG_CONFIG_HOME"), folder.path());
  QProcess process;
  process.setProcessEnvironment(environment);
  process.start(QStringLiteral(VEXA_PROGRAM), arguments);
  const bool ended = process.waitForFinished(kPatienceMs);
  return {ended && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
          process.readAllStandardOutput(), process.readAllStandardError()};
}

}  // namespace

/// The program as a process of its own, with folders of its own.
class ProcessTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();
  void HelpAndVersionNeedNoDisplay();
  void WithoutADisplayASentenceIsSaid();
  void ASecondStartEndsWithStatusZero();
  void OfManyStartsAtOnceOneSurvives();
  void AStartWhileTheFirstEndsTakesItsPlace();
  void AStartBesideAStoppedCopyOpens();
  void TerminationSavesEverything_data();
  void TerminationSavesEverything();
  void TerminationDoesNotWaitForSettings_data();
  void TerminationDoesNotWaitForSettings();
  void TheStoreOfAnEarlierRunIsFound();
  void AKillBlocksNothing();
  void AKillWhileSavingLeavesOldOrNew();
  void ADamagedStoreIsKept();
  void AnIgnoredHangupStaysIgnored();

 private:
  QProcess* Start(const QString& launcher = {});
  /// Waits until the program shows its screen and has nothing left to do.
  void WaitUntilIdle(const QProcess& process);
  void End(QProcess* process, int signalNumber);
  QString StoreName() const {
    return dir->filePath(QStringLiteral("config/Vexa Calculator/settings.json"));
  }
  void PutStore(const QByteArray& bytes) const;
  SettingsValues Stored() const {
    const QByteArray bytes = Bytes(StoreName());
    return ParseSettings({bytes.constData(), static_cast<std::size_t>(bytes.size())})
        .value_or(SettingsValues{{{L"damaged", L""}, L""}});
  }

  std::unique_ptr<QTemporaryDir> dir;
  std::vector<std::unique_ptr<QProcess>> processes;
};

void ProcessTest::init() {
  dir = std::make_unique<QTemporaryDir>();
  const QString runtime = dir->filePath(QStringLiteral("runtime"));
  QVERIFY(QDir().mkpath(runtime));
  QCOMPARE(chmod(QFile::encodeName(runtime).constData(), 0700), 0);
}

void ProcessTest::cleanup() {
  for (auto& process : processes) {
    if (process->state() == QProcess::NotRunning) continue;
    process->kill();
    process->waitForFinished(kPatienceMs);
  }
  processes.clear();
}

QProcess* ProcessTest::Start(const QString& launcher) {
  processes.push_back(std::make_unique<QProcess>());
  QProcess* process = processes.back().get();
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
  environment.insert(QStringLiteral("XDG_CONFIG_HOME"), dir->filePath(QStringLiteral("config")));
  environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), dir->filePath(QStringLiteral("runtime")));
  process->setProcessEnvironment(environment);
  process->setProcessChannelMode(QProcess::ForwardedChannels);
  const QString program = QStringLiteral(VEXA_PROGRAM);
  if (launcher.isEmpty()) {
    process->start(program, QStringList());
  } else {
    process->start(QStringLiteral("/bin/sh"),
                   {QStringLiteral("-c"), launcher + QStringLiteral(" exec \"$0\""), program});
  }
  process->waitForStarted(kPatienceMs);
  return process;
}

void ProcessTest::WaitUntilIdle(const QProcess& process) {
  QTRY_VERIFY_WITH_TIMEOUT(HandlesSignals(process.processId()), kPatienceMs);
  // Asleep, and woken by nothing, for a while: the first screen is there.
  constexpr int kQuietChecks = 6;
  constexpr int kCheckMs = 50;
  int quiet = 0;
  QByteArray switches;
  for (int waited = 0; quiet < kQuietChecks && waited < kPatienceMs; waited += kCheckMs) {
    QTest::qWait(kCheckMs);
    const QByteArray now = StatusLine(process.processId(), "voluntary_ctxt_switches") +
                           StatusLine(process.processId(), "nonvoluntary_ctxt_switches") +
                           StatusLine(process.processId(), "State").left(1);
    quiet = now == switches && now.endsWith('S') ? quiet + 1 : 0;
    switches = now;
  }
  QCOMPARE(quiet, kQuietChecks);
}

void ProcessTest::End(QProcess* process, int signalNumber) {
  QCOMPARE(kill(static_cast<pid_t>(process->processId()), signalNumber), 0);
  QVERIFY(process->waitForFinished(kPatienceMs));
}

void ProcessTest::PutStore(const QByteArray& bytes) const {
  QVERIFY(QDir().mkpath(QFileInfo(StoreName()).path()));
  QFile file(StoreName());
  QVERIFY(file.open(QIODevice::WriteOnly));
  QCOMPARE(file.write(bytes), bytes.size());
}

void ProcessTest::HelpAndVersionNeedNoDisplay() {
  const Outcome help = StartWithoutDisplay({QStringLiteral("--help")});
  QCOMPARE(help.status, 0);
  QVERIFY(help.output.startsWith("Usage: vexa-calculator"));
  QCOMPARE(StartWithoutDisplay({QStringLiteral("--version")}).status, 0);
  const Outcome wrong = StartWithoutDisplay({QStringLiteral("--mode=graph")});
  QCOMPARE(wrong.status, 2);
  QVERIFY(wrong.errors.startsWith("There is no mode \"graph\""));
}

void ProcessTest::WithoutADisplayASentenceIsSaid() {
  const Outcome start = StartWithoutDisplay({});
  QCOMPARE(start.status, 1);
  QCOMPARE(start.errors,
           QByteArray("Vexa Calculator needs a display, and there is none that it can use.\n"));
}

void ProcessTest::ASecondStartEndsWithStatusZero() {
  QProcess* first = Start();
  WaitUntilIdle(*first);
  for (int n = 0; n < 3; ++n) {
    QProcess* second = Start();
    QVERIFY(second->waitForFinished(kPatienceMs));
    QCOMPARE(second->exitStatus(), QProcess::NormalExit);
    QCOMPARE(second->exitCode(), 0);
  }
  QCOMPARE(first->state(), QProcess::Running);
  End(first, SIGTERM);
  QCOMPARE(first->exitCode(), 0);
}

void ProcessTest::OfManyStartsAtOnceOneSurvives() {
  constexpr std::size_t kStarts = 6;
  for (std::size_t n = 0; n < kStarts; ++n) Start();
  const auto running = [this] {
    return std::ranges::count_if(
        processes, [](const auto& process) { return process->state() == QProcess::Running; });
  };
  QTRY_COMPARE_WITH_TIMEOUT(running(), 1, kPatienceMs);
  for (const auto& process : processes) {
    if (process->state() == QProcess::Running) {
      WaitUntilIdle(*process);
      QCOMPARE(running(), 1);
      End(process.get(), SIGTERM);
    }
    QCOMPARE(process->exitStatus(), QProcess::NormalExit);
    QCOMPARE(process->exitCode(), 0);
  }
}

void ProcessTest::AStartWhileTheFirstEndsTakesItsPlace() {
  QProcess* running = Start();
  WaitUntilIdle(*running);
  for (int n = 0; n < 8; ++n) {
    QCOMPARE(kill(static_cast<pid_t>(running->processId()), SIGTERM), 0);
    QProcess* const next = Start();
    QVERIFY(running->waitForFinished(kPatienceMs));
    QCOMPARE(running->exitCode(), 0);
    WaitUntilIdle(*next);
    QCOMPARE(next->state(), QProcess::Running);
    running = next;
  }
  End(running, SIGTERM);
}

void ProcessTest::AStartBesideAStoppedCopyOpens() {
  QProcess* const first = Start();
  WaitUntilIdle(*first);
  QCOMPARE(kill(static_cast<pid_t>(first->processId()), SIGSTOP), 0);
  QProcess* const second = Start();
  WaitUntilIdle(*second);
  QCOMPARE(second->state(), QProcess::Running);
  // The next one finds it.
  QProcess* const third = Start();
  QVERIFY(third->waitForFinished(kPatienceMs));
  QCOMPARE(third->exitCode(), 0);
  QCOMPARE(second->state(), QProcess::Running);
  End(second, SIGTERM);
  QCOMPARE(kill(static_cast<pid_t>(first->processId()), SIGCONT), 0);
  WaitUntilIdle(*first);
  End(first, SIGTERM);
  QCOMPARE(first->exitCode(), 0);
}

void ProcessTest::TerminationSavesEverything_data() {
  QTest::addColumn<int>("signalNumber");
  QTest::newRow("SIGTERM") << SIGTERM;
  QTest::newRow("SIGINT") << SIGINT;
  QTest::newRow("SIGHUP") << SIGHUP;
}

void ProcessTest::TerminationSavesEverything() {
  QFETCH(int, signalNumber);
  PutStore(R"({"Config":{"Angle Type":2},"History":{"CalHistoryCount":25,"CalHistory1":"1+1"},)"
           R"("Macro7":{"Name":"kept"}})");
  QProcess* process = Start();
  WaitUntilIdle(*process);
  End(process, signalNumber);
  QCOMPARE(process->exitStatus(), QProcess::NormalExit);
  QCOMPARE(process->exitCode(), 0);

  SettingsValues stored = Stored();
  const SettingsValues expected = {
      {{L"Config", L"Mode"}, 1},
      {{L"Config", L"Angle Type"}, 2},
      {{L"Config", L"Base Type"}, 1},
      {{L"Config", L"Display Type"}, 3},
      {{L"Config", L"Precision"}, 5},
      {{L"Convert", L"ClassPos"}, -1},
      {{L"Convert", L"InputTypePos"}, -1},
      {{L"Convert", L"OutputTypePos"}, -1},
      {{L"History", L"CalHistoryCount"}, 10},
      {{L"History", L"CalHistory1"}, L"1+1"},
      {{L"Macro7", L"Name"}, L"kept"},
  };
  for (const auto& [name, value] : expected) {
    QVERIFY2(stored[name] == value, qPrintable(QString::fromStdWString(name.second)));
  }
  QVERIFY((stored.contains({L"Window", L"Width"})));
}

void ProcessTest::TerminationDoesNotWaitForSettings_data() {
  QTest::addColumn<QString>("launcher");
  QTest::newRow("a full disk") << QStringLiteral("ulimit -f 0;");
  QTest::newRow("a link to a folder that is gone") << QStringLiteral(
      "mkdir -p \"$XDG_CONFIG_HOME/Vexa Calculator\"; "
      "ln -s /no/such/folder/settings.json \"$XDG_CONFIG_HOME/Vexa Calculator/\";");
  QTest::newRow("a file in the folder's place")
      << QStringLiteral("mkdir -p \"$XDG_CONFIG_HOME\"; : > \"$XDG_CONFIG_HOME/Vexa Calculator\";");
}

void ProcessTest::TerminationDoesNotWaitForSettings() {
  QFETCH(QString, launcher);
  QProcess* const process = Start(launcher);
  WaitUntilIdle(*process);
  End(process, SIGTERM);
  QCOMPARE(process->exitStatus(), QProcess::NormalExit);
  QCOMPARE(process->exitCode(), 0);
  QVERIFY2(Bytes(StoreName()).isEmpty(), "nothing could be written");
}

void ProcessTest::TheStoreOfAnEarlierRunIsFound() {
  PutStore(R"({"Config":{"Mode":9}})");
  for (int run = 0; run < 2; ++run) {
    QProcess* process = Start();
    WaitUntilIdle(*process);
    End(process, SIGTERM);
    QCOMPARE(process->exitCode(), 0);
    const SettingsValues stored = Stored();
    QVERIFY((stored.at({L"Config", L"Mode"}) == SettingValue(9)));
    // The screen of another mode leaves the calculator's settings alone.
    QVERIFY(!(stored.contains({L"Config", L"Angle Type"})));
  }
}

void ProcessTest::AKillBlocksNothing() {
  for (int n = 0; n < 3; ++n) {
    QProcess* process = Start();
    WaitUntilIdle(*process);
    End(process, SIGKILL);
    QCOMPARE(process->exitStatus(), QProcess::CrashExit);
  }
  QProcess* process = Start();
  WaitUntilIdle(*process);
  QCOMPARE(process->state(), QProcess::Running);
  End(process, SIGTERM);
  QCOMPARE(process->exitCode(), 0);
  QVERIFY((Stored().contains({L"Config", L"Angle Type"})));
}

void ProcessTest::AKillWhileSavingLeavesOldOrNew() {
  const QByteArray old =
      R"({"Config":{"Mode":1},"Kept":{"Text":")" + QByteArray(200000, 'x') + R"("}})";
  // What a run that is not disturbed makes of it.
  PutStore(old);
  QProcess* undisturbed = Start();
  WaitUntilIdle(*undisturbed);
  QElapsedTimer clock;
  clock.start();
  End(undisturbed, SIGTERM);
  const qint64 endingUs = clock.nsecsElapsed() / 1000;
  const QByteArray saved = Bytes(StoreName());
  QVERIFY(saved != old && saved.contains("Angle Type"));

  int oldOnes = 0;
  // Kills spread over the time that ending takes here.
  constexpr int kKills = 24;
  for (int n = 0; n < kKills; ++n) {
    PutStore(old);
    QProcess* process = Start();
    WaitUntilIdle(*process);
    // The window's place is stored already.
    const QByteArray before = Bytes(StoreName());
    const auto id = static_cast<pid_t>(process->processId());
    kill(id, SIGTERM);
    usleep(static_cast<unsigned>(endingUs * n / kKills));
    kill(id, SIGKILL);
    QVERIFY(process->waitForFinished(kPatienceMs));
    const QByteArray left = Bytes(StoreName());
    QVERIFY(left == before || left == saved);
    oldOnes += left == before ? 1 : 0;
  }
  qInfo("%d of %d killed runs left the old content", oldOnes, kKills);
}

void ProcessTest::ADamagedStoreIsKept() {
  const QByteArray damaged("\0\1\2 garbage", 11);
  PutStore(damaged);
  QProcess* process = Start();
  WaitUntilIdle(*process);
  End(process, SIGTERM);
  QCOMPARE(process->exitCode(), 0);
  QVERIFY((Stored().at({L"Config", L"Mode"}) == SettingValue(1)));
  QCOMPARE(Bytes(QFileInfo(StoreName()).path() + QStringLiteral("/settings.damaged-1.json")),
           damaged);
}

void ProcessTest::AnIgnoredHangupStaysIgnored() {
  QProcess* process = Start(QStringLiteral("trap '' HUP;"));
  WaitUntilIdle(*process);
  QCOMPARE(kill(static_cast<pid_t>(process->processId()), SIGHUP), 0);
  WaitUntilIdle(*process);
  QCOMPARE(process->state(), QProcess::Running);
  End(process, SIGTERM);
  QCOMPARE(process->exitCode(), 0);
}

}  // namespace vexa

QTEST_GUILESS_MAIN(vexa::ProcessTest)
#include "ProcessTest.moc"
