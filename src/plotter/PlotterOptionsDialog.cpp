#include "plotter/PlotterOptionsDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "plotter/RangeEdit.h"
#include "plotter/RangeForm.h"
#include "toolkit/MessageBox.h"
#include "toolkit/Theme.h"
#include "toolkit/TouchSize.h"

namespace vexa {

PlotterOptionsDialog::PlotterOptionsDialog(const PlotRanges& shown, const PlotOptions& chosen,
                                           QWidget* parent)
    : Dialog(QStringLiteral("PlotterOptions"), parent),
      ranges(shown),
      options(chosen),
      form(new RangeForm(kTouchHeight, this)) {
  theme::ShowOnLightBlue(AddLabel(L"Plotter Options"));
  form->SetTexts(TextsOf(ranges));
  form->SetOptions(options);
  Content()->addWidget(form);
  QHBoxLayout* const row = AddButtonRow();
  SetDefault(AddButton(row, L"OK", this, &PlotterOptionsDialog::accept));
  AddButton(row, L"Cancel", this, &PlotterOptionsDialog::reject);
}

void PlotterOptionsDialog::accept() {
  const RangeReading reading = ReadOrderedRanges(form->Texts());
  if (!reading.sentence.empty()) {
    RangeEdit* const box = form->Box(reading.boxAtFault.value_or(RangeBox::XMin));
    ShowErrorBox(this, reading.sentence, [box] { box->setFocus(); });
    return;
  }
  ranges = reading.ranges;
  options = form->Options();
  Dialog::accept();
}

}  // namespace vexa
