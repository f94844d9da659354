#pragma once

#include "macros/MacroTable.h"
#include "toolkit/Dialog.h"

class QPlainTextEdit;

namespace vexa {

class TouchList;

/// Picks a macro to insert into an expression.
class MacroListDialog : public Dialog {
  Q_OBJECT

 public:
  MacroListDialog(SettingsStore& store, QWidget* parent);

 signals:
  /// Macro `index` was picked.
  void Picked(int index);

 private:
  void ShowFormula();
  void Pick();

  MacroTable macros;
  TouchList* list;
  QPlainTextEdit* formula;
};

}  // namespace vexa
