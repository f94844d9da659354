#include "toolkit/Key.h"

namespace vexa {

TextChange TypeKey(const EditText& edit, const KeyText& keyText) {
  const bool wraps = keyText.keepsSelection && edit.HasSelection();
  TextChange change =
      wraps ? WrapSelection(edit, keyText.prefix, keyText.suffix) : InsertText(edit, keyText.text);
  change.caret -= wraps ? keyText.wrappedCaretFromEnd : keyText.caretFromEnd;
  return change;
}

}  // namespace vexa
