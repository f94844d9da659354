#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

class QWidget;

/// The dialogs that ask for a file. They are opened and return at once; what goes on is said by
/// their callbacks. They open in the folder that was used last.
namespace vexa::file_dialogs {

/// What is shown when a file cannot be read or written.
inline constexpr std::wstring_view kFileError = L"File Error";

/// What a dialog ends with: the file that was chosen, or none.
using Answer = std::optional<QString>;
using Answered = std::function<void(const Answer& path)>;

/// Asks for a file to read. `filter`: description and pattern, e.g. "TXT(*.txt)"; all files are
/// offered, too.
void AskForFileToOpen(QWidget* parent, const QString& title, const QString& filter,
                      Answered answered);
/// A kind of file: description and pattern, e.g. "TXT(*.txt)", and the suffix that a name gets
/// which ends in no kind's suffix; none: the name stays as it is.
struct FileKind {
  QString filter;
  QString suffix;
};
/// What a dialog that asks for a file to write shows at first.
struct SaveOffer {
  /// What is saved, as the title says it.
  QString title;
  QString name;
  std::vector<FileKind> kinds;
};
/// Asks for a file to write, which may exist: then the user is asked whether to replace it. Files
/// that must not be written are not shown.
void AskForFileToSave(QWidget* parent, const SaveOffer& offer, Answered answered);

/// Says that the file at `path` could not be read or written, and the system's `reason`; `closed`
/// runs when the user has read it.
void ShowFileError(
    QWidget* parent, const QString& path, const QString& reason,
    std::function<void()> closed = [] {});

/// For tests: the next dialogs do not open and end with these answers, in this order.
void AddNextAnswer(const Answer& answer);

}  // namespace vexa::file_dialogs
