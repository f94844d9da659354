// Saving, loading and leaving: what is asked, what goes wrong, what a long operation shows.

#include <sys/stat.h>
#include <unistd.h>

#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include "stats/StatisticsScreenDriver.h"
#include "support/FullDisk.h"
#include "toolkit/FileDialogs.h"
#include "toolkit/ProgressBox.h"

namespace vexa {

using file_dialogs::AddNextAnswer;
using test::FullDisk;
using test::StatisticsScreenDriver;

namespace {

const QString kSaveQuestion = QStringLiteral("Do you want to save changes to Data?");
const QString kFileError = QStringLiteral("File Error");

QByteArray ManyRows(int count) {
  QByteArray bytes;
  for (int n = 0; n < count; ++n) {
    bytes +=
        QByteArray::number((n * 7919LL) % count) + "." + QByteArray::number(n % 97) + "\t1\r\n";
  }
  return bytes;
}

}  // namespace

class StatisticsFilesTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    one = std::make_unique<StatisticsScreenDriver>(Mode::OneVarStatistics);
    ProgressBox::patienceMs = 200;
  }
  void SavesAndLoads();
  void SavesAndLoadsTwoVariables();
  void ASavedListIsNotAskedAbout();
  void CancelledDialogsChangeNothing();
  void LoadAsksFirst();
  void LoadWithoutAnAnswerStops();
  void LoadingSaysHowMuchWasRead_data();
  void LoadingSaysHowMuchWasRead();
  void LoadingDropsTheSelection();
  void LoadingAnEmptyFileLeavesTheKeys();
  void MalformedFiles_data();
  void MalformedFiles();
  void UnreadableFiles_data();
  void UnreadableFiles();
  void AFullDiskKeepsTheOldFile_data();
  void AFullDiskKeepsTheOldFile();
  void UnwritablePlaces_data();
  void UnwritablePlaces();
  void TheSaveDialogSaysWhatIsSaved();
  void TheLoadDialogOffersAllFiles();
  void AFailedNameIsProposedUntilASaveSucceeds();
  void TheDialogsOpenInTheFolderUsedLast();
  void NoSuffixIsAdded();
  void LeavingAsks_data();
  void LeavingAsks();
  void LeavingSavesFirst();
  void WithoutAFileTheRowsStay_data();
  void WithoutAFileTheRowsStay();
  void AFailedSaveKeepsTheScreen();
  void ACancelledSaveKeepsTheScreen();
  void LeavingWithoutAnAnswerStays();
  void LeavingWithNothingToLoseDoesNotAsk();
  void ModesChangeAtOnceWithNothingToLose();
  void TheOwnModeIsNotLeft();
  void LongLoadsShowProgressAndCanBeCancelled();
  void LongSortsCanBeCancelled();
  void LongSavesCanBeCancelled();
  void AClosedWindowStopsALongOperation();
  void ALongOperationRunsToItsEnd();

 private:
  void AddTwo() {
    one->Add({"2.5", "3"});
    one->Add({"4", "1"});
  }
  void SaveAs(const QString& path) {
    AddNextAnswer(path);
    one->Press("Save");
  }
  void LoadFrom(const QString& path) {
    AddNextAnswer(path);
    one->Press("Load");
  }
  /// The file dialog that waits for an answer, or null.
  QFileDialog* Dialog() const { return one->screen->findChild<QFileDialog*>(); }
  static QLineEdit* NameBox(const QFileDialog* dialog) {
    return dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  }
  /// Types the name and presses the dialog's button.
  void Choose(const QString& folder, const QString& name, QDialogButtonBox::StandardButton button);
  /// True: leaving would ask.
  bool HasUnsavedData();
  /// Presses "Cancel" as soon as the progress is shown.
  void CancelSoon();

  std::unique_ptr<StatisticsScreenDriver> one;
  int cancelled = 0;
};

