#include "toolkit/TouchHeight.h"

#include <QWidget>

#include "toolkit/TouchSize.h"

namespace vexa {

void GrowToTouchHeight(QWidget* control, int leastHeight) {
  control->setMinimumHeight(leastHeight);
  control->setMaximumHeight(kTouchHeight);
  control->setSizePolicy(control->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
}

}  // namespace vexa
