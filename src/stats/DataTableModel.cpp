#include "stats/DataTableModel.h"

#include <algorithm>

#include "display/WideText.h"

namespace vexa {
namespace {

/// Characters of a cell that are shown; a text may be of any length.
constexpr std::size_t kMostShown = 300;
/// Rows that a view takes within a few frames.
constexpr int kMostAtOnce = 2'000'000;

QString CellText(std::string_view cell) {
  const std::string_view shown = cell.substr(0, kMostShown);
  return QString::fromLatin1(shown.data(), static_cast<qsizetype>(shown.size()));
}

}  // namespace

DataTableModel::DataTableModel(const DataList& shownList, QObject* parent)
    : QAbstractTableModel(parent), list(shownList) {}

int DataTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows;
}

int DataTableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(list.Columns().size());
}

QVariant DataTableModel::data(const QModelIndex& index, int role) const {
  // A view may ask for rows that are gone, until it is told.
  if (index.row() < 0 || static_cast<std::size_t>(index.row()) >= list.RowCount()) return {};
  switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
      return CellText(list.Cell(static_cast<std::size_t>(index.row()),
                                static_cast<std::size_t>(index.column())));
    case Qt::TextAlignmentRole:
      return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    default:
      return {};
  }
}

QVariant DataTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return FromWide(list.Columns()[static_cast<std::size_t>(section)].caption);
}

void DataTableModel::RowInsertedAtTop() {
  beginInsertRows({}, 0, 0);
  ++rows;
  endInsertRows();
}

void DataTableModel::RowRemoved(int row) {
  beginRemoveRows({}, row, row);
  --rows;
  endRemoveRows();
}

void DataTableModel::TextsChanged() {
  if (rows > 0) emit dataChanged(index(0, 0), index(rows - 1, columnCount() - 1));
}

void DataTableModel::RowsReplaced(const std::function<void()>& between) {
  const int count = static_cast<int>(list.RowCount());
  beginResetModel();
  rows = std::min(count, kMostAtOnce);
  endResetModel();
  while (rows < count) {
    between();
    const int more = std::min(count - rows, kMostAtOnce);
    beginInsertRows({}, rows, rows + more - 1);
    rows += more;
    endInsertRows();
  }
}

}  // namespace vexa