bool StatisticsFilesTest::HasUnsavedData() {
  QSignalSpy left(one->screen, &ModeScreen::ExitChosen);
  one->Command("File", "Exit");
  const bool asks = one->Box();
  if (asks) QTest::keyClick(one->Box(), Qt::Key_Escape);
  return asks && left.isEmpty();
}

void StatisticsFilesTest::SavesAndLoads() {
  AddTwo();
  SaveAs(one->FileName("data.txt"));
  QCOMPARE(one->FileBytes("data.txt"), QByteArray("4\t1\r\n2.5\t3\r\n"));
  QVERIFY(!HasUnsavedData());
  const QByteArray saved = one->FileBytes("data.txt");
  one = std::make_unique<StatisticsScreenDriver>(Mode::OneVarStatistics);
  one->Load(saved);
  QCOMPARE(one->Rows(), (QStringList{"4 1", "2.5 3"}));
  QCOMPARE(one->Total(), QStringLiteral("4"));
  QVERIFY(one->IsEnabled("ΣX") && one->IsEnabled("Save") && one->IsEnabled("Clear"));
  one->Press("ΣX");
  QCOMPARE(one->Result(), QStringLiteral("11.5"));
}

void StatisticsFilesTest::SavesAndLoadsTwoVariables() {
  one = std::make_unique<StatisticsScreenDriver>(Mode::TwoVarStatistics);
  one->Add({"1e13", "-2.25", "1"});
  one->Add({"4", "5", "2"});
  SaveAs(one->FileName("data.txt"));
  QCOMPARE(one->FileBytes("data.txt"), QByteArray("4\t5\t2\r\n1.00000e+013\t-2.25\t1\r\n"));
  one->Load("7\t8\t9\r\n");
  QCOMPARE(one->Rows(), (QStringList{"7 8 9"}));
  QCOMPARE(one->Total(), QStringLiteral("9"));
}

void StatisticsFilesTest::ASavedListIsNotAskedAbout() {
  AddTwo();
  QVERIFY(HasUnsavedData());
  SaveAs(one->FileName("data.txt"));
  QVERIFY(!HasUnsavedData());
  one->SelectRows({0});
  one->Press("Delete");
  one->Answer(QMessageBox::Yes);
  QVERIFY(HasUnsavedData());
}

void StatisticsFilesTest::CancelledDialogsChangeNothing() {
  AddTwo();
  AddNextAnswer(std::nullopt);
  one->Press("Save");
  QVERIFY(HasUnsavedData());
  one->Press("Load");
  AddNextAnswer(std::nullopt);
  one->Answer(QMessageBox::No);
  QCOMPARE(one->Rows(), (QStringList{"4 1", "2.5 3"}));
  QVERIFY(HasUnsavedData());
}

void StatisticsFilesTest::LoadAsksFirst() {
  AddTwo();
  one->PutFile("other.txt", "9\t2\r\n");
  one->Press("Load");
  QCOMPARE(one->BoxText(), kSaveQuestion);
  QCOMPARE(one->Box()->icon(), QMessageBox::Question);
  AddNextAnswer(one->FileName("saved.txt"));
  AddNextAnswer(one->FileName("other.txt"));
  one->Answer(QMessageBox::Yes);
  QCOMPARE(one->FileBytes("saved.txt"), QByteArray("4\t1\r\n2.5\t3\r\n"));
  QCOMPARE(one->Rows(), (QStringList{"9 2"}));
  QCOMPARE(one->Total(), QStringLiteral("2"));
}

void StatisticsFilesTest::LoadWithoutAnAnswerStops() {
  AddTwo();
  one->Press("Load");
  QTest::keyClick(one->Box(), Qt::Key_Escape);
  QTRY_VERIFY(!one->Box());
  QCOMPARE(one->Rows(), (QStringList{"4 1", "2.5 3"}));
}

