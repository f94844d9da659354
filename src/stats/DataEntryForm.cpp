#include "stats/DataEntryForm.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

#include "display/WideText.h"
#include "stats/EntryEdit.h"
#include "stats/Statistics.h"
#include "toolkit/KeyButton.h"
#include "toolkit/KeyboardOnFocus.h"
#include "toolkit/LimitLength.h"
#include "toolkit/NumberBox.h"
#include "toolkit/TouchSize.h"

namespace vexa {
namespace {

constexpr int kGap = 4;
/// Shares of the row that edits of values and of counts take.
constexpr int kValueShare = 3;
constexpr int kCountShare = 2;
/// Narrow enough for three edits on the smallest layout.
constexpr int kLeastEditWidth = 36;

}  // namespace

DataEntryForm::DataEntryForm(std::span<const ListColumn> columns, QWidget* parent)
    : QWidget(parent), editRow(new QHBoxLayout), keyRow(new QHBoxLayout) {
  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(kGap);
  for (QHBoxLayout* const row : {editRow, keyRow}) {
    row->setSpacing(kGap);
    rows->addLayout(row);
  }
  for (const ListColumn& column : columns) AddEdit(column, &column == &columns.back());
  lastEdit = edits.front();
  // What is typed first takes the place of the 0.
  lastEdit->selectAll();
  setFocusProxy(lastEdit);
  for (const Key& key : EntryKeys()) AddKey(key);
  AddTotal();
}

void DataEntryForm::AddEdit(const ListColumn& column, bool isCount) {
  auto* const edit = new EntryEdit(this);
  LimitLength(edit, kNumberLength);
  const QString caption = FromWide(column.caption);
  auto* const label = new QLabel(caption, this);
  label->setBuddy(edit);
  edit->setObjectName(caption);
  edit->setAccessibleName(caption);
  edit->setText(FromWide(isCount ? Statistics::kFirstCount : Statistics::kFirstValue));
  edit->setMinimumSize(kLeastEditWidth, kTouchHeight);
  connect(new KeyboardOnFocus(edit), &KeyboardOnFocus::Asked, this, [this, edit](bool shown) {
    if (shown) lastEdit = edit;
  });
  editRow->addWidget(label);
  editRow->addWidget(edit, isCount ? kCountShare : kValueShare);
  edits.push_back(edit);
}

void DataEntryForm::AddKey(const Key& key) {
  auto* const button = new KeyButton(key, this);
  button->setFixedHeight(kTouchHeight);
  // A hidden key leaves its place to what is shown.
  button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  connect(button, &KeyButton::clicked, this, [this, &key] { emit KeyPressed(key.caption); });
  keyRow->addWidget(button, 1);
  buttons.push_back(button);
}

void DataEntryForm::AddTotal() {
  totals = new QWidget(this);
  total = new QLabel(totals);
  total->setObjectName(QStringLiteral("Total"));
  total->setTextFormat(Qt::PlainText);
  auto* const row = new QHBoxLayout(totals);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(0);
  row->addWidget(new QLabel(QStringLiteral("Total : "), totals));
  row->addWidget(total, 1);
  keyRow->addWidget(totals, 1);
}

EntryTexts DataEntryForm::Texts() const {
  EntryTexts texts;
  for (const EntryEdit* const edit : edits) texts.push_back(edit->text().toStdWString());
  return texts;
}

void DataEntryForm::SetTexts(const EntryTexts& texts) {
  for (std::size_t n = 0; n < edits.size(); ++n) edits[n]->setText(FromWide(texts[n]));
}

void DataEntryForm::StartEditing(const EntryTexts& texts) {
  formerTexts = Texts();
  SetTexts(texts);
  startTexts = Texts();
}

void DataEntryForm::PutCountBack() {
  edits.back()->setText(FromWide(formerTexts.back()));
}

bool DataEntryForm::HasFocusInEdit() const {
  return std::ranges::any_of(edits, &EntryEdit::hasFocus);
}

void DataEntryForm::FocusEdit(std::size_t field) {
  edits[field]->setFocus();
  edits[field]->selectAll();
}

void DataEntryForm::FocusLastEdit() {
  lastEdit->setFocus();
  lastEdit->selectAll();
}

void DataEntryForm::StartValue(const QString& text) {
  FocusEdit(0);
  edits.front()->insert(text);
}

void DataEntryForm::ReplaceLastText(const QString& text) {
  lastEdit->setText(text);
  FocusLastEdit();
}

void DataEntryForm::Refresh(const StatisticsKeypadState& state, std::int32_t totalCount) {
  for (std::size_t n = 0; n < buttons.size(); ++n) {
    buttons[n]->setVisible(IsKeyShown(EntryKeys()[n], state));
  }
  totals->setVisible(!state.editing);
  total->setText(QString::number(totalCount));
}

QPushButton* DataEntryForm::Button(std::wstring_view caption) const {
  for (std::size_t n = 0; n < buttons.size(); ++n) {
    if (EntryKeys()[n].caption == caption) return buttons[n];
  }
  return nullptr;
}

}  // namespace vexa
