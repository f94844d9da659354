#include "stats/KeptRowsOffer.h"

#include <QHBoxLayout>
#include <QLabel>

#include "toolkit/KeyButton.h"
#include "toolkit/TouchSize.h"

namespace vexa {
namespace {

constexpr int kGap = 4;

constexpr Key kRestore{.caption = L"Restore",
                       .role = KeyRole::Command,
                       .row = 0,
                       .column = 0,
                       .help = L"Show the rows that were not saved"};
constexpr Key kDiscard{.caption = L"Discard",
                       .role = KeyRole::Editing,
                       .row = 0,
                       .column = 1,
                       .help = L"Delete the rows that were not saved"};

KeyButton* NewButton(const Key& key, QWidget* parent) {
  auto* const button = new KeyButton(key, parent);
  button->setFixedHeight(kTouchHeight);
  return button;
}

}  // namespace

KeptRowsOffer::KeptRowsOffer(QWidget* parent) : QWidget(parent) {
  auto* const text = new QLabel(QStringLiteral("Unsaved rows of the last time"), this);
  text->setObjectName(QStringLiteral("Offer"));
  text->setWordWrap(true);
  auto* const restore = NewButton(kRestore, this);
  auto* const discard = NewButton(kDiscard, this);
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kGap);
  row->addWidget(text, 2);
  row->addWidget(restore, 1);
  row->addWidget(discard, 1);
  connect(restore, &KeyButton::clicked, this, &KeptRowsOffer::RestoreAsked);
  connect(discard, &KeyButton::clicked, this, &KeptRowsOffer::DiscardAsked);
}

}  // namespace vexa
