#include "toolkit/ListEditor.h"

#include <algorithm>

namespace vexa {

void ListEditor::New() {
  editing = true;
  edited = -1;
}

void ListEditor::Edit() {
  if (selected < 0) return;
  editing = true;
  edited = selected;
}

void ListEditor::Delete() {
  if (selected < 0) return;
  Remove(selected);
  ShowSaved(std::min(selected, Count() - 1));
}

void ListEditor::Select(int index) {
  selected = index < Count() ? std::max(index, -1) : -1;
}

void ListEditor::ShowSaved(int index) {
  editing = false;
  Select(index);
}

}  // namespace vexa