void StatisticsFilesTest::LoadingSaysHowMuchWasRead_data() {
  QTest::addColumn<QByteArray>("bytes");
  QTest::addColumn<QString>("notice");
  QTest::newRow("ordinary") << QByteArray("1\t2\r\n3\t4\r\n") << "2 rows read.";
  QTest::newRow("one row") << QByteArray("1\t2\r\n") << "1 row read.";
  QTest::newRow("empty") << QByteArray() << "0 rows read.";
  QTest::newRow("heading") << QByteArray("X\tCount\r\n1\t2\r\n")
                           << "1 row read; 6 other characters skipped.";
  QTest::newRow("large E") << QByteArray("1E5\t2\r\n") << "1 row read; 1 other character skipped.";
}

void StatisticsFilesTest::LoadingSaysHowMuchWasRead() {
  QFETCH(QByteArray, bytes);
  QFETCH(QString, notice);
  QCOMPARE(one->Notice(), QString());
  one->Load(bytes);
  QCOMPARE(one->Notice(), notice);
  one->Add({"1", "1"});
  QCOMPARE(one->Notice(), QString());
}

void StatisticsFilesTest::LoadingDropsTheSelection() {
  one->Add({"1", "1"});
  one->SelectRows({0});
  one->Load("5\t1\r\n6\t1\r\n");
  QVERIFY(one->SelectedRows().isEmpty());
  QVERIFY(!one->IsEnabled("Edit") && !one->IsEnabled("Delete"));
}

void StatisticsFilesTest::LoadingAnEmptyFileLeavesTheKeys() {
  one->Load("1\t1\r\n2\t1\r\n");
  one->Load("");
  QVERIFY(one->Rows().isEmpty());
  QVERIFY(one->IsEnabled("ΣX") && one->IsEnabled("Clear") && one->IsEnabled("Save"));
  one->Press("Arithmetic Mean of X");
  QCOMPARE(one->Result(), QStringLiteral("Out of range(overflow or underflow)"));
}

void StatisticsFilesTest::MalformedFiles_data() {
  QTest::addColumn<QByteArray>("bytes");
  QTest::addColumn<QStringList>("rows");
  QTest::addColumn<QString>("total");
  QTest::newRow("binary") << QByteArray(
                                 "\x7f"
                                 "ELF\x02\x01\x01\0\0\x31\xff\x32",
                                 12)
                          << QStringList{"1 "} << "0";
  QTest::newRow("NUL bytes") << QByteArray(
                                    "1\0\0"
                                    "2\0\r\n",
                                    7)
                             << QStringList{"1 2"} << "2";
  QTest::newRow("UTF-16") << QByteArray(
                                 "\xff\xfe"
                                 "1\0\t\0"
                                 "2\0\r\0\n\0",
                                 12)
                          << QStringList{"1 2"} << "2";
  QTest::newRow("CR only") << QByteArray("1\t2\r3\t4\r") << QStringList{"1 2", "3 4"} << "6";
  QTest::newRow("words") << QByteArray("no numbers\r\n") << QStringList{"e "} << "0";
  QTest::newRow("one value") << QByteArray("5\r\n") << QStringList{"5 "} << "0";
  QTest::newRow("no line end") << QByteArray("1\t2\r\n3") << QStringList{"1 2"} << "2";
  QTest::newRow("large E") << QByteArray("1E5\t2\r\n") << QStringList{"1 5"} << "5";
  QTest::newRow("count of 0") << QByteArray("1\t0\r\n") << QStringList{"1 0"} << "0";
  QTest::newRow("negative count") << QByteArray("1\t-7\r\n") << QStringList{"1 -7"} << "-7";
  QTest::newRow("largest count") << QByteArray("1\t2147483647\r\n") << QStringList{"1 2147483647"}
                                 << "2147483647";
}

void StatisticsFilesTest::MalformedFiles() {
  QFETCH(QByteArray, bytes);
  QFETCH(QStringList, rows);
  QFETCH(QString, total);
  one->Load(bytes);
  QVERIFY(!one->Box());
  QCOMPARE(one->Rows(), rows);
  QCOMPARE(one->Total(), total);
}

