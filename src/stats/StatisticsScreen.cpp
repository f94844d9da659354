#include "stats/StatisticsScreen.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QInputMethod>
#include <QKeyEvent>
#include <QMenu>
#include <QScrollArea>
#include <QVBoxLayout>
#include <cstdio>
#include <utility>

#include "display/DisplayFormattingDialog.h"
#include "display/WideText.h"
#include "macros/MemoryPopup.h"
#include "macros/MemoryVariableDialog.h"
#include "stats/DataEntryForm.h"
#include "stats/DataFileAccess.h"
#include "stats/DataTableView.h"
#include "stats/EntryEdit.h"
#include "stats/KeptRowsOffer.h"
#include "stats/RowsPane.h"
#include "toolkit/FileDialogs.h"
#include "toolkit/KeyButton.h"
#include "toolkit/Keypad.h"
#include "toolkit/MessageBox.h"
#include "toolkit/ResultLine.h"
#include "toolkit/TouchSize.h"

namespace vexa {
namespace {

/// The list grows with the window as this many rows of result keys do.
constexpr int kListShare = 7;
/// What is seen of the result keys, which scroll where the window is low.
constexpr int kLeastResultsHeight = 54;
/// Rows that the list shows before all result keys are shown.
constexpr int kListRowsFirst = 3;

constexpr const char* kFileFilter = "TXT(*.txt)";
constexpr const char* kUsualFileName = "data.txt";

/// Nobody can be asked any more, and nothing waits for an answer: a line for whoever reads it.
void SayThatRowsAreLost(const QString& reason) {
  std::fprintf(stderr, "Vexa Calculator: the unsaved rows could not be kept: %s\n",
               qUtf8Printable(reason));
}

void HideKeyboard() {
  QGuiApplication::inputMethod()->hide();
}

}  // namespace

/// The keys that run a command; all others show a result.
const StatisticsScreen::KeyCommand StatisticsScreen::kKeyCommands[] = {
    {L"Add", &StatisticsScreen::Add},
    {L"Ok", &StatisticsScreen::Ok},
    {L"Cancel", &StatisticsScreen::Cancel},
    {L"Edit", &StatisticsScreen::Edit},
    {L"Delete", &StatisticsScreen::Delete},
    {L"Clear", &StatisticsScreen::Clear},
    {L"Save", &StatisticsScreen::Save},
    {L"Load", &StatisticsScreen::Load},
    {L"MEM", &StatisticsScreen::OpenMemoryMenu},
};

StatisticsScreen::StatisticsScreen(Mode mode, SettingsStore& settingsStore,
                                   std::span<const ListColumn> columns, std::span<const Key> keys,
                                   QWidget* parent)
    : ModeScreen(mode, parent),
      store(settingsStore),
      statistics(settingsStore, columns),
      fileName(QString::fromLatin1(kUsualFileName)),
      form(new DataEntryForm(columns, this)),
      rowsPane(new RowsPane(statistics.List(), this)),
      table(rowsPane->Table()),
      listKeys(new Keypad(ListKeys(), this)),
      resultLine(new ResultLine(this)),
      resultArea(new QScrollArea(this)),
      resultKeys(new Keypad(keys, this)),
      keptFiles(QFile::decodeName(settingsStore.Folder().c_str()), columns.size()),
      offered(keptFiles.Latest()) {
  listKeys->SetKeyHeight(kTouchHeight);
  listKeys->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  resultKeys->SetKeyHeight(kTouchHeight);
  resultLine->setObjectName(QStringLiteral("Result"));
  resultLine->setAccessibleName(QStringLiteral("Result"));
  resultLine->setFixedHeight(kTouchHeight);
  Content()->addWidget(form);
  Content()->addWidget(rowsPane, kListShare);
  Content()->addWidget(listKeys);
  Content()->addWidget(resultLine);
  resultArea->setFrameShape(QFrame::NoFrame);
  resultArea->setWidgetResizable(true);
  resultArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  resultArea->setFocusPolicy(Qt::NoFocus);
  resultArea->setMinimumHeight(kLeastResultsHeight);
  resultArea->setWidget(resultKeys);
  Content()->addWidget(resultArea, keys.back().row + 1);
  setFocusProxy(form);

  BuildMenus();
  connect(form, &DataEntryForm::KeyPressed, this, &StatisticsScreen::RunKey);
  connect(listKeys, &Keypad::KeyPressed, this,
          [this](int index) { RunKey(ListKeys()[static_cast<std::size_t>(index)].caption); });
  connect(resultKeys, &Keypad::KeyPressed, this,
          [this, keys](int index) { RunKey(keys[static_cast<std::size_t>(index)].caption); });
  connect(table, &DataTableView::SortAsked, this, &StatisticsScreen::Sort);
  connect(table, &DataTableView::DeleteAsked, this, &StatisticsScreen::Delete);
  connect(table, &DataTableView::EditAsked, this, &StatisticsScreen::Edit);
  connect(table, &DataTableView::NumberTyped, form, &DataEntryForm::StartValue);
  connect(table, &DataTableView::SelectedRowsChanged, this, [this] {
    statistics.SelectionChanged(table->FirstSelectedRow().has_value());
    HideKeyboard();
    Refresh();
  });
  connect(rowsPane->Offer(), &KeptRowsOffer::RestoreAsked, this, &StatisticsScreen::Restore);
  connect(rowsPane->Offer(), &KeptRowsOffer::DiscardAsked, this, &StatisticsScreen::Discard);
  Refresh();
}

StatisticsScreen::~StatisticsScreen() {
  const bool keeps = !leavesAgreed && statistics.List().IsWorthKeeping();
  const FileOutcome kept = keeps ? keptFiles.Keep(statistics.List().Rows()) : FileOutcome{};
  if (kept.end != FileEnd::Done) {
    SayThatRowsAreLost(kept.reason);
  } else if (restored) {
    QFile::remove(*restored);
  }
}

void StatisticsScreen::BuildMenus() {
  AddFileCommand(QStringLiteral("&Config..."), this, &StatisticsScreen::Configure);
  QMenu* const menu = AddEditMenu([this](EditCommand command) { RunEditCommand(command); });
  // Headings cannot be reached by keys.
  menu->addSeparator();
  for (std::size_t n = 0; n < statistics.List().Columns().size(); ++n) {
    const QString caption = FromWide(statistics.List().Columns()[n].caption);
    sortCommands << menu->addAction(QStringLiteral("Sort by %1").arg(caption), this,
                                    [this, n] { Sort(static_cast<int>(n)); });
  }
}

StatisticsKeypadState StatisticsScreen::KeypadState() const {
  const DataList& list = statistics.List();
  return {list.EditedRow().has_value(), list.Controls(), statistics.Model()};
}

void StatisticsScreen::Refresh() {
  const StatisticsKeypadState state = KeypadState();
  const auto isShown = [&](const Key& key) { return IsKeyShown(key, state); };
  const auto isEnabled = [&](const Key& key) { return IsKeyEnabled(key, state); };
  form->Refresh(state, statistics.List().Total());
  listKeys->Refresh(isShown, isEnabled);
  resultKeys->Refresh(isShown, isEnabled);
  table->setEnabled(state.controls.list);
  for (QAction* const sort : sortCommands) sort->setEnabled(state.controls.list);
  table->ShowSortMark();
  rowsPane->Offer()->setVisible(offered.has_value());
  rowsPane->Offer()->setEnabled(state.controls.load);
  rowsPane->ShowNotice(FromWide(statistics.notice));
  resultLine->ShowText(FromWide(statistics.resultLine));
  SetDefaultButton(form->Button(state.editing ? L"Ok" : L"Add"));
}

void StatisticsScreen::RunKey(std::wstring_view caption) {
  for (const KeyCommand& command : kKeyCommands) {
    if (command.caption == caption) return (this->*command.run)();
  }
  ShowResult(caption);
}

void StatisticsScreen::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && statistics.List().EditedRow()) return AskToCancel();
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isEnter && !form->HasFocusInEdit()) {
    auto* const key = qobject_cast<QAbstractButton*>(window()->focusWidget());
    if (key && !event->isAutoRepeat()) key->click();
    return;
  }
  ModeScreen::keyPressEvent(event);
}

