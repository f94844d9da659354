#include "stats/DataTableView.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <algorithm>

#include "toolkit/Theme.h"

namespace vexa {
namespace {

/// Rows that the list has at least, and asks for.
constexpr int kLeastRows = 1;
constexpr int kWantedRows = 4;

/// Where columns are narrow, texts shrink down to this, in pixels, so that such a value fits.
constexpr int kSmallestText = 10;
const QString kWideValue = QStringLiteral("-1.23457e+013");
/// What the style leaves free beside a cell's text.
constexpr int kCellPadding = 8;

bool IsEditKey(int key) {
  return key == Qt::Key_F2 || key == Qt::Key_Return || key == Qt::Key_Enter;
}

/// Whether the key types a character with which a number may start.
bool StartsNumber(const QKeyEvent& event) {
  static const QString kStarts = QStringLiteral("0123456789.+-\u2212");
  const auto modifiers = event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
  return modifiers == Qt::NoModifier && event.text().size() == 1 &&
         kStarts.contains(event.text().front());
}

}  // namespace

DataTableView::DataTableView(const DataList& shownList, QWidget* parent)
    : QTableView(parent), list(shownList), rows(new DataTableModel(shownList, this)) {
  setModel(rows);
  setObjectName(QStringLiteral("Data"));
  setAccessibleName(QStringLiteral("Data"));
  setSelectionBehavior(SelectRows);
  setSelectionMode(ExtendedSelection);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setAlternatingRowColors(true);
  setShowGrid(false);
  setWordWrap(false);
  setCornerButtonEnabled(false);
  setVerticalScrollMode(ScrollPerPixel);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  // The rows are read also while one is edited.
  theme::KeepReadable(this);

  verticalHeader()->hide();
  // Rows of one height are laid out at once, however many there are.
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(kTouchHeight);
  QHeaderView* const headings = horizontalHeader();
  headings->setFixedHeight(kTouchHeight);
  headings->setSectionResizeMode(QHeaderView::Fixed);
  headings->setHighlightSections(false);
  headings->setSectionsClickable(true);
  headings->setSortIndicatorShown(true);
  // The headings would look through all rows to see whether a column is selected whole.
  headings->setSelectionModel(new QItemSelectionModel(rows, this));
  ShowSortMark();
  connect(headings, &QHeaderView::sectionClicked, this, &DataTableView::SortAsked);
  connect(this, &QTableView::doubleClicked, this, &DataTableView::EditAsked);
}

std::optional<std::size_t> DataTableView::FirstSelectedRow() const {
  const QItemSelection selection = selectionModel()->selection();
  if (selection.isEmpty()) return std::nullopt;
  const auto first = std::ranges::min_element(selection, {}, &QItemSelectionRange::top);
  return static_cast<std::size_t>(first->top());
}

void DataTableView::ShowSortMark() {
  const int column = list.sortMark ? static_cast<int>(list.sortMark->column) : -1;
  const bool descending = list.sortMark && list.sortMark->direction == SortDirection::Descending;
  horizontalHeader()->setSortIndicator(column,
                                       descending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

QSize DataTableView::sizeHint() const {
  return {QTableView::sizeHint().width(), (kWantedRows + 1) * kTouchHeight + 2 * frameWidth()};
}

QSize DataTableView::minimumSizeHint() const {
  return {0, (kLeastRows + 1) * kTouchHeight + 2 * frameWidth()};
}

void DataTableView::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Delete)) {
    emit DeleteAsked();
  } else if (IsEditKey(event->key())) {
    // A held key that has just ended an editing does not start it again.
    if (event->isAutoRepeat()) return;
    // The row that the keys have come to is as good as selected.
    if (!FirstSelectedRow() && currentIndex().isValid()) selectRow(currentIndex().row());
    emit EditAsked();
  } else if (StartsNumber(*event)) {
    emit NumberTyped(event->text());
  } else {
    QTableView::keyPressEvent(event);
  }
}

QModelIndex DataTableView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  if (action == MoveHome) return rows->index(0, 0);
  if (action == MoveEnd) return rows->index(rows->rowCount() - 1, 0);
  return QTableView::moveCursor(action, modifiers);
}

void DataTableView::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  FitColumns();
}

void DataTableView::selectionChanged(const QItemSelection& selected,
                                     const QItemSelection& deselected) {
  QTableView::selectionChanged(selected, deselected);
  emit SelectedRowsChanged();
}

void DataTableView::FitColumns() {
  int designed = 0;
  for (const ListColumn& column : list.Columns()) designed += column.width;
  const int width = viewport()->width();
  // Columns share the room as on the smallest layout; the last one gets what rounding leaves.
  int left = 0;
  int designedLeft = 0;
  for (std::size_t n = 0; n < list.Columns().size(); ++n) {
    designedLeft += list.Columns()[n].width;
    const int right = width * designedLeft / designed;
    setColumnWidth(static_cast<int>(n), right - left);
    left = right;
  }
  QFont text = parentWidget()->font();
  int pixels = QFontInfo(text).pixelSize();
  const auto fits = [&] {
    return QFontMetrics(text).horizontalAdvance(kWideValue) + kCellPadding <= columnWidth(0);
  };
  while (pixels > kSmallestText && !fits()) text.setPixelSize(--pixels);
  setFont(text);
}

}  // namespace vexa
