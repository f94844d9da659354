#include "toolkit/ListEditorView.h"

namespace vexa {

ListEditorView ViewOfListEditor(bool editing, int count, int capacity) {
  const bool viewing = !editing;
  return {
      .listLabel = L"List(" + std::to_wstring(count) + L"/" + std::to_wstring(capacity) + L")",
      .listEnabled = viewing,
      .fieldsEnabled = editing,
      .closeShown = viewing,
      .newShown = viewing && count < capacity,
      .editShown = viewing && count > 0,
      .deleteShown = viewing && count > 0,
      .saveShown = editing,
      .cancelShown = editing,
      .memoryShown = editing,
  };
}

}  // namespace vexa
