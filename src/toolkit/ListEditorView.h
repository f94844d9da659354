#pragma once

#include <string>

namespace vexa {

/// What an editor of a list shows and enables: the list while viewing, the fields while editing.
struct ListEditorView {
  std::wstring listLabel;
  bool listEnabled;
  bool fieldsEnabled;
  bool closeShown;
  bool newShown;
  bool editShown;
  bool deleteShown;
  bool saveShown;
  bool cancelShown;
  bool memoryShown;
};

/// The view with `count` of at most `capacity` entries: List(2/60)
ListEditorView ViewOfListEditor(bool editing, int count, int capacity);

}  // namespace vexa
