#pragma once

class QWidget;

namespace vexa {

/// Makes `control` as high as there is room, from `leastHeight`, on a small display, to what a
/// finger hits.
void GrowToTouchHeight(QWidget* control, int leastHeight);

}  // namespace vexa
