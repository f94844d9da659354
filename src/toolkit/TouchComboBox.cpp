#include "toolkit/TouchComboBox.h"

#include "toolkit/TouchSize.h"

namespace vexa {

TouchComboBox::TouchComboBox(QWidget* parent) : QComboBox(parent) {
  setMinimumHeight(kTouchHeight);
  // Long entries never make a dialog wider than a small screen.
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(1);
}

void TouchComboBox::AddLine(const QString& text) {
  addItem(text);
  setItemData(count() - 1, QSize(0, kTouchHeight), Qt::SizeHintRole);
}

void TouchComboBox::showPopup() {
  emit Opening();
  QComboBox::showPopup();
}

}  // namespace vexa
