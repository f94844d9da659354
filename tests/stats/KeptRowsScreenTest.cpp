// Rows that were not saved when nobody could be asked: kept aside, offered quietly, never lost.

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "stats/StatisticsScreenDriver.h"
#include "toolkit/FileDialogs.h"

namespace vexa {

using test::StatisticsScreenDriver;

class KeptRowsScreenTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    one.reset();
    dir = std::make_unique<QTemporaryDir>();
    Open();
  }
  void ClosingKeepsTheRowsAside();
  void NothingIsOfferedAtFirst();
  void RestoredRowsAreUnsavedRows();
  void RestoredRowsThatAreSavedAreForgotten();
  void RestoredRowsStayUntilTheyAreSafe();
  void DiscardAsksAndDeletes();
  void AnUnansweredOfferStays();
  void SeveralAreOfferedInTurn();
  void RestoringAsksAboutOtherRows();
  void AgreedLeavingKeepsNothing_data();
  void AgreedLeavingKeepsNothing();
  void LeavingThatIsCalledOffStillKeeps();
  void ASingleCountedValueIsNotKept();
  void DamagedFilesAreSaidAndKept();
  void NoOfferWhileARowIsEdited();
  void TheScreensKeepTheirOwn();
  void TheOfferFitsTheSmallestWindow();
  void TheOfferIsReachedByKeys();

 private:
  void Open(Mode mode = Mode::OneVarStatistics, QSize size = {340, 560}) {
    one.reset();
    one = std::make_unique<StatisticsScreenDriver>(mode, size, dir->path());
  }
  void AddTwo() {
    one->Add({"2.5", "3"});
    one->Add({"4", "1"});
  }
  bool IsOffered() const { return one->IsShown("Restore") && one->IsShown("Discard"); }
  QStringList Files() const { return QDir(dir->path()).entryList(QDir::Files, QDir::Name); }

  std::unique_ptr<QTemporaryDir> dir;
  std::unique_ptr<StatisticsScreenDriver> one;
};

void KeptRowsScreenTest::ClosingKeepsTheRowsAside() {
  AddTwo();
  Open();
  QVERIFY2(!one->Box(), "never a box at the start");
  QVERIFY(IsOffered());
  QVERIFY(one->Rows().isEmpty());
  one->Press("Restore");
  QCOMPARE(one->Rows(), (QStringList{"4 1", "2.5 3"}));
  QCOMPARE(one->Total(), QStringLiteral("4"));
  QCOMPARE(one->Notice(), QStringLiteral("2 rows restored."));
  QVERIFY(one->IsEnabled("ΣX") && one->IsEnabled("Save") && one->IsEnabled("Clear"));
  QVERIFY(!IsOffered());
}

void KeptRowsScreenTest::NothingIsOfferedAtFirst() {
  QVERIFY(!one->IsShown("Restore") && !one->IsShown("Discard"));
  Open();
  QVERIFY(!one->IsShown("Restore"));
  QVERIFY(Files().isEmpty());
}

void KeptRowsScreenTest::RestoredRowsAreUnsavedRows() {
  AddTwo();
  Open();
  one->Press("Restore");
  one->Command("File", "Exit");
  QCOMPARE(one->BoxText(), QStringLiteral("Do you want to save changes to Data?"));
}

void KeptRowsScreenTest::RestoredRowsThatAreSavedAreForgotten() {
  AddTwo();
  Open();
  one->Press("Restore");
  file_dialogs::AddNextAnswer(one->FileName("data.txt"));
  one->Press("Save");
  QCOMPARE(one->FileBytes("data.txt"), QByteArray("4\t1\r\n2.5\t3\r\n"));
  Open();
  QVERIFY(!IsOffered());
  QVERIFY(Files().isEmpty());
}

void KeptRowsScreenTest::RestoredRowsStayUntilTheyAreSafe() {
  AddTwo();
  Open();
  one->Press("Restore");
  QCOMPARE(Files().size(), qsizetype{1});
  one->Add({"7", "1"});
  Open();
  QVERIFY(IsOffered());
  QCOMPARE(Files().size(), qsizetype{1});
  one->Press("Restore");
  QCOMPARE(one->Rows(), (QStringList{"7 1", "4 1", "2.5 3"}));
}

void KeptRowsScreenTest::DiscardAsksAndDeletes() {
  AddTwo();
  Open();
  one->Press("Discard");
  QVERIFY(one->Box());
  one->Answer(QMessageBox::No);
  QVERIFY(IsOffered());
  one->Press("Discard");
  one->Answer(QMessageBox::Yes);
  QVERIFY(!IsOffered());
  QVERIFY(Files().isEmpty());
}

void KeptRowsScreenTest::AnUnansweredOfferStays() {
  AddTwo();
  Open();
  Open();
  QVERIFY(IsOffered());
  one->Press("Restore");
  QCOMPARE(one->Rows(), (QStringList{"4 1", "2.5 3"}));
}

void KeptRowsScreenTest::SeveralAreOfferedInTurn() {
  AddTwo();
  Open();
  one->Add({"8", "5"});
  Open();
  QCOMPARE(Files().size(), qsizetype{2});
  one->Press("Restore");
  QCOMPARE(one->Rows(), (QStringList{"8 5"}));
  one->Press("Clear");
  one->Answer(QMessageBox::Yes);
  Open();
  QVERIFY(IsOffered());
  one->Press("Restore");
  QCOMPARE(one->Rows(), (QStringList{"4 1", "2.5 3"}));
}

