#pragma once

#include <QAbstractTableModel>
#include <functional>

#include "stats/DataList.h"

namespace vexa {

/// The data list for a table view. The rows change first; then the model is told what happened to
/// them.
class DataTableModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  /// `shownList` must outlive the model.
  DataTableModel(const DataList& shownList, QObject* parent);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role = Qt::DisplayRole) const override;

  void RowInsertedAtTop();
  void RowRemoved(int row);
  /// Rows have other texts; as many are there as before.
  void TextsChanged();
  /// All rows are others. A view takes millions of rows in pieces, so that no piece takes longer
  /// than a person notices; `between` runs between two pieces.
  void RowsReplaced(const std::function<void()>& between = [] {});

 private:
  const DataList& list;
  /// The rows that the views know of.
  int rows = 0;
};

}  // namespace vexa
