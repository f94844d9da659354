#include "toolkit/TouchList.h"

#include "toolkit/TouchSize.h"

namespace vexa {

TouchList::TouchList(QWidget* parent) : QListWidget(parent) { setUniformItemSizes(true); }

void TouchList::AddLine(const QString& text) {
  auto* const line = new QListWidgetItem(text, this);
  line->setSizeHint(QSize(0, kTouchHeight));
}

}  // namespace vexa