void StatisticsScreen::resizeEvent(QResizeEvent* event) {
  const int listHeight = kListRowsFirst * kTouchHeight;
  const int others = Content()->totalMinimumSize().height() - resultArea->minimumHeight();
  const int keys = resultKeys->minimumSizeHint().height();
  const bool haveRoom = others + listHeight + keys <= height();
  resultArea->setMinimumHeight(haveRoom ? keys : kLeastResultsHeight);
  ModeScreen::resizeEvent(event);
}

void StatisticsScreen::SayThatMemoryIsShort() {
  ShowErrorBox(this, L"There is not enough memory.");
}

bool StatisticsScreen::Complain(const EntryFault& fault) {
  if (fault.sentence.empty()) return false;
  ShowErrorBox(this, fault.sentence, [this, field = fault.field] { form->FocusEdit(field); });
  return true;
}

void StatisticsScreen::Add() {
  if (Complain(statistics.Add(form->Texts()))) return;
  table->Rows()->RowInsertedAtTop();
  table->scrollToTop();
  Refresh();
  form->FocusEdit(0);
}

void StatisticsScreen::Edit() {
  const auto row = table->FirstSelectedRow();
  if (!row) return;
  form->StartEditing(statistics.Edit(*row));
  Refresh();
  form->FocusEdit(0);
}

