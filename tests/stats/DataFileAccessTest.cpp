// Data files on the disk: what can happen to them while they are read and written.

#include "stats/DataFileAccess.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <limits>

#include "stats/Lists.h"

namespace vexa {

class DataFileAccessTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { dir = std::make_unique<QTemporaryDir>(); }
  void WritesAndReads();
  void ReplacesAFileWhole();
  void WritesThroughALink();
  void StoppedWritingLeavesTheOldFile();
  void StoppedReadingGivesNothing();
  void TellsHowFarItIs();
  void RefusesWhatIsNoFile_data();
  void RefusesWhatIsNoFile();
  void AFileThatVanishesWhileItIsRead();
  void AFileThatGetsShorterWhileItIsRead();
  void AFileThatGrowsWhileItIsRead();
  void ALongText();
  void MillionsOfNulBytes();
  void RefusesMoreRowsThanCanBeShown();
  void ManyRowsAreCountedFirst();
  void AFileThatDoesNotTellItsLength();
  void CountsWhatIsNotExpected();

 private:
  QString Path(const char* name) const { return dir->filePath(QString::fromLatin1(name)); }
  static void Put(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
  }
  static QByteArray Bytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
  }
  static QByteArray ManyRows() { return QByteArray("1.25\t2\r\n").repeated(200000); }

  std::unique_ptr<QTemporaryDir> dir;
  DataSet data{PackedRows(2)};
};

namespace {
constexpr std::size_t kAnyRows = std::numeric_limits<std::size_t>::max();
}  // namespace

void DataFileAccessTest::WritesAndReads() {
  const test::Rows rows{{"2.5", "3"}, {"4", "1"}};
  QCOMPARE(SaveDataFile(Path("a.txt"), test::DataOf(2, rows).rows, Unwatched).end, FileEnd::Done);
  QCOMPARE(Bytes(Path("a.txt")), QByteArray("2.5\t3\r\n4\t1\r\n"));
  QCOMPARE(LoadDataFile(Path("a.txt"), 2, kAnyRows, Unwatched, data).end, FileEnd::Done);
  QCOMPARE(test::RowsOf(data.rows), rows);
  QCOMPARE(data.total, 4);
}

void DataFileAccessTest::ReplacesAFileWhole() {
  Put(Path("a.txt"), QByteArray("long old content").repeated(100));
  QCOMPARE(SaveDataFile(Path("a.txt"), test::DataOf(2, {{"1", "1"}}).rows, Unwatched).end,
           FileEnd::Done);
  QCOMPARE(Bytes(Path("a.txt")), QByteArray("1\t1\r\n"));
  QCOMPARE(QDir(dir->path()).entryList(QDir::Files), QStringList{"a.txt"});
}

void DataFileAccessTest::WritesThroughALink() {
  Put(Path("target.txt"), "old");
  QVERIFY(QFile::link(Path("target.txt"), Path("link.txt")));
  QCOMPARE(SaveDataFile(Path("link.txt"), test::DataOf(2, {{"1", "1"}}).rows, Unwatched).end,
           FileEnd::Done);
  QCOMPARE(Bytes(Path("target.txt")), QByteArray("1\t1\r\n"));
  QVERIFY(QFileInfo(Path("link.txt")).isSymLink());
}

void DataFileAccessTest::StoppedWritingLeavesTheOldFile() {
  Put(Path("a.txt"), "old");
  Put(Path("many.txt"), ManyRows());
  QCOMPARE(LoadDataFile(Path("many.txt"), 2, kAnyRows, Unwatched, data).end, FileEnd::Done);
  int reports = 0;
  QCOMPARE(SaveDataFile(Path("a.txt"), data.rows, [&](double) { return ++reports < 3; }).end,
           FileEnd::Stopped);
  QCOMPARE(reports, 3);
  QCOMPARE(Bytes(Path("a.txt")), QByteArray("old"));
  QCOMPARE(QDir(dir->path()).entryList(QDir::Files), (QStringList{"a.txt", "many.txt"}));
}

