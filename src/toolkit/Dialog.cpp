#include "toolkit/Dialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "display/SettingsLayout.h"
#include "display/WideText.h"
#include "toolkit/TouchSize.h"

namespace vexa {
namespace {

constexpr int kMargin = 8;
constexpr int kGap = 6;
/// Dialogs open as wide as the smallest layout of the screens, or wider where the desktop's font
/// asks for it.
constexpr int kWidth = 300;

}  // namespace

Dialog::Dialog(const QString& name, QWidget* parent)
    : QDialog(parent), content(new QVBoxLayout(this)) {
  setObjectName(name);
  setWindowTitle(FromWide(settings::kSettingsKey));
  setAttribute(Qt::WA_DeleteOnClose);
  content->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  content->setSpacing(kGap);
  resize(kWidth, 0);
}

QLabel* Dialog::AddLabel(std::wstring_view text) {
  auto* const label = new QLabel(FromWide(text), this);
  label->setTextFormat(Qt::PlainText);
  content->addWidget(label);
  return label;
}

QLabel* Dialog::AddField(std::wstring_view label, QWidget* field, int stretch) {
  QLabel* const fieldLabel = AddLabel(label);
  fieldLabel->setBuddy(field);
  field->setObjectName(FromWide(label));
  field->setAccessibleName(FromWide(label));
  content->addWidget(field, stretch);
  return fieldLabel;
}

QHBoxLayout* Dialog::AddButtonRow() {
  auto* const row = new QHBoxLayout;
  row->setSpacing(kGap);
  content->addLayout(row);
  return row;
}

QPushButton* Dialog::NewButton(QHBoxLayout* row, std::wstring_view caption) {
  auto* const button = new QPushButton(FromWide(caption), this);
  button->setObjectName(FromWide(caption));
  button->setAccessibleName(FromWide(caption));
  button->setMinimumHeight(kTouchHeight);
  button->setAutoDefault(false);
  row->addWidget(button);
  return button;
}

void Dialog::SetDefault(QPushButton* button) { button->setDefault(true); }

}  // namespace vexa