void StatisticsFilesTest::UnreadableFiles_data() {
  QTest::addColumn<QString>("path");
  QTest::addColumn<QString>("details");
  QTest::newRow("missing") << "/no/such/file.txt"
                           << "file.txt: No such file or directory";
  QTest::newRow("a directory") << "/tmp"
                               << "tmp: Is a directory";
  QTest::newRow("an endless device") << "/dev/zero"
                                     << "zero: Not an ordinary file";
  QTest::newRow("below a file") << "/dev/null/data.txt"
                                << "data.txt: Not a directory";
}

void StatisticsFilesTest::UnreadableFiles() {
  QFETCH(QString, path);
  QFETCH(QString, details);
  one->Add({"2.5", "1"});
  LoadFrom(path);
  QCOMPARE(one->BoxText(), kFileError);
  QCOMPARE(one->Box()->informativeText(), details);
  QCOMPARE(one->Box()->icon(), QMessageBox::Critical);
  one->Answer(QMessageBox::Ok);
  QCOMPARE(one->Rows(), (QStringList{"2.5 1"}));
  QCOMPARE(one->Total(), QStringLiteral("1"));
}

void StatisticsFilesTest::AFullDiskKeepsTheOldFile_data() {
  QTest::addColumn<int>("rows");
  QTest::addColumn<int>("room");
  QTest::newRow("some of many rows have room") << 20000 << 4096;
  QTest::newRow("no row has room") << 2 << 0;
}

void StatisticsFilesTest::AFullDiskKeepsTheOldFile() {
  QFETCH(int, rows);
  QFETCH(int, room);
  const QByteArray old = "1\t1\r\n2\t1\r\n";
  one->PutFile("data.txt", old);
  one->Load(ManyRows(rows));
  one->Add({"1", "5"});
  {
    const FullDisk full(static_cast<rlim_t>(room));
    SaveAs(one->FileName("data.txt"));
  }
  QCOMPARE(one->BoxText(), kFileError);
  QCOMPARE(one->Box()->icon(), QMessageBox::Critical);
  QCOMPARE(one->Box()->informativeText(), QStringLiteral("data.txt: File too large"));
  one->Answer(QMessageBox::Ok);
  QCOMPARE(one->FileBytes("data.txt"), old);
  QCOMPARE(QDir(QFileInfo(one->FileName("data.txt")).path()).entryList(QDir::Files),
           (QStringList{"data.txt", "load.txt"}));
  QVERIFY(HasUnsavedData());
}

void StatisticsFilesTest::UnwritablePlaces_data() {
  QTest::addColumn<QString>("path");
  QTest::newRow("a missing folder") << "/no/such/folder/data.txt";
  QTest::newRow("a directory") << "/tmp";
  QTest::newRow("a device that is full") << "/dev/full";
  QTest::newRow("below a file") << "/dev/null/data.txt";
}

void StatisticsFilesTest::UnwritablePlaces() {
  QFETCH(QString, path);
  AddTwo();
  SaveAs(path);
  QCOMPARE(one->BoxText(), kFileError);
  one->Answer(QMessageBox::Ok);
  QVERIFY(HasUnsavedData());
}

void StatisticsFilesTest::Choose(const QString& folder, const QString& name,
                                 QDialogButtonBox::StandardButton button) {
  QFileDialog* const dialog = Dialog();
  QVERIFY(dialog);
  dialog->setDirectory(folder);
  NameBox(dialog)->setText(name);
  dialog->findChild<QDialogButtonBox*>()->button(button)->click();
  QTRY_VERIFY(!Dialog());
}

void StatisticsFilesTest::TheSaveDialogSaysWhatIsSaved() {
  AddTwo();
  one->Press("Save");
  QVERIFY(Dialog());
  QCOMPARE(Dialog()->windowTitle(), QStringLiteral("Save Data"));
  QCOMPARE(Dialog()->nameFilters(), QStringList{"TXT(*.txt)"});
  QCOMPARE(NameBox(Dialog())->text(), QStringLiteral("data.txt"));
  QCOMPARE(NameBox(Dialog())->selectedText(), QStringLiteral("data.txt"));
}

