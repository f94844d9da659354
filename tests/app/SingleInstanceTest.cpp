#include "app/SingleInstance.h"

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <QSignalSpy>
#include <QTest>
#include <future>

#include "app/InstanceSocket.h"
#include "support/TemporaryFolder.h"

namespace vexa {

namespace fs = std::filesystem;
using Role = SingleInstance::Role;

class SingleInstanceTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void TheFirstAnswersTheSecond();
  void TheTokenReachesTheFirst_data();
  void TheTokenReachesTheFirst();
  void AfterTheFirstTheNextMayRun();
  void ManyAtOnceAreAllAnswered();
  void WhoAsksACopyThatIsEndingTakesItsPlace();
  void WhoAsksACopyThatIsStartingWaits();
  void ACopyThatDoesNotAnswerIsLeftAlone();
  void TheCopyBesideAnswersTheNext();
  void ACopyThatNeverStartsToListenIsLeftAlone();
  void WhatIsNoWishIsDropped();
  void FoldersThatOthersMayEnterAreClosed();
  void TheSessionsFolderMakesNoDifference();
  void AFolderWithALongNameServes();
  void AnythingInTheirPlaceIsReplaced_data();
  void TheModeReachesTheFirst();
  void AnythingInTheirPlaceIsReplaced();
  void WhatCannotBeReplacedDoesNotBlock();
  void WithoutTheSettingsFolderTheSessionsServes();
  void WithoutAnyFolderTheProgramRuns();

 private:
  fs::path Own() const { return *dir / "config/Vexa Calculator"; }
  /// What a second start is, while the event loop runs.
  Role ClaimOfAnother(std::optional<Mode> mode = {}) {
    auto role = std::async(std::launch::async, [mode] { return SingleInstance().Claim(mode); });
    while (role.wait_for(std::chrono::milliseconds(0)) != std::future_status::ready) {
      QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }
    return role.get();
  }

  std::unique_ptr<test::TemporaryFolder> dir;
};

void SingleInstanceTest::init() {
  dir = std::make_unique<test::TemporaryFolder>();
  fs::create_directory(*dir / "runtime");
  fs::permissions(*dir / "runtime", fs::perms(0700));
  qputenv("XDG_RUNTIME_DIR", QByteArray::fromStdString(*dir / "runtime"));
  qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(*dir / "config"));
  qunsetenv("XDG_ACTIVATION_TOKEN");
  qunsetenv("DESKTOP_STARTUP_ID");
}

void SingleInstanceTest::TheFirstAnswersTheSecond() {
  SingleInstance first;
  QCOMPARE(first.Claim(), Role::Only);
  first.Listen();
  QSignalSpy wishes(&first, &SingleInstance::FrontRequested);
  QCOMPARE(ClaimOfAnother(), Role::Second);
  QCOMPARE(wishes.size(), qsizetype{1});
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
  QTest::newRow("long") << QByteArray(500, 'x') << none << QByteArray(500, 'x');
  QTest::newRow("too long") << QByteArray(5000, 'x') << none << none;
  QTest::newRow("two lines") << QByteArray("a\nb") << none << none;
}

void SingleInstanceTest::TheTokenReachesTheFirst() {
  QFETCH(QByteArray, activation);
  QFETCH(QByteArray, startup);
  QFETCH(QByteArray, received);
  SingleInstance first;
  QCOMPARE(first.Claim(), Role::Only);
  first.Listen();
  QSignalSpy wishes(&first, &SingleInstance::FrontRequested);
  qputenv("XDG_ACTIVATION_TOKEN", activation);
  qputenv("DESKTOP_STARTUP_ID", startup);
  QCOMPARE(ClaimOfAnother(), Role::Second);
  QCOMPARE(wishes.size(), qsizetype{1});
  QCOMPARE(wishes.first().first().toByteArray(), received);
}

void SingleInstanceTest::TheModeReachesTheFirst() {
  SingleInstance first;
  QCOMPARE(first.Claim(), Role::Only);
  first.Listen();
  QSignalSpy wishes(&first, &SingleInstance::FrontRequested);
  qputenv("XDG_ACTIVATION_TOKEN", "abc");
  QCOMPARE(ClaimOfAnother(Mode::OneVarStatistics), Role::Second);
  QCOMPARE(wishes.size(), qsizetype{1});
  QCOMPARE(wishes[0].at(0).toByteArray(), QByteArray("abc"));
  QCOMPARE(wishes[0].at(1).toByteArray(), QByteArray("1-var"));
  // A token that could be read as something else is not handed on.
  qputenv("XDG_ACTIVATION_TOKEN", "a\tplotter");
  QCOMPARE(ClaimOfAnother(), Role::Second);
  QCOMPARE(wishes[1].at(0).toByteArray(), QByteArray());
  QCOMPARE(wishes[1].at(1).toByteArray(), QByteArray());
}