void DataFileAccessTest::StoppedReadingGivesNothing() {
  Put(Path("many.txt"), ManyRows());
  data = test::DataOf(2, {{"7", "1"}});
  QCOMPARE(LoadDataFile(
               Path("many.txt"), 2, kAnyRows, [](double) { return false; }, data)
               .end,
           FileEnd::Stopped);
  QCOMPARE(test::RowsOf(data.rows), (test::Rows{{"7", "1"}}));
}

void DataFileAccessTest::TellsHowFarItIs() {
  Put(Path("many.txt"), ManyRows());
  std::vector<double> shares;
  const auto watch = [&](double share) {
    shares.push_back(share);
    return true;
  };
  for (const bool writing : {false, true}) {
    shares.clear();
    const FileEnd end = writing ? SaveDataFile(Path("a.txt"), data.rows, watch).end
                                : LoadDataFile(Path("many.txt"), 2, kAnyRows, watch, data).end;
    QCOMPARE(end, FileEnd::Done);
    QVERIFY(shares.size() > 5);
    QVERIFY(std::is_sorted(shares.begin(), shares.end()));
    QCOMPARE(shares.back(), 1.0);
  }
  QCOMPARE(Bytes(Path("a.txt")), ManyRows());
}

void DataFileAccessTest::RefusesWhatIsNoFile_data() {
  QTest::addColumn<QString>("path");
  QTest::addColumn<QString>("reason");
  QTest::newRow("missing") << "/no/such/file"
                           << "No such file or directory";
  QTest::newRow("a folder") << "/tmp"
                            << "Is a directory";
  QTest::newRow("an endless device") << "/dev/zero"
                                     << "Not an ordinary file";
  QTest::newRow("a full device") << "/dev/full"
                                 << "Not an ordinary file";
  QTest::newRow("a pipe") << "pipe"
                          << "Not an ordinary file";
}

void DataFileAccessTest::RefusesWhatIsNoFile() {
  QFETCH(QString, path);
  QFETCH(QString, reason);
  if (path == QStringLiteral("pipe")) {
    path = Path("pipe");
    QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
  }
  const bool existed = QFileInfo::exists(path);
  data = test::DataOf(2, {{"7", "1"}});
  const FileOutcome loaded = LoadDataFile(path, 2, kAnyRows, Unwatched, data);
  QCOMPARE(loaded.end, FileEnd::Failed);
  QCOMPARE(loaded.reason, reason);
  QCOMPARE(test::RowsOf(data.rows), (test::Rows{{"7", "1"}}));
  const FileOutcome saved = SaveDataFile(path, data.rows, Unwatched);
  QCOMPARE(saved.end, FileEnd::Failed);
  QVERIFY(!saved.reason.isEmpty());
  QCOMPARE(QFileInfo::exists(path), existed);
  QVERIFY(!QFileInfo(path).isFile());
}

void DataFileAccessTest::AFileThatVanishesWhileItIsRead() {
  Put(Path("many.txt"), ManyRows());
  QCOMPARE(LoadDataFile(
               Path("many.txt"), 2, kAnyRows,
               [this](double) {
                 QFile::remove(Path("many.txt"));
                 return true;
               },
               data)
               .end,
           FileEnd::Done);
  QCOMPARE(data.rows.Count(), std::size_t{200000});
}

void DataFileAccessTest::AFileThatGetsShorterWhileItIsRead() {
  Put(Path("many.txt"), ManyRows());
  QCOMPARE(LoadDataFile(
               Path("many.txt"), 2, kAnyRows,
               [this](double) {
                 QFile::resize(Path("many.txt"), 10);
                 return true;
               },
               data)
               .end,
           FileEnd::Done);
  QVERIFY(data.rows.Count() > 0 && data.rows.Count() < 200000);
}

void DataFileAccessTest::AFileThatGrowsWhileItIsRead() {
  Put(Path("many.txt"), ManyRows());
  QCOMPARE(LoadDataFile(
               Path("many.txt"), 2, kAnyRows,
               [this](double) {
                 QFile file(Path("many.txt"));
                 return file.open(QIODevice::Append) && file.write("9\t9\r\n") == 5;
               },
               data)
               .end,
           FileEnd::Done);
  QCOMPARE(data.rows.Count(), std::size_t{200000});
}