void StatisticsFilesTest::TheLoadDialogOffersAllFiles() {
  one->Press("Load");
  QVERIFY(Dialog());
  QCOMPARE(Dialog()->windowTitle(), QStringLiteral("Load Data"));
  QCOMPARE(Dialog()->nameFilters(), (QStringList{"TXT(*.txt)", "All files (*)"}));
  one->PutFile("rows.dat", "5\t2\r\n");
  Choose(QFileInfo(one->FileName("rows.dat")).path(), "rows.dat", QDialogButtonBox::Open);
  QCOMPARE(one->Rows(), (QStringList{"5 2"}));
}

void StatisticsFilesTest::AFailedNameIsProposedUntilASaveSucceeds() {
  AddTwo();
  SaveAs("/no/such/folder/march.txt");
  one->Answer(QMessageBox::Ok);
  one->Press("Save");
  QCOMPARE(NameBox(Dialog())->text(), QStringLiteral("march.txt"));
  Choose(QFileInfo(one->FileName("april.txt")).path(), "april.txt", QDialogButtonBox::Save);
  QCOMPARE(one->FileBytes("april.txt"), QByteArray("4\t1\r\n2.5\t3\r\n"));
  one->Press("Save");
  QCOMPARE(NameBox(Dialog())->text(), QStringLiteral("data.txt"));
}

void StatisticsFilesTest::TheDialogsOpenInTheFolderUsedLast() {
  AddTwo();
  const QString folder = QFileInfo(one->FileName("rows.txt")).path();
  one->Press("Save");
  Choose(folder, "rows.txt", QDialogButtonBox::Save);
  one->Press("Load");
  QCOMPARE(Dialog()->directory(), QDir(folder));
  Dialog()->reject();
  QTRY_VERIFY(!Dialog());
  one->Press("Save");
  QCOMPARE(Dialog()->directory(), QDir(folder));
}

void StatisticsFilesTest::NoSuffixIsAdded() {
  AddTwo();
  one->Press("Save");
  const QString folder = QFileInfo(one->FileName("rows")).path();
  Choose(folder, "rows", QDialogButtonBox::Save);
  QCOMPARE(QDir(folder).entryList(QDir::Files), QStringList{"rows"});
}

void StatisticsFilesTest::LeavingAsks_data() {
  QTest::addColumn<QString>("menu");
  QTest::addColumn<QString>("command");
  QTest::newRow("calculator") << "Mode"
                              << "Scientific Calculator";
  QTest::newRow("plotter") << "Mode"
                           << "Function Plotter";
  QTest::newRow("the other statistics") << "Mode"
                                        << "2-Var Statistics";
  QTest::newRow("exit") << "File"
                        << "Exit";
}

void StatisticsFilesTest::LeavingAsks() {
  QFETCH(QString, menu);
  QFETCH(QString, command);
  AddTwo();
  QSignalSpy chosen(one->screen, &ModeScreen::ModeChosen);
  QSignalSpy exited(one->screen, &ModeScreen::ExitChosen);
  one->Command(menu, command);
  QCOMPARE(one->BoxText(), kSaveQuestion);
  QCOMPARE(one->Box()->icon(), QMessageBox::Question);
  QCOMPARE(chosen.size() + exited.size(), qsizetype{0});
  one->Answer(QMessageBox::No);
  QCOMPARE(chosen.size(), qsizetype{menu == QStringLiteral("Mode") ? 1 : 0});
  QCOMPARE(exited.size(), qsizetype{menu == QStringLiteral("Mode") ? 0 : 1});
}

void StatisticsFilesTest::LeavingSavesFirst() {
  AddTwo();
  QSignalSpy chosen(one->screen, &ModeScreen::ModeChosen);
  AddNextAnswer(one->FileName("data.txt"));
  one->Command("Mode", "Function Plotter");
  one->Answer(QMessageBox::Yes);
  QCOMPARE(one->FileBytes("data.txt"), QByteArray("4\t1\r\n2.5\t3\r\n"));
  QCOMPARE(chosen.size(), qsizetype{1});
  QCOMPARE(chosen.first().first().toInt(), 2);
}