void StatisticsScreen::Ok() {
  if (Complain(statistics.Ok(form->Texts()))) return;
  table->Rows()->TextsChanged();
  form->PutCountBack();
  EndEditing();
}

void StatisticsScreen::Cancel() {
  statistics.Cancel();
  form->PutTextsBack();
  EndEditing();
}

void StatisticsScreen::AskToCancel() {
  if (!form->IsChanged()) return Cancel();
  AskToDiscard(this, [this] { Cancel(); });
}

void StatisticsScreen::EndEditing() {
  Refresh();
  LeaveEdits();
}

void StatisticsScreen::LeaveEdits() {
  // An edit that gets its focus back from a box would show the keyboard again. While a row is
  // edited the list takes no focus.
  form->LastEdit()->clearFocus();
  table->setFocus();
  HideKeyboard();
}

void StatisticsScreen::Delete() {
  LeaveEdits();
  const auto row = table->FirstSelectedRow();
  if (!row) return ShowErrorBox(this, std::wstring(DataList::kNothingSelected));
  AskYesNo(this, std::wstring(DataList::kDeleteQuestion), [this, row] { DeleteRow(*row); });
}

void StatisticsScreen::DeleteRow(std::size_t row) {
  statistics.Delete(row);
  table->Rows()->RowRemoved(static_cast<int>(row));
  statistics.SelectionChanged(table->FirstSelectedRow().has_value());
  Refresh();
}

void StatisticsScreen::Clear() {
  LeaveEdits();
  AskYesNo(this, std::wstring(DataList::kClearQuestion), [this] {
    statistics.Clear();
    table->Rows()->RowsReplaced();
    Refresh();
  });
}

void StatisticsScreen::Sort(int column) {
  if (!statistics.List().Controls().list) return;
  auto sorted = RunBeside(QStringLiteral("Sorting..."), [&](const ProgressWatcher& watcher) {
    auto rows = statistics.List().Sorted(static_cast<std::size_t>(column), watcher);
    // Without an order and not stopped, there was not enough room.
    if (!rows && watcher(0.0)) throw std::bad_alloc();
    return rows;
  });
  if (sorted) {
    statistics.TakeSorted(*std::move(sorted));
    table->Rows()->TextsChanged();
  }
  Refresh();
}

void StatisticsScreen::PrepareToLeave(const std::function<void()>& leave) {
  AskToSaveThen([this, leave] {
    leavesAgreed = true;
    leave();
  });
}

void StatisticsScreen::AskToSaveThen(std::function<void()> next) {
  if (!statistics.List().AsksToSave()) return next();
  AskEitherWay(this, std::wstring(DataList::kSaveQuestion),
               [this, next = std::move(next)](bool save) { save ? SaveThen(next) : next(); });
}

void StatisticsScreen::SaveThen(std::function<void()> next) {
  LeaveEdits();
  // A name stays as it was typed: no suffix is added.
  const file_dialogs::SaveOffer offer{
      QStringLiteral("Save Data"), fileName, {{QString::fromLatin1(kFileFilter), {}}}};
  file_dialogs::AskForFileToSave(this, offer,
                                 [this, next = std::move(next)](const file_dialogs::Answer& path) {
                                   if (path) SaveTo(*path, next);
                                 });
}

void StatisticsScreen::SaveTo(const QString& path, const std::function<void()>& next) {
  const FileOutcome outcome = RunWithProgress(this, QStringLiteral("Saving..."), [&](auto watcher) {
    return SaveDataFile(path, statistics.List().Rows(), watcher);
  });
  fileName = outcome.end == FileEnd::Done ? QString::fromLatin1(kUsualFileName)
                                          : QFileInfo(path).fileName();
  if (outcome.end == FileEnd::Failed) file_dialogs::ShowFileError(this, path, outcome.reason);
  // The rows are still to be saved: what was to come next could lose them.
  if (outcome.end != FileEnd::Done) return;
  statistics.Saved();
  next();
}