void SingleInstanceTest::AfterTheFirstTheNextMayRun() {
  for (int n = 0; n < 3; ++n) {
    SingleInstance instance;
    QCOMPARE(instance.Claim(), Role::Only);
    instance.Listen();
  }
}

void SingleInstanceTest::ManyAtOnceAreAllAnswered() {
  SingleInstance first;
  QCOMPARE(first.Claim(), Role::Only);
  first.Listen();
  std::vector<std::future<Role>> roles;
  for (int n = 0; n < 20; ++n) {
    roles.push_back(std::async(std::launch::async, [] { return SingleInstance().Claim(); }));
  }
  for (std::future<Role>& role : roles) {
    QTRY_VERIFY(role.wait_for(std::chrono::milliseconds(0)) == std::future_status::ready);
    QCOMPARE(role.get(), Role::Second);
  }
}

void SingleInstanceTest::WhoAsksACopyThatIsEndingTakesItsPlace() {
  auto first = std::make_unique<SingleInstance>();
  QCOMPARE(first->Claim(), Role::Only);
  first->Listen();
  auto role = std::async(std::launch::async, [] { return SingleInstance().Claim(); });
  // It ends without an answer, and not before its settings are saved.
  first->StopListening();
  QVERIFY(role.wait_for(std::chrono::milliseconds(100)) == std::future_status::timeout);
  first.reset();
  QCOMPARE(role.get(), Role::Only);
}

void SingleInstanceTest::WhoAsksACopyThatIsStartingWaits() {
  SingleInstance first;
  QCOMPARE(first.Claim(), Role::Only);
  auto role = std::async(std::launch::async, [] { return SingleInstance().Claim(); });
  QVERIFY(role.wait_for(std::chrono::milliseconds(100)) == std::future_status::timeout);
  first.Listen();
  QTRY_VERIFY(role.wait_for(std::chrono::milliseconds(0)) == std::future_status::ready);
  QCOMPARE(role.get(), Role::Second);
}

void SingleInstanceTest::ACopyThatDoesNotAnswerIsLeftAlone() {
  SingleInstance first;
  QCOMPARE(first.Claim(), Role::Only);
  first.Listen();
  // The event loop does not run.
  SingleInstance second;
  QCOMPARE(second.Claim(), Role::Beside);
}

void SingleInstanceTest::TheCopyBesideAnswersTheNext() {
  auto first = std::make_unique<SingleInstance>();
  QCOMPARE(first->Claim(), Role::Only);
  first->Listen();
  SingleInstance second;
  QCOMPARE(second.Claim(), Role::Beside);
  second.Listen();
  QSignalSpy wishes(&second, &SingleInstance::FrontRequested);
  QCOMPARE(ClaimOfAnother(), Role::Second);
  QCOMPARE(wishes.size(), qsizetype{1});
  // Also when the lock has become free.
  first.reset();
  QCOMPARE(ClaimOfAnother(), Role::Second);
  QCOMPARE(wishes.size(), qsizetype{2});
}

void SingleInstanceTest::ACopyThatNeverStartsToListenIsLeftAlone() {
  SingleInstance first;
  QCOMPARE(first.Claim(), Role::Only);
  SingleInstance second(std::chrono::milliseconds(50));
  QCOMPARE(second.Claim(), Role::Beside);
}

void SingleInstanceTest::WhatIsNoWishIsDropped() {
  SingleInstance first;
  QCOMPARE(first.Claim(), Role::Only);
  first.Listen();
  QSignalSpy wishes(&first, &SingleInstance::FrontRequested);
  for (const QByteArray& bytes : {QByteArray(), QByteArray(100000, 'x')}) {
    const Descriptor connection(socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK, 0));
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    (Own() / "vexa-calculator.socket").string().copy(address.sun_path, sizeof address.sun_path - 1);
    QCOMPARE(
        ::connect(connection.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address),
        0);
    send(connection.Number(), bytes.constData(), static_cast<std::size_t>(bytes.size()),
         MSG_NOSIGNAL);
    // The next one is answered all the same.
    QCOMPARE(ClaimOfAnother(), Role::Second);
  }
  QCOMPARE(wishes.size(), qsizetype{2});
}