void StatisticsFilesTest::WithoutAFileTheRowsStay_data() {
  QTest::addColumn<QString>("menu");
  QTest::addColumn<QString>("command");
  QTest::newRow("exit") << "File"
                        << "Exit";
  QTest::newRow("mode") << "Mode"
                        << "Scientific Calculator";
  QTest::newRow("load") << ""
                        << "";
}

void StatisticsFilesTest::WithoutAFileTheRowsStay() {
  QFETCH(QString, menu);
  QFETCH(QString, command);
  AddTwo();
  QSignalSpy chosen(one->screen, &ModeScreen::ModeChosen);
  QSignalSpy exited(one->screen, &ModeScreen::ExitChosen);
  menu.isEmpty() ? one->Press("Load") : one->Command(menu, command);
  AddNextAnswer(std::nullopt);
  one->Answer(QMessageBox::Yes);
  QVERIFY(chosen.isEmpty() && exited.isEmpty());
  QVERIFY2(!one->screen->findChild<QDialog*>(QStringLiteral("LoadFile")), "nothing is loaded");
  QCOMPARE(one->Rows(), (QStringList{"4 1", "2.5 3"}));
  QVERIFY(HasUnsavedData());
}

void StatisticsFilesTest::AFailedSaveKeepsTheScreen() {
  AddTwo();
  QSignalSpy exited(one->screen, &ModeScreen::ExitChosen);
  AddNextAnswer("/no/such/folder/data.txt");
  one->Command("File", "Exit");
  one->Answer(QMessageBox::Yes);
  QCOMPARE(one->BoxText(), kFileError);
  one->Answer(QMessageBox::Ok);
  QVERIFY(exited.isEmpty());
  QVERIFY(HasUnsavedData());
}

void StatisticsFilesTest::ACancelledSaveKeepsTheScreen() {
  one->Load(ManyRows(300000));
  one->Add({"1", "1"});
  QSignalSpy chosen(one->screen, &ModeScreen::ModeChosen);
  AddNextAnswer(one->FileName("data.txt"));
  one->Command("Mode", "Function Plotter");
  cancelled = 0;
  CancelSoon();
  one->Answer(QMessageBox::Yes);
  QCOMPARE(cancelled, 1);
  QVERIFY(chosen.isEmpty());
  QVERIFY(HasUnsavedData());
}

void StatisticsFilesTest::LeavingWithoutAnAnswerStays() {
  AddTwo();
  QSignalSpy exited(one->screen, &ModeScreen::ExitChosen);
  one->Command("File", "Exit");
  QTest::keyClick(one->Box(), Qt::Key_Escape);
  QTRY_VERIFY(!one->Box());
  QVERIFY(exited.isEmpty());
  QCOMPARE(one->Rows().size(), qsizetype{2});
}

void StatisticsFilesTest::LeavingWithNothingToLoseDoesNotAsk() {
  QVERIFY(!HasUnsavedData());
  one->Add({"5", "1"});
  QVERIFY(!HasUnsavedData());
  one->Add({"6", "1"});
  QVERIFY(HasUnsavedData());
  one->Press("Clear");
  one->Answer(QMessageBox::Yes);
  QVERIFY(!HasUnsavedData());
}

void StatisticsFilesTest::ModesChangeAtOnceWithNothingToLose() {
  QSignalSpy chosen(one->screen, &ModeScreen::ModeChosen);
  one->Add({"5", "1"});
  one->Command("Mode", "Scientific Calculator");
  QVERIFY(!one->Box());
  QCOMPARE(chosen.size(), qsizetype{1});
  one->Add({"6", "1"});
  one->Press("Clear");
  one->Answer(QMessageBox::Yes);
  one->Command("Mode", "2-Var Statistics");
  QVERIFY(!one->Box());
  QCOMPARE(chosen.size(), qsizetype{2});
}