void StatisticsScreen::Load() {
  LeaveEdits();
  AskToSaveThen([this] {
    file_dialogs::AskForFileToOpen(this, QStringLiteral("Load Data"),
                                   QString::fromLatin1(kFileFilter),
                                   [this](const file_dialogs::Answer& path) {
                                     if (path) LoadFrom(*path);
                                   });
  });
}

void StatisticsScreen::LoadFrom(const QString& path) {
  const std::size_t columns = statistics.List().Columns().size();
  DataSet loaded{PackedRows(columns)};
  const FileOutcome outcome =
      RunWithProgress(this, QStringLiteral("Loading..."), [&](auto watcher) {
        return LoadDataFile(path, columns, DataTableView::kMostRows, watcher, loaded);
      });
  if (outcome.end == FileEnd::Failed) file_dialogs::ShowFileError(this, path, outcome.reason);
  if (outcome.end != FileEnd::Done) return;
  statistics.Load(std::move(loaded));
  ShowNewRows();
}

void StatisticsScreen::ShowNewRows() {
  // What is typed meanwhile is for the list when it is whole.
  table->Rows()->RowsReplaced(
      [] { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); });
  statistics.SelectionChanged(false);
  Refresh();
}

void StatisticsScreen::Restore() {
  LeaveEdits();
  AskToSaveThen([this] { RestoreOffered(); });
}

void StatisticsScreen::RestoreOffered() {
  const QString path = std::exchange(offered, std::nullopt).value_or(QString());
  DataSet kept{PackedRows(statistics.List().Columns().size())};
  const FileOutcome outcome =
      RunWithProgress(this, QStringLiteral("Loading..."),
                      [&](auto watcher) { return keptFiles.Read(path, watcher, kept); });
  if (outcome.end == FileEnd::Done) {
    restored = path;
    statistics.Restore(std::move(kept));
    return ShowNewRows();
  }
  offered = keptFiles.Latest();
  Refresh();
  if (outcome.end == FileEnd::Failed) file_dialogs::ShowFileError(this, path, outcome.reason);
}

void StatisticsScreen::Discard() {
  LeaveEdits();
  AskYesNo(this, std::wstring(kDiscardQuestion), [this] {
    QFile::remove(offered.value_or(QString()));
    offered = keptFiles.Latest();
    Refresh();
  });
}

void StatisticsScreen::ShowResult(std::wstring_view caption) {
  const EntryTexts texts = form->Texts();
  const auto fault = RunBeside(QStringLiteral("Computing..."), [&](const ProgressWatcher& watcher) {
    return statistics.ShowResult(caption, texts, watcher);
  });
  if (!fault || Complain(*fault)) return;
  Refresh();
}

void StatisticsScreen::OpenMemoryMenu() {
  ShowMemoryMenu(resultKeys, resultKeys->Button(L"MEM")->geometry().topLeft(), PopupSide::Right,
                 statistics.MemoryCommands(),
                 {{MemoryCommand::RecallVariable, [this] { RecallVariable(); }},
                  {MemoryCommand::StoreVariable, [this] { StoreVariable(); }}});
}

void StatisticsScreen::RecallVariable() {
  auto* const dialog = new MemoryVariableDialog(store, this);
  connect(dialog, &MemoryVariableDialog::Recalled, this, [this](int index) {
    form->ReplaceLastText(FromWide(statistics.RecallText(MemoryVariables(store).Text(index))));
  });
  OpenDialog(dialog);
}

void StatisticsScreen::StoreVariable() {
  OpenDialog(new MemoryVariableDialog(store, statistics.MemoryVariableText(), this));
}

void StatisticsScreen::Configure() {
  auto* const dialog =
      new DisplayFormattingDialog(statistics.displayType, statistics.precision, this);
  connect(dialog, &QDialog::accepted, this, [this, dialog] {
    statistics.SetDisplay(dialog->displayType, dialog->decimalPlaces);
    Refresh();
  });
  OpenDialog(dialog);
}

void StatisticsScreen::OpenDialog(QDialog* dialog) {
  connect(dialog, &QDialog::finished, form, &DataEntryForm::FocusLastEdit);
  dialog->open();
}

void StatisticsScreen::RunEditCommand(EditCommand command) {
  EntryEdit* const edit = form->LastEdit();
  edit->Resume();
  switch (command) {
    case EditCommand::Cut:
      edit->cut();
      break;
    case EditCommand::Copy:
      edit->copy();
      break;
    case EditCommand::Paste:
      edit->paste();
      break;
  }
}

}  // namespace vexa
