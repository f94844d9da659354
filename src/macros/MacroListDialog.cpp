#include "macros/MacroListDialog.h"

#include <QHBoxLayout>
#include <QPlainTextEdit>

#include "display/WideText.h"
#include "toolkit/TouchList.h"

namespace vexa {
namespace {

constexpr int kOpeningHeight = 380;
constexpr int kFormulaHeight = 70;

}  // namespace

MacroListDialog::MacroListDialog(SettingsStore& store, QWidget* parent)
    : Dialog(QStringLiteral("MacroList"), parent),
      macros(store),
      list(new TouchList(this)),
      formula(new QPlainTextEdit(this)) {
  macros.LoadMacroTable();
  AddField(L"Macro List", list, 1);
  for (int i = 0; i < macros.Count(); ++i) list->AddLine(FromWide(MacroLine(macros.At(i))));
  formula->setObjectName(QStringLiteral("Macro Expression"));
  formula->setAccessibleName(QStringLiteral("Macro Expression"));
  formula->setReadOnly(true);
  formula->setTabChangesFocus(true);
  // The text wraps: no bar for the part of a pixel, which would take a row.
  formula->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  formula->setFixedHeight(kFormulaHeight);
  Content()->addWidget(formula);
  QHBoxLayout* const row = AddButtonRow();
  AddButton(row, L"OK", this, &MacroListDialog::Pick);
  SetDefault(AddButton(row, L"Cancel", this, &MacroListDialog::reject));
  connect(list, &QListWidget::itemSelectionChanged, this, &MacroListDialog::ShowFormula);
  connect(list, &QListWidget::itemDoubleClicked, this, &MacroListDialog::Pick);
  SetOpeningHeight(kOpeningHeight);
  list->SelectRow(0);
  list->setFocus();
}

void MacroListDialog::ShowFormula() {
  const int index = list->SelectedRow();
  formula->setPlainText(index < 0 ? QString() : FromWide(macros.ReadFormula(index)));
}

void MacroListDialog::Pick() {
  if (list->SelectedRow() >= 0) emit Picked(list->SelectedRow());
  accept();
}

}  // namespace vexa
