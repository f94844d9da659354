#include "stats/EntryEdit.h"

namespace vexa {

void EntryEdit::Resume() {
  if (hasFocus()) return;
  setFocus();
  if (keptStart >= 0) setSelection(keptStart, keptLength);
}

void EntryEdit::focusOutEvent(QFocusEvent* event) {
  keptStart = selectionStart();
  keptLength = selectionLength();
  QLineEdit::focusOutEvent(event);
}

}  // namespace vexa
