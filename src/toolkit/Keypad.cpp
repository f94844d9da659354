#include "toolkit/Keypad.h"

#include <QGridLayout>

#include "toolkit/KeyButton.h"

namespace vexa {
namespace {

constexpr int kGap = 3;

}  // namespace

Keypad::Keypad(std::span<const Key> keyTable, QWidget* parent)
    : QWidget(parent), keys(keyTable), grid(new QGridLayout(this)) {
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(kGap);
  buttons.reserve(keys.size());
  for (const Key& key : keys) {
    const int index = static_cast<int>(buttons.size());
    auto* button = new KeyButton(key, this);
    connect(button, &KeyButton::clicked, this, [this, index] { emit KeyPressed(index); });
    AddCell(button, key);
    buttons.push_back(button);
  }
}

void Keypad::AddCell(QWidget* button, const Key& key) {
  grid->addWidget(button, key.row, key.column, 1, key.columnSpan);
  // Even cells, whatever stands in them; rows without a key take no place.
  grid->setRowStretch(key.row, 1);
  for (int n = key.column; n < key.column + key.columnSpan; ++n) grid->setColumnStretch(n, 1);
}

void Keypad::Refresh(const KeyTest& isShown, const KeyTest& isEnabled) {
  for (std::size_t n = 0; n < keys.size(); ++n) {
    buttons[n]->setEnabled(isEnabled(keys[n]));
    buttons[n]->setVisible(isShown(keys[n]));
  }
}

KeyButton* Keypad::Button(std::wstring_view caption) const {
  for (std::size_t n = 0; n < keys.size(); ++n) {
    if (keys[n].caption == caption) return buttons[n];
  }
  return nullptr;
}

}  // namespace vexa
