#include "macros/MacroKey.h"

#include <utility>

#include "macros/MacroListDialog.h"
#include "macros/MacroTable.h"
#include "toolkit/EditLine.h"
#include "toolkit/MessageBox.h"

namespace vexa {

QDialog* NewMacroPicker(SettingsStore& store, EditLine* line, QWidget* screen,
                        std::function<void()> editMacros) {
  MacroTable macros(store);
  macros.LoadMacroTable();
  if (macros.Count() == 0) {
    ShowErrorBox(screen, std::wstring(kNoMacro), std::move(editMacros));
    return nullptr;
  }
  auto* const dialog = new MacroListDialog(store, screen);
  QObject::connect(dialog, &MacroListDialog::Picked, line, [line, macros](int index) {
    const MacroCall call = CallOf(macros.At(index));
    line->ApplyOrTell(WrapSelection(line->State(), call.prefix, call.suffix));
  });
  return dialog;
}

}  // namespace vexa
