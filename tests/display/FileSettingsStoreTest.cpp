#include "display/FileSettingsStore.h"

#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

namespace vexa {

class FileSettingsStoreTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void ValuesAreFoundAgain();
  void AFreshStoreGivesDefaults();
  void TheFolderIsCreated();
  void ChangesReachTheFileFromTheEventLoop();
  void TextsComeBackExactly_data();
  void TextsComeBackExactly();
  void WrongKindsGiveDefaults();
  void CountsComeBackAsTheyAre();
  void AnUnquotedListIsOneText();
  void DamagedFilesAreKeptAside_data();
  void DamagedFilesAreKeptAside();
  void EveryDamagedFileIsKept();
  void AnOversizedFileIsKeptAside();
  void AFolderInPlaceOfTheFileIsKeptAside();
  void APipeInPlaceOfTheFileIsKeptAside();
  void NothingIsWrittenWhereNothingCanBeMovedAside();
  void AnImpossibleFolderKeepsValuesForTheRun();
  void AFullDiskKeepsTheOldFile_data();
  void AFullDiskKeepsTheOldFile();
  void ALeftLockDoesNotStall();
  void AFolderAsLockDoesNotStall();
  void AnOrdinaryReaderUnderstandsTheFile();

 private:
  FileSettingsStore& Open();
  QString Folder() const { return dir->filePath(QStringLiteral("Vexa Calculator")); }
  QString FileName() const { return Folder() + QStringLiteral("/settings.ini"); }
  QString Aside(int n) const {
    return Folder() + QStringLiteral("/settings.damaged-%1.ini").arg(n);
  }
  void Put(const QByteArray& bytes) const;
  static QByteArray Bytes(const QString& fileName);

  std::unique_ptr<QTemporaryDir> dir;
  std::unique_ptr<FileSettingsStore> store;
};

void FileSettingsStoreTest::init() {
  store.reset();
  dir = std::make_unique<QTemporaryDir>();
  QVERIFY(dir->isValid());
}

/// A newly opened store on this test's folder, after the one before has written.
FileSettingsStore& FileSettingsStoreTest::Open() {
  store.reset();
  store = std::make_unique<FileSettingsStore>(dir->path());
  store->SetSettingsKey(L"Vexa Calculator");
  return *store;
}

void FileSettingsStoreTest::Put(const QByteArray& bytes) const {
  QVERIFY(QDir().mkpath(Folder()));
  QFile file(FileName());
  QVERIFY(file.open(QIODevice::WriteOnly));
  QCOMPARE(file.write(bytes), bytes.size());
}

