#pragma once

#include <QTableView>
#include <limits>
#include <optional>

#include "stats/DataList.h"
#include "stats/DataTableModel.h"
#include "toolkit/TouchSize.h"

namespace vexa {

/// The data list on the screen: whole rows are selected, a click on a heading asks for sorting, the
/// usual keys of a list work. It asks; the screen acts.
class DataTableView : public QTableView {
  Q_OBJECT

 public:
  /// Rows that can be shown: the height of all of them is counted in pixels of 32 bits.
  static constexpr std::size_t kMostRows = std::numeric_limits<int>::max() / kTouchHeight;

  /// `shownList` must outlive the view.
  DataTableView(const DataList& shownList, QWidget* parent);

  DataTableModel* Rows() const { return rows; }
  /// The topmost selected row; none: nothing is selected.
  std::optional<std::size_t> FirstSelectedRow() const;
  /// Shows the list's sort mark in the headings.
  void ShowSortMark();

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  /// Rows were selected or not any more.
  void SelectedRowsChanged();
  void SortAsked(int column);
  /// The key that deletes was pressed.
  void DeleteAsked();
  /// A key that edits was pressed, or a row was clicked twice.
  void EditAsked();
  /// The start of a number was typed.
  void NumberTyped(const QString& text);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  /// Finds nothing: the rows are not to be looked through for each key, however many there are.
  void keyboardSearch(const QString&) override {}
  /// Home and End go to the first and the last row.
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  void resizeEvent(QResizeEvent* event) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

 private:
  void FitColumns();

  const DataList& list;
  DataTableModel* rows;
};

}  // namespace vexa
