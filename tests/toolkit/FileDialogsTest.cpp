// The file dialogs themselves, and their answers.

#include "toolkit/FileDialogs.h"

#include <unistd.h>

#include <QAbstractFileIconProvider>
#include <QAbstractItemView>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
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
  // The first one: no folder was used yet.
  void TheFirstOneShowsTheCurrentFolder();
  void OpensAnExistingFile();
  void SavesUnderANewName();
  void AddsNoSuffix();
  void ANameGetsTheSuffixOfTheChosenKind_data();
  void ANameGetsTheSuffixOfTheChosenKind();
  void ReplacingIsAskedForTheCompletedName();
  void AFolderIsEnteredAsItIs();
  void SaysWhatIsSavedAndProposesAName();
  void OpensInTheFolderUsedLast();
  void FilesAreToldByTheirNames();
  void AnErrorNamesFileAndReason();
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
    file_dialogs::AskForFileToOpen(window.get(), "Load Data", "TXT(*.txt)",
                                   [this](const Answer& answer) { answers << answer; });
    return window->findChild<QFileDialog*>("LoadFile");
  }
  QFileDialog* AskToSave() { return AskToSave({"Save Data", "data.txt", {{"TXT(*.txt)", {}}}}); }
  QFileDialog* AskToSave(const file_dialogs::SaveOffer& offer) {
    file_dialogs::AskForFileToSave(window.get(), offer,
                                   [this](const Answer& answer) { answers << answer; });
    return window->findChild<QFileDialog*>("SaveFile");
  }
  static QLineEdit* NameBox(QFileDialog* dialog) {
    return dialog->findChild<QLineEdit*>("fileNameEdit");
  }
  /// Saves under what is typed, with `filter` chosen, and gives the name that comes out.
  QString SavedAs(const QString& typed, const QString& filter) {
    QFileDialog* const dialog = AskToSave({"Save Graph", "graph", kPictures});
    dialog->setDirectory(dir->path());
    dialog->selectNameFilter(filter);
    NameBox(dialog)->setText(typed);
    QMetaObject::invokeMethod(dialog, "accept");
    const QString saved = answers.isEmpty() ? QString() : answers.takeLast().value_or(QString());
    delete dialog;
    return saved.startsWith(dir->path() + u'/') ? saved.mid(dir->path().size() + 1) : saved;
  }
  const std::vector<file_dialogs::FileKind> kPictures{
      {"BMP(*.bmp)", "bmp"}, {"PNG(*.png)", "png"}, {"SVG(*.svg)", "svg"}};
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

void FileDialogsTest::TheFirstOneShowsTheCurrentFolder() {
  for (QFileDialog* const dialog : {AskToOpen(), AskToSave()}) {
    const QModelIndex shown = dialog->findChild<QListView*>("listView")->rootIndex();
    QCOMPARE(shown.data(QFileSystemModel::FilePathRole).toString(), QDir::currentPath());
    dialog->reject();
  }
}