QByteArray FileSettingsStoreTest::Bytes(const QString& fileName) {
  QFile file(fileName);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void FileSettingsStoreTest::ValuesAreFoundAgain() {
  QVERIFY(Open().WriteSettingInt(L"Config", L"Angle Type", 2));
  QVERIFY(store->WriteSettingString(L"Macro0", L"Formula", L"X*2"));
  QCOMPARE(Open().FileName(), FileName());
  QCOMPARE(store->ReadSettingInt(L"Config", L"Angle Type", 1), 2);
  QCOMPARE(store->ReadSettingString(L"Macro0", L"Formula", L""), L"X*2");
}

void FileSettingsStoreTest::AFreshStoreGivesDefaults() {
  QCOMPARE(Open().ReadSettingInt(L"Config", L"Mode", 1), 1);
  QCOMPARE(store->ReadSettingString(L"Grapher", L"X Min", L"-10"), L"-10");
}

void FileSettingsStoreTest::TheFolderIsCreated() {
  store = std::make_unique<FileSettingsStore>(dir->filePath(QStringLiteral("a/b/c")));
  store->SetSettingsKey(L"Vexa Calculator");
  QVERIFY(store->WriteSettingInt(L"Config", L"Mode", 3));
  QVERIFY(store->Flush());
  QVERIFY(QFile::exists(dir->filePath(QStringLiteral("a/b/c/Vexa Calculator/settings.ini"))));
}

void FileSettingsStoreTest::ChangesReachTheFileFromTheEventLoop() {
  Open().WriteSettingInt(L"Config", L"Mode", 3);
  QTRY_COMPARE(Bytes(FileName()), QByteArray("[Config]\nMode=3\n"));
}

void FileSettingsStoreTest::TextsComeBackExactly_data() {
  using namespace std::string_literals;
  QTest::addColumn<QString>("text");
  const std::wstring texts[] = {
      L"",
      L" ",
      L"1,2;3=4",
      L"@x",
      L"@Invalid()",
      L"\"q\"",
      L"a\r\nb\n",
      L"a\0b"s,
      L"\\",
      L"\x1F600 \x20AC",
      L"=[D]1,234.5",
      L"M:f( , )",
      L"a/b",
      std::wstring(100000, L'\x263A'),
  };
  int n = 0;
  for (const std::wstring& text : texts) {
    QTest::addRow("%d", n++) << QString::fromStdWString(text);
  }
  QTest::newRow("surrogate") << QString(QChar(0xD800));
}

void FileSettingsStoreTest::TextsComeBackExactly() {
  QFETCH(QString, text);
  Open().WriteSettingString(L"UserDefine_Convert_0", L"ConvType", text.toStdWString());
  const std::wstring read = Open().ReadSettingString(L"UserDefine_Convert_0", L"ConvType", L"none");
  QVERIFY(read == text.toStdWString());
}

void FileSettingsStoreTest::WrongKindsGiveDefaults() {
  Put("[Config]\nMode=two\nPrecision=1.5\nBase%20Type=2147483648\nAngle Type=\n");
  QCOMPARE(Open().ReadSettingInt(L"Config", L"Mode", 1), 1);
  QCOMPARE(store->ReadSettingInt(L"Config", L"Precision", 5), 5);
  QCOMPARE(store->ReadSettingInt(L"Config", L"Base Type", 1), 1);
  QCOMPARE(store->ReadSettingInt(L"Config", L"Angle Type", 1), 1);
  QCOMPARE(store->ReadSettingString(L"Config", L"Mode", L""), L"two");
}

void FileSettingsStoreTest::CountsComeBackAsTheyAre() {
  Put("[History]\nCalHistoryCount=2147483647\n[MacroInfo]\nTotalNumber=-1\n");
  QCOMPARE(Open().ReadSettingInt(L"History", L"CalHistoryCount", 0), 2147483647);
  QCOMPARE(store->ReadSettingInt(L"MacroInfo", L"TotalNumber", 0), -1);
}

void FileSettingsStoreTest::AnUnquotedListIsOneText() {
  Put("[History]\nCalHistory1=1,234,5\n");
  QCOMPARE(Open().ReadSettingString(L"History", L"CalHistory1", L""), L"1,234,5");
}

void FileSettingsStoreTest::DamagedFilesAreKeptAside_data() {
  QTest::addColumn<QByteArray>("bytes");
  QTest::newRow("nul") << QByteArray("[Config]\nMode=2\n\0", 17);
  QTest::newRow("binary") << QByteArray(
      "\x7F"
      "ELF\2\1\1\0\0\0\xFF\xFE",
      12);
  QTest::newRow("utf-8") << QByteArray("[Config]\nMode=\xFF\n");
  QTest::newRow("no sign") << QByteArray("[Config]\nMode\n");
  QTest::newRow("cut off") << QByteArray("[Config]\nMode=2\n[Hist");
}

void FileSettingsStoreTest::DamagedFilesAreKeptAside() {
  QFETCH(QByteArray, bytes);
  Put(bytes);
  QCOMPARE(Open().ReadSettingInt(L"Config", L"Mode", 1), 1);
  QCOMPARE(Bytes(Aside(1)), bytes);
  store->WriteSettingInt(L"Config", L"Mode", 3);
  QCOMPARE(Open().ReadSettingInt(L"Config", L"Mode", 1), 3);
  QCOMPARE(Bytes(Aside(1)), bytes);
}

void FileSettingsStoreTest::EveryDamagedFileIsKept() {
  for (int n = 1; n <= 3; ++n) {
    const QByteArray bytes = QByteArray("damaged ") + QByteArray(n, '!');
    Put(bytes);
    Open().WriteSettingInt(L"Config", L"Mode", n);
    QVERIFY(store->Flush());
    QCOMPARE(Bytes(Aside(n)), bytes);
  }
  QCOMPARE(Bytes(Aside(1)), QByteArray("damaged !"));
}

void FileSettingsStoreTest::AnOversizedFileIsKeptAside() {
  Put("[Config]\nMode=2\n");
  QVERIFY(QFile::resize(FileName(), FileSettingsStore::kLargestFile + 1));
  QCOMPARE(Open().ReadSettingInt(L"Config", L"Mode", 1), 1);
  QCOMPARE(QFileInfo(Aside(1)).size(), FileSettingsStore::kLargestFile + 1);
}

void FileSettingsStoreTest::AFolderInPlaceOfTheFileIsKeptAside() {
  QVERIFY(QDir().mkpath(FileName() + QStringLiteral("/inner")));
  Open().WriteSettingInt(L"Config", L"Mode", 3);
  QVERIFY(store->Flush());
  QVERIFY(QFileInfo(Aside(1) + QStringLiteral("/inner")).isDir());
  QCOMPARE(Open().ReadSettingInt(L"Config", L"Mode", 1), 3);
}

void FileSettingsStoreTest::APipeInPlaceOfTheFileIsKeptAside() {
  QVERIFY(QDir().mkpath(Folder()));
  QCOMPARE(mkfifo(QFile::encodeName(FileName()).constData(), 0600), 0);
  Open().WriteSettingInt(L"Config", L"Mode", 3);
  QVERIFY(store->Flush());
  QVERIFY(QFileInfo::exists(Aside(1)));
  QCOMPARE(Open().ReadSettingInt(L"Config", L"Mode", 1), 3);
}

void FileSettingsStoreTest::NothingIsWrittenWhereNothingCanBeMovedAside() {
  Put("damaged");
  for (int n = 1; n <= 1000; ++n) {
    QFile taken(Aside(n));
    QVERIFY(taken.open(QIODevice::WriteOnly));
  }
  Open().WriteSettingInt(L"Config", L"Mode", 3);
  store->WriteSettingString(L"Config", L"Text", L"t");
  QCOMPARE(store->ReadSettingInt(L"Config", L"Mode", 1), 3);
  QCOMPARE(store->ReadSettingString(L"Config", L"Text", L""), L"t");
  QVERIFY(!store->Flush());
  store.reset();
  QCOMPARE(Bytes(FileName()), QByteArray("damaged"));
  QCOMPARE(Bytes(Aside(1)), QByteArray());
}

void FileSettingsStoreTest::AnImpossibleFolderKeepsValuesForTheRun() {
  QFile file(dir->filePath(QStringLiteral("file")));
  QVERIFY(file.open(QIODevice::WriteOnly));
  store = std::make_unique<FileSettingsStore>(file.fileName() + QStringLiteral("/below"));
  store->SetSettingsKey(L"Vexa Calculator");
  QCOMPARE(store->ReadSettingInt(L"Config", L"Mode", 1), 1);
  QVERIFY(store->WriteSettingInt(L"Config", L"Mode", 3));
  QVERIFY(!store->Flush());
  QCOMPARE(store->ReadSettingInt(L"Config", L"Mode", 1), 3);
}

void FileSettingsStoreTest::AFullDiskKeepsTheOldFile_data() {
  QTest::addColumn<int>("room");
  QTest::addColumn<int>("length");
  // A lock file has 60 to 110 bytes; a small text waits in a buffer, a large one is written at
  // once.
  QTest::newRow("no room for the lock") << 10 << 5000;
  QTest::newRow("no room for a small text") << 1000 << 5000;
  QTest::newRow("no room for a large text") << 1000 << 50000;
}

void FileSettingsStoreTest::AFullDiskKeepsTheOldFile() {
  QFETCH(int, room);
  QFETCH(int, length);
  const std::wstring text(static_cast<std::size_t>(length), L'X');
  Open().WriteSettingInt(L"Config", L"Mode", 2);
  QVERIFY(store->Flush());
  const QByteArray old = Bytes(FileName());

  // A limit on the size of files stands in for a full disk: each larger write fails.
  signal(SIGXFSZ, SIG_IGN);
  rlimit limit{};
  QCOMPARE(getrlimit(RLIMIT_FSIZE, &limit), 0);
  const rlimit full{static_cast<rlim_t>(room), limit.rlim_max};
  QCOMPARE(setrlimit(RLIMIT_FSIZE, &full), 0);
  store->WriteSettingString(L"Macro0", L"Formula", text);
  const bool flushed = store->Flush();
  const std::wstring inMemory = store->ReadSettingString(L"Macro0", L"Formula", L"");
  const QByteArray during = Bytes(FileName());
  QCOMPARE(setrlimit(RLIMIT_FSIZE, &limit), 0);

  QVERIFY(!flushed);
  QCOMPARE(during, old);
  QVERIFY(inMemory == text);
  QVERIFY(Open().ReadSettingString(L"Macro0", L"Formula", L"") == text);
}

void FileSettingsStoreTest::ALeftLockDoesNotStall() {
  Put("[Config]\nMode=2\n");
  QFile lock(FileName() + QStringLiteral(".lock"));
  QVERIFY(lock.open(QIODevice::WriteOnly));
  lock.write("garbage");
  lock.close();
  Open().WriteSettingInt(L"Config", L"Mode", 3);
  QVERIFY(store->Flush());
  QCOMPARE(Bytes(FileName()), QByteArray("[Config]\nMode=3\n"));
}

void FileSettingsStoreTest::AFolderAsLockDoesNotStall() {
  Put("[Config]\nMode=2\n");
  QVERIFY(QDir().mkpath(FileName() + QStringLiteral(".lock/inner")));
  Open().WriteSettingInt(L"Config", L"Mode", 3);
  QCOMPARE(store->ReadSettingInt(L"Config", L"Mode", 1), 3);
  QVERIFY(!store->Flush());
  store.reset();
  QCOMPARE(Bytes(FileName()), QByteArray("[Config]\nMode=2\n"));
}

void FileSettingsStoreTest::AnOrdinaryReaderUnderstandsTheFile() {
  Open().WriteSettingInt(L"Config", L"Angle Type", 2);
  store->WriteSettingString(L"History", L"CalHistory1", L"=[D]1,234;\"\\\n\x20AC");
  QVERIFY(store->Flush());
  const QSettings ordinary(FileName(), QSettings::IniFormat);
  QCOMPARE(ordinary.value(QStringLiteral("Config/Angle Type")).toInt(), 2);
  QCOMPARE(ordinary.value(QStringLiteral("History/CalHistory1")).toString().toStdWString(),
           std::wstring(L"=[D]1,234;\"\\\n\x20AC"));
}

}  // namespace vexa

QTEST_GUILESS_MAIN(vexa::FileSettingsStoreTest)
#include "FileSettingsStoreTest.moc"
