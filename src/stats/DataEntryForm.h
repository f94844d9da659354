#pragma once

#include <QWidget>
#include <span>
#include <string_view>
#include <vector>

#include "stats/DataEntry.h"
#include "stats/StatisticsKeypad.h"

class QHBoxLayout;
class QLabel;
class QPushButton;

namespace vexa {

class EntryEdit;

/// The edits of a row, one for each column, with "Add" and the total below them, or "Ok" and
/// "Cancel" while a row is edited.
class DataEntryForm : public QWidget {
  Q_OBJECT

 public:
  DataEntryForm(std::span<const ListColumn> columns, QWidget* parent);

  EntryTexts Texts() const;
  /// Shows the texts of a row that is edited now, and remembers those that there were.
  void StartEditing(const EntryTexts& texts);
  /// Whether the edits hold anything else than when the editing started.
  bool IsChanged() const { return Texts() != startTexts; }
  /// The row was written: its count is not meant for the next row.
  void PutCountBack();
  /// The row was left as it is: the edits hold what they held before.
  void PutTextsBack() { SetTexts(formerTexts); }
  /// Whether one of the edits has the focus.
  bool HasFocusInEdit() const;
  /// The edit that had the focus last.
  EntryEdit* LastEdit() const { return lastEdit; }
  /// Gives the edit at `field` the focus, with its whole text selected.
  void FocusEdit(std::size_t field);
  void FocusLastEdit();
  /// Goes on with what was typed elsewhere: the first edit starts with `text`.
  void StartValue(const QString& text);
  /// Replaces the whole text of the edit that had the focus last, and gives it the focus.
  void ReplaceLastText(const QString& text);
  /// Shows what belongs to the state.
  void Refresh(const StatisticsKeypadState& state, std::int32_t total);
  /// The button with this caption, or null.
  QPushButton* Button(std::wstring_view caption) const;

 signals:
  void KeyPressed(std::wstring_view caption);

 private:
  void AddEdit(const ListColumn& column, bool isCount);
  void AddKey(const Key& key);
  void SetTexts(const EntryTexts& texts);
  void AddTotal();

  QHBoxLayout* editRow;
  QHBoxLayout* keyRow;
  std::vector<EntryEdit*> edits;
  std::vector<QPushButton*> buttons;
  EntryEdit* lastEdit = nullptr;
  EntryTexts formerTexts;
  EntryTexts startTexts;
  QWidget* totals = nullptr;
  QLabel* total = nullptr;
};

}  // namespace vexa
