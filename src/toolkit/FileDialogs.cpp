#include "toolkit/FileDialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QMimeDatabase>
#include <QSortFilterProxyModel>
#include <algorithm>
#include <deque>
#include <utility>

#include "toolkit/MessageBox.h"

namespace vexa::file_dialogs {
namespace {

std::deque<Answer>& NextAnswers() {
  static std::deque<Answer> answers;
  return answers;
}

/// The folder in which the last file was chosen; empty: none was.
QString& LastFolder() {
  static QString folder;
  return folder;
}

/// Leaves out the files that must not be written.
class WritableFiles : public QSortFilterProxyModel {
 public:
  using QSortFilterProxyModel::QSortFilterProxyModel;

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override {
    const auto* const files = qobject_cast<QFileSystemModel*>(sourceModel());
    const QModelIndex index = sourceModel()->index(row, 0, parent);
    return !files || files->isDir(index) || files->fileInfo(index).isWritable();
  }
};

/// Tells files by their names. The toolkit's own provider reads what is in each file of a folder,
/// and there are files whose reading never ends, such as the system's log.
class IconsByName : public QFileIconProvider {
 public:
  using QFileIconProvider::icon;
  QIcon icon(const QFileInfo& file) const override { return icon(file.isDir() ? Folder : File); }
  QString type(const QFileInfo& file) const override {
    return QMimeDatabase().mimeTypeForFile(file, QMimeDatabase::MatchExtension).comment();
  }
};

QFileIconProvider* Icons() {
  static IconsByName icons;
  return &icons;
}

/// Asks for a file to write.
class SaveDialog : public QFileDialog {
 public:
  SaveDialog(QWidget* parent, const SaveOffer& offer)
      : QFileDialog(parent, offer.title), kinds(offer.kinds) {
    setAcceptMode(QFileDialog::AcceptSave);
    // The desktop's own dialog cannot leave files out.
    setOption(QFileDialog::DontUseNativeDialog);
    setProxyModel(new WritableFiles(this));
    nameBox = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  }

  void Propose(const QString& name) {
    const QString suffix = QFileInfo(name).suffix().toLower();
    for (const FileKind& kind : kinds) {
      if (!suffix.isEmpty() && kind.suffix == suffix) selectNameFilter(kind.filter);
    }
    nameBox->setText(name);
    nameBox->selectAll();
  }

 protected:
  /// The name is completed before the toolkit looks whether such a file exists.
  void accept() override {
    const QString name = nameBox->text();
    const QString suffix = ChosenSuffix();
    const bool isFolder = QFileInfo(directory(), name).isDir();
    if (!name.isEmpty() && !suffix.isEmpty() && !isFolder && !NamesKind(name)) {
      nameBox->setText(name.endsWith(u'.') ? name + suffix : name + u'.' + suffix);
    }
    QFileDialog::accept();
  }

 private:
  QString ChosenSuffix() const {
    const auto chosen = std::ranges::find(kinds, selectedNameFilter(), &FileKind::filter);
    return chosen == kinds.end() ? QString() : chosen->suffix;
  }
  bool NamesKind(const QString& name) const {
    return std::ranges::find(kinds, QFileInfo(name).suffix().toLower(), &FileKind::suffix) !=
           kinds.end();
  }

  std::vector<FileKind> kinds;
  QLineEdit* nameBox;
};

void Open(QFileDialog* dialog, const QString& name, const QStringList& filters, Answered answered) {
  dialog->setObjectName(name);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setNameFilters(filters);
  dialog->setIconProvider(Icons());
  // An empty name would show all drives.
  const QString& folder = LastFolder();
  if (!folder.isEmpty() && QDir(folder).exists()) dialog->setDirectory(folder);
  QObject::connect(dialog, &QFileDialog::finished, dialog->parentWidget(),
                   [dialog, answered = std::move(answered)](int outcome) {
                     if (outcome != QDialog::Accepted) return answered(std::nullopt);
                     const QString path = dialog->selectedFiles().value(0);
                     LastFolder() = QFileInfo(path).absolutePath();
                     answered(path);
                   });
  dialog->open();
}

/// Whether a test has answered already.
bool AnsweredByTest(const Answered& answered) {
  if (NextAnswers().empty()) return false;
  const Answer answer = NextAnswers().front();
  NextAnswers().pop_front();
  answered(answer);
  return true;
}

}  // namespace

void AskForFileToOpen(QWidget* parent, const QString& title, const QString& filter,
                      Answered answered) {
  if (AnsweredByTest(answered)) return;
  auto* const dialog = new QFileDialog(parent, title);
  dialog->setAcceptMode(QFileDialog::AcceptOpen);
  dialog->setFileMode(QFileDialog::ExistingFile);
  Open(dialog, QStringLiteral("LoadFile"), {filter, QStringLiteral("All files (*)")},
       std::move(answered));
}

void AskForFileToSave(QWidget* parent, const SaveOffer& offer, Answered answered) {
  if (AnsweredByTest(answered)) return;
  auto* const dialog = new SaveDialog(parent, offer);
  QStringList filters;
  for (const FileKind& kind : offer.kinds) filters << kind.filter;
  Open(dialog, QStringLiteral("SaveFile"), filters, std::move(answered));
  dialog->Propose(offer.name);
}

void ShowFileError(QWidget* parent, const QString& path, const QString& reason,
                   std::function<void()> closed) {
  const QString details = QFileInfo(path).fileName() + QStringLiteral(": ") + reason;
  ShowErrorBox(parent, std::wstring(kFileError), std::move(closed), details.toStdWString());
}

void AddNextAnswer(const Answer& answer) {
  NextAnswers().push_back(answer);
}

}  // namespace vexa::file_dialogs