void KeptRowsScreenTest::RestoringAsksAboutOtherRows() {
  AddTwo();
  Open();
  one->Add({"8", "5"});
  one->Press("Restore");
  QCOMPARE(one->BoxText(), QStringLiteral("Do you want to save changes to Data?"));
  file_dialogs::AddNextAnswer(std::nullopt);
  one->Answer(QMessageBox::Yes);
  QCOMPARE(one->Rows(), (QStringList{"8 5"}));
  QVERIFY(IsOffered());
  one->Press("Restore");
  one->Answer(QMessageBox::No);
  QCOMPARE(one->Rows(), (QStringList{"4 1", "2.5 3"}));
}

void KeptRowsScreenTest::AgreedLeavingKeepsNothing_data() {
  QTest::addColumn<bool>("saves");
  QTest::newRow("saved") << true;
  QTest::newRow("not saved") << false;
}

void KeptRowsScreenTest::AgreedLeavingKeepsNothing() {
  QFETCH(bool, saves);
  AddTwo();
  one->Command("File", "Exit");
  if (saves) file_dialogs::AddNextAnswer(one->FileName("data.txt"));
  one->Answer(saves ? QMessageBox::Yes : QMessageBox::No);
  Open();
  QVERIFY(!one->IsShown("Restore"));
  QVERIFY(Files().isEmpty());
}

void KeptRowsScreenTest::LeavingThatIsCalledOffStillKeeps() {
  AddTwo();
  one->Command("File", "Exit");
  file_dialogs::AddNextAnswer(std::nullopt);
  one->Answer(QMessageBox::Yes);
  one->Command("File", "Exit");
  Open();
  QVERIFY(IsOffered());
}

void KeptRowsScreenTest::ASingleCountedValueIsNotKept() {
  one->Add({"5", "1"});
  Open();
  QVERIFY(!one->IsShown("Restore"));
  one->Add({"5", "0"});
  one->Add({"6", "1"});
  Open();
  QVERIFY2(IsOffered(), "several rows are, whatever their total is");
}

void KeptRowsScreenTest::DamagedFilesAreSaidAndKept() {
  AddTwo();
  Open();
  const QString path = dir->filePath(Files().value(0));
  QVERIFY(QFile::resize(path, QFile(path).size() - 1));
  one->Press("Restore");
  QCOMPARE(one->BoxText(), QStringLiteral("File Error"));
  one->Answer(QMessageBox::Ok);
  QVERIFY(one->Rows().isEmpty());
  QVERIFY(!IsOffered());
  QCOMPARE(Files().size(), qsizetype{1});
  QVERIFY(Files().value(0).contains("damaged"));
}

void KeptRowsScreenTest::NoOfferWhileARowIsEdited() {
  AddTwo();
  Open();
  one->Add({"1", "1"});
  one->SelectRows({0});
  one->Press("Edit");
  QVERIFY(!one->IsEnabled("Restore") && !one->IsEnabled("Discard"));
  one->Press("Cancel");
  QVERIFY(one->IsEnabled("Restore") && one->IsEnabled("Discard"));
}

void KeptRowsScreenTest::TheScreensKeepTheirOwn() {
  AddTwo();
  Open(Mode::TwoVarStatistics);
  QVERIFY(!one->IsShown("Restore"));
  one->Add({"1", "2", "3"});
  Open();
  one->Press("Restore");
  QCOMPARE(one->Rows(), (QStringList{"4 1", "2.5 3"}));
  Open(Mode::TwoVarStatistics);
  one->Press("Restore");
  QCOMPARE(one->Rows(), (QStringList{"1 2 3"}));
}

void KeptRowsScreenTest::TheOfferFitsTheSmallestWindow() {
  AddTwo();
  Open(Mode::OneVarStatistics, {240, 320});
  QCOMPARE(one->screen->size(), one->window->size());
  for (const char* caption : {"Restore", "Discard"}) {
    const QPushButton* const key = one->Key(caption);
    QCOMPARE(key->visibleRegion().boundingRect(), key->rect());
    QVERIFY(key->height() >= 30);
  }
  const auto* const text = one->screen->findChild<QLabel*>(QStringLiteral("Offer"));
  QVERIFY(text->height() >= text->heightForWidth(text->width()));
}

void KeptRowsScreenTest::TheOfferIsReachedByKeys() {
  AddTwo();
  Open();
  one->Edit("Count")->setFocus();
  for (const char* name : {"Count", "Add", "Restore"}) {
    QCOMPARE(one->window->focusWidget()->objectName(), QString::fromLatin1(name));
    if (name != QByteArray("Restore")) QTest::keyClick(one->window->focusWidget(), Qt::Key_Tab);
  }
  QTest::keyClick(one->window->focusWidget(), Qt::Key_Return);
  QCOMPARE(one->Rows(), (QStringList{"4 1", "2.5 3"}));
}

}  // namespace vexa

QTEST_MAIN(vexa::KeptRowsScreenTest)
#include "KeptRowsScreenTest.moc"