void SingleInstanceTest::FoldersThatOthersMayEnterAreClosed() {
  const mode_t before = umask(0);
  SingleInstance first;
  const Role role = first.Claim();
  umask(before);
  QCOMPARE(role, Role::Only);
  first.Listen();
  QVERIFY(fs::exists(Own() / "vexa-calculator.lock"));
  QCOMPARE(fs::status(Own()).permissions(), fs::perms(0700));
  fs::permissions(Own(), fs::perms(0775));
  QCOMPARE(ClaimOfAnother(), Role::Second);
  QCOMPARE(fs::status(Own()).permissions(), fs::perms(0700));
}

void SingleInstanceTest::TheSessionsFolderMakesNoDifference() {
  SingleInstance first;
  QCOMPARE(first.Claim(), Role::Only);
  first.Listen();
  qunsetenv("XDG_RUNTIME_DIR");
  QCOMPARE(ClaimOfAnother(), Role::Second);
}

void SingleInstanceTest::AFolderWithALongNameServes() {
  const std::string name(120, 'n');
  qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(*dir / name));
  SingleInstance first;
  QCOMPARE(first.Claim(), Role::Only);
  first.Listen();
  QVERIFY(fs::is_socket(*dir / name / "Vexa Calculator/vexa-calculator.socket"));
  QCOMPARE(ClaimOfAnother(), Role::Second);
}

void SingleInstanceTest::AnythingInTheirPlaceIsReplaced_data() {
  QTest::addColumn<QString>("kind");
  for (const char* const kind : {"file", "pipe", "link", "dangling link"}) {
    QTest::newRow(kind) << QString::fromLatin1(kind);
  }
}

void SingleInstanceTest::AnythingInTheirPlaceIsReplaced() {
  QFETCH(QString, kind);
  test::PutBytes(*dir / "victim", "precious");
  fs::create_directories(Own());
  for (const char* const name : {"vexa-calculator.lock", "vexa-calculator.socket"}) {
    if (kind == QStringLiteral("file")) {
      test::PutBytes(Own() / name, "garbage");
    } else if (kind == QStringLiteral("pipe")) {
      QCOMPARE(mkfifo((Own() / name).c_str(), 0600), 0);
    } else {
      fs::create_symlink(*dir / (kind == QStringLiteral("link") ? "victim" : "none"), Own() / name);
    }
  }
  SingleInstance first;
  QCOMPARE(first.Claim(), Role::Only);
  first.Listen();
  QCOMPARE(ClaimOfAnother(), Role::Second);
  QCOMPARE(test::Bytes(*dir / "victim"), std::string("precious"));
  QVERIFY(!fs::exists(*dir / "none"));
}

void SingleInstanceTest::WhatCannotBeReplacedDoesNotBlock() {
  fs::create_directories(Own() / "vexa-calculator.lock/inner");
  fs::create_directories(Own() / "vexa-calculator.socket/inner");
  SingleInstance first;
  QCOMPARE(first.Claim(), Role::Only);
  first.Listen();
}

void SingleInstanceTest::WithoutTheSettingsFolderTheSessionsServes() {
  test::PutBytes(*dir / "config", "a file in the place of the folder");
  SingleInstance first;
  QCOMPARE(first.Claim(), Role::Only);
  first.Listen();
  QVERIFY(fs::exists(*dir / "runtime/vexa-calculator.lock"));
  QCOMPARE(ClaimOfAnother(), Role::Second);
}

void SingleInstanceTest::WithoutAnyFolderTheProgramRuns() {
  test::PutBytes(*dir / "config", "a file in the place of the folder");
  // Others could stand in the way there, or listen.
  fs::permissions(*dir / "runtime", fs::perms(0777));
  for (int n = 0; n < 2; ++n) {
    SingleInstance instance;
    QCOMPARE(instance.Claim(), Role::Only);
    instance.Listen();
    QVERIFY(fs::is_empty(*dir / "runtime"));
  }
}

}  // namespace vexa

QTEST_GUILESS_MAIN(vexa::SingleInstanceTest)
#include "SingleInstanceTest.moc"
