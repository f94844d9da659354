#include "converter/UserConversionDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <map>

#include "display/WideText.h"
#include "macros/MemoryVariableDialog.h"
#include "toolkit/KeyboardOnFocus.h"
#include "toolkit/MessageBox.h"
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
  ShowViewState();
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
  }
  AddFieldRow(L"Rate", rate);
  for (QLineEdit* const box : {firstName, secondName, rate}) {
    box->setMinimumHeight(kTouchHeight);
    new KeyboardOnFocus(box);
  }
}

void UserConversionDialog::ShowViewState() {
  std::vector<std::wstring> lines;
  lines.reserve(static_cast<std::size_t>(editor.Conversions().Count()));
  for (int i = 0; i < editor.Conversions().Count(); ++i) {
    lines.push_back(editor.Conversions().At(i).name);
  }
  ShowLines(lines, editor.Selected());
  Refresh();
  FocusList();
}

void UserConversionDialog::Refresh() {
  ShowView(editor.View());
  const ConversionBoxes& boxes = editor.Boxes();
  firstName->setText(FromWide(boxes.firstName));
  secondName->setText(FromWide(boxes.secondName));
  rate->setText(FromWide(boxes.rate));
}

void UserConversionDialog::Focus(ConversionBox box) {
  const std::map<ConversionBox, QLineEdit*> boxes{{ConversionBox::FirstName, firstName},
                                                  {ConversionBox::SecondName, secondName},
                                                  {ConversionBox::Rate, rate}};
  const auto found = boxes.find(box);
  if (found == boxes.end()) return;
  found->second->setFocus();
  found->second->selectAll();
}

void UserConversionDialog::New() {
  const ConversionBox box = editor.New();
  Refresh();
  Focus(box);
}

void UserConversionDialog::Edit() {
  const ConversionBox box = editor.Edit();
  Refresh();
  Focus(box);
}

ConversionBoxes UserConversionDialog::Typed() const {
  return {firstName->text().toStdWString(), secondName->text().toStdWString(),
          rate->text().toStdWString()};
}

bool UserConversionDialog::IsChanged() const {
  return Typed() != editor.Boxes();
}

void UserConversionDialog::Save() {
  const SaveOutcome outcome = editor.Save(Typed());
  if (!outcome.sentence.empty()) {
    ShowErrorBox(this, outcome.sentence, [this, box = outcome.focus] { Focus(box); });
    return;
  }
  ShowViewState();
}

void UserConversionDialog::Cancel() {
  editor.Cancel();
  ShowViewState();
}

void UserConversionDialog::Delete() {
  if (editor.Selected() < 0) return;
  AskYesNo(this, std::wstring(kDeleteConversionQuestion), [this] {
    editor.Delete();
    ShowViewState();
  });
}

void UserConversionDialog::RecallVariable() {
  auto* const dialog = new MemoryVariableDialog(store, this);
  connect(dialog, &MemoryVariableDialog::Recalled, this,
          [this](int index) { rate->setText(FromWide(MemoryVariables(store).Text(index))); });
  connect(dialog, &QDialog::finished, rate, qOverload<>(&QWidget::setFocus));
  dialog->open();
}

void UserConversionDialog::Select(int index) {
  editor.Select(index);
  Refresh();
}

}  // namespace vexa
