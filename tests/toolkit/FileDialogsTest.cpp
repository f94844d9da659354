// The file dialogs themselves, and their answers.

#include "toolkit/FileDialogs.h"

#include <unistd.h>

#include <QAbstractItemView>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace vexa {

using file_dialogs::Answer;

class FileDialogsTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    dir = std::make_unique<QTemporaryDir>();
    window = std::make_unique<QWidget>();
    window->show();
    answers.clear();
  }
  void OpensAnExistingFile();
  void SavesUnderANewName();
  void AddsNoSuffix();
  void AsksBeforeReplacing();
  void CancelIsAnAnswer();
  void HidesFilesThatMustNotBeWritten();
  void AnswersGivenAhead();

 private:
  QString PutFile(const char* name) const {
    QFile file(dir->filePath(QString::fromLatin1(name)));
    return file.open(QIODevice::WriteOnly) ? file.fileName() : QString();
  }
  QFileDialog* AskToOpen() {
    file_dialogs::AskForFileToOpen(window.get(), "TXT(*.txt)",
                                   [this](const Answer& answer) { answers << answer; });
    return window->findChild<QFileDialog*>("LoadFile");
  }
  QFileDialog* AskToSave() {
    file_dialogs::AskForFileToSave(window.get(), "TXT(*.txt)",
                                   [this](const Answer& answer) { answers << answer; });
    return window->findChild<QFileDialog*>("SaveFile");
  }
  static void Choose(QFileDialog* dialog, const QString& path) {
    dialog->setDirectory(QFileInfo(path).path());
    dialog->selectFile(path);
    const auto standard = dialog->acceptMode() == QFileDialog::AcceptSave ? QDialogButtonBox::Save
                                                                          : QDialogButtonBox::Open;
    dialog->findChild<QDialogButtonBox*>()->button(standard)->click();
  }

  std::unique_ptr<QTemporaryDir> dir;
  std::unique_ptr<QWidget> window;
  QList<Answer> answers;
};

void FileDialogsTest::OpensAnExistingFile() {
  QFileDialog* const dialog = AskToOpen();
  QVERIFY(dialog && dialog->isVisible());
  QCOMPARE(dialog->acceptMode(), QFileDialog::AcceptOpen);
  QCOMPARE(dialog->nameFilters(), QStringList{"TXT(*.txt)"});
  const QString path = PutFile("data.txt");
  Choose(dialog, path);
  QCOMPARE(answers, QList<Answer>{path});
}

void FileDialogsTest::SavesUnderANewName() {
  QFileDialog* const dialog = AskToSave();
  QVERIFY(dialog && dialog->isVisible());
  QCOMPARE(dialog->acceptMode(), QFileDialog::AcceptSave);
  QCOMPARE(dialog->nameFilters(), QStringList{"TXT(*.txt)"});
  Choose(dialog, dir->filePath("new.txt"));
  QCOMPARE(answers, QList<Answer>{dir->filePath("new.txt")});
}

void FileDialogsTest::AddsNoSuffix() {
  QFileDialog* const dialog = AskToSave();
  Choose(dialog, dir->filePath("plain"));
  QCOMPARE(answers, QList<Answer>{dir->filePath("plain")});
}

void FileDialogsTest::AsksBeforeReplacing() {
  const QString path = PutFile("old.txt");
  for (const auto button : {QMessageBox::No, QMessageBox::Yes}) {
    QFileDialog* const dialog = AskToSave();
    bool asked = false;
    QTimer::singleShot(0, this, [&, dialog] {
      auto* const box = dialog->findChild<QMessageBox*>();
      if (!box) return;
      asked = true;
      box->button(button)->click();
    });
    Choose(dialog, path);
    QVERIFY(asked);
    QCOMPARE(answers.isEmpty(), button == QMessageBox::No);
    dialog->reject();
    QTRY_VERIFY(!window->findChild<QFileDialog*>());
    if (button == QMessageBox::No) answers.clear();
  }
  QCOMPARE(answers.first(), Answer(path));
}

void FileDialogsTest::CancelIsAnAnswer() {
  AskToSave()->reject();
  AskToOpen()->reject();
  QCOMPARE(answers, (QList<Answer>{std::nullopt, std::nullopt}));
}

void FileDialogsTest::HidesFilesThatMustNotBeWritten() {
  if (geteuid() == 0) QSKIP("An administrator may write every file.");
  PutFile("writable.txt");
  QFile(PutFile("readonly.txt")).setPermissions(QFile::ReadOwner);
  QFileDialog* const dialog = AskToSave();
  dialog->setDirectory(dir->path());
  auto* const list = dialog->findChild<QAbstractItemView*>("listView");
  QTRY_COMPARE(list->model()->rowCount(list->rootIndex()), 1);
  QCOMPARE(list->model()->index(0, 0, list->rootIndex()).data().toString(),
           QStringLiteral("writable.txt"));
  dialog->reject();
}

void FileDialogsTest::AnswersGivenAhead() {
  file_dialogs::AddNextAnswer(QStringLiteral("a"));
  file_dialogs::AddNextAnswer(std::nullopt);
  QVERIFY(!AskToOpen());
  QVERIFY(!AskToSave());
  QCOMPARE(answers, (QList<Answer>{QStringLiteral("a"), std::nullopt}));
  QVERIFY(AskToOpen());
}

}  // namespace vexa

QTEST_MAIN(vexa::FileDialogsTest)
#include "FileDialogsTest.moc"
