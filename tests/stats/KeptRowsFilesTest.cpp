// The files of kept rows on the disk: the user's own, never overwritten, offered until removed.

#include "stats/KeptRowsFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "stats/Lists.h"

namespace vexa {

class KeptRowsFilesTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { dir = std::make_unique<QTemporaryDir>(); }
  void KeepsAndReads();
  void OneAfterTheOther();
  void KindsOfDataAreKeptApart();
  void OnlyTheOwnerReadsThem();
  void WithoutAFolderNothingIsKept();
  void ADamagedFileIsRenamed();
  void AStoppedReadingLeavesTheFile();
  void OtherFilesAreNotOffered();
  void TheFolderMayHaveAnyName();

 private:
  KeptRowsFiles Files(std::size_t columns = 2) const { return {dir->filePath("kept"), columns}; }
  QStringList Names() const {
    return QDir(dir->filePath("kept")).entryList(QDir::Files, QDir::Name);
  }
  static PackedRows RowsOf(const char* value) { return test::DataOf(2, {{value, "2"}}).rows; }
  void Put(const char* name, const QByteArray& bytes) const {
    QDir().mkpath(dir->filePath("kept"));
    QFile file(dir->filePath("kept/" + QString::fromLatin1(name)));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
  }

  std::unique_ptr<QTemporaryDir> dir;
  DataSet data{PackedRows(2)};
};

void KeptRowsFilesTest::KeepsAndReads() {
  QVERIFY(!Files().Latest());
  QCOMPARE(Files().Keep(RowsOf("5")).end, FileEnd::Done);
  const auto latest = Files().Latest();
  QVERIFY(latest);
  QCOMPARE(Files().Read(*latest, Unwatched, data).end, FileEnd::Done);
  QCOMPARE(test::RowsOf(data.rows), (test::Rows{{"5", "2"}}));
  QCOMPARE(data.total, 2);
  QCOMPARE(Files().Latest(), latest);
}

void KeptRowsFilesTest::OneAfterTheOther() {
  for (const char* value : {"1", "2", "3"}) {
    QCOMPARE(Files().Keep(RowsOf(value)).end, FileEnd::Done);
  }
  for (const char* value : {"3", "2", "1"}) {
    const QString latest = Files().Latest().value_or(QString());
    QCOMPARE(Files().Read(latest, Unwatched, data).end, FileEnd::Done);
    QCOMPARE(test::RowsOf(data.rows), (test::Rows{{value, "2"}}));
    QVERIFY(QFile::remove(latest));
  }
  QVERIFY(!Files().Latest());
}

void KeptRowsFilesTest::TheFolderMayHaveAnyName() {
  const QString folder = dir->filePath(QStringLiteral("100%1 %2 %3 %4"));
  const KeptRowsFiles files(folder, 2);
  QCOMPARE(files.Keep(RowsOf("5")).end, FileEnd::Done);
  const QString kept = folder + QStringLiteral("/unsaved-1-var-1.rows");
  QCOMPARE(files.Latest(), kept);
  QFile file(kept);
  QVERIFY(file.open(QIODevice::Append));
  QVERIFY(file.putChar('x'));
  file.close();
  QCOMPARE(files.Read(kept, Unwatched, data).end, FileEnd::Failed);
  QVERIFY(QFile::exists(kept + QStringLiteral(".damaged-1")));
}

void KeptRowsFilesTest::KindsOfDataAreKeptApart() {
  QCOMPARE(Files(2).Keep(RowsOf("1")).end, FileEnd::Done);
  QVERIFY(Files(2).Latest() && !Files(3).Latest());
}

void KeptRowsFilesTest::OnlyTheOwnerReadsThem() {
  QCOMPARE(Files().Keep(RowsOf("1")).end, FileEnd::Done);
  const auto all = QFile::permissions(Files().Latest().value_or(QString()));
  QVERIFY(!(all & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther)));
  QVERIFY(all & QFile::ReadOwner && all & QFile::WriteOwner);
}

void KeptRowsFilesTest::WithoutAFolderNothingIsKept() {
  const KeptRowsFiles none(QString(), 2);
  QCOMPARE(none.Keep(RowsOf("1")).end, FileEnd::Failed);
  QVERIFY(!none.Latest());
}

void KeptRowsFilesTest::ADamagedFileIsRenamed() {
  for (const char* expected :
       {"unsaved-1-var-1.rows.damaged-1", "unsaved-1-var-1.rows.damaged-2"}) {
    Put("unsaved-1-var-1.rows", "damaged");
    const QString latest = Files().Latest().value_or(QString());
    const FileOutcome outcome = Files().Read(latest, Unwatched, data);
    QCOMPARE(outcome.end, FileEnd::Failed);
    QVERIFY2(outcome.reason.contains(QLatin1String(expected)), qPrintable(outcome.reason));
    QVERIFY(Names().contains(QLatin1String(expected)));
    QVERIFY(!Files().Latest());
  }
}

void KeptRowsFilesTest::AStoppedReadingLeavesTheFile() {
  QCOMPARE(Files().Keep(RowsOf("1")).end, FileEnd::Done);
  const auto stop = [](double) { return false; };
  const auto latest = Files().Latest();
  QCOMPARE(Files().Read(latest.value_or(QString()), stop, data).end, FileEnd::Stopped);
  QCOMPARE(Files().Latest(), latest);
}

void KeptRowsFilesTest::OtherFilesAreNotOffered() {
  for (const char* name : {"unsaved-1-var-x.rows", "unsaved-1-var-.rows", "unsaved-1-var-01.rows",
                           "unsaved-1-var-99999999999.rows", "settings.ini"}) {
    Put(name, "anything");
  }
  QVERIFY(!Files().Latest());
}

}  // namespace vexa

QTEST_GUILESS_MAIN(vexa::KeptRowsFilesTest)
#include "KeptRowsFilesTest.moc"
