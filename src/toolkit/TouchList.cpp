#include "toolkit/TouchList.h"

#include <QFocusEvent>

#include "toolkit/TouchSize.h"

namespace vexa {

TouchList::TouchList(QWidget* parent) : QListWidget(parent) {
  setUniformItemSizes(true);
  setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
}

void TouchList::AddLine(const QString& text) {
  auto* const line = new QListWidgetItem(text, this);
  line->setSizeHint(QSize(0, kTouchHeight));
}

int TouchList::SelectedRow() const {
  const QList<QListWidgetItem*> selected = selectedItems();
  return selected.isEmpty() ? -1 : row(selected.first());
}

void TouchList::SelectRow(int row) {
  if (row < 0) clearSelection();
  setCurrentRow(row);
}

void TouchList::focusInEvent(QFocusEvent* event) {
  // Focus for any other reason than the mouse would make the first row current, which looks as if
  // it were selected.
  QFocusEvent withoutChoice(event->type(), Qt::MouseFocusReason);
  QListWidget::focusInEvent(&withoutChoice);
}

}  // namespace vexa