void StatisticsFilesTest::TheOwnModeIsNotLeft() {
  AddTwo();
  QSignalSpy chosen(one->screen, &ModeScreen::ModeChosen);
  one->Command("Mode", "1-Var Statistics");
  QVERIFY(!one->Box());
  QCOMPARE(chosen.size(), qsizetype{1});
  QCOMPARE(chosen.first().first().toInt(), 3);
}

void StatisticsFilesTest::CancelSoon() {
  ProgressBox::patienceMs = 0;
  QTimer::singleShot(0, this, [this] {
    auto* const box = one->screen->findChild<QDialog*>(QStringLiteral("Progress"));
    if (!box) return;
    QVERIFY(box->findChild<QProgressBar*>());
    box->findChild<QPushButton*>(QStringLiteral("Cancel"))->click();
    ++cancelled;
  });
}

void StatisticsFilesTest::LongLoadsShowProgressAndCanBeCancelled() {
  AddTwo();
  one->SelectRows({1});
  one->PutFile("large.txt", ManyRows(300000));
  one->Press("Load");
  AddNextAnswer(one->FileName("large.txt"));
  cancelled = 0;
  CancelSoon();
  one->Answer(QMessageBox::No);
  QCOMPARE(cancelled, 1);
  QCOMPARE(one->Rows(), (QStringList{"4 1", "2.5 3"}));
  QCOMPARE(one->Total(), QStringLiteral("4"));
  QCOMPARE(one->SelectedRows(), (QList<int>{1}));
  QVERIFY(HasUnsavedData());
}

void StatisticsFilesTest::LongSortsCanBeCancelled() {
  const QByteArray bytes = ManyRows(300000);
  one->Load(bytes);
  const QVariant first = one->Table()->model()->index(0, 0).data();
  cancelled = 0;
  CancelSoon();
  one->Command("Edit", "Sort by X");
  QCOMPARE(cancelled, 1);
  QCOMPARE(one->Table()->model()->index(0, 0).data(), first);
  // Cancelled, it is no sort: the next one is ascending still.
  ProgressBox::patienceMs = 100000;
  one->Command("Edit", "Sort by X");
  const QAbstractItemModel* const rows = one->Table()->model();
  QVERIFY(rows->index(0, 0).data().toDouble() < rows->index(299999, 0).data().toDouble());
}

void StatisticsFilesTest::LongSavesCanBeCancelled() {
  one->Load(ManyRows(300000));
  one->Add({"1", "1"});
  one->PutFile("data.txt", "old");
  cancelled = 0;
  CancelSoon();
  SaveAs(one->FileName("data.txt"));
  QCOMPARE(cancelled, 1);
  QVERIFY(!one->Box());
  QCOMPARE(one->FileBytes("data.txt"), QByteArray("old"));
  QVERIFY(HasUnsavedData());
}

void StatisticsFilesTest::AClosedWindowStopsALongOperation() {
  AddTwo();
  one->PutFile("large.txt", ManyRows(300000));
  one->Press("Load");
  AddNextAnswer(one->FileName("large.txt"));
  ProgressBox::patienceMs = 0;
  QTimer::singleShot(0, this, [this] { one->window->hide(); });
  one->Answer(QMessageBox::No);
  QCOMPARE(one->Rows(), (QStringList{"4 1", "2.5 3"}));
}

void StatisticsFilesTest::ALongOperationRunsToItsEnd() {
  ProgressBox::patienceMs = 0;
  one->Load(ManyRows(300000));
  QCOMPARE(one->Table()->model()->rowCount(), 300000);
  QCOMPARE(one->Total(), QStringLiteral("300000"));
  QVERIFY(!one->screen->findChild<QDialog*>(QStringLiteral("Progress")));
}

}  // namespace vexa

QTEST_MAIN(vexa::StatisticsFilesTest)
#include "StatisticsFilesTest.moc"
