#pragma once

#include <QString>
#include <functional>
#include <new>
#include <span>
#include <string_view>

#include "stats/KeptRowsFiles.h"
#include "stats/Statistics.h"
#include "stats/StatisticsKeypad.h"
#include "toolkit/ModeScreen.h"
#include "toolkit/ProgressBox.h"

class QDialog;
class QScrollArea;

namespace vexa {

class DataEntryForm;
class DataTableView;
class Keypad;
class ResultLine;
class RowsPane;

/// What the statistics screens share, which is nearly all: edits, data list, files, results, memory
/// variables. They differ in their columns and keys.
class StatisticsScreen : public ModeScreen {
  Q_OBJECT

 protected:
  /// Reads the settings. `store` and `keys` must outlive the screen.
  StatisticsScreen(Mode mode, SettingsStore& store, std::span<const ListColumn> columns,
                   std::span<const Key> keys, QWidget* parent);

  /// Keeps rows aside that are not saved, unless the user has agreed to leave without.
  ~StatisticsScreen() override;

  Statistics& Rules() { return statistics; }
  SettingsStore& Store() { return store; }
  Keypad* ResultKeys() const { return resultKeys; }
  /// Shows what the rules say.
  void Refresh();
  /// Runs `work`, which takes a watcher, beside the window, and returns what it returns; nothing
  /// when the memory does not suffice, which is said.
  template <typename Work>
  auto RunBeside(const QString& title, Work work) -> decltype(work(ProgressWatcher())) {
    try {
      return RunWithProgress(this, title, work);
    } catch (const std::bad_alloc&) {
      SayThatMemoryIsShort();
      return {};
    }
  }
  /// Gives the edit that had the focus last the focus again when `dialog` is closed, and opens it.
  void OpenDialog(QDialog* dialog);

  /// Runs the command of the key with this caption, or shows its result.
  virtual void RunKey(std::wstring_view caption);

  void PrepareToLeave(const std::function<void()>& leave) override;
  /// Enter means what has the focus: an edit's row, the key, the list's row.
  void keyPressEvent(QKeyEvent* event) override;
  /// Shows all result keys where there is room for them.
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct KeyCommand {
    std::wstring_view caption;
    void (StatisticsScreen::*run)();
  };
  static const KeyCommand kKeyCommands[];

  void SayThatMemoryIsShort();
  void BuildMenus();
  StatisticsKeypadState KeypadState() const;
  /// Says what is wrong with an edit, whose focus comes back; false: nothing is.
  bool Complain(const EntryFault& fault);

  void Add();
  void Edit();
  void Ok();
  void Cancel();
  /// Leaves the editing by a key that is hit by mistake, too: asks before typed text is lost.
  void AskToCancel();
  void EndEditing();
  /// Takes the focus from the edits, and the on-screen keyboard away.
  void LeaveEdits();
  void Delete();
  void DeleteRow(std::size_t row);
  void Clear();
  void Sort(int column);
  void Save() {
    SaveThen([] {});
  }
  void Load();
  void LoadFrom(const QString& path);
  /// Shows the rows that have taken the place of all others.
  void ShowNewRows();
  void Restore();
  void RestoreOffered();
  void Discard();
  void ShowResult(std::wstring_view caption);
  void OpenMemoryMenu();
  void RecallVariable();
  void StoreVariable();
  void Configure();
  void RunEditCommand(EditCommand command);

  /// Asks whether to save what would be lost, and runs `next` when it is not to be saved or was.
  void AskToSaveThen(std::function<void()> next);
  /// Asks for a file, saves, and runs `next` when the rows are in a file.
  void SaveThen(std::function<void()> next);
  void SaveTo(const QString& path, const std::function<void()>& next);

  SettingsStore& store;
  Statistics statistics;
  /// The name that the file dialog proposes: one that was tried and failed, else the usual one.
  QString fileName;
  DataEntryForm* form;
  RowsPane* rowsPane;
  DataTableView* table;
  Keypad* listKeys;
  QList<QAction*> sortCommands;
  ResultLine* resultLine;
  QScrollArea* resultArea;
  Keypad* resultKeys;

  KeptRowsFiles keptFiles;
  /// The kept rows that wait for an answer.
  std::optional<QString> offered;
  /// Those that were restored; their file goes when the rows are safe elsewhere.
  std::optional<QString> restored;
  bool leavesAgreed = false;
};

}  // namespace vexa
