#include "display/DisplayFormattingDialog.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

#include "display/WideText.h"
#include "toolkit/KeyboardOnFocus.h"
#include "toolkit/LimitLength.h"
#include "toolkit/MessageBox.h"
#include "toolkit/NumberBox.h"
#include "toolkit/Theme.h"
#include "toolkit/TouchSize.h"

namespace vexa {

DisplayFormattingDialog::DisplayFormattingDialog(DisplayType type, int decimals, QWidget* parent)
    : Dialog(QStringLiteral("DisplayFormatting"), parent),
      displayType(type),
      decimalPlaces(decimals),
      choices(new QButtonGroup(this)) {
  QLabel* const heading = AddLabel(L"Display Formatting");
  QFont bold;
  bold.setBold(true);
  heading->setFont(bold);
  theme::ShowOnLightBlue(heading);
  BuildChoices();
  decimalsBox = new QLineEdit(QString::number(decimals), this);
  decimalsBox->setMinimumHeight(kTouchHeight);
  LimitLength(decimalsBox, kNumberLength);
  new KeyboardOnFocus(decimalsBox);
  theme::KeepReadable(decimalsBox);
  theme::ShowOnLightBlue(AddFieldRow(L"Number of decimal places", decimalsBox));
  QHBoxLayout* const row = AddButtonRow();
  SetDefault(AddButton(row, L"OK", this, &DisplayFormattingDialog::accept));
  AddButton(row, L"Cancel", this, &DisplayFormattingDialog::reject);
  connect(choices, &QButtonGroup::idToggled, this, &DisplayFormattingDialog::EnableDecimals);
  EnableDecimals();
}

void DisplayFormattingDialog::BuildChoices() {
  auto* const rows = new QVBoxLayout;
  rows->setSpacing(0);
  Content()->addLayout(rows);
  for (const DisplayChoice& choice : kDisplayChoices) {
    auto* const button = new QRadioButton(FromWide(choice.caption), this);
    button->setObjectName(FromWide(choice.caption));
    button->setMinimumHeight(kTouchHeight);
    button->setChecked(choice.type == displayType);
    choices->addButton(button, static_cast<int>(choice.type));
    rows->addWidget(button);
  }
  // The choice in force is where keys begin; without one, the first.
  QAbstractButton* const chosen = choices->checkedButton();
  (chosen ? chosen : choices->buttons().first())->setFocus();
}

DisplayType DisplayFormattingDialog::ChosenType() const {
  const int chosen = choices->checkedId();
  return chosen < 0 ? displayType : static_cast<DisplayType>(chosen);
}

void DisplayFormattingDialog::EnableDecimals() {
  decimalsBox->setEnabled(HasDecimalPlaces(ChosenType()));
}

void DisplayFormattingDialog::accept() {
  const std::wstring sentence =
      ReadDecimalPlaces(decimalsBox->text().toStdWString(), decimalPlaces);
  if (sentence.empty()) {
    displayType = ChosenType();
    Dialog::accept();
    return;
  }
  decimalsBox->setText(QString::number(decimalPlaces));
  // A stored number out of range is refused in the disabled box too; the next "OK" takes the 7.
  ShowErrorBox(this, sentence, [this] {
    decimalsBox->setFocus();
    decimalsBox->selectAll();
  });
}

}  // namespace vexa
