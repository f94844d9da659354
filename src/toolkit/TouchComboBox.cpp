#include "toolkit/TouchComboBox.h"

#include <QKeyEvent>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QWheelEvent>

#include "toolkit/SearchedList.h"
#include "toolkit/TouchSize.h"

namespace vexa {
namespace {

/// The style's own room around the text.
constexpr int kTextMargin = 4;

}  // namespace

TouchComboBox::TouchComboBox(QWidget* parent) : QComboBox(parent), list(new SearchedList(this)) {
  setView(list);
  setMinimumHeight(kTouchHeight);
  // By itself the wheel would take the focus first.
  setFocusPolicy(Qt::StrongFocus);
  // Long entries never make a dialog wider than a small screen.
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(1);
}

void TouchComboBox::keyPressEvent(QKeyEvent* event) {
  chosenInOpenList = false;
  // A blank opens the list, unless it stands between the words that are searched.
  if (event->key() == Qt::Key_Space && list->IsSearching()) {
    list->setCurrentIndex(model()->index(currentIndex(), modelColumn()));
    list->keyboardSearch(event->text());
    const int found = list->currentIndex().row();
    if (found == currentIndex()) return;
    setCurrentIndex(found);
    emit activated(found);
    return;
  }
  QComboBox::keyPressEvent(event);
}

void TouchComboBox::wheelEvent(QWheelEvent* event) {
  chosenInOpenList = false;
  if (!hasFocus()) return event->ignore();
  QComboBox::wheelEvent(event);
}

void TouchComboBox::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  painter.setPen(palette().color(QPalette::Text));
  QStyleOptionComboBox option;
  initStyleOption(&option);
  const QRect room =
      style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
  option.currentText =
      option.fontMetrics.elidedText(option.currentText, Qt::ElideRight, room.width() - kTextMargin);
  painter.drawComplexControl(QStyle::CC_ComboBox, option);
  painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void TouchComboBox::showPopup() {
  emit Opening();
  QComboBox::showPopup();
}

void TouchComboBox::hidePopup() {
  QComboBox::hidePopup();
  chosenInOpenList = true;
}

}  // namespace vexa
