#include "converter/UserConversionDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "display/WideText.h"
#include "macros/MemoryVariableDialog.h"
#include "toolkit/KeyboardOnFocus.h"
#include "toolkit/LimitLength.h"
#include "toolkit/MessageBox.h"
#include "toolkit/NumberBox.h"
#include "toolkit/TouchSize.h"

namespace vexa {
namespace {

constexpr int kOpeningHeight = 460;

}  // namespace

UserConversionDialog::UserConversionDialog(SettingsStore& settingsStore, QWidget* parent)
    : ListEditorDialog(QStringLiteral("UserConversions"), parent),
      store(settingsStore),
      editor(settingsStore),
      firstName(new QLineEdit(this)),
      secondName(new QLineEdit(this)),
      rate(new QLineEdit(this)) {
  BuildFields();
  BuildList({firstName, secondName, rate});
  SetOpeningHeight(kOpeningHeight);
}

void UserConversionDialog::BuildFields() {
  AddLabel(L"Edit Unit Convert");
  auto* const names = new QHBoxLayout;
  names->addWidget(firstName);
  names->addWidget(new QLabel(QStringLiteral("->"), this));
  names->addWidget(secondName);
  Content()->addLayout(names);
  const struct {
    QLineEdit* box;
    QString name;
    QString hint;
  } unitBoxes[] = {
      {firstName, QStringLiteral("Input unit name"), QStringLiteral("From unit")},
      {secondName, QStringLiteral("Output unit name"), QStringLiteral("To unit")},
  };
  for (const auto& [box, name, hint] : unitBoxes) {
    box->setObjectName(name);
    box->setAccessibleName(name);
    box->setPlaceholderText(hint);
    LimitLength(box, UserConversionEditor::kUnitNameLength);
  }
  AddFieldRow(L"Rate", rate);
  LimitLength(rate, kNumberLength);
  for (QLineEdit* const box : {firstName, secondName, rate}) {
    box->setMinimumHeight(kTouchHeight);
    new KeyboardOnFocus(box);
  }
}

void UserConversionDialog::ShowFields() {
  const ConversionBoxes boxes = editor.ShownBoxes();
  firstName->setText(FromWide(boxes.firstName));
  secondName->setText(FromWide(boxes.secondName));
  rate->setText(FromWide(boxes.rate));
}

int UserConversionDialog::FirstField(bool isNew) const {
  return isNew ? UserConversionEditor::FirstName : UserConversionEditor::Rate;
}

ConversionBoxes UserConversionDialog::Typed() const {
  return {firstName->text().toStdWString(), secondName->text().toStdWString(),
          rate->text().toStdWString()};
}

void UserConversionDialog::RecallVariable() {
  auto* const dialog = new MemoryVariableDialog(store, this);
  connect(dialog, &MemoryVariableDialog::Recalled, this,
          [this](int index) { rate->setText(FromWide(MemoryVariables(store).Text(index))); });
  connect(dialog, &QDialog::finished, rate, qOverload<>(&QWidget::setFocus));
  dialog->open();
}

}  // namespace vexa