void FileDialogsTest::OpensAnExistingFile() {
  QFileDialog* const dialog = AskToOpen();
  QVERIFY(dialog && dialog->isVisible());
  QCOMPARE(dialog->acceptMode(), QFileDialog::AcceptOpen);
  QCOMPARE(dialog->nameFilters(), QStringList({"TXT(*.txt)", "All files (*)"}));
  QCOMPARE(dialog->windowTitle(), QStringLiteral("Load Data"));
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

void FileDialogsTest::ANameGetsTheSuffixOfTheChosenKind_data() {
  QTest::addColumn<QString>("typed");
  QTest::addColumn<QString>("filter");
  QTest::addColumn<QString>("saved");
  const char* const rows[][3] = {
      {"graph", "BMP(*.bmp)", "graph.bmp"},         {"graph", "SVG(*.svg)", "graph.svg"},
      {"plot v1.0", "PNG(*.png)", "plot v1.0.png"}, {"plot v1.0", "BMP(*.bmp)", "plot v1.0.bmp"},
      {"graph.svg", "PNG(*.png)", "graph.svg"},     {"graph.PNG", "BMP(*.bmp)", "graph.PNG"},
      {"graph.txt", "SVG(*.svg)", "graph.txt.svg"}, {"graph.", "PNG(*.png)", "graph.png"},
      {".hidden", "PNG(*.png)", ".hidden.png"}};
  for (const auto& row : rows) {
    QTest::addRow("%s %s", row[0], row[1]) << row[0] << row[1] << row[2];
  }
}

void FileDialogsTest::ANameGetsTheSuffixOfTheChosenKind() {
  QFETCH(QString, typed);
  QFETCH(QString, filter);
  QTEST(SavedAs(typed, filter), "saved");
}

void FileDialogsTest::ReplacingIsAskedForTheCompletedName() {
  PutFile("v1.0.png");
  bool asked = false;
  QTimer::singleShot(0, this, [&] {
    auto* const box = window->findChild<QMessageBox*>();
    if (!box) return;
    asked = box->text().contains("v1.0.png");
    box->button(QMessageBox::No)->click();
  });
  QCOMPARE(SavedAs("v1.0", "PNG(*.png)"), QString());
  QVERIFY(asked);
}

void FileDialogsTest::AFolderIsEnteredAsItIs() {
  QVERIFY(QDir(dir->path()).mkdir("pictures"));
  QFileDialog* const dialog = AskToSave({"Save Graph", "graph", kPictures});
  dialog->setDirectory(dir->path());
  NameBox(dialog)->setText("pictures");
  QMetaObject::invokeMethod(dialog, "accept");
  QVERIFY(answers.isEmpty());
  QCOMPARE(dialog->directory(), QDir(dir->filePath("pictures")));
  dialog->reject();
}

void FileDialogsTest::SaysWhatIsSavedAndProposesAName() {
  QFileDialog* dialog = AskToSave({"Save Graph", "graph", kPictures});
  QCOMPARE(dialog->windowTitle(), QStringLiteral("Save Graph"));
  QCOMPARE(NameBox(dialog)->text(), QStringLiteral("graph"));
  QCOMPARE(NameBox(dialog)->selectedText(), QStringLiteral("graph"));
  QCOMPARE(dialog->selectedNameFilter(), QStringLiteral("BMP(*.bmp)"));
  delete dialog;
  // A proposed name of a kind chooses that kind.
  dialog = AskToSave({"Save Graph", "wave.svg", kPictures});
  QCOMPARE(NameBox(dialog)->text(), QStringLiteral("wave.svg"));
  QCOMPARE(dialog->selectedNameFilter(), QStringLiteral("SVG(*.svg)"));
  delete dialog;
}

void FileDialogsTest::OpensInTheFolderUsedLast() {
  Choose(AskToSave(), dir->filePath("new.txt"));
  QTRY_VERIFY(!window->findChild<QFileDialog*>());
  QCOMPARE(AskToOpen()->directory(), QDir(dir->path()));
  QTemporaryDir other;
  QFile file(other.filePath("data.txt"));
  QVERIFY(file.open(QIODevice::WriteOnly));
  auto* const dialog = window->findChild<QFileDialog*>("LoadFile");
  Choose(dialog, file.fileName());
  QTRY_VERIFY(!window->findChild<QFileDialog*>());
  QCOMPARE(AskToSave()->directory(), QDir(other.path()));
  // A folder that is gone is no place to begin.
  delete window->findChild<QFileDialog*>("SaveFile");
  QVERIFY(other.remove());
  QVERIFY(AskToSave()->directory().exists());
}

void FileDialogsTest::FilesAreToldByTheirNames() {
  // Not by what is in them: reading some files of the system never ends.
  QFile document(PutFile("document"));
  QVERIFY(document.open(QIODevice::WriteOnly));
  QVERIFY(document.write("%PDF-1.4\n") > 0);
  document.close();
  const QFileInfo written(document.fileName());
  const QFileInfo empty(PutFile("empty"));
  for (const QFileDialog* const dialog : {AskToOpen(), AskToSave()}) {
    const QAbstractFileIconProvider* const icons = dialog->iconProvider();
    QCOMPARE(icons->type(written), icons->type(empty));
    QCOMPARE(icons->icon(written).cacheKey(), icons->icon(empty).cacheKey());
    QVERIFY(icons->type(QFileInfo(dir->path())) != icons->type(empty));
  }
}

void FileDialogsTest::AnErrorNamesFileAndReason() {
  int closed = 0;
  file_dialogs::ShowFileError(window.get(), "/a/b/<i>c.txt", "No such <b>file</b>",
                              [&] { ++closed; });
  auto* const box = window->findChild<QMessageBox*>();
  QVERIFY(box);
  QCOMPARE(box->text(), QStringLiteral("File Error"));
  QCOMPARE(box->icon(), QMessageBox::Critical);
  QCOMPARE(box->informativeText(), QStringLiteral("<i>c.txt: No such <b>file</b>"));
  for (const QLabel* label : box->findChildren<QLabel*>()) {
    QVERIFY(label->pixmap().isNull() == false || label->textFormat() == Qt::PlainText);
  }
  box->button(QMessageBox::Ok)->click();
  QCOMPARE(closed, 1);
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
