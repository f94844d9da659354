#include "toolkit/FileDialogs.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QSortFilterProxyModel>
#include <deque>
#include <utility>

#include "toolkit/MessageBox.h"

namespace vexa::file_dialogs {
namespace {

std::deque<Answer>& NextAnswers() {
  static std::deque<Answer> answers;
  return answers;
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

void Open(QFileDialog* dialog, const QString& name, const QStringList& filters, Answered answered) {
  dialog->setObjectName(name);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setNameFilters(filters);
  QObject::connect(dialog, &QFileDialog::finished, dialog->parentWidget(),
                   [dialog, answered = std::move(answered)](int outcome) {
                     const bool chosen = outcome == QDialog::Accepted;
                     answered(chosen ? Answer(dialog->selectedFiles().value(0)) : std::nullopt);
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

void AskForFileToOpen(QWidget* parent, const QString& filter, Answered answered) {
  if (AnsweredByTest(answered)) return;
  auto* const dialog = new QFileDialog(parent, QStringLiteral("Load"));
  dialog->setAcceptMode(QFileDialog::AcceptOpen);
  dialog->setFileMode(QFileDialog::ExistingFile);
  Open(dialog, QStringLiteral("LoadFile"), {filter}, std::move(answered));
}

void AskForFileToSave(QWidget* parent, const std::vector<FileKind>& kinds, Answered answered) {
  if (AnsweredByTest(answered)) return;
  auto* const dialog = new QFileDialog(parent, QStringLiteral("Save"));
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  // The desktop's own dialog cannot leave files out.
  dialog->setOption(QFileDialog::DontUseNativeDialog);
  dialog->setProxyModel(new WritableFiles(dialog));
  QStringList filters;
  for (const FileKind& kind : kinds) filters << kind.filter;
  const auto follow = [dialog, kinds](const QString& filter) {
    for (const FileKind& kind : kinds) {
      if (kind.filter == filter) dialog->setDefaultSuffix(kind.suffix);
    }
  };
  follow(filters.value(0));
  QObject::connect(dialog, &QFileDialog::filterSelected, dialog, follow);
  Open(dialog, QStringLiteral("SaveFile"), filters, std::move(answered));
}

void AskForFileToSave(QWidget* parent, const QString& filter, Answered answered) {
  AskForFileToSave(parent, std::vector<FileKind>{{filter, {}}}, std::move(answered));
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