void DataFileAccessTest::ALongText() {
  const QByteArray digits = QByteArray("7").repeated(20'000'000);
  Put(Path("long.txt"), digits + "\t" + digits + "\r\n");
  QCOMPARE(LoadDataFile(Path("long.txt"), 2, kAnyRows, Unwatched, data).end, FileEnd::Done);
  QCOMPARE(data.rows.Count(), std::size_t{1});
  QCOMPARE(data.rows.Cell(0, 0).size(), std::size_t{20'000'000});
  QVERIFY(data.rows.Cell(0, 1).size() < 12);
}

void DataFileAccessTest::MillionsOfNulBytes() {
  Put(Path("zeros.txt"), QByteArray("1\t2\r\n") + QByteArray(20'000'000, '\0') + "3\t4\r\n");
  QCOMPARE(LoadDataFile(Path("zeros.txt"), 2, kAnyRows, Unwatched, data).end, FileEnd::Done);
  QCOMPARE(test::RowsOf(data.rows), (test::Rows{{"1", "2"}, {"3", "4"}}));
}

void DataFileAccessTest::RefusesMoreRowsThanCanBeShown() {
  Put(Path("a.txt"), "1\t2\r\n3\t4\r\n5\t6\r\n");
  data = DataSet{PackedRows(2)};
  const FileOutcome outcome = LoadDataFile(Path("a.txt"), 2, 2, Unwatched, data);
  QCOMPARE(outcome.end, FileEnd::Failed);
  QCOMPARE(outcome.reason, QStringLiteral("More rows than the list can hold, which are 2"));
  QCOMPARE(data.rows.Count(), std::size_t{0});
  QCOMPARE(LoadDataFile(Path("a.txt"), 2, 3, Unwatched, data).end, FileEnd::Done);
  QCOMPARE(data.rows.Count(), std::size_t{3});
}

void DataFileAccessTest::ManyRowsAreCountedFirst() {
  Put(Path("many.txt"), ManyRows());
  std::vector<double> shares;
  const auto watch = [&](double share) {
    shares.push_back(share);
    return true;
  };
  // Too many by one: the count says so, and nothing was read.
  QCOMPARE(LoadDataFile(Path("many.txt"), 2, 199999, watch, data).end, FileEnd::Failed);
  QVERIFY(!shares.empty());
  QCOMPARE(*std::ranges::max_element(shares), 0.0);
  QCOMPARE(LoadDataFile(Path("many.txt"), 2, 200000, watch, data).end, FileEnd::Done);
  QCOMPARE(data.rows.Count(), std::size_t{200000});
  const auto stop = [](double) { return false; };
  QCOMPARE(LoadDataFile(Path("many.txt"), 2, 199999, stop, data).end, FileEnd::Stopped);
}

void DataFileAccessTest::AFileThatDoesNotTellItsLength() {
  const QString path = QStringLiteral("/proc/self/stat");
  QCOMPARE(QFileInfo(path).size(), qint64{0});
  QCOMPARE(LoadDataFile(path, 2, kAnyRows, Unwatched, data).end, FileEnd::Done);
  QVERIFY(data.rows.Count() > 10);
  Put(Path("empty.txt"), "");
  QCOMPARE(LoadDataFile(Path("empty.txt"), 2, kAnyRows, Unwatched, data).end, FileEnd::Done);
  QCOMPARE(data.rows.Count(), std::size_t{0});
}

void DataFileAccessTest::CountsWhatIsNotExpected() {
  const std::pair<QByteArray, std::size_t> files[] = {{"1\t2\r\n3;4\n5, 6\n", 0},
                                                      {"X\tCount\r\n1\t2\r\n", 6},
                                                      {"1E5\t2\r\n", 1},
                                                      {QByteArray("\xff\xfe"
                                                                  "1\0\t\0"
                                                                  "2\0\r\0\n\0",
                                                                  12),
                                                       7}};
  for (const auto& [bytes, count] : files) {
    Put(Path("a.txt"), bytes);
    QCOMPARE(LoadDataFile(Path("a.txt"), 2, kAnyRows, Unwatched, data).end, FileEnd::Done);
    QCOMPARE(data.strangeBytes, count);
  }
}

}  // namespace vexa

QTEST_GUILESS_MAIN(vexa::DataFileAccessTest)
#include "DataFileAccessTest.moc"
